#include "savrent/cc/data_tcp_shared_data.h"

#include <chrono>

#include <pthread.h>
#include <signal.h>

#include "savrent/cc/debug_print.h"
#include "savrent/cc/internal_cmd_proc.h"
#include "savrent/cc/os_util.h"

namespace savrent::cc
{
namespace
{
using val_obj::api_to_fw_cmd;

constexpr auto exchange_period = std::chrono::milliseconds(4);
constexpr int frame_size = sizeof(protocol::shared_data_t);
constexpr int command_size = sizeof(api_to_fw_cmd);

/// A write on a link that was cut must fail, and not end the process.
void block_broken_pipe_signal()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void forget(std::atomic<tcp_client*>& link, tcp_client* failed)
{
    link.compare_exchange_strong(failed, nullptr, std::memory_order_relaxed);
}

void put_on_queue(const api_to_fw_cmd& command)
{
    auto& commands = internal_cmd_proc::get_instance()->commands();
    api_to_fw_cmd* record = commands.take_free();
    if (record == nullptr)
        return;
    *record = command;
    commands.put(record);
}
} // namespace

void data_tcp_shared_data::init(const char* name)
{
    if (is_running())
        return;
    name_ = name;
    running_.store(true, std::memory_order_relaxed);
    tcp_fw_rw_thread_ = std::thread(&data_tcp_shared_data::tcp_fw_rw_thread_func, this);
    tcp_api_rw_thread_ = std::thread(&data_tcp_shared_data::tcp_api_rw_thread_func, this);
}

void data_tcp_shared_data::terminate()
{
    if (!is_running())
        return;
    running_.store(false, std::memory_order_relaxed);
    for (std::atomic<tcp_client*>* link : {&write_client_, &read_client_})
        if (const tcp_client* client = link->exchange(nullptr, std::memory_order_relaxed))
            client->shut_down();
    tcp_fw_rw_thread_.join();
    tcp_api_rw_thread_.join();
    fw_run_.store(false, std::memory_order_relaxed);
}

void data_tcp_shared_data::tcp_fw_rw_thread_func()
{
    block_broken_pipe_signal();
    api_to_fw_cmd command;
    for (; is_running(); os_util::sleep_for(exchange_period))
    {
        tcp_client* client = write_client_.load(std::memory_order_relaxed);
        if (client == nullptr || !fw_run_.load(std::memory_order_relaxed))
            continue;
        const int written = client->tcp_write(reinterpret_cast<const unsigned char*>(&data_), frame_size);
        const int read =
            written == frame_size ? client->tcp_read(reinterpret_cast<unsigned char*>(&command), command_size) : 0;
        if (read == command_size)
        {
            if (command.request.wire_name[0] != '\0')
                put_on_queue(command);
            continue;
        }
        if (is_running())
            QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR,
                              "tcp_fw_rw_thread_func failure, name: %s, target size: %d, w size: %d, r size: %d\n",
                              name_.c_str(), frame_size, written, read);
        forget(write_client_, client);
    }
}

void data_tcp_shared_data::tcp_api_rw_thread_func()
{
    block_broken_pipe_signal();
    while (is_running())
    {
        tcp_client* client = read_client_.load(std::memory_order_relaxed);
        if (client == nullptr)
        {
            os_util::sleep_for(exchange_period);
            continue;
        }
        const int read = client->tcp_read(reinterpret_cast<unsigned char*>(&data_c_), frame_size);
        int written = 0;
        if (read == frame_size)
        {
            api_to_fw_cmd command = {};
            internal_cmd_proc::get_instance()->commands().get(command);
            written = client->tcp_write(reinterpret_cast<const unsigned char*>(&command), command_size);
        }
        if (written == command_size)
            continue;
        if (is_running())
            QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR,
                              "tcp_api_rw_thread_func failure, name: %s, target size: %d, w size: %d, r size: %d\n",
                              name_.c_str(), frame_size, written, read);
        forget(read_client_, client);
    }
}
} // namespace savrent::cc
