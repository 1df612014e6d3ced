#include <csignal>
#include <cstring>
#include <filesystem>
#include <set>
#include <system_error>

#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "api/internal_shared_data.h"
#include "qorin/cbox.h"
#include "qorin/event.h"
#include "qorin/system.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/wrapper.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using qorin_api_rpc::get_cbox;
using qorin_api_rpc::qorin_api_internal_rpc_system_create;
using test_support::connected_box;
using test_support::eventually;
using test_support::installation;
using test_support::link;
using test_support::own_address;
using test_support::reply_with;
using test_support::scripted_cbox;

/// A frame whose first digital inputs are these bits.
std::unique_ptr<protocol::shared_data_t> frame_with_inputs(std::uint32_t bits)
{
    auto frame = std::make_unique<protocol::shared_data_t>();
    std::memset(frame.get(), 0, sizeof(*frame));
    protocol::record_at<protocol::io_module_data_t>(*frame, 0).digital_input = bits;
    return frame;
}

unsigned int input(unsigned int cbox_id, unsigned int channel)
{
    unsigned int value = 99;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_digital_input_get(cbox_id, channel, &value));
    return value;
}

TEST(connection, says_each_link_and_counts_control_boxes_from_0)
{
    const installation place;
    place.start_logging();
    EXPECT_EQ(nullptr, get_cbox(0));
    connected_box first(0);
    connected_box second(1);
    EXPECT_EQ(0u, first.id);
    EXPECT_EQ(1u, second.id);
    EXPECT_NE(nullptr, get_cbox(1));
    EXPECT_EQ(nullptr, get_cbox(2));

    const std::vector<std::string> lines = place.event_records();
    const char* expected[] = {
        "waiting for connection for commanding tcp...\n",
        "the connection for commanding tcp has been successfully established.\n",
        "waiting for connection for data transfer tcp...\n",
        "the connection for data transfer tcp has been successfully established.\n",
        "waiting for connection for event uploading tcp...\n",
        "the connection for event uploading tcp has been successfully established.\n",
    };
    ASSERT_EQ(2 * std::size(expected), lines.size());
    for (std::size_t i = 0; i < std::size(expected); ++i)
        EXPECT_TRUE(lines[i].ends_with(std::string("] ") + expected[i])) << lines[i];
}

TEST(connection, a_link_that_cannot_be_made_consumes_no_id)
{
    const installation place;
    place.start_logging();
    for (const std::size_t links : {0u, 1u, 2u})
    {
        unsigned int id = 77;
        const std::string address = own_address(static_cast<unsigned int>(links));
        std::unique_ptr<scripted_cbox> box;
        if (links > 0)
            box = std::make_unique<scripted_cbox>(address, links);
        testing::internal::CaptureStderr();
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
                  qorin_api_internal_rpc_system_create(address.c_str(), 7700, &id));
        EXPECT_EQ("Connection Failed\n", testing::internal::GetCapturedStderr());
        EXPECT_EQ(77u, id);
    }
    const std::string line =
        "] qorin_api_internal_rpc_system_create(): QORIN_API_RESULT_ERROR_CBOX_ID_INVALID(101000)\n";
    EXPECT_TRUE(place.event_text().ends_with(line)) << place.event_text();

    connected_box box(3);
    EXPECT_EQ(0u, box.id);
    unsigned int* nowhere = nullptr;
    scripted_cbox other(own_address(2));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_api_internal_rpc_system_create(own_address(2).c_str(), 7700, nowhere));
}

TEST(connection, getters_read_the_latest_frame_of_their_control_box)
{
    connected_box first(0);
    connected_box second(1);
    first.send_frame(*frame_with_inputs(0x8001));
    second.send_frame(*frame_with_inputs(0x0002));
    EXPECT_TRUE(eventually([&] { return input(first.id, 0) == 1 && input(second.id, 1) == 1; }));
    EXPECT_EQ(1u, input(first.id, 15));
    EXPECT_EQ(0u, input(first.id, 1));
    EXPECT_EQ(0u, input(second.id, 0));

    first.send_frame(*frame_with_inputs(0x0000));
    EXPECT_TRUE(eventually([&] { return input(first.id, 15) == 0; }));

    unsigned int value = 99;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER, qorin_rpc_cbox_io_digital_input_get(first.id, 16, &value));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_cbox_io_digital_input_get(2, 0, &value));
    EXPECT_EQ(99u, value);
    qorin_api_rpc::set_cur_cbox_id(2);
    EXPECT_EQ(nullptr, qorin_internal_get_shared_data());
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_cbox_io_digital_input_get(0, &value));
}

/// The threads of this process.
std::set<pid_t> threads()
{
    std::set<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/task"))
        found.insert(std::stoi(entry.path().filename()));
    return found;
}

TEST(connection, a_signal_handler_of_the_application_does_not_end_reception)
{
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    ASSERT_EQ(0, sigaction(SIGUSR1, &action, nullptr)); // without SA_RESTART
    scripted_cbox box(own_address());
    const std::set<pid_t> before = threads();
    unsigned int id = 0;
    ASSERT_EQ(QORIN_API_RESULT_OK, qorin_api_internal_rpc_system_create(own_address().c_str(), 7700, &id));
    int receivers = 0;
    for (const pid_t thread : threads())
    {
        if (before.contains(thread))
            continue;
        ++receivers;
        ASSERT_EQ(0, syscall(SYS_tgkill, getpid(), thread, SIGUSR1));
    }
    EXPECT_EQ(2, receivers);
    sigset_t blocked;
    pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    EXPECT_EQ(0, sigismember(&blocked, SIGUSR1)) << "of the thread that connects";

    box.send_event({});
    box.send_frame(*frame_with_inputs(0x0001));
    EXPECT_TRUE(eventually([&] { return input(id, 0) == 1; }));
    char occurred = 0;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group(id, 0, 5000, 0, &occurred));
    EXPECT_EQ(1, occurred);
}

TEST(connection, an_id_is_told_and_taken_before_the_receive_threads_start)
{
    pthread_attr_t huge;
    pthread_attr_init(&huge);
    pthread_attr_setstacksize(&huge, std::size_t{1} << 46);
    const installation place;
    scripted_cbox box(own_address());
    scripted_cbox second(own_address(1));
    pthread_attr_t usual;
    ASSERT_EQ(0, pthread_getattr_default_np(&usual));
    ASSERT_EQ(0, pthread_setattr_default_np(&huge));
    unsigned int id = 77;
    EXPECT_THROW((void)qorin_rpc_system_cbox_connect(nullptr, own_address().c_str(), &id), std::system_error);
    EXPECT_EQ(0u, id);
    EXPECT_EQ(nullptr, get_cbox(0));
    ASSERT_EQ(0, pthread_setattr_default_np(&usual));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_api_internal_rpc_system_create(own_address(1).c_str(), 7700, &id));
    EXPECT_EQ(1u, id);
}

TEST(connection, frame_borders_are_found_by_counting_alone)
{
    connected_box box;
    const auto frame = frame_with_inputs(0xFFFF);
    const auto* bytes = reinterpret_cast<const unsigned char*>(frame.get());
    box.send(link::data, {bytes, 20000});
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    box.send(link::data, {bytes + 20000, sizeof(*frame) - 20000});
    box.send_frame(*frame_with_inputs(0x0001));
    EXPECT_TRUE(eventually([&] { return input(box.id, 0) == 1 && input(box.id, 1) == 0; }));
}

TEST(connection, a_data_link_lost_within_a_frame_leaves_what_arrived_and_commands_go_on)
{
    const installation place;
    place.start_logging();
    connected_box box;
    box.send_frame(*frame_with_inputs(0x0003));
    ASSERT_TRUE(eventually([&] { return input(box.id, 1) == 1; }));

    const std::vector<unsigned char> part(100, 0x5A);
    box.send(link::data, part);
    box.cut(link::data);
    EXPECT_TRUE(eventually([&] { return place.event_text().find("data tcp read failure...\n") != std::string::npos; }));
    const auto* mirror = reinterpret_cast<const unsigned char*>(get_cbox(box.id)->get_shared_data());
    EXPECT_EQ(0, std::memcmp(part.data(), mirror, part.size()));
    EXPECT_EQ(0, mirror[100]);
    EXPECT_EQ(1u, input(box.id, 1)) << "getters go on answering";
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(box.id));
}

TEST(connection, events_are_logged_with_their_names)
{
    const installation place;
    place.start_logging();
    connected_box box;
    savrent::cc::val_obj::event_info event = {};
    event.group = QORIN_EVENT_GRP_NOTIFICATION;
    event.subgroup = QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE;
    event.sender_id = 5;
    box.send_event(event);
    event.group = 12;
    event.subgroup = 13;
    box.send_event(event);
    box.send(link::event, std::vector<unsigned char>(399, 0));
    box.cut(link::event);
    EXPECT_TRUE(
        eventually([&] { return place.event_text().find("event tcp read failure...\n") != std::string::npos; }));
    const std::string text = place.event_text();
    EXPECT_NE(std::string::npos, text.find("sender ID: 5, grp: QORIN_EVENT_GRP_NOTIFICATION, sub: "
                                           "QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE\n"))
        << text;
    EXPECT_NE(std::string::npos, text.find("sender ID: 5, grp: nullptr, sub: nullptr\n")) << text;
}
} // namespace
