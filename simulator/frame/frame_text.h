#ifndef SIMULATOR_FRAME_FRAME_TEXT_H
#define SIMULATOR_FRAME_FRAME_TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace cbox_simulator
{
/// The texts of a frame end with a NUL within their field, which is zero before; what is longer is cut.
template <std::size_t size>
void put_text(char (&field)[size], std::string_view text)
{
    std::memcpy(field, text.data(), std::min(text.size(), size - 1));
}
} // namespace cbox_simulator

#endif
