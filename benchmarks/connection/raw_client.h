#ifndef BENCHMARKS_CONNECTION_RAW_CLIENT_H
#define BENCHMARKS_CONNECTION_RAW_CLIENT_H

#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "protocol/rpc_record.h"
#include "protocol/status_frame.h"

namespace benchmark_support
{
/// What the library is measured against: three plain sockets, one thread that receives frames, no more.
class raw_client
{
public:
    /// @param on_frame  called on the receiving thread
    explicit raw_client(
        const std::string& address, std::function<void(const protocol::shared_data_t&)> on_frame = [](const auto&) {});
    ~raw_client();
    raw_client(const raw_client&) = delete;
    raw_client& operator=(const raw_client&) = delete;

    /// Moves one request and its reply.
    void round_trip(const protocol::request_record& request, protocol::reply_record& reply) const;

private:
    int command_;
    int data_;
    int event_;
    std::thread receiver_;
};
} // namespace benchmark_support

#endif
