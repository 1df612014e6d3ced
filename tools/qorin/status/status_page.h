#ifndef TOOLS_QORIN_STATUS_STATUS_PAGE_H
#define TOOLS_QORIN_STATUS_STATUS_PAGE_H

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/qorin/status/status_fields.h"
#include "tools/qorin/terminal.h"

namespace qorin_cli
{
/// All fields at one time, by their names.
class status_reading
{
public:
    explicit status_reading(const std::vector<status_field>& fields);

    [[nodiscard]] bool has(const std::string& name) const { return values_.contains(name); }
    [[nodiscard]] double number(const std::string& name) const;

    /// A member of an enumeration in words: "emergency stopping" of EMG_STOPPING. A dash where there is none.
    [[nodiscard]] std::string word(const std::string& name) const;

    /// As it stands in the field.
    [[nodiscard]] std::string text(const std::string& name) const;

private:
    std::map<std::string, field_value> values_; ///< of those that have one
};

/// A line of a page, and whether it goes first where a window is too small.
struct page_line
{
    std::string text;
    enum : int
    {
        needed,
        useful,
        extra
    } rank = needed;
};

[[nodiscard]] page_line page_title(const std::string& address, unsigned int cbox_id, const status_reading& now,
                                   const palette& colours);

/// Who may command, as far as this program knows.
[[nodiscard]] page_line control_line(bool may_command, const palette& colours);

/// Control box and robots in words, with the colours of the palette.
[[nodiscard]] std::vector<page_line> status_page(const status_reading& now, const robot_watch& robots,
                                                 const palette& colours);

/// As many lines as there are rows for them, the most needed ones, cut to the columns.
[[nodiscard]] std::vector<std::string> fit_page(std::vector<page_line> page, window room);

/// The same in one line without colours.
[[nodiscard]] std::string status_line(const status_reading& now, const robot_watch& robots);
} // namespace qorin_cli

#endif
