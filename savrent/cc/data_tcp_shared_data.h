#ifndef SAVRENT_CC_DATA_TCP_SHARED_DATA_H
#define SAVRENT_CC_DATA_TCP_SHARED_DATA_H

#include <atomic>
#include <string>
#include <thread>

#include "protocol/status_frame.h"
#include "savrent/cc/tcp_client.h"

namespace savrent::cc
{
/**
 * Carries the shared frame over TCP between processes that have no memory in common.
 *
 * In each exchange the frame goes from the control software to the program and one command record comes back, with an
 * empty wire name when there is no command. The control software's side sends what stands in data() on the write link
 * and puts commands on the queue of internal_cmd_proc; the program's side receives into data_c() on the read link and
 * takes commands off that queue. Each side has a thread of its own here, which waits for its link. Frames are sent
 * and received in place without a lock, and torn ones are accepted.
 *
 * One thread starts and ends it; the links may be set on any thread.
 */
class data_tcp_shared_data
{
public:
    data_tcp_shared_data() = default;
    data_tcp_shared_data(const data_tcp_shared_data&) = delete;
    data_tcp_shared_data& operator=(const data_tcp_shared_data&) = delete;
    ~data_tcp_shared_data() { terminate(); }

    /// Starts the two threads, once. @param name  names the exchange in failure lines.
    void init(const char* name);

    /// Shuts the links down, joins the threads and forgets the links.
    void terminate();

    [[nodiscard]] protocol::shared_data_t* data() { return &data_; }
    [[nodiscard]] const protocol::shared_data_t* data_c() const { return &data_c_; }

    /// Nothing is sent before this: data() holds a frame.
    void set_fw_run() { fw_run_.store(true, std::memory_order_relaxed); }

    /// The links stay the caller's, and must live until terminate(). A link that fails is forgotten.
    void set_write_tcp_client(tcp_client* client) { write_client_.store(client, std::memory_order_relaxed); }
    void set_read_tcp_client(tcp_client* client) { read_client_.store(client, std::memory_order_relaxed); }

private:
    void tcp_fw_rw_thread_func();
    void tcp_api_rw_thread_func();
    [[nodiscard]] bool is_running() const { return running_.load(std::memory_order_relaxed); }

    std::string name_;
    std::atomic<bool> running_ = false;
    std::atomic<bool> fw_run_ = false;
    std::atomic<tcp_client*> write_client_ = nullptr;
    std::atomic<tcp_client*> read_client_ = nullptr;
    alignas(64) protocol::shared_data_t data_ = {};
    alignas(64) protocol::shared_data_t data_c_ = {};
    std::thread tcp_fw_rw_thread_;
    std::thread tcp_api_rw_thread_;
};
} // namespace savrent::cc

#endif
