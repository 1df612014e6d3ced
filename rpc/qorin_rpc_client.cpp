#include "rpc/qorin_rpc_client.h"

#include <utility>

#include <unistd.h>

#include "api/api_log_print.h"
#include "protocol/event_record.h"
#include "rpc/qorin_rpc_event.h"
#include "savrent/cc/thread_help.h"

namespace qorin_api_rpc
{
namespace
{
using std::chrono::steady_clock;

void join(std::thread& thread)
{
    if (thread.joinable())
        thread.join();
}

/// A callback that ends the process brings its own thread here; one that waits for what no longer comes does not end.
void join_until(std::thread& thread, const std::future<void>& end, steady_clock::time_point deadline)
{
    if (!thread.joinable())
        return;
    const bool is_own = thread.get_id() == std::this_thread::get_id();
    if (!is_own && end.wait_until(deadline) == std::future_status::ready)
        thread.join();
    else
        thread.detach();
}

bool is_ready(const std::future<void>& end)
{
    return end.wait_for(steady_clock::duration::zero()) == std::future_status::ready;
}
} // namespace

qorin_rpc_client::qorin_rpc_client(unsigned int cbox_id, std::shared_ptr<qorin_rpc_event> event,
                                   std::shared_ptr<savrent::cc::tcp_client> command_link,
                                   std::shared_ptr<savrent::cc::tcp_client> data_link,
                                   std::shared_ptr<savrent::cc::tcp_client> event_link)
    : cbox_id_(cbox_id), command_link_(std::move(command_link)), data_link_(std::move(data_link)),
      event_link_(std::move(event_link)), event_(std::move(event)), process_(getpid())
{
    data_thread_ = start(&qorin_rpc_client::data_recv_func, data_end_);
    try
    {
        event_thread_ = start(&qorin_rpc_client::event_recv_func, event_end_);
    }
    catch (...)
    {
        stop_receiving();
        data_thread_.join();
        throw;
    }
}

qorin_rpc_client::~qorin_rpc_client()
{
    stop_running();
    join(data_thread_);
    join(event_thread_);
    event_.reset();
    event_link_.reset();
    data_link_.reset();
    command_link_.reset();
}

int qorin_rpc_client::read(unsigned char* buffer, int length)
{
    if (command_link_ == nullptr)
    {
        stop_running();
        return -1;
    }
    while (!command_link_->tcp_read_ready())
    {
    }
    return command_link_->tcp_read(buffer, length);
}

int qorin_rpc_client::write(const unsigned char* buffer, int length)
{
    if (command_link_ == nullptr)
    {
        stop_running();
        return -1;
    }
    return command_link_->tcp_write(buffer, length);
}

bool qorin_rpc_client::is_of_this_process() const
{
    return process_ == getpid();
}

void qorin_rpc_client::stop_receiving()
{
    stop_running();
    for (const auto& link : {data_link_, event_link_})
        if (link != nullptr) // when the library is unloaded they are released by now
            link->end_reading();
}

void qorin_rpc_client::join_receivers(steady_clock::time_point deadline)
{
    join_until(data_thread_, data_end_, deadline);
    join_until(event_thread_, event_end_, deadline);
}

void qorin_rpc_client::release_links()
{
    if (is_ready(event_end_))
        event_link_.reset();
    if (is_ready(data_end_))
        data_link_.reset();
    command_link_.reset();
}

/// A handler of the application that ran on a receive thread would interrupt its read, which ends the mirror.
std::thread qorin_rpc_client::start(receive_function body, std::future<void>& end)
{
    std::promise<void> ended;
    end = ended.get_future();
    const savrent::cc::signals_blocked no_signals;
    return std::thread(
        [this, body, ended = std::move(ended)]() mutable
        {
            (this->*body)();
            ended.set_value();
        });
}

void qorin_rpc_client::data_recv_func()
{
    auto* mirror = protocol::wire_bytes(mirror_.frame);
    constexpr int frame_size = sizeof(mirror_.frame);
    while (is_running())
    {
        if (data_link_->tcp_read(mirror, frame_size) != frame_size)
        {
            QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "data tcp read failure...\n");
            stop_running();
        }
    }
}

void qorin_rpc_client::event_recv_func()
{
    savrent::cc::val_obj::event_info event;
    constexpr int event_size = sizeof(event);
    while (is_running())
        if (event_link_->tcp_read(protocol::wire_bytes(event), event_size) != event_size)
        {
            QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "event tcp read failure...\n");
            stop_running();
        }
        else if (event_ != nullptr)
            event_->event_cmd_process(&event);
}
} // namespace qorin_api_rpc
