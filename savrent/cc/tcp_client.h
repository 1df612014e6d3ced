#ifndef SAVRENT_CC_TCP_CLIENT_H
#define SAVRENT_CC_TCP_CLIENT_H

namespace savrent::cc
{
/**
 * One blocking IPv4 TCP client socket.
 *
 * It neither retries, reconnects, buffers nor runs a thread, and it has no lock: one thread at a time reads, one
 * writes. end_reading() and shut_down() may be called beside a read or a write. A write on a link that the peer has
 * closed raises SIGPIPE unless the application ignores it.
 */
class tcp_client
{
public:
    tcp_client() = default;

    /// Adopts an open descriptor.
    explicit tcp_client(int descriptor) : descriptor_(descriptor) {}
    tcp_client(const tcp_client&) = delete;
    tcp_client& operator=(const tcp_client&) = delete;
    ~tcp_client();

    /**
     * Connects once. After a failure the object is neither usable nor reusable until close_socket().
     *
     * Blocks as long as the operating system lets it.
     *
     * @param ignored  not looked at.
     * @param address  IPv4 address in dotted form; null counts as malformed. A malformed one fails and reaches nobody.
     * @param port     port in host order.
     * @return true when the connection stands.
     */
    [[nodiscard]] bool connect_to_server(const char* ignored, const char* address, unsigned short port);

    /// Reads exactly `length` bytes. @return `length`; 0 for a length below 1; -1 on failure and on the peer's close.
    int tcp_read(unsigned char* buffer, int length) const;

    /// Sends once, at once. @return what send() returned.
    int tcp_write(const unsigned char* buffer, int length) const;

    /// tcp_read() with a receive time-out; -1 when the time-out cannot be set.
    int tcp_read_wait(unsigned char* buffer, int length, int seconds) const;

    /// Waits at most one second for the socket to become readable.
    [[nodiscard]] bool tcp_read_ready() const;

    /// @return the result of close(), 0 when there was no socket.
    int close_socket();

    /// Lets a blocked read fail; what was received before may still be read. The peer notices nothing.
    void end_reading() const;

    /// Ends both directions, so that a blocked read fails. The descriptor stays open.
    void shut_down() const;

    /// Keeps the text, cut at 31 characters.
    void set_client_ip_addr(const char* address);

    /// Copies the kept text to `address`, which needs room for 32 bytes.
    void get_client_ip_addr(char* address) const;

private:
    int descriptor_ = 0; ///< 0 means that there is no socket; -1 is left when socket() failed
    char client_ip_addr_[32] = {};
};
} // namespace savrent::cc

#endif
