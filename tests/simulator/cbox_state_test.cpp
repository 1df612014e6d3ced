#include <cmath>
#include <cstdint>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/commanded_box.h"

namespace
{
using cbox_simulator::cbox_state;

std::vector<unsigned char> counted(std::size_t size, unsigned char first)
{
    std::vector<unsigned char> result(size);
    std::iota(result.begin(), result.end(), first);
    return result;
}

/// An operation on the box, and the only bytes of the frame that it may change.
struct frame_row
{
    std::function<QORIN_API_RESULT(cbox_state&)> set;
    std::size_t offset;
    std::string expected;
};

constexpr auto pushed = QORIN_BUTTON_STATE_PUSHED;
constexpr auto current = QORIN_ANALOG_IO_MODE_CURRENT;

const frame_row frame_rows[] = {
    {[](auto& box) { return box.set_power_button(pushed); }, 0x6004, bytes_of(401100u)},
    {[](auto& box) { return box.set_emergency_button(pushed); }, 0x600C, bytes_of(401100u)},
    {[](auto& box) { return box.set_amr_emergency_button(3, pushed); }, 0x601C, bytes_of(401100u)},
    {[](auto& box) { return box.set_digital_input(0, 15, 1); }, 0x3374, bytes_of(0x8000u)},
    {[](auto& box) { return box.set_digital_input(1, 3, 1); }, 0x3374 + 224, bytes_of(0x0008u)},
    {[](auto& box) { return box.set_redundant_input(0, 9, 1); }, 0x3378, bytes_of(0x0200u)},
    {[](auto& box) { return box.set_redundant_output(1, 12, 1); }, 0x3398 + 224, bytes_of(0x1000u)},
    {[](auto& box) { return box.set_fsoe_input(1, QORIN_FSOE_REAR_OSSD_B_INPUT, 1); }, 0x3374 + 224, bytes_of(256u)},
    {[](auto& box) { return box.set_analog_input(0, 1, -1.25); }, 0x33B0, bytes_of(-1.25)},
    {[](auto& box) { return box.set_safety_redundant_input(7, 1); }, 0x5FD0, bytes_of(0x8000u)},
    {[](auto& box) { return box.set_smps_48v_switch(QORIN_SWITCH_ON); }, 0x7340, bytes_of(400100u)},
    {[](auto& box) { return box.set_io_link_input_bits(0, 0x1234); }, 0x5CA0, bytes_of(std::uint16_t{0x1234})},
    {[](auto& box) { return box.set_io_link_status_bits(0, 0x2345); }, 0x5CA2, bytes_of(std::uint16_t{0x2345})},
    {[](auto& box) { return box.set_io_link_rx_data(0, counted(64, 1)); }, 0x5CA8, block(counted(64, 1))},
    {[](auto& box) { return box.set_wireless_port_status(0, 0x5A); }, 0x5590, "\x5A"},
    {[](auto& box) { return box.set_wireless_port_rx_data(15, counted(32, 7)); }, 0x5C5D, block(counted(32, 7))},
    {[](auto& box) { return box.set_low_data_rx_data(0, counted(5, 11)); }, 0x5D8E, block(counted(5, 11))},
    {[](auto& box) { return box.calibrate_conveyor_encoder(0, 2.5, 1); }, 0x6028, bytes_of(2.5)},
    {[](auto& box) { return box.set_conveyor_encoder_rate(0, 4.5); }, 0x33D0, bytes_of(4.5)},
    {[](auto& box) { return box.set_conveyor_encoder_rate(1, 5.5); }, 0x33E0, bytes_of(5.5)},
};

/// A box with a mobile base, whose buttons it has too.
struct cbox_state_test : testing::Test, commanded_box
{
    cbox_state_test() { model.cbox().set_mobile_base_present(true); }
};

TEST_F(cbox_state_test, each_operation_changes_its_own_field_of_the_frame_and_no_other)
{
    for (const auto& row : frame_rows)
    {
        commanded_box box;
        box.model.cbox().set_mobile_base_present(true);
        const auto set = [&] { EXPECT_EQ(row.set(box.model.cbox()), QORIN_API_RESULT_OK); };
        EXPECT_TRUE(box.changes_only(row.offset, row.expected, set)) << std::hex << row.offset;
    }
}

TEST_F(cbox_state_test, a_text_that_is_too_long_ends_with_its_field)
{
    model.cbox().set_io_module_sw_version(1, std::string(100, 'i'));
    model.cbox().set_safety_module_sw_version(std::string(200, 's'));
    EXPECT_STREQ((field<std::array<char, 224>>(0x334C + 224).data()), std::string(39, 'i').c_str());
    EXPECT_STREQ((field<std::array<char, 224>>(0x3268).data()), std::string(111, 's').c_str());
}

TEST_F(cbox_state_test, an_operation_that_is_refused_tells_why_and_changes_nothing)
{
    struct refused_row
    {
        std::function<QORIN_API_RESULT(cbox_state&)> set;
        unsigned int result;
    };
    const auto no_button = static_cast<QORIN_BUTTON_STATE>(0);
    const refused_row rows[] = {
        {[&](auto& box) { return box.set_power_button(no_button); }, 101005},
        {[](auto& box) { return box.set_amr_emergency_button(4, pushed); }, 101009},
        {[&](auto& box) { return box.set_amr_emergency_button(3, no_button); }, 101005},
        {[](auto& box) { return box.set_ecat_connection_state(static_cast<QORIN_ECAT_CONN_STATE>(400204)); }, 101005},
        {[](auto& box) { return box.set_operational_mode(QORIN_OPERATIONAL_MODE_BEGIN); }, 101001},
        {[](auto& box) { return box.set_operational_mode(QORIN_OPERATIONAL_MODE_OPERATIONAL); }, 200009},
        {[](auto& box) { return box.set_digital_output(2, 0, 1); }, 101004},
        {[](auto& box) { return box.set_fsoe_input(0, QORIN_FSOE_INPUT_MAX, 1); }, 101004},
        {[](auto& box) { return box.set_fsoe_output(0, QORIN_FSOE_OUTPUT_EMPTY, 1); }, 101004},
        {[](auto& box) { return box.set_analog_input(0, 2, 1.0); }, 101004},
        {[](auto& box) { return box.set_analog_output(0, 1, std::nan("")); }, 101005},
        {[](auto& box) { return box.set_analog_input_mode(2, 0, current); }, 101004},
        {[](auto& box) { return box.set_smps_48v_switch(QORIN_SWITCH{}); }, 101005},
        {[](auto& box) { return box.set_io_link_rx_data(1, counted(65, 1)); }, 106015},
        {[](auto& box) { return box.set_io_link_tx_data(0, counted(65, 1)); }, 106016},
        {[](auto& box) { return box.set_wireless_port_rx_data(16, counted(33, 1)); }, 106014},
        {[](auto& box) { return box.set_wireless_port_tx_data(15, counted(33, 1)); }, 106016},
        {[](auto& box) { return box.set_low_data_rx_data(4, counted(33, 1)); }, 106015},
        {[](auto& box) { return box.set_low_data_tx_data(3, counted(33, 1)); }, 106016},
        {[](auto& box) { return box.calibrate_conveyor_encoder(0, 0.0, 1.0); }, 102007},
    };
    const auto before = frame();
    (void)model.events().take();
    for (const auto& row : rows)
        EXPECT_EQ(row.set(model.cbox()) + 0u, row.result) << "row " << &row - rows;
    EXPECT_EQ(frame(), before);
    EXPECT_TRUE(model.events().take().empty());
}
} // namespace
