#ifndef SAVRENT_CC_ERR_STORAGE_H
#define SAVRENT_CC_ERR_STORAGE_H

#include <cstdint>

namespace savrent::cc::err
{
/// A software fault as the ring keeps it.
struct err_info
{
    std::uint32_t code;
    std::uint32_t line;
    std::uint32_t reserved;
};
static_assert(sizeof(err_info) == 12);

/// The last 128 software faults of the process. Any thread.
class err_storage
{
public:
    static constexpr int capacity = 128;

    /// Appends a fault; a full ring drops its oldest one.
    static void add(const err_info& info);

    /// Moves all faults, oldest first, to `out`, which must have room for `capacity` of them.
    static void get_and_remove(err_info* out, int& count);
};
} // namespace savrent::cc::err

#endif
