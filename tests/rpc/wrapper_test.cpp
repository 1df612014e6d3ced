#include "rpc/wrapper.h"

#include <thread>

#include <gtest/gtest.h>

#include "qorin/cbox.h"
#include "qorin/system.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using qorin_api_rpc::command;
using test_support::connected_box;
using test_support::installation;
using test_support::reply_with;
using test_support::scripted_reply;

static_assert(qorin_api_rpc::may_stand_in("qorin_a_set", "qorin_rpc_a_set"));
static_assert(!qorin_api_rpc::may_stand_in("qorin_a_set", "qorin_rpc_a_get"));
static_assert(!qorin_api_rpc::may_stand_in("qorin_a", "qorin_rpc_a_set"));
static_assert(!qorin_api_rpc::may_stand_in("qorin_a_set", "qorin_rpc_a"));

TEST(wrapper, writes_the_call_line_before_the_command_is_carried_out)
{
    const installation place;
    place.start_logging();
    connected_box box;
    std::vector<std::string> at_request;
    scripted_reply reply = reply_with(QORIN_API_RESULT_OK);
    reply.before = [&] { at_request = place.calls(); };
    box.will_reply(reply);

    const double angles[16] = {90.0};
    unsigned int id[32] = {};
    QORIN_SWITCH output[32] = {QORIN_SWITCH_OFF};
    command<"qorin_x_set">(box.id, 3u, static_cast<const double*>(angles), -0.25, static_cast<QORIN_SWITCH>(400102),
                           static_cast<const char*>(nullptr), id + 0, output + 0, -9l);
    EXPECT_EQ(
        (std::vector<std::string>{
            "qorin_rpc_x_set(0, 3, nullptr, -0.250000, nullptr, nullptr, &uint32_t_var, QORIN_SWITCH_OFF, -9);\n"}),
        at_request);
    EXPECT_EQ(400102u, box.request(0).value[1]) << "a number without a name still goes out";
}

TEST(wrapper, logs_an_unknown_control_box_too_and_every_call_anew)
{
    const installation place;
    place.start_logging();
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_system_reset(4));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_system_reset(4));
    EXPECT_EQ((std::vector<std::string>{"qorin_rpc_system_reset(4);\n", "qorin_rpc_system_reset(4);\n"}),
              place.calls());
    EXPECT_NE(std::string::npos,
              place.event_text().find("qorin_system_reset(): QORIN_API_RESULT_ERROR_CBOX_ID_INVALID(101000)\n"));
}

TEST(wrapper, a_command_within_a_command_is_sent_but_not_logged)
{
    const installation place;
    place.start_logging();
    connected_box box;
    box.always_reply(reply_with(QORIN_API_RESULT_OK));
    qorin_api_rpc::logged_call<"qorin_outer">([&] { return qorin_rpc_system_reset(box.id); }, box.id);
    EXPECT_EQ(std::vector<std::string>{"qorin_rpc_outer(0);\n"}, place.calls());
    EXPECT_EQ(1u, box.request_count());
}

TEST(wrapper, calls_without_support_do_nothing)
{
    const installation place;
    place.start_logging();
    EXPECT_EQ(QORIN_API_RESULT_ERROR_NO_SUPPORT, qorin_rpc_system_create(0, "text", 5, 1.5));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_NO_SUPPORT, qorin_rpc_gen_system_connect_and_create(9));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_NO_SUPPORT, qorin_rpc_system_memory_create(9, 1));
    EXPECT_TRUE(place.call_records().empty());
    EXPECT_TRUE(place.event_records().empty());
}

TEST(wrapper, two_threads_never_interleave_their_records)
{
    const installation place;
    place.start_logging();
    connected_box first(0);
    connected_box second(1);
    constexpr unsigned int rounds = 200;
    for (connected_box* box : {&first, &second})
        box->always_reply(reply_with(QORIN_API_RESULT_OK));

    // Each command carries its number in every slot; a mixed record would show two numbers.
    const auto send = [&](unsigned int from)
    {
        for (unsigned int i = from; i < from + rounds; ++i)
        {
            const unsigned int words[32] = {i, i, i, i};
            for (const connected_box* box : {&first, &second})
                EXPECT_EQ(QORIN_API_RESULT_OK, command<"qorin_x">(box->id, i, 0.5 * i, words + 0));
        }
    };
    std::thread one(send, 1000u);
    std::thread other(send, 5000u);
    one.join();
    other.join();

    for (connected_box* box : {&first, &second})
    {
        ASSERT_EQ(2 * rounds, box->request_count());
        for (std::size_t i = 0; i < 2 * rounds; ++i)
        {
            const protocol::request_record request = box->request(i);
            std::uint32_t word = 0;
            std::memcpy(&word, request.block[0] + 12, sizeof(word));
            EXPECT_EQ(request.value[0], word);
            EXPECT_EQ(0.5 * request.value[0], request.real[0]);
        }
    }
    const std::vector<std::string> records = place.call_records();
    ASSERT_EQ(3u * 4u * rounds, records.size());
    for (std::size_t i = 0; i < records.size(); i += 3)
    {
        EXPECT_TRUE(records[i].starts_with("/* [now]:"));
        EXPECT_TRUE(records[i + 1].starts_with("[timestamp]:"));
        EXPECT_TRUE(records[i + 2].ends_with(");\n"));
    }
}

TEST(wrapper, a_getter_answers_while_a_command_is_blocked_and_other_commands_wait)
{
    connected_box box;
    std::thread blocked([&] { EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(box.id)); });
    ASSERT_TRUE(box.wait_for_requests(1));
    std::thread waiting([&] { EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(box.id)); });

    unsigned int value = 99;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_digital_input_get(box.id, 0, &value));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(1u, box.request_count());

    box.always_reply(reply_with(QORIN_API_RESULT_OK));
    blocked.join();
    waiting.join();
    EXPECT_EQ(2u, box.request_count());
}
} // namespace
