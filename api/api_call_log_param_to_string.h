#ifndef API_API_CALL_LOG_PARAM_TO_STRING_H
#define API_API_CALL_LOG_PARAM_TO_STRING_H

#include <string>
#include <type_traits>

#include "api/qorin_enum_to_string.h"
#include "qorin/event.h"
#include "qorin/log.h"

/**
 * The text of an argument in a call line.
 *
 * A line reads like source of a program that could be run again: numbers by value, texts as they are, outputs as the
 * name of a variable that such a program would declare.
 */
namespace qorin_api
{
std::string param_to_string(char value);
std::string param_to_string(signed char value);
std::string param_to_string(unsigned char value);
std::string param_to_string(short value);
std::string param_to_string(unsigned short value);
std::string param_to_string(int value);
std::string param_to_string(unsigned int value);
std::string param_to_string(long value);
std::string param_to_string(double value);
std::string param_to_string(const char* text);

std::string param_to_string(char* output);
std::string param_to_string(signed char* output);
std::string param_to_string(unsigned char* output);
std::string param_to_string(short* output);
std::string param_to_string(unsigned short* output);
std::string param_to_string(int* output);
std::string param_to_string(unsigned int* output);
std::string param_to_string(long* output);
std::string param_to_string(double* output);

/// The function's address in decimal, so "0" for a null callback.
std::string param_to_string(qorin_event_callback callback);

/// The member's name, or "nullptr" for a number without one.
[[nodiscard]] inline std::string enum_to_string(unsigned int value)
{
    const char* name = savrent::cc::get_string_from_enum_internal(value);
    return name == nullptr ? "nullptr" : name;
}

template <class Enum>
requires std::is_enum_v<Enum> std::string param_to_string(Enum value)
{
    return enum_to_string(static_cast<unsigned int>(value));
}

/// A double outside the range of unsigned numbers has no name; the cast alone would be undefined for it.
template <class T>
[[nodiscard]] unsigned int as_enum_number(T value)
{
    if constexpr (std::is_floating_point_v<T>)
        return value > -1.0 && value < 4294967296.0 ? static_cast<unsigned int>(value) : 0;
    else
        return static_cast<unsigned int>(value);
}

/**
 * Arrays, and outputs of enumeration type: the first element's number looked up among the enumeration names. So an
 * array is one argument whose contents do not show, and an output shows what it held before the call.
 */
template <class T>
requires(!std::is_function_v<T>) std::string param_to_string(T* values)
{
    return values == nullptr ? "nullptr" : enum_to_string(as_enum_number(*values));
}
} // namespace qorin_api

#endif
