#include "tools/qorin/recording/terminal_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <fmt/format.h>

namespace qorin_cli
{
namespace
{
constexpr int axis_width = 12;
constexpr int panel_rows = 12;
constexpr std::array curve_colours = {palette::green,   palette::cyan, palette::yellow,
                                      palette::magenta, palette::blue, palette::red};

palette::colour colour_of(std::size_t curve)
{
    return curve_colours[curve % curve_colours.size()];
}

/// Dots, 2 by 4 in each character.
class canvas
{
public:
    canvas(int rows, int columns) : rows_(rows), columns_(columns), cells_(static_cast<std::size_t>(rows * columns)) {}

    [[nodiscard]] int width() const { return 2 * columns_; }
    [[nodiscard]] int height() const { return 4 * rows_; }

    /// A line up or down in a column of dots, the lowest being 0.
    void draw(int x, int from, int to, std::size_t curve)
    {
        for (int y = std::min(from, to); y <= std::max(from, to); ++y)
        {
            if (x < 0 || x >= width() || y < 0 || y >= height())
                continue;
            const int row = height() - 1 - y;
            cell& one = cells_[static_cast<std::size_t>(row / 4 * columns_ + x / 2)];
            constexpr int dot_of[4][2] = {{0, 3}, {1, 4}, {2, 5}, {6, 7}}; // as Unicode numbers them
            one.dots |= 1U << dot_of[row % 4][x % 2];
            one.curve = curve;
        }
    }

    [[nodiscard]] std::string row(int which, const palette& colours) const
    {
        std::string text;
        for (int column = 0; column < columns_; ++column)
        {
            const cell& one = cells_[static_cast<std::size_t>(which * columns_ + column)];
            // U+2800 and the dots, in UTF-8
            const char bytes[] = {'\xE2', static_cast<char>(0xA0 | one.dots >> 6),
                                  static_cast<char>(0x80 | (one.dots & 63)), '\0'};
            text += one.dots == 0 ? " " : colours.paint(bytes, colour_of(one.curve));
        }
        return text;
    }

private:
    struct cell
    {
        unsigned int dots = 0;
        std::size_t curve = 0;
    };

    int rows_;
    int columns_;
    std::vector<cell> cells_;
};

struct limits
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void take(const curve& drawn)
    {
        for (const auto& [time, value] : drawn.points)
            if (!std::isnan(value))
            {
                low = std::min(low, value);
                high = std::max(high, value);
            }
    }
};

class panel_drawing
{
public:
    panel_drawing(const panel& drawn, const plot_data& data, int columns, const palette& colours)
        : panel_(drawn), data_(data), colours_(colours), canvas_(rows_of(drawn), std::max(columns - axis_width - 2, 10))
    {
        for (const curve& one : drawn.curves)
            range_.take(one);
        if (range_.high - range_.low < 1e-9)
        {
            range_.low -= 1;
            range_.high += 1;
        }
        for (std::size_t i = 0; i < drawn.curves.size(); ++i)
            draw(drawn.curves[i], i);
    }

    [[nodiscard]] std::string text() const
    {
        std::string result;
        const int rows = canvas_.height() / 4;
        for (int row = 0; row < rows; ++row)
            result += fmt::format("{:>{}} |{}\n", axis_label(row, rows), axis_width, canvas_.row(row, colours_));
        const int columns = canvas_.width() / 2;
        const std::string begin = fmt::format("{:.2f}", data_.begin);
        result += fmt::format("{:>{}} +{:-<{}}\n{:{}}{}{:>{}.2f} s\n", "", axis_width, "", columns, "", axis_width + 2,
                              begin, data_.end, std::max(columns - static_cast<int>(begin.size()) - 2, 6));
        for (std::size_t i = 0; i < panel_.curves.size(); ++i)
            result += legend(panel_.curves[i], i);
        return result;
    }

private:
    static int rows_of(const panel& drawn)
    {
        return drawn.steps.empty() ? panel_rows
                                   : std::clamp(static_cast<int>(drawn.steps.size()) * 2 - 1, 3, panel_rows);
    }

    [[nodiscard]] int dot_of(double value) const
    {
        const double share = (value - range_.low) / (range_.high - range_.low);
        return static_cast<int>(std::lround(share * (canvas_.height() - 1)));
    }

    void draw(const curve& drawn, std::size_t which)
    {
        const double time = std::max(data_.end - data_.begin, 1e-9);
        int last_x = -1;
        int last_y = 0;
        for (const auto& [at, value] : drawn.points)
        {
            const int x = static_cast<int>((at - data_.begin) / time * (canvas_.width() - 1));
            if (std::isnan(value))
            {
                last_x = -1;
                continue;
            }
            const int y = dot_of(value);
            // Between points the last value holds.
            for (int between = last_x + 1; last_x >= 0 && between < x; ++between)
                canvas_.draw(between, last_y, last_y, which);
            canvas_.draw(x, last_x < 0 ? y : last_y, y, which);
            last_x = x;
            last_y = y;
        }
    }

    /// The value at a row; where values stand for words, the word at the row it is drawn on.
    [[nodiscard]] std::string axis_label(int row, int rows) const
    {
        if (panel_.steps.empty())
        {
            if (row != 0 && row != rows / 2 && row != rows - 1)
                return "";
            const double height = range_.high - range_.low;
            const double value = range_.high - height * row / (rows - 1);
            return fmt::format("{:.4g}", std::abs(value) < height * 1e-6 ? 0 : value);
        }
        for (std::size_t step = 0; step < panel_.steps.size(); ++step)
            if (rows - 1 - dot_of(static_cast<double>(step)) / 4 == row)
                return end_of(panel_.steps[step]);
        return "";
    }

    static std::string end_of(const std::string& text)
    {
        return text.size() <= axis_width ? text : text.substr(text.size() - axis_width);
    }

    [[nodiscard]] std::string legend(const curve& drawn, std::size_t which) const
    {
        const std::string name = colours_.paint(fmt::format("{:<28}", drawn.name), colour_of(which));
        if (!panel_.steps.empty())
            return fmt::format("{:{}}{}\n", "", axis_width + 2, name);
        limits own;
        own.take(drawn);
        return fmt::format("{:{}}{} {:.4g} to {:.4g} {}\n", "", axis_width + 2, name, own.low, own.high, panel_.unit);
    }

    const panel& panel_;
    const plot_data& data_;
    const palette& colours_;
    canvas canvas_;
    limits range_;
};
} // namespace

std::string terminal_plot(const plot_data& data, int columns, const palette& colours)
{
    std::string text;
    const auto add = [&](const panel& drawn)
    { text += (text.empty() ? "" : "\n") + panel_drawing(drawn, data, columns, colours).text(); };
    for (const panel& drawn : data.panels)
    {
        if (colours.has_colours() || !drawn.steps.empty())
            add(drawn);
        else
            for (const curve& one : drawn.curves)
                add({drawn.unit, {one}, {}});
    }
    return text;
}
} // namespace qorin_cli
