#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/frame/frame_renderer.h"
#include "simulator/model/box_model.h"

namespace
{
using cbox_simulator::box_model;
using cbox_simulator::cbox_state;

using bytes = std::vector<unsigned char>;

bytes rendered(const box_model& model)
{
    protocol::shared_data_t frame;
    cbox_simulator::render_frame(model, frame);
    bytes result(29728);
    std::memcpy(result.data(), &frame, sizeof frame);
    return result;
}

template <class Value>
bytes as_bytes(Value value)
{
    bytes result(sizeof value);
    std::memcpy(result.data(), &value, sizeof value);
    return result;
}

bytes counted(std::size_t size, unsigned char first)
{
    bytes result(size);
    std::iota(result.begin(), result.end(), first);
    return result;
}

/// An operation on the box, and the only bytes of the frame that it may change.
struct frame_row
{
    std::function<QORIN_API_RESULT(cbox_state&)> set;
    std::size_t offset;
    bytes expected;
};

constexpr auto pushed = QORIN_BUTTON_STATE_PUSHED;
constexpr auto current = QORIN_ANALOG_IO_MODE_CURRENT;

const frame_row frame_rows[] = {
    {[](auto& box) { return box.set_power_button(pushed); }, 0x6004, as_bytes(401100u)},
    {[](auto& box) { return box.set_emergency_button(pushed); }, 0x600C, as_bytes(401100u)},
    {[](auto& box) { return box.set_amr_emergency_button(3, pushed); }, 0x601C, as_bytes(401100u)},
    {[](auto& box) { return box.set_operational_mode(QORIN_OPERATIONAL_MODE_BOOTSTRAP); }, 0x3220, as_bytes(403003u)},
    {[](auto& box) { return box.set_digital_input(0, 15, 1); }, 0x3374, as_bytes(0x8000u)},
    {[](auto& box) { return box.set_digital_input(1, 3, 1); }, 0x3374 + 224, as_bytes(0x0008u)},
    {[](auto& box) { return box.set_redundant_input(0, 9, 1); }, 0x3378, as_bytes(0x0200u)},
    {[](auto& box) { return box.set_digital_output(0, 4, 1); }, 0x3394, as_bytes(0x0010u)},
    {[](auto& box) { return box.set_redundant_output(1, 12, 1); }, 0x3398 + 224, as_bytes(0x1000u)},
    {[](auto& box) { return box.set_fsoe_input(1, QORIN_FSOE_REAR_OSSD_B_INPUT, 1); }, 0x3374 + 224, as_bytes(256u)},
    {[](auto& box) { return box.set_fsoe_output(1, QORIN_FSOE_MC3_POWER_OUTPUT, 1); }, 0x3394 + 224, as_bytes(1u)},
    {[](auto& box) { return box.set_analog_output_mode(0, 1, current); }, 0x33A4, as_bytes(0x2u)},
    {[](auto& box) { return box.set_analog_input_mode(0, 0, current); }, 0x33A4, as_bytes(0x4u)},
    {[](auto& box) { return box.set_analog_input(0, 1, -1.25); }, 0x33B0, as_bytes(-1.25)},
    {[](auto& box) { return box.set_analog_output(1, 0, 7.5); }, 0x33B8 + 224, as_bytes(7.5)},
    {[](auto& box) { return box.set_safety_redundant_input(7, 1); }, 0x5FD0, as_bytes(0x8000u)},
    {[](auto& box) { return box.set_smps_48v_switch(QORIN_SWITCH_ON); }, 0x7340, as_bytes(400100u)},
    {[](auto& box) { return box.set_io_link_input_bits(0, 0x1234); }, 0x5CA0, as_bytes(std::uint16_t{0x1234})},
    {[](auto& box) { return box.set_io_link_status_bits(0, 0x2345); }, 0x5CA2, as_bytes(std::uint16_t{0x2345})},
    {[](auto& box) { return box.set_io_link_output_bits(0, 0x3456); }, 0x5CA4, as_bytes(std::uint16_t{0x3456})},
    {[](auto& box) { return box.set_io_link_control_bits(0, 0x4567); }, 0x5CA6, as_bytes(std::uint16_t{0x4567})},
    {[](auto& box) { return box.set_io_link_rx_data(0, counted(64, 1)); }, 0x5CA8, counted(64, 1)},
    {[](auto& box) { return box.set_io_link_tx_data(0, counted(64, 101)); }, 0x5CE8, counted(64, 101)},
    {[](auto& box) { return box.set_wireless_port_status(0, 0x5A); }, 0x5590, {0x5A}},
    {[](auto& box) { return box.set_wireless_port_rx_data(15, counted(32, 7)); }, 0x5C5D, counted(32, 7)},
    {[](auto& box) { return box.set_wireless_port_tx_data(15, counted(32, 9)); }, 0x5C7D, counted(32, 9)},
    {[](auto& box) { return box.set_low_data_rx_data(0, counted(5, 11)); }, 0x5D8E, counted(5, 11)},
    {[](auto& box) { return box.set_low_data_tx_data(3, counted(32, 13)); }, 0x5FA6, counted(32, 13)},
    {[](auto& box) { return box.select_conveyor_encoder(1); }, 0x6020, as_bytes(1u)},
    {[](auto& box) { return box.set_conveyor_encoder_switch(QORIN_SWITCH_ON); }, 0x6024, as_bytes(400100u)},
    {[](auto& box) { return box.calibrate_conveyor_encoder(0, 2.5, 1); }, 0x6028, as_bytes(2.5)},
    {[](auto& box) { return box.calibrate_conveyor_encoder(1, 1, -3.5); }, 0x6048, as_bytes(-3.5)},
    {[](auto& box) { return box.set_conveyor_encoder_rate(0, 4.5); }, 0x33D0, as_bytes(4.5)},
    {[](auto& box) { return box.set_conveyor_encoder_rate(1, 5.5); }, 0x33E0, as_bytes(5.5)},
};

TEST(cbox_state, each_operation_changes_its_own_field_of_the_frame_and_no_other)
{
    for (const auto& row : frame_rows)
    {
        box_model model("version", 1000);
        model.create_system(1, {QORIN_CBOX_MODEL_3GEN_AMR, 1});
        auto expected = rendered(model);
        std::copy(row.expected.begin(), row.expected.end(), expected.begin() + static_cast<std::ptrdiff_t>(row.offset));
        EXPECT_EQ(row.set(model.cbox()), QORIN_API_RESULT_OK) << std::hex << row.offset;
        const auto actual = rendered(model);
        const auto different = std::mismatch(actual.begin(), actual.end(), expected.begin()).first;
        EXPECT_EQ(different, actual.end())
            << "for " << std::hex << row.offset << " differs at " << different - actual.begin();
    }
}

TEST(cbox_state, a_text_that_is_too_long_ends_with_its_field)
{
    box_model model("version", 1000);
    model.cbox().set_io_module_sw_version(1, std::string(100, 'i'));
    model.cbox().set_safety_module_sw_version(std::string(200, 's'));
    const auto frame = rendered(model);
    EXPECT_STREQ(reinterpret_cast<const char*>(&frame[0x334C + 224]), std::string(39, 'i').c_str());
    EXPECT_STREQ(reinterpret_cast<const char*>(&frame[0x3268]), std::string(111, 's').c_str());
}

TEST(cbox_state, an_operation_that_is_refused_tells_why_and_changes_nothing)
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
    box_model model("version", 1000);
    model.create_system(1, {QORIN_CBOX_MODEL_3GEN_AMR, 1});
    const auto before = rendered(model);
    (void)model.events().take();
    for (const auto& row : rows)
        EXPECT_EQ(row.set(model.cbox()) + 0u, row.result) << "row " << &row - rows;
    EXPECT_EQ(rendered(model), before);
    EXPECT_TRUE(model.events().take().empty());
}
} // namespace
