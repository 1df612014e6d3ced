#include "simulator/commands/families.h"

#include <algorithm>
#include <chrono>
#include <cstring>

#include "simulator/commands/part_operation.h"
#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT set(box_model& model, std::string_view name, QORIN_USER_DATA_TYPE type, std::int32_t integer,
                     std::string_view text, char character, double real, std::int32_t long_integer)
{
    return model.user_memory().set(name, {type, integer, std::string(text), character, real, long_integer});
}

/// A reply has room for the first four bytes of a text.
std::uint32_t first_bytes(std::string_view text)
{
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, text.data(), std::min(text.size(), sizeof bytes));
    return bytes;
}

QORIN_API_RESULT get(box_model& model, std::string_view name, QORIN_USER_DATA_TYPE& type, std::uint32_t& integer,
                     std::uint32_t& text, std::uint32_t& character, double& real, std::uint32_t& long_integer)
{
    const auto* value = model.user_memory().find(name);
    if (!value)
        return QORIN_API_RESULT_ERROR_KEY_NOT_FOUND;
    type = value->type;
    integer = static_cast<std::uint32_t>(value->integer);
    text = first_bytes(value->text);
    character = static_cast<std::uint32_t>(value->character); // with its sign
    real = value->real;
    long_integer = static_cast<std::uint32_t>(value->long_integer);
    return QORIN_API_RESULT_OK;
}

/// The caller's next command comes after the reply; everybody else is served meanwhile.
QORIN_API_RESULT sleep(box_model& model, std::uint32_t milliseconds)
{
    model.delay_reply(std::chrono::milliseconds(milliseconds));
    return QORIN_API_RESULT_OK;
}

constexpr command_row rows[] = {
    controlled<set>("qorin_set_user_memory"),
    controlled<get>("qorin_get_user_memory"),
    controlled<on_part<&user_memory::remove>>("qorin_delete_user_memory"),
    controlled<on_part<&user_memory::clear>>("qorin_clear_user_memory"),
    controlled<sleep>("qorin_rt_sleep"),
};
} // namespace

std::span<const command_row> memory_commands()
{
    return rows;
}
} // namespace cbox_simulator
