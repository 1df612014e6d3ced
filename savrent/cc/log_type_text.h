#ifndef SAVRENT_CC_LOG_TYPE_TEXT_H
#define SAVRENT_CC_LOG_TYPE_TEXT_H

#include <map>
#include <string>

#include "qorin/enumerations.h"

namespace savrent::cc
{
/// The text in front of a message, by type. A type that is not among them gets an empty text on first use.
[[nodiscard]] inline std::map<QORIN_LOG_TYPE, std::string> log_type_texts()
{
    return {
        {QORIN_LOG_TYPE_ERROR, "[ERROR] "}, {QORIN_LOG_TYPE_WARNING, "[WARNING] "}, {QORIN_LOG_TYPE_INFO, "[INFO] "},
        {QORIN_LOG_TYPE_EVENT, "[EVENT] "}, {QORIN_LOG_TYPE_CMD, "[CMD] "},         {QORIN_LOG_TYPE_ADDITIONAL, "  - "},
    };
}
} // namespace savrent::cc

#endif
