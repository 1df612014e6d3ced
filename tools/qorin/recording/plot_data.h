#ifndef TOOLS_QORIN_RECORDING_PLOT_DATA_H
#define TOOLS_QORIN_RECORDING_PLOT_DATA_H

#include <string>
#include <utility>
#include <vector>

#include "tools/qorin/recording/recording.h"

namespace qorin_cli
{
struct curve
{
    std::string name;
    /// Time and value; a value that is no number where the field had none.
    std::vector<std::pair<double, double>> points;
};

/// Curves over one axis: fields of one unit, a field of words, or channels one above the other.
struct panel
{
    std::string unit;
    std::vector<curve> curves;
    std::vector<std::string> steps; ///< what stands at 0, 1, 2, ...: words, or channels; empty where values are numbers
};

struct plot_data
{
    std::vector<panel> panels;
    std::vector<recorded_event> events;
    double begin = 0;
    double end = 0;
};

struct plot_range
{
    double begin = 0;
    double end = 0; ///< 0: the end of the recording
};

/**
 * What there is to draw of the fields that match a pattern: curves with at most some thousand points each, that keep
 * all peaks. A field of bits gives its channels; one alone is asked for by a dot and its number behind the name. Fields
 * without any value have no curve.
 */
[[nodiscard]] plot_data read_plot_data(recording_reader& recording, const std::vector<std::string>& patterns,
                                       plot_range range);
} // namespace qorin_cli

#endif
