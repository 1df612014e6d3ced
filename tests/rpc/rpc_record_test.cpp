#include <array>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "qorin/system.h"
#include "rpc/wrapper.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using qorin_api_rpc::command;
using test_support::connected_box;
using test_support::reply_with;
using test_support::scripted_reply;

using record_bytes = std::array<unsigned char, sizeof(protocol::request_record)>;

record_bytes bytes_of(const protocol::request_record& record)
{
    record_bytes bytes;
    std::memcpy(bytes.data(), &record, bytes.size());
    return bytes;
}

/// Writes `value` into an expected record, by offset.
template <class T>
void put(record_bytes& record, std::size_t offset, const T& value)
{
    std::memcpy(record.data() + offset, &value, sizeof(value));
}

void put_text(record_bytes& record, std::size_t offset, const char* text)
{
    std::memcpy(record.data() + offset, text, std::strlen(text) + 1);
}

/// The first difference, for a readable failure.
void expect_same(const record_bytes& expected, const record_bytes& actual)
{
    for (std::size_t i = 0; i < expected.size(); ++i)
        ASSERT_EQ(expected[i], actual[i]) << "at offset " << i;
}

TEST(rpc_record, a_command_without_parameters_is_its_name_and_zeroes)
{
    connected_box box;
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(box.id));
    record_bytes expected = {};
    put_text(expected, 0, "qorin_system_control_take");
    expect_same(expected, bytes_of(box.request(0)));
}

TEST(rpc_record, user_memory_goes_out_slot_by_slot)
{
    connected_box box;
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    const char name[128] = "speed";
    const char text[128] = "fast";
    EXPECT_EQ(QORIN_API_RESULT_OK, command<"qorin_set_user_memory">(
                                       box.id, static_cast<const char*>(name), QORIN_USER_DATA_TYPE_STRING, -7,
                                       static_cast<const char*>(text), static_cast<char>(-1), 1.5, 0x1'0000'0001l));
    record_bytes expected = {};
    put_text(expected, 0x0000, "qorin_set_user_memory");
    put(expected, 0x0080, 404002u);
    put(expected, 0x0084, -7);
    put(expected, 0x0088, 0xFFFFFFFFu);
    put(expected, 0x008C, 1u);
    put(expected, 0x0100, 1.5);
    put_text(expected, 0x0200, "speed");
    put_text(expected, 0x0280, "fast");
    expect_same(expected, bytes_of(box.request(0)));
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
    record_bytes expected = {};
    put_text(expected, 0, "qorin_get_user_memory");
    put_text(expected, 0x200, "speed");
    std::memset(expected.data() + 0x280, 0x11, std::size_t{5} * 128);
    std::memset(expected.data() + 0x1200, 0x11, 128);
    expect_same(expected, bytes_of(box.request(0)));

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
    double reals[16];
    unsigned int words[32];
    unsigned short halves[64];
    unsigned char bytes[128];
    double output_reals[16];
    unsigned short output_halves[64];
    for (unsigned int i = 0; i < 128; ++i)
    {
        bytes[i] = static_cast<unsigned char>(i + 1);
        halves[i % 64] = static_cast<unsigned short>(0x100 + i % 64);
        output_halves[i % 64] = static_cast<unsigned short>(0x200 + i % 64);
        words[i % 32] = 0x10000 + i % 32;
        reals[i % 16] = 0.5 + i % 16;
        output_reals[i % 16] = 50.5 + i % 16;
    }
    const protocol::request_record sent = [&]
    {
        command<"qorin_x">(box.id, 2.25, static_cast<unsigned short>(0xFFFF), static_cast<const double*>(reals),
                           static_cast<const unsigned int*>(words), static_cast<unsigned char>(0xFE), QORIN_SWITCH_OFF,
                           static_cast<const unsigned short*>(halves), -3.5, static_cast<double*>(output_reals), -2,
                           static_cast<const unsigned char*>(bytes), static_cast<unsigned short*>(output_halves),
                           0xFFFFFFFFu);
        return box.request(0);
    }();
    record_bytes expected = {};
    put_text(expected, 0, "qorin_x");
    put(expected, 0x80, 0x0000FFFFu);
    put(expected, 0x84, 0x000000FEu);
    put(expected, 0x88, 400101u);
    put(expected, 0x8C, -2);
    put(expected, 0x90, 0xFFFFFFFFu);
    put(expected, 0x100, 2.25);
    put(expected, 0x108, -3.5);
    put(expected, 0x200, words);
    put(expected, 0x280, halves);
    put(expected, 0x300, bytes);
    for (unsigned int i = 0; i < 64; ++i)
        put(expected, 0x380 + 2 * i, static_cast<unsigned short>(0x200 + i));
    put(expected, 0x1200, reals);
    for (unsigned int i = 0; i < 16; ++i)
        put(expected, 0x1280 + 8 * i, 50.5 + i);
    expect_same(expected, bytes_of(sent));
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
    EXPECT_EQ(0, qorin_api_rpc::get_in_param()[0]) << "the record is zeroed before the id is looked at";
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

TEST(rpc_record, a_reply_may_arrive_in_pieces_and_late)
{
    connected_box box;
    for (const std::size_t split : {1u, 0x180u, 511u})
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

TEST(rpc_record, exported_creation_commands_name_model_and_count)
{
    connected_box box;
    box.always_reply(reply_with(QORIN_API_RESULT_OK));
    const char text[128] = "cell";
    qorin_rpc_gen_system_create(box.id, text, QORIN_CBOX_MODEL_3GEN);
    qorin_rpc_gen_multi_robot_system_create(box.id, text, QORIN_CBOX_MODEL_3GEN_SIM, 2);

    record_bytes expected = {};
    put_text(expected, 0, "qorin_gen_system_create");
    put(expected, 0x80, 401603u);
    put_text(expected, 0x200, "cell");
    expect_same(expected, bytes_of(box.request(0)));
    expected = {};
    put_text(expected, 0, "qorin_gen_multi_robot_system_create");
    put(expected, 0x80, 401605u);
    put(expected, 0x84, 2u);
    put_text(expected, 0x200, "cell");
    expect_same(expected, bytes_of(box.request(1)));
}
} // namespace
