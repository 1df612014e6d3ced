#ifndef RPC_QORIN_RPC_CLIENT_H
#define RPC_QORIN_RPC_CLIENT_H

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include <sys/types.h>

#include "protocol/status_frame.h"
#include "savrent/cc/tcp_client.h"

namespace qorin_api_rpc
{
class qorin_rpc_event;

/**
 * The client side of one control box: its three links, the mirror of its status frame, its event dispatcher and the two
 * threads that feed them.
 *
 * Owned by the registry of connections, which never lets go of it: other threads may be in here until the process is
 * gone. The command link is used under the exported call lock alone. The data thread is the only writer of the mirror;
 * readers take no lock and may see a frame that is partly new.
 */
class qorin_rpc_client
{
public:
    /// Starts both receive threads, which no signal interrupts. @throws std::system_error when a thread cannot be
    /// started
    qorin_rpc_client(unsigned int cbox_id, std::shared_ptr<qorin_rpc_event> event,
                     std::shared_ptr<savrent::cc::tcp_client> command_link,
                     std::shared_ptr<savrent::cc::tcp_client> data_link,
                     std::shared_ptr<savrent::cc::tcp_client> event_link);
    qorin_rpc_client(const qorin_rpc_client&) = delete;
    qorin_rpc_client& operator=(const qorin_rpc_client&) = delete;

    /// Joins both threads without interrupting their reads: it waits for the next frame and event or for a lost link.
    ~qorin_rpc_client();

    /// Waits, without limit, until the command link yields something, then reads. @return as tcp_read(), or -1
    int read(unsigned char* buffer, int length);
    int write(const unsigned char* buffer, int length);

    [[nodiscard]] protocol::shared_data_t* get_shared_data() { return &mirror_.frame; }
    [[nodiscard]] std::shared_ptr<qorin_rpc_event> get_event() const { return event_; }

    /// Whether this process made the connection. A process that was forked off has the object, but not its threads, and
    /// the links in common with the process that has.
    [[nodiscard]] bool is_of_this_process() const;

    /// Tells both receive threads to end. The control box notices nothing, and commands go on.
    void stop_receiving();

    /// Waits for the receive threads after stop_receiving(). One that is still in a callback at the deadline is left to
    /// itself, and so is the calling thread.
    void join_receivers(std::chrono::steady_clock::time_point deadline);

    /// Closes the command link, and the others unless their threads are still there. Under the call lock.
    void release_links();

private:
    using receive_function = void (qorin_rpc_client::*)();

    [[nodiscard]] std::thread start(receive_function body, std::future<void>& end);
    void data_recv_func();
    void event_recv_func();

    [[nodiscard]] bool is_running() const { return is_running_.load(std::memory_order_relaxed); }
    void stop_running() { is_running_.store(false, std::memory_order_relaxed); }

    [[maybe_unused]] unsigned int cbox_id_;
    std::shared_ptr<savrent::cc::tcp_client> command_link_;
    std::shared_ptr<savrent::cc::tcp_client> data_link_;
    std::shared_ptr<savrent::cc::tcp_client> event_link_;
    std::shared_ptr<qorin_rpc_event> event_;
    protocol::mirrored_frame mirror_;
    std::thread data_thread_;
    std::thread event_thread_;
    std::future<void> data_end_; ///< ready when the thread's function is through
    std::future<void> event_end_;
    const pid_t process_;
    std::atomic<bool> is_running_ = true; ///< shared by both links: one that fails ends both threads
};
} // namespace qorin_api_rpc

#endif
