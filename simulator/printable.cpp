#include "simulator/printable.h"

#include <iterator>

#include <fmt/format.h>

namespace cbox_simulator
{
std::string printable(std::string_view text)
{
    std::string line = "\"";
    for (const char character : text)
    {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte > 0x7E || character == '"' || character == '\\')
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", byte);
        else
            line += character;
    }
    return line + '"';
}
} // namespace cbox_simulator
