#ifndef TOOLS_QORIN_RECORDING_TERMINAL_PLOT_H
#define TOOLS_QORIN_RECORDING_TERMINAL_PLOT_H

#include <string>

#include "tools/qorin/recording/plot_data.h"
#include "tools/qorin/terminal.h"

namespace qorin_cli
{
/// The panels as text of so many columns, with curves of dots (Unicode's braille patterns). Without colours each curve
/// has a panel of its own, since nothing else tells them apart.
[[nodiscard]] std::string terminal_plot(const plot_data& data, int columns, const palette& colours);
} // namespace qorin_cli

#endif
