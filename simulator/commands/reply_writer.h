#ifndef SIMULATOR_COMMANDS_REPLY_WRITER_H
#define SIMULATOR_COMMANDS_REPLY_WRITER_H

#include <cassert>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "protocol/rpc_record.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// Fills the reply of one command: outputs in the order of the command's output parameters, each once, and the result.
class reply_writer
{
public:
    /// Clears the record: what no handler writes is zero.
    explicit reply_writer(protocol::reply_record& record) : record_(record) { std::memset(&record, 0, sizeof record); }

    /// An integer or an enumeration.
    template <class Value>
    void next_value(Value value)
    {
        static_assert((std::is_integral_v<Value> || std::is_enum_v<Value>)&&sizeof(Value) <= sizeof(std::uint32_t));
        assert(value_ < protocol::slot_count);
        record_.value[value_++] = static_cast<std::uint32_t>(value);
    }

    void next_double(double value)
    {
        assert(real_ < protocol::slot_count);
        record_.real[real_++] = value;
    }

    void result(QORIN_API_RESULT result) { record_.result = result; }

private:
    protocol::reply_record& record_;
    std::size_t value_ = 0;
    std::size_t real_ = 0;
};
} // namespace cbox_simulator

#endif
