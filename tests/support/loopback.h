#ifndef TESTS_SUPPORT_LOOPBACK_H
#define TESTS_SUPPORT_LOOPBACK_H

#include <string>

#include <unistd.h>

namespace test_support
{
/// A loopback address of this process alone: the port is fixed by the protocol, and tests run side by side.
/// `index` tells several control boxes of one process apart.
inline std::string own_address(unsigned int index = 0)
{
    const auto pid = static_cast<unsigned int>(getpid());
    return "127." + std::to_string(64 + index * 32 + (pid >> 16 & 31)) + "." + std::to_string(pid >> 8 & 255) + "." +
           std::to_string(pid & 255);
}
} // namespace test_support

#endif
