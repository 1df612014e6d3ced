#ifndef TESTS_SUPPORT_TEXT_FORM_H
#define TESTS_SUPPORT_TEXT_FORM_H

#include <cctype>
#include <string_view>

namespace test_support
{
/// Whether a text has a form: '#' stands for one digit, '@' for one or more, everything else for itself.
inline bool has_form(std::string_view text, std::string_view form)
{
    const auto is_digit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    std::size_t place = 0;
    for (const char wanted : form)
    {
        if (place == text.size() || (wanted == '#' || wanted == '@' ? !is_digit(text[place]) : text[place] != wanted))
            return false;
        ++place;
        while (wanted == '@' && place < text.size() && is_digit(text[place]))
            ++place;
    }
    return place == text.size();
}

/// The local time of a log line, as in 2026.03.01,09h05m07s042.
inline constexpr std::string_view time_form = "####.##.##,##h##m##s###";
} // namespace test_support

#endif
