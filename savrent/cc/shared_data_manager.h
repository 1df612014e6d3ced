#ifndef SAVRENT_CC_SHARED_DATA_MANAGER_H
#define SAVRENT_CC_SHARED_DATA_MANAGER_H

#include <cstdint>

namespace savrent::cc
{
/// What the foundations read and write of the control software's system data.
struct system_data
{
    std::uint64_t time;
    std::uint32_t error_code;
    char error_text[128];
};

/**
 * The system data of the control software, null in a client: its frame comes over the data link instead.
 *
 * The first call that finds none reports a software error. Any thread.
 */
[[nodiscard]] system_data* get_system_data();
} // namespace savrent::cc

#endif
