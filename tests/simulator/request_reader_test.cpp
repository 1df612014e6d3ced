#include "simulator/commands/request_reader.h"

#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "qorin/enumerations.h"
#include "simulator/commands/reply_writer.h"

namespace
{
using cbox_simulator::reply_writer;
using cbox_simulator::request_reader;

/// Writes at offsets, as the bytes stand on the link.
template <class Value>
void place(protocol::request_record& record, std::size_t offset, const Value& value)
{
    std::memcpy(reinterpret_cast<unsigned char*>(&record) + offset, &value, sizeof value);
}

TEST(request_reader, each_type_comes_from_the_next_slot_of_its_own_area)
{
    protocol::request_record record{};
    place(record, 0x0000, "qorin_example");
    place(record, 0x0080, std::uint32_t{400101});
    place(record, 0x0084, std::int32_t{-7});
    place(record, 0x0100, 1.5);
    place(record, 0x0108, -2.5);
    place(record, 0x0200, "first");
    place(record, 0x0300, std::uint16_t{0xBEEF});
    place(record, 0x037E, std::uint16_t{0xCAFE});
    std::memset(record.block[3], 'x', 128);
    place(record, 0x1280 + 15 * 8, 3.25);

    request_reader arguments(record);
    EXPECT_EQ(arguments.wire_name(), "qorin_example");
    EXPECT_EQ(arguments.next_text(), "first");
    EXPECT_EQ(arguments.next_double(), 1.5);
    EXPECT_EQ(arguments.next_enum<QORIN_SWITCH>(), QORIN_SWITCH_OFF);
    arguments.skip_output();
    const auto words = arguments.next_block_of<std::uint16_t>();
    EXPECT_EQ(words.size(), 64u);
    EXPECT_EQ(words.front(), 0xBEEF);
    EXPECT_EQ(words.back(), 0xCAFE);
    EXPECT_EQ(arguments.next_text(), std::string(128, 'x')) << "a full slot has no terminator";
    arguments.skip_double_output();
    EXPECT_EQ(arguments.next_double_block()[15], 3.25);
    EXPECT_EQ(arguments.next_i32(), -7);
    EXPECT_EQ(arguments.next_double(), -2.5);
}

TEST(reply_writer, outputs_take_slots_in_order_and_the_rest_is_zero)
{
    protocol::reply_record record;
    std::memset(&record, 0xFF, sizeof record);
    reply_writer outputs(record);
    outputs.next_value(-1);
    outputs.next_value(QORIN_SWITCH_ON);
    outputs.next_double(0.25);
    outputs.result(QORIN_API_RESULT_OK);

    unsigned char expected[512] = {0xFF, 0xFF, 0xFF, 0xFF, 0xE4, 0x1A, 0x06, 0x00};
    expected[0x86] = 0xD0;
    expected[0x87] = 0x3F;
    expected[0x180] = 0xA0;
    expected[0x181] = 0x86;
    expected[0x182] = 0x01;
    EXPECT_EQ(std::memcmp(&record, expected, sizeof expected), 0);
}
} // namespace
