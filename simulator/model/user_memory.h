#ifndef SIMULATOR_MODEL_USER_MEMORY_H
#define SIMULATOR_MODEL_USER_MEMORY_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// All forms of a value are kept; the type tells which one counts.
struct user_value
{
    QORIN_USER_DATA_TYPE type = QORIN_USER_DATA_NO_TYPE;
    std::int32_t integer = 0;
    std::string text;
    char character = 0;
    double real = 0;
    std::int32_t long_integer = 0; ///< no more than 32 bits arrive
};

/**
 * Values that applications leave on the box under names, for themselves and for each other.
 *
 * It belongs to the box: it stays when clients leave and when the system goes. A name that is not there is
 * QORIN_API_RESULT_ERROR_KEY_NOT_FOUND.
 */
class user_memory
{
public:
    static constexpr std::size_t capacity = 256; ///< names

    /// Replaces what the name had. One name too many is QORIN_API_RESULT_ERROR_KEY_MAX_MEMORY, what is no type of a
    /// value is QORIN_API_RESULT_ERROR_NO_SUPPORT.
    QORIN_API_RESULT set(std::string_view name, const user_value& value);
    QORIN_API_RESULT remove(std::string_view name);
    QORIN_API_RESULT clear();

    /// Null when the name is not there.
    [[nodiscard]] const user_value* find(std::string_view name) const;
    [[nodiscard]] const std::map<std::string, user_value, std::less<>>& all() const { return values_; }

private:
    std::map<std::string, user_value, std::less<>> values_;
};
} // namespace cbox_simulator

#endif
