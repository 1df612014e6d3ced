#include "rpc/qorin_rpc_client.h"

#include <utility>

#include "api/api_log_print.h"
#include "protocol/event_record.h"
#include "rpc/qorin_api_rpc_event.h"

namespace qorin_api_rpc
{
namespace
{
void join(std::thread& thread)
{
    if (!thread.joinable())
        return;
    // A callback that ends the process brings its own thread here.
    if (thread.get_id() == std::this_thread::get_id())
        thread.detach();
    else
        thread.join();
}
} // namespace

qorin_rpc_client::qorin_rpc_client(unsigned int cbox_id, std::shared_ptr<qorin_rpc_event> event,
                                   std::shared_ptr<savrent::cc::tcp_client> command_link,
                                   std::shared_ptr<savrent::cc::tcp_client> data_link,
                                   std::shared_ptr<savrent::cc::tcp_client> event_link)
    : cbox_id_(cbox_id), command_link_(std::move(command_link)), data_link_(std::move(data_link)),
      event_link_(std::move(event_link)), event_(std::move(event))
{
    data_thread_ = std::thread(&qorin_rpc_client::data_recv_func, this);
    try
    {
        event_thread_ = std::thread(&qorin_rpc_client::event_recv_func, this);
    }
    catch (...)
    {
        stop_running();
        end_links();
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

void qorin_rpc_client::end_links()
{
    for (const auto& link : {command_link_, data_link_, event_link_})
    {
        if (link != nullptr)
            link->shut_down();
    }
}

void qorin_rpc_client::data_recv_func()
{
    auto* mirror = reinterpret_cast<unsigned char*>(&shared_data_);
    constexpr int frame_size = sizeof(shared_data_);
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
    {
        if (event_link_->tcp_read(reinterpret_cast<unsigned char*>(&event), event_size) != event_size)
        {
            QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "event tcp read failure...\n");
            stop_running();
        }
        else if (event_ != nullptr)
            event_->event_cmd_process(&event);
    }
}
} // namespace qorin_api_rpc
