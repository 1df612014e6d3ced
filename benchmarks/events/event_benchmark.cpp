// Events through the library, with one callback and the event log on, beside a raw loop that receives 400 bytes.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "protocol/event_record.h"
#include "protocol/rpc_record.h"
#include "protocol/status_frame.h"
#include "qorin/qorin_api_rpc_client.h"

namespace
{
using savrent::cc::val_obj::event_info;
using clock_type = std::chrono::steady_clock;

constexpr int flood = 200'000;
constexpr int paced = 3'000;
constexpr auto pace = std::chrono::microseconds(1000);

std::string own_address(unsigned int run)
{
    const auto pid = static_cast<unsigned int>(getpid());
    return "127." + std::to_string(64 + run * 32 + (pid >> 16 & 31)) + "." + std::to_string(pid >> 8 & 255) + "." +
           std::to_string(pid & 255);
}

[[noreturn]] void fail(const char* what)
{
    std::perror(what);
    std::exit(1);
}

sockaddr_in at(const std::string& address)
{
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_port = htons(protocol::control_box_port);
    inet_pton(AF_INET, address.c_str(), &place.sin_addr);
    return place;
}

/// The moment of sending travels in the first two integer parameters.
void stamp(event_info& event)
{
    const std::int64_t now = clock_type::now().time_since_epoch().count();
    std::memcpy(event.parameter, &now, sizeof(now));
}

double age_in_microseconds(int p1, int p2)
{
    const int halves[2] = {p1, p2};
    std::int64_t sent = 0;
    std::memcpy(&sent, halves, sizeof(sent));
    return static_cast<double>(clock_type::now().time_since_epoch().count() - sent) / 1000.0;
}

/// Takes three links, shows one frame, and sends its events one by one as soon as the client asks by a first request.
[[noreturn]] void serve(const std::string& address, int ready)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    const int on = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
    const sockaddr_in place = at(address);
    if (bind(listener, reinterpret_cast<const sockaddr*>(&place), sizeof(place)) != 0 || listen(listener, 3) != 0)
        fail("event server");
    if (write(ready, "g", 1) != 1)
        fail("event server");
    int links[3];
    for (int& link : links)
    {
        link = accept(listener, nullptr, nullptr);
        setsockopt(link, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    }
    const std::vector<unsigned char> frame(sizeof(protocol::shared_data_t), 0);
    send(links[1], frame.data(), frame.size(), 0);

    protocol::request_record request;
    protocol::reply_record reply = {};
    reply.result = QORIN_API_RESULT_OK;
    event_info event = {};
    event.group = QORIN_EVENT_GRP_NOTIFICATION;
    event.subgroup = QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE;
    const auto send_one = [&]
    {
        stamp(event);
        if (send(links[2], &event, sizeof(event), MSG_NOSIGNAL) != sizeof(event))
            _exit(0);
    };
    for (const bool is_flood : {true, false})
    {
        if (recv(links[0], &request, sizeof(request), MSG_WAITALL) != sizeof(request))
            _exit(0);
        send(links[0], &reply, sizeof(reply), MSG_NOSIGNAL);
        for (int i = 0; i < (is_flood ? flood : paced); ++i)
        {
            send_one();
            if (!is_flood)
                std::this_thread::sleep_for(pace);
        }
    }
    while (true)
        pause();
}

/// A server in a process of its own.
class event_server
{
public:
    explicit event_server(const std::string& address)
    {
        int ready[2];
        if (pipe(ready) != 0)
            fail("pipe");
        child_ = fork();
        if (child_ == 0)
            serve(address, ready[1]);
        char go = 0;
        if (read(ready[0], &go, 1) != 1)
            std::exit(1);
    }
    ~event_server()
    {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
    event_server(const event_server&) = delete;
    event_server& operator=(const event_server&) = delete;

private:
    pid_t child_;
};

struct figures
{
    double events_a_second = 0;
    double median_us = 0;
    double late_us = 0;
};

void set_delays(figures& result, std::vector<double>& delays)
{
    std::sort(delays.begin(), delays.end());
    result.median_us = delays[delays.size() / 2];
    result.late_us = delays[delays.size() * 99 / 100];
}

figures measure_raw()
{
    const std::string address = own_address(0);
    const event_server server(address);
    const sockaddr_in place = at(address);
    int links[3];
    for (int& link : links)
    {
        link = socket(AF_INET, SOCK_STREAM, 0);
        if (connect(link, reinterpret_cast<const sockaddr*>(&place), sizeof(place)) != 0)
            fail("raw client");
    }
    event_info event;
    const auto ask = [&]
    {
        const protocol::request_record request = {};
        protocol::reply_record reply;
        send(links[0], &request, sizeof(request), 0);
        recv(links[0], &reply, sizeof(reply), MSG_WAITALL);
    };
    const auto receive = [&]
    {
        if (recv(links[2], &event, sizeof(event), MSG_WAITALL) != sizeof(event))
            fail("raw client");
    };
    figures result;
    ask();
    const auto begin = clock_type::now();
    for (int i = 0; i < flood; ++i)
        receive();
    result.events_a_second = flood / std::chrono::duration<double>(clock_type::now() - begin).count();

    ask();
    std::vector<double> delays;
    for (int i = 0; i < paced; ++i)
    {
        receive();
        delays.push_back(age_in_microseconds(event.parameter[0], event.parameter[1]));
    }
    set_delays(result, delays);
    for (const int link : links)
        close(link);
    return result;
}

std::atomic<int> g_received = 0;
std::vector<double> g_delays(static_cast<std::size_t>(flood + paced));

void on_event(unsigned int, unsigned int, unsigned int, int p1, int p2, int, int, int)
{
    const int place = g_received.load(std::memory_order_relaxed);
    g_delays[static_cast<std::size_t>(place)] = age_in_microseconds(p1, p2);
    g_received.store(place + 1, std::memory_order_release);
}

void await(int count)
{
    while (g_received.load(std::memory_order_acquire) < count)
        std::this_thread::sleep_for(std::chrono::microseconds(200));
}

figures measure_library(const std::string& directory)
{
    const std::string address = own_address(1);
    const event_server server(address);
    std::ofstream(directory + "/config.ini") << "[client]\nlog_save_path=" << directory << "/log\nlog_print_out=off\n";
    setenv("SAVRENT_V3", directory.c_str(), 1);
    unsigned int cbox_id = 0;
    if (qorin_rpc_system_cbox_connect((directory + "/config.ini").c_str(), address.c_str(), &cbox_id) ==
        QORIN_API_RESULT_ERROR_CBOX_ID_INVALID)
        fail("library");
    qorin_rpc_system_event_callback_add(cbox_id, on_event);

    figures result;
    qorin_rpc_system_reset(cbox_id);
    const auto begin = clock_type::now();
    await(flood);
    result.events_a_second = flood / std::chrono::duration<double>(clock_type::now() - begin).count();
    qorin_rpc_system_reset(cbox_id);
    await(flood + paced);
    std::vector<double> delays(g_delays.begin() + flood, g_delays.end());
    set_delays(result, delays);
    return result;
}
} // namespace

int main()
{
    std::string directory = (std::filesystem::temp_directory_path() / "qorin_benchmark_XXXXXX").string();
    if (mkdtemp(directory.data()) == nullptr)
        return 1;
    const figures raw = measure_raw();
    const figures library = measure_library(directory);
    std::printf("%-34s %12s %12s %8s %8s\n", "events, 400 bytes", "raw", "library", "ratio", "aim");
    std::printf("%-34s %12.0f %12.0f %8.2f %8s\n", "  dispatched a second", raw.events_a_second,
                library.events_a_second, library.events_a_second / raw.events_a_second, "0.50");
    std::printf("%-34s %12.1f %12.1f\n", "  sending to callback, median, us", raw.median_us, library.median_us);
    std::printf("%-34s %12.1f %12.1f\n", "  99th percentile, us", raw.late_us, library.late_us);
    std::filesystem::remove_all(directory);
    return 0;
}
