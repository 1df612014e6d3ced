#include "savrent/cc/own_descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace savrent::cc
{
int own_descriptor(int descriptor)
{
    if (descriptor < 0)
        return descriptor;
    if (descriptor > STDERR_FILENO)
    {
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        return descriptor;
    }
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int failure = errno;
    close(descriptor);
    errno = failure;
    return moved;
}
} // namespace savrent::cc
