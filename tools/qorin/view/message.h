#ifndef TOOLS_QORIN_VIEW_MESSAGE_H
#define TOOLS_QORIN_VIEW_MESSAGE_H

#include <string>
#include <vector>

#include "tools/qorin/view/status_source.h"

/**
 * What goes to a viewer over its WebSocket; docs/guide/view.md tells the format to others.
 *
 * First a text, the hello. Then binary messages, each of them the status at a time, as what has changed since the last
 * one; and texts, JSON with a `kind` each.
 */
namespace qorin_view
{
/// The state that a viewer has: words of 32 bits, all fields one behind the other.
using words = std::vector<std::uint32_t>;

[[nodiscard]] std::size_t word_count(const std::vector<field_info>& fields);
void write_words(const std::vector<field_info>& fields, std::span<const field_value> values, words& state);

/// The fields in their order, and what is shown.
[[nodiscard]] std::string hello_text(const status_source& source, double rate);

/// An event; with what the library's catalogue says of it, if anything.
[[nodiscard]] std::string event_text(const event_record& record);

[[nodiscard]] std::string notice_text(const std::string& line);

/**
 * Writes a binary message: the time as a double; a bit for each word, from the least of the first byte on; and the
 * words that have changed in their order. All little-endian.
 *
 * @param then  the words that the viewer has; they become those of `now`.
 */
void write_changes(double time, const words& now, words& then, std::string& message);
} // namespace qorin_view

#endif
