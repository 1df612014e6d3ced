#ifndef SAVRENT_CC_SYSTEM_CONFIG_PARSER_H
#define SAVRENT_CC_SYSTEM_CONFIG_PARSER_H

#include <memory>
#include <string>

#include "savrent/cc/config_parser.h"

namespace savrent::cc
{
/// The configuration of the process: one file for all control boxes.
class system_config_parser : public config_parser
{
public:
    /// Made on first use, by any thread.
    static std::shared_ptr<system_config_parser> get_instance();
};

/**
 * The value of a key of the process's configuration, as every reader wants it: an absent configuration and a missing
 * key are an empty value.
 */
[[nodiscard]] std::string system_config_value(const char* key);
} // namespace savrent::cc

#endif
