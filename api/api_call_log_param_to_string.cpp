#include "api/api_call_log_param_to_string.h"

#include <array>
#include <cfloat>
#include <cstdint>
#include <cstdio>

namespace qorin_api
{
namespace
{
std::string output_name(const void* output, const char* name)
{
    return output == nullptr ? "nullptr" : name;
}
} // namespace

std::string param_to_string(char value)
{
    return std::to_string(static_cast<signed char>(value));
}

std::string param_to_string(signed char value)
{
    return std::to_string(value);
}

std::string param_to_string(unsigned char value)
{
    return std::to_string(value);
}

std::string param_to_string(short value)
{
    return std::to_string(value);
}

std::string param_to_string(unsigned short value)
{
    return std::to_string(value);
}

std::string param_to_string(int value)
{
    return std::to_string(value);
}

std::string param_to_string(unsigned int value)
{
    return std::to_string(value);
}

std::string param_to_string(long value)
{
    return std::to_string(value);
}

std::string param_to_string(double value)
{
    std::array<char, DBL_MAX_10_EXP + 20> text; // the longest "%f" there is
    std::snprintf(text.data(), text.size(), "%f", value);
    return text.data();
}

std::string param_to_string(const char* text)
{
    return text == nullptr ? "nullptr" : text;
}

std::string param_to_string(char* output)
{
    return output_name(output, "&char_t_var");
}

std::string param_to_string(signed char* output)
{
    return output_name(output, "&int8_t_var");
}

std::string param_to_string(unsigned char* output)
{
    return output_name(output, "&uint8_t_var");
}

std::string param_to_string(short* output)
{
    return output_name(output, "&int16_t_var");
}

std::string param_to_string(unsigned short* output)
{
    return output_name(output, "&uint16_t_var");
}

std::string param_to_string(int* output)
{
    return output_name(output, "&int32_t_var");
}

std::string param_to_string(unsigned int* output)
{
    return output_name(output, "&uint32_t_var");
}

std::string param_to_string(long* output)
{
    return output_name(output, "&int64_t_var");
}

std::string param_to_string(double* output)
{
    return output_name(output, "&qorin_float_t_var");
}

std::string param_to_string(qorin_event_callback callback)
{
    return std::to_string(reinterpret_cast<std::uintptr_t>(callback));
}

std::string param_to_string(const double* values, unsigned int number)
{
    return values == nullptr ? "nullptr" : "p_qorin_float_t_arr_" + std::to_string(number);
}

std::string param_to_string(const unsigned int* values, unsigned int number)
{
    return values == nullptr ? "nullptr" : "p_uint3_t_arr_" + std::to_string(number);
}
} // namespace qorin_api
