#ifndef SIMULATOR_PRINTABLE_H
#define SIMULATOR_PRINTABLE_H

#include <string>
#include <string_view>

namespace cbox_simulator
{
/// Text from a link as one printable line in quotes: other bytes show as \xNN.
[[nodiscard]] std::string printable(std::string_view text);
} // namespace cbox_simulator

#endif
