#ifndef TOOLS_QORIN_REPLAY_ARGUMENTS_H
#define TOOLS_QORIN_REPLAY_ARGUMENTS_H

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/function_table/function_rows.h"

namespace qorin_cli::replay
{
/// Why a call cannot be repeated, as words behind its name.
class not_repeatable : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/**
 * The texts of the arguments, one a parameter.
 *
 * @param line  what stands between the brackets of a call line: free texts without quotes among them.
 * @throws not_repeatable when the line does not tell where one ends and the next begins.
 */
[[nodiscard]] std::vector<std::string> split_arguments(const function_row& function, std::string_view line);

/// The arguments of one call in memory, with as much room behind each pointer as the function reads and writes.
class arguments
{
public:
    /// @throws not_repeatable for what the log does not tell: arrays, callbacks, members without a name.
    arguments(const function_row& function, const std::vector<std::string>& texts);

    [[nodiscard]] unsigned int number(std::size_t index) const { return static_cast<unsigned int>(values_[index]); }
    void set_number(std::size_t index, unsigned int value) { values_[index] = value; }

    /// The number that an output holds after the call.
    [[nodiscard]] unsigned int output(std::size_t index) const;

    /// For function_row::invoke(). Good as long as this object.
    [[nodiscard]] std::vector<void*> addresses();

private:
    std::vector<std::uint64_t> values_;
    std::vector<std::vector<std::byte>> memory_; ///< behind the pointers; empty for a null pointer
};
} // namespace qorin_cli::replay

#endif
