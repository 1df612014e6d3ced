#include "api/own_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qorin_api
{
namespace
{
/// With a standard stream closed, its number would be given out next, and what the application prints would land here.
int above_standard_streams(int descriptor)
{
    if (descriptor < 0 || descriptor > STDERR_FILENO)
        return descriptor;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::close(descriptor);
    return moved;
}

bool is_regular(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}
} // namespace

bool own_file::open(const std::string& path, int flags)
{
    close();
    // Not blocking, since opening a pipe would wait for its other end.
    constexpr int guards = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    descriptor_ = above_standard_streams(::open(path.c_str(), flags | guards, 0666));
    if (is_open() && !is_regular(descriptor_))
    {
        close();
        errno = EINVAL;
    }
    return is_open();
}

void own_file::close()
{
    if (is_open())
        ::close(descriptor_);
    descriptor_ = -1;
}

bool own_file::read(std::span<std::byte> bytes)
{
    while (!bytes.empty())
    {
        const ssize_t got = ::read(descriptor_, bytes.data(), bytes.size());
        if (got == -1 && errno == EINTR)
            continue;
        if (got < 1)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(got));
    }
    return true;
}

std::size_t own_file::write(std::string_view bytes)
{
    std::size_t written = 0;
    while (written < bytes.size())
    {
        const ssize_t taken = ::write(descriptor_, bytes.data() + written, bytes.size() - written);
        if (taken == -1 && errno == EINTR)
            continue;
        if (taken < 1)
            break;
        written += static_cast<std::size_t>(taken);
    }
    return written;
}

void own_file::cut_back(std::size_t count)
{
    const off_t end = lseek(descriptor_, 0, SEEK_CUR);
    struct stat status = {};
    if (count == 0 || fstat(descriptor_, &status) != 0 || status.st_size != end)
        return;
    const off_t kept = end - static_cast<off_t>(count);
    if (ftruncate(descriptor_, kept) == 0)
        lseek(descriptor_, kept, SEEK_SET);
}
} // namespace qorin_api
