#ifndef TOOLS_QORIN_RECORDING_PICTURE_PLOT_H
#define TOOLS_QORIN_RECORDING_PICTURE_PLOT_H

#include <filesystem>

#include "tools/qorin/recording/plot_data.h"

namespace qorin_cli
{
/**
 * Draws the panels with gnuplot to a picture whose form goes by its ending, .svg or .png.
 *
 * @param title        above the picture
 * @param with_events  a mark for each event
 * @throws failure when gnuplot is not there or the picture cannot be written.
 */
void draw_picture(const plot_data& data, const std::filesystem::path& picture, const std::string& title,
                  bool with_events);
} // namespace qorin_cli

#endif
