#ifndef TOOLS_QORIN_TERMINAL_H
#define TOOLS_QORIN_TERMINAL_H

#include <cstdlib>
#include <string>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

namespace qorin_cli
{
[[nodiscard]] inline bool is_terminal(int file)
{
    return isatty(file) != 0;
}

/// Colours of a text: those that a terminal has, none elsewhere and none with NO_COLOR.
class palette
{
public:
    enum colour : int
    {
        bold = 1,
        dim = 2,
        red = 31,
        green = 32,
        yellow = 33,
        blue = 34,
        magenta = 35,
        cyan = 36
    };

    explicit palette(int file) : has_colours_(is_terminal(file) && is_wanted()) {}

    [[nodiscard]] bool has_colours() const { return has_colours_; }

    [[nodiscard]] std::string paint(std::string_view text, colour with) const
    {
        if (!has_colours_ || text.empty())
            return std::string(text);
        return "\033[" + std::to_string(with) + "m" + std::string(text) + "\033[0m";
    }

private:
    static bool is_wanted()
    {
        const char* const no_color = std::getenv("NO_COLOR");
        const char* const term = std::getenv("TERM");
        return (no_color == nullptr || *no_color == '\0') && term != nullptr && std::string_view(term) != "dumb";
    }

    bool has_colours_;
};

struct window
{
    int rows = 24;
    int columns = 80;
};

/// The window of a terminal as it is now; the usual one where a terminal does not tell.
[[nodiscard]] inline window window_of(int file)
{
    winsize told{};
    if (ioctl(file, TIOCGWINSZ, &told) != 0 || told.ws_row == 0 || told.ws_col == 0)
        return {};
    return {told.ws_row, told.ws_col};
}
} // namespace qorin_cli

#endif
