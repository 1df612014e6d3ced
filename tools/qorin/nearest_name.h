#ifndef TOOLS_QORIN_NEAREST_NAME_H
#define TOOLS_QORIN_NEAREST_NAME_H

#include <string>
#include <string_view>
#include <vector>

namespace qorin_cli
{
/// The names that a misspelt one may stand for, nearest first, at most `count`: those that a third of its letters,
/// changed, left out or added, lead to.
[[nodiscard]] std::vector<std::string> nearest_names(std::string_view word, const std::vector<std::string>& names,
                                                     std::size_t count);
} // namespace qorin_cli

#endif
