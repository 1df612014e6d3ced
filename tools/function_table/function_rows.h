#ifndef TOOLS_FUNCTION_TABLE_FUNCTION_ROWS_H
#define TOOLS_FUNCTION_TABLE_FUNCTION_ROWS_H

#include <span>
#include <string_view>

namespace qorin_cli
{
/// What a request, the status mirror or the client itself answers.
enum class function_kind
{
    command,
    getter,
    local
};

enum class value_type
{
    none, ///< of a result: void
    boolean,
    character,
    byte,
    word,
    integer,
    natural,
    wide, ///< 64 bits
    real,
    result,  ///< QORIN_API_RESULT, of a result of a function
    text,    ///< const char*, of a result of a function
    callback ///< a function of the application
};

struct member_row
{
    std::string_view name;
    unsigned int value;
};

struct enumeration_row
{
    std::string_view name;
    std::span<const member_row> members;
};

/// One dimension of an array: a number of elements, of joints, or what the input `parameter` says, less `less`.
struct dimension_row
{
    unsigned int number; ///< at most so many where it is of joints
    bool of_joints;
    std::string_view parameter;
    unsigned int less;
};

struct parameter_row
{
    std::string_view name;
    std::string_view type; ///< as the header has it
    value_type element;
    bool is_pointer;
    bool is_output;
    bool is_text;
    bool is_unused;    ///< there for its place alone
    unsigned int room; ///< bytes that must be there behind a pointer, 0 where the arguments tell
    std::span<const dimension_row> shape;
    const enumeration_row* enumeration;
    std::string_view doc;
};

/// An exported function. `README.md` tells more of what the fields mean.
struct function_row
{
    std::string_view name;
    std::string_view family;
    function_kind kind;
    value_type returns;
    std::string_view brief;
    std::string_view doc;
    std::string_view result;
    std::span<const parameter_row> parameters;
    /// Calls it with what lies at the addresses of its arguments, all of them, and puts its result where `result`
    /// points.
    void (*invoke)(void* const* arguments, void* result);
};

/// All functions that are called with a connection, in the order of the headers.
std::span<const function_row> function_rows();
/// All others with C linkage: those without a connection, the texts of results.
std::span<const function_row> local_function_rows();
std::span<const enumeration_row> enumeration_rows();

/// By its exported name or what is behind `qorin_rpc_` in it; null when there is none. What is behind `qorin_` alone
/// names a function without a connection, where there is none with one.
const function_row* find_function(std::string_view name);
const enumeration_row* find_enumeration(std::string_view name);
/// The name of a value; empty when it is no member.
std::string_view member_name(const enumeration_row& enumeration, unsigned int value);
} // namespace qorin_cli

#endif
