#include "tests/support/scripted_cbox.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace test_support
{
namespace
{
using namespace std::chrono_literals;
constexpr auto patience = 10s;

int listen_on(const std::string& address)
{
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    const int reuse = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof(reuse));
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_port = htons(protocol::control_box_port);
    inet_pton(AF_INET, address.c_str(), &local.sin_addr);
    EXPECT_EQ(0, bind(listener, reinterpret_cast<sockaddr*>(&local), sizeof(local))) << address;
    EXPECT_EQ(0, listen(listener, 8));
    return listener;
}

void send_all(int descriptor, std::span<const unsigned char> bytes)
{
    while (!bytes.empty())
    {
        const ssize_t sent = ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0)
            return;
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
    }
}

template <class Record>
std::span<const unsigned char> bytes_of(const Record& record)
{
    return {reinterpret_cast<const unsigned char*>(&record), sizeof(record)};
}
} // namespace

scripted_reply reply_with(std::uint32_t result)
{
    scripted_reply reply;
    reply.record.result = result;
    return reply;
}

scripted_cbox::scripted_cbox(const std::string& address, std::size_t links) : listener_(listen_on(address))
{
    thread_ = std::thread([this, links] { run(links); });
}

scripted_cbox::~scripted_cbox()
{
    end();
    for (const int descriptor : links_)
        close(descriptor);
    EXPECT_TRUE(replies_.empty()) << replies_.size() << " scripted replies were not asked for";
}

void scripted_cbox::end()
{
    if (!thread_.joinable())
        return;
    {
        std::lock_guard lock(mutex_);
        ending_ = true;
        if (listener_ != -1)
            shutdown(listener_, SHUT_RDWR);
        for (const int descriptor : links_)
            shutdown(descriptor, SHUT_RDWR);
    }
    changed_.notify_all();
    thread_.join();
}

void scripted_cbox::will_reply(scripted_reply reply)
{
    std::lock_guard lock(mutex_);
    replies_.push_back(std::move(reply));
    changed_.notify_all();
}

void scripted_cbox::always_reply(scripted_reply reply)
{
    std::lock_guard lock(mutex_);
    always_reply_ = std::move(reply);
    always_ = true;
    changed_.notify_all();
}

void scripted_cbox::send(link to, std::span<const unsigned char> bytes)
{
    send_all(descriptor_of(to), bytes);
}

void scripted_cbox::send_frame(const protocol::shared_data_t& frame)
{
    send(link::data, bytes_of(frame));
}

void scripted_cbox::send_event(const savrent::cc::val_obj::event_info& event)
{
    send(link::event, bytes_of(event));
}

void scripted_cbox::cut(link which)
{
    shutdown(descriptor_of(which), SHUT_RDWR);
}

int scripted_cbox::descriptor_of(link which)
{
    const auto index = static_cast<std::size_t>(which);
    EXPECT_TRUE(wait_for_links(index + 1));
    std::lock_guard lock(mutex_);
    return links_.at(index);
}

bool scripted_cbox::wait_for_links(std::size_t count)
{
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, patience, [&] { return ending_ || links_.size() >= count; });
    return links_.size() >= count;
}

bool scripted_cbox::wait_for_requests(std::size_t count)
{
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, patience, [&] { return requests_.size() >= count; });
}

protocol::request_record scripted_cbox::request(std::size_t index)
{
    EXPECT_TRUE(wait_for_requests(index + 1));
    std::lock_guard lock(mutex_);
    return requests_.at(index);
}

std::size_t scripted_cbox::request_count()
{
    std::lock_guard lock(mutex_);
    return requests_.size();
}

void scripted_cbox::run(std::size_t links)
{
    for (std::size_t i = 0; i < links; ++i)
    {
        const int descriptor = accept(listener_, nullptr, nullptr);
        if (descriptor == -1)
            break;
        const int no_delay = 1;
        setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &no_delay, sizeof(no_delay));
        std::lock_guard lock(mutex_);
        links_.push_back(descriptor);
        if (ending_)
            shutdown(descriptor, SHUT_RDWR);
        changed_.notify_all();
    }
    {
        std::lock_guard lock(mutex_);
        close(listener_);
        listener_ = -1;
    }
    if (wait_for_links(1))
        serve_commands();
}

void scripted_cbox::serve_commands()
{
    const int descriptor = descriptor_of(link::command);
    protocol::request_record request;
    while (recv(descriptor, &request, sizeof(request), MSG_WAITALL) == static_cast<ssize_t>(sizeof(request)))
    {
        {
            std::lock_guard lock(mutex_);
            requests_.push_back(request);
            changed_.notify_all();
        }
        scripted_reply reply;
        if (!next_reply(reply))
            return;
        if (reply.before)
            reply.before();
        std::this_thread::sleep_for(reply.delay);
        if (reply.cut_instead)
        {
            shutdown(descriptor, SHUT_RDWR);
            return;
        }
        const auto bytes = bytes_of(reply.record);
        send_all(descriptor, bytes.first(reply.split_at));
        if (reply.split_at != 0)
            std::this_thread::sleep_for(1ms);
        send_all(descriptor, bytes.subspan(reply.split_at));
    }
}

bool scripted_cbox::next_reply(scripted_reply& reply)
{
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return ending_ || always_ || !replies_.empty(); });
    if (!replies_.empty())
    {
        reply = replies_.front();
        replies_.pop_front();
        return true;
    }
    reply = always_reply_;
    return always_;
}
} // namespace test_support
