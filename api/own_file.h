#ifndef API_OWN_FILE_H
#define API_OWN_FILE_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace qorin_api
{
/**
 * A file that the library keeps for itself, closed with its owner. No lock.
 *
 * Programs that the application starts do not inherit it. A name that leads elsewhere, by a symbolic link, or that is a
 * pipe or a device is refused: nobody shall turn the library's writing into writing to a file of another.
 */
class own_file
{
public:
    own_file() = default;
    own_file(const own_file&) = delete;
    own_file& operator=(const own_file&) = delete;
    ~own_file() { close(); }

    /// @param flags  those of open(2). @return false, with errno, when there is no such file to be had.
    [[nodiscard]] bool open(const std::string& path, int flags);
    void close();
    [[nodiscard]] bool is_open() const { return descriptor_ >= 0; }

    /// @return whether all the bytes came.
    [[nodiscard]] bool read(std::span<std::byte> bytes);

    /// @return how many bytes of `bytes` the file took; errno tells why it took no more.
    [[nodiscard]] std::size_t write(std::string_view bytes);

    /// Takes the last `count` bytes written off the file again, unless another process has written behind them.
    void cut_back(std::size_t count);

private:
    int descriptor_ = -1;
};
} // namespace qorin_api

#endif
