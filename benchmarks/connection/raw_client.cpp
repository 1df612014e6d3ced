#include "benchmarks/connection/raw_client.h"

#include <cstdio>
#include <cstdlib>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
namespace benchmark_support
{
namespace
{
int connected_link(const std::string& address)
{
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in server{};
    server.sin_family = AF_INET;
    server.sin_port = htons(protocol::control_box_port);
    inet_pton(AF_INET, address.c_str(), &server.sin_addr);
    if (connect(descriptor, reinterpret_cast<sockaddr*>(&server), sizeof(server)) != 0)
    {
        std::perror("raw client");
        std::exit(1);
    }
    const int no_delay = 1;
    setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &no_delay, sizeof(no_delay));
    return descriptor;
}
} // namespace

raw_client::raw_client(const std::string& address, std::function<void(const protocol::shared_data_t&)> on_frame)
    : command_(connected_link(address)), data_(connected_link(address)), event_(connected_link(address)),
      receiver_(
          [this, on_frame = std::move(on_frame)]
          {
              auto frame = std::make_unique<protocol::shared_data_t>();
              while (recv(data_, frame.get(), sizeof(*frame), MSG_WAITALL) > 0)
                  on_frame(*frame);
          })
{
}

raw_client::~raw_client()
{
    for (const int descriptor : {command_, data_, event_})
        shutdown(descriptor, SHUT_RDWR);
    receiver_.join();
    for (const int descriptor : {command_, data_, event_})
        close(descriptor);
}

void raw_client::round_trip(const protocol::request_record& request, protocol::reply_record& reply) const
{
    if (send(command_, &request, sizeof(request), 0) != sizeof(request) ||
        recv(command_, &reply, sizeof(reply), MSG_WAITALL) != sizeof(reply))
    {
        std::perror("raw client");
        std::exit(1);
    }
}
} // namespace benchmark_support
