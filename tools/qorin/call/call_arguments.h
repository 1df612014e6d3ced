#ifndef TOOLS_QORIN_CALL_CALL_ARGUMENTS_H
#define TOOLS_QORIN_CALL_CALL_ARGUMENTS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "tools/function_table/function_rows.h"

namespace qorin_cli
{
/// The parameters that a user tells: inputs, but the control box id, which comes from the connection.
[[nodiscard]] bool is_told(const parameter_row& parameter);

/**
 * The arguments of one call: what the user wrote as values in memory, with as much room behind each pointer as the
 * function reads and writes.
 *
 * An input is told by name, `name=value`, or by place. An array is told as `1,2,3`; the number of its elements need not
 * be told as well, where a parameter says it.
 */
class call_arguments
{
public:
    /// @throws failure of status_usage with a line that names the parameter at fault.
    call_arguments(const function_row& function, const std::vector<std::string>& words);

    /// Fills in the control box id, unless the user did.
    void set_cbox_id(unsigned int cbox_id);

    /// The addresses of the arguments, for function_row::invoke(). Good as long as this object.
    [[nodiscard]] std::vector<void*> addresses();

    /// What the function has written, by the names of its outputs.
    [[nodiscard]] nlohmann::ordered_json outputs() const;

private:
    /// A value; or the memory behind a pointer, whose address is then the value.
    struct argument
    {
        std::optional<std::string> text;
        std::uint64_t value = 0;
        std::vector<std::byte> memory;
    };

    void assign(const std::vector<std::string>& words);
    bool assign_by_name(const std::string& word);
    [[nodiscard]] std::size_t index_of(std::string_view name) const;
    void read_scalar(std::size_t index);
    void read_text(std::size_t index);
    void read_array(std::size_t index);
    void check_count(const parameter_row& parameter, const std::vector<std::string_view>& elements);
    void make_room(std::size_t index);
    [[nodiscard]] std::size_t size_of_dimension(const dimension_row& dimension) const;
    [[nodiscard]] std::size_t element_count(const parameter_row& parameter) const;
    [[nodiscard]] nlohmann::ordered_json load(const parameter_row& parameter, const std::byte* memory,
                                              std::size_t dimension) const;

    const function_row& function_;
    std::vector<argument> arguments_;
};
} // namespace qorin_cli

#endif
