#ifndef TOOLS_QORIN_RESULT_TEXTS_H
#define TOOLS_QORIN_RESULT_TEXTS_H

#include <string>
#include <vector>

namespace qorin_cli
{
/// What the catalogues of the library say of a result, or of an event that reports trouble.
struct result_text
{
    std::string name;
    unsigned int code;
    std::string description;
    std::string values; ///< of an event: what its integers carry
    std::string advice;
};

/// All results and then all such events, ascending. Read once.
const std::vector<result_text>& result_texts();

/// One line: name, code and description. A code without a row is told as such.
[[nodiscard]] std::string result_line(unsigned int code);
} // namespace qorin_cli

#endif
