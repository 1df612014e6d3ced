#ifndef SAVRENT_CC_UDP_H
#define SAVRENT_CC_UDP_H

#include <netinet/in.h>

namespace savrent::cc
{
/// One IPv4 datagram socket with a fixed remote address. No lock; one thread at a time.
class udp
{
public:
    udp() = default;
    udp(const udp&) = delete;
    udp& operator=(const udp&) = delete;
    ~udp() { close(); }

    /**
     * Opens and binds the socket.
     *
     * @param local_ip     dotted address, or null for any.
     * @param local_port   host order; 0 lets the system choose.
     * @param remote_ip    dotted address of every send(); null, like a remote port of 0, leaves the remote address
     * zero.
     * @param remote_port  host order.
     * @return the result of bind().
     */
    int init(const char* local_ip, unsigned short local_port, const char* remote_ip, unsigned short remote_port);

    /// @return `length`, or 0 on failure.
    int send(const char* buffer, int length);

    /// Gathers datagrams until `length` bytes are there. @return the count gathered; 0 for a length below 1.
    int recv(char* buffer, int length);

    void close();

private:
    int descriptor_ = 0;
    sockaddr_in local_address_{};
    sockaddr_in remote_address_{};
};
} // namespace savrent::cc

#endif
