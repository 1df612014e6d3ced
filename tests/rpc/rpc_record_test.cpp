#include <array>
#include <cstring>
#include <numeric>
#include <utility>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "qorin/system.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/qorin_rpc_event.h"
#include "rpc/wrapper.h"
#include "savrent/cc/tcp_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/rpc/expected_record.h"
#include "tests/support/installation.h"

namespace
{
using qorin_api_rpc::command;
using savrent::cc::tcp_client;
using test_support::connected_box;
using test_support::expect_record;
using test_support::reply_with;
using test_support::room;
using test_support::scripted_reply;

TEST(rpc_record, user_memory_goes_out_slot_by_slot)
{
    connected_box box;
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    const char name[128] = "speed";
    const char text[128] = "fast";
    EXPECT_EQ(QORIN_API_RESULT_OK, command<"qorin_set_user_memory">(
                                       box.id, static_cast<const char*>(name), QORIN_USER_DATA_TYPE_STRING, -7,
                                       static_cast<const char*>(text), static_cast<char>(-1), 1.5, 0x1'0000'0001l));
    expect_record(box.request(0), {{0, "qorin_set_user_memory"},
                                   {0x80, {404002u, 0xFFFFFFF9u, 0xFFFFFFFFu, 1u}},
                                   {0x100, {1.5}},
                                   {0x200, "speed"},
                                   {0x280, "fast"}});
}

TEST(rpc_record, user_memory_comes_back_value_by_value)
{
    connected_box box;
    scripted_reply reply = reply_with(QORIN_API_RESULT_OK);
    for (std::uint32_t i = 0; i < 32; ++i)
    {
        reply.record.value[i] = 0xA0B0C000 + i;
        reply.record.real[i] = 100.25 + i;
    }
    box.will_reply(reply);

    const char name[128] = "speed";
    alignas(8) unsigned char memory[6][128];
    std::memset(memory, 0x11, sizeof(memory));
    const auto output = [&]<class T>(std::size_t i, T*) { return reinterpret_cast<T*>(memory[i]); };
    EXPECT_EQ(QORIN_API_RESULT_OK,
              command<"qorin_get_user_memory">(
                  box.id, static_cast<const char*>(name), output(0, static_cast<QORIN_USER_DATA_TYPE*>(nullptr)),
                  output(1, static_cast<int*>(nullptr)), output(2, static_cast<char*>(nullptr)),
                  output(3, static_cast<char*>(nullptr)), output(4, static_cast<double*>(nullptr)),
                  output(5, static_cast<long*>(nullptr))));

    // Each output takes a block of the request, filled with what it held before.
    expect_record(box.request(0), {{0, "qorin_get_user_memory"},
                                   {0x200, "speed"},
                                   {0x280, std::string(std::size_t{5} * 128, 0x11)},
                                   {0x1200, std::string(128, 0x11)}});

    // And each gets 4 bytes, or 8 for a double, whatever its own width is.
    const std::uint32_t values[] = {0xA0B0C000, 0xA0B0C001, 0xA0B0C002, 0xA0B0C003, 0, 0xA0B0C004};
    for (std::size_t i = 0; i < 6; ++i)
    {
        unsigned char after[128];
        std::memset(after, 0x11, sizeof(after));
        const double real = 100.25;
        if (i == 4)
            std::memcpy(after, &real, sizeof(real));
        else
            std::memcpy(after, &values[i], sizeof(values[i]));
        EXPECT_EQ(0, std::memcmp(after, memory[i], sizeof(after))) << "output " << i;
    }
}

TEST(rpc_record, every_parameter_type_has_its_area_and_width)
{
    connected_box box;
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    room<double> reals;
    room<unsigned int> words;
    room<unsigned short> halves;
    room<unsigned char> bytes;
    room<double> output_reals;
    room<unsigned short> output_halves;
    std::iota(reals.begin(), reals.end(), 0.5);
    std::iota(words.begin(), words.end(), 0x10000);
    std::iota(halves.begin(), halves.end(), 0x100);
    std::iota(bytes.begin(), bytes.end(), 1);
    std::iota(output_reals.begin(), output_reals.end(), 50.5);
    std::iota(output_halves.begin(), output_halves.end(), 0x200);
    const auto sent_reals = output_reals; // the reply zeroes what has been sent
    const auto sent_halves = output_halves;
    command<"qorin_x">(box.id, 2.25, static_cast<unsigned short>(0xFFFF), std::as_const(reals).data(),
                       std::as_const(words).data(), static_cast<unsigned char>(0xFE), QORIN_SWITCH_OFF,
                       std::as_const(halves).data(), -3.5, output_reals.data(), -2, std::as_const(bytes).data(),
                       output_halves.data(), 0xFFFFFFFFu);
    expect_record(box.request(0), {{0, "qorin_x"},
                                   {0x80, {0xFFFFu, 0xFEu, 400101u, 0xFFFFFFFEu, 0xFFFFFFFFu}},
                                   {0x100, {2.25, -3.5}},
                                   {0x200, words},
                                   {0x280, halves},
                                   {0x300, bytes},
                                   {0x380, sent_halves},
                                   {0x1200, reals},
                                   {0x1280, sent_reals}});
}

TEST(rpc_record, a_block_is_read_128_bytes_far_whatever_the_text_or_array)
{
    connected_box box;
    box.always_reply(reply_with(QORIN_API_RESULT_OK));
    char memory[300];
    std::memset(memory, 'm', sizeof(memory) - 1);
    std::memcpy(memory, "ab", 3);
    command<"qorin_x">(box.id, static_cast<const char*>(memory));
    std::memset(memory, 'z', sizeof(memory) - 1);
    memory[sizeof(memory) - 1] = '\0';
    command<"qorin_x">(box.id, static_cast<const char*>(memory + 1));

    const protocol::request_record behind_terminator = box.request(0);
    EXPECT_EQ(0, std::memcmp(behind_terminator.block[0], "ab\0mmm", 6));
    EXPECT_EQ('m', behind_terminator.block[0][127]);
    const protocol::request_record without_terminator = box.request(1);
    EXPECT_EQ('z', without_terminator.block[0][127]);
    EXPECT_EQ(0, without_terminator.block[1][0]);
}

TEST(rpc_record, a_null_pointer_takes_a_slot_of_zeroes)
{
    connected_box box;
    scripted_reply reply = reply_with(QORIN_API_RESULT_OK);
    reply.record.value[1] = 5;
    box.will_reply(reply);
    unsigned int second[32] = {9};
    EXPECT_EQ(QORIN_API_RESULT_OK,
              command<"qorin_x">(box.id, static_cast<const char*>(nullptr), static_cast<int*>(nullptr), second + 0));
    EXPECT_EQ(5u, second[0]);
    EXPECT_EQ(9, box.request(0).block[2][0]);
}

TEST(rpc_record, an_unknown_control_box_touches_nothing_and_sends_nothing)
{
    connected_box box;
    QORIN_SWITCH controllable[32] = {QORIN_SWITCH_ON};
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_system_controllable_get(box.id + 1, controllable));
    EXPECT_EQ(QORIN_SWITCH_ON, controllable[0]);
    EXPECT_EQ(0u, box.request_count());
    EXPECT_EQ(0, qorin_api_rpc::get_in_param()->wire_name[0]) << "the record is zeroed before the id is looked at";
}

TEST(rpc_record, failures_and_warnings_fill_the_outputs_and_write_a_line)
{
    const test_support::installation place;
    place.start_logging();
    connected_box box;
    QORIN_SWITCH controllable[32] = {};
    for (const QORIN_API_RESULT result :
         {QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL, QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL,
          QORIN_API_RESULT_ERROR_CALL_TIMEOUT})
    {
        scripted_reply reply = reply_with(result);
        reply.record.value[0] = QORIN_SWITCH_OFF;
        controllable[0] = QORIN_SWITCH_ON;
        box.will_reply(reply);
        EXPECT_EQ(result, qorin_rpc_system_controllable_get(box.id, controllable));
        EXPECT_EQ(QORIN_SWITCH_OFF, controllable[0]);
    }
    const std::string text = place.event_text();
    for (const char* line :
         {"] qorin_system_controllable_get(): QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL(200002)\n",
          "] qorin_system_controllable_get(): QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL(100003)\n",
          "] qorin_system_controllable_get(): Unknown Error Code : 190003(190003)\n"})
        EXPECT_NE(std::string::npos, text.find(line)) << line;
}

TEST(rpc_record, a_lost_link_gives_0_and_zeroed_outputs)
{
    const test_support::installation place;
    place.start_logging();
    connected_box box;
    scripted_reply cut;
    cut.cut_instead = true;
    box.will_reply(cut);
    unsigned int value[32] = {7};
    double real[16] = {7.0};
    EXPECT_EQ(0u, command<"qorin_x">(box.id, value + 0, real + 0));
    EXPECT_EQ(0u, value[0]);
    EXPECT_EQ(0.0, real[0]);
    EXPECT_NE(std::string::npos, place.event_text().find("] qorin_x(): Not Found(0)\n"));
    value[0] = 7;
    EXPECT_EQ(0u, command<"qorin_x">(box.id, value + 0)) << "the link stays lost";
    EXPECT_EQ(0u, value[0]);
}

/// Listens like a control box, and has answered ahead of each request: with the first bytes of a reply and no more.
class tearing_box
{
public:
    tearing_box()
    {
        sockaddr_in local{};
        local.sin_family = AF_INET;
        local.sin_port = htons(protocol::control_box_port);
        inet_pton(AF_INET, address_.c_str(), &local.sin_addr);
        EXPECT_EQ(0, bind(listener_, reinterpret_cast<sockaddr*>(&local), sizeof(local)));
        EXPECT_EQ(0, listen(listener_, 3));
    }
    ~tearing_box() { close(listener_); }

    /// Runs `work` with a connection under id 0 whose command link ends behind so many bytes of the reply.
    template <class Work>
    void tear(const protocol::reply_record& reply, std::size_t sent, Work&& work) const
    {
        std::shared_ptr<tcp_client> links[3];
        int accepted[3];
        for (std::size_t i = 0; i < 3; ++i)
        {
            links[i] = std::make_shared<tcp_client>();
            ASSERT_TRUE(links[i]->connect_to_server("", address_.c_str(), protocol::control_box_port));
            accepted[i] = accept(listener_, nullptr, nullptr);
        }
        EXPECT_EQ(static_cast<ssize_t>(sent), send(accepted[0], &reply, sent, MSG_NOSIGNAL));
        for (const int link : accepted)
            shutdown(link, SHUT_WR);
        qorin_api_rpc::g_cbox_map->emplace(
            0, std::make_shared<qorin_api_rpc::qorin_rpc_client>(0, std::make_shared<qorin_api_rpc::qorin_rpc_event>(0),
                                                                 links[0], links[1], links[2]));
        work();
        qorin_api_rpc::g_cbox_map->erase(0);
        for (const int link : accepted)
            close(link);
    }

private:
    std::string address_ = test_support::own_address();
    int listener_ = socket(AF_INET, SOCK_STREAM, 0);
};

TEST(rpc_record, a_torn_reply_is_no_reply)
{
    const tearing_box box;
    protocol::reply_record reply;
    std::memset(&reply, 0x5A, sizeof(reply));
    reply.result = QORIN_API_RESULT_OK;
    for (std::size_t sent = 0; sent < sizeof(reply); ++sent)
        box.tear(reply, sent,
                 [&]
                 {
                     unsigned int value[32] = {7};
                     double real[16] = {7.0};
                     EXPECT_EQ(0u, command<"qorin_x">(0, value + 0, real + 0)) << sent << " bytes";
                     EXPECT_EQ(0u, value[0]) << sent << " bytes";
                     EXPECT_EQ(0.0, real[0]) << sent << " bytes";
                 });
    EXPECT_EQ(0u, qorin_api_rpc::get_out_param()->reserved[0]) << "nothing of it stays in the record";
}

TEST(rpc_record, a_reply_may_arrive_in_pieces_and_late)
{
    connected_box box;
    for (std::size_t split = 1; split < sizeof(protocol::reply_record); ++split)
    {
        scripted_reply reply = reply_with(QORIN_API_RESULT_OK);
        reply.record.value[0] = QORIN_SWITCH_ON;
        reply.split_at = split;
        box.will_reply(reply);
        QORIN_SWITCH controllable[32] = {};
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_controllable_get(box.id, controllable));
        EXPECT_EQ(QORIN_SWITCH_ON, controllable[0]);
    }
    scripted_reply late = reply_with(QORIN_API_RESULT_OK);
    late.delay = std::chrono::milliseconds(2500);
    box.will_reply(late);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(box.id)) << "there is no time-out";
}
} // namespace
