#include "qorin/cbox.h"

#include "tests/api/robot_frame.h"

namespace
{
using namespace robot_frame;

constexpr auto io_number_invalid = QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;

/// A frame is read by places counted by hand.
class get_cbox : public robot_getters
{
protected:
    template <class Getter>
    answer ask(Getter getter, const std::vector<unsigned int>& inputs = {}, unsigned int from = 0) const
    {
        std::vector<unsigned int> all = {box.id + from};
        all.insert(all.end(), inputs.begin(), inputs.end());
        return call(getter, all);
    }

    /// The one output is what stands at the offset.
    template <class Getter>
    void expect_field(std::size_t offset, Getter getter, const std::vector<unsigned int>& inputs = {}) const
    {
        const answer got = ask(getter, inputs);
        EXPECT_EQ(QORIN_API_RESULT_OK, got.result) << std::hex << offset;
        EXPECT_EQ(bytes_at(offset, got.outputs[0].size()), got.outputs[0]) << std::hex << offset;
    }

    /// The first output is this number, and no other is written.
    template <class Getter>
    void expect_number(unsigned int number, Getter getter, const std::vector<unsigned int>& inputs) const
    {
        const answer got = ask(getter, inputs);
        EXPECT_EQ(number, value_of<unsigned int>(got)) << testing::PrintToString(inputs);
        for (std::size_t i = 1; i < got.outputs.size(); ++i)
            EXPECT_EQ(bytes(got.outputs[i].size(), 0xA5), got.outputs[i]);
    }

    template <class Getter>
    void expect_no(QORIN_API_RESULT result, Getter getter, const std::vector<unsigned int>& inputs) const
    {
        expect_refused(result, ask(getter, inputs), testing::PrintToString(inputs));
    }
};

TEST_F(get_cbox, numbers_come_from_their_field_alone)
{
    const auto expect = [&](std::size_t offset, auto getter, const std::vector<unsigned int>& inputs = {})
    {
        expect_field(offset, getter, inputs);
        expect_refused(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, ask(getter, inputs, 1), std::to_string(offset));
    };
    expect(0x3220, qorin_rpc_cbox_master_operational_mode_get);
    expect(0x0020, qorin_rpc_cbox_name_get);
    expect(0x600C, qorin_rpc_cbox_emergency_button_state_get);
    expect(0x016C, qorin_rpc_cbox_ecat_connection_state_get);
    expect(0x6004, qorin_rpc_cbox_power_button_state_get);
    expect(0x7340, qorin_rpc_cbox_safety_module_48v_smps_switch_get);
    expect(0x6010, qorin_rpc_cbox_amr_emergency_button_state_get, {0});
    expect(0x601C, qorin_rpc_cbox_amr_emergency_button_state_get, {3});
    expect_no(QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER, qorin_rpc_cbox_amr_emergency_button_state_get, {4});
}

TEST_F(get_cbox, bits_come_from_their_word_and_module)
{
    using gen_getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int, unsigned int*);
    using plain_getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int*);
    const struct
    {
        std::size_t offset;
        gen_getter gen;
        plain_getter plain;
    } rows[] = {
        {0x3374, qorin_rpc_gen_cbox_io_digital_input_get, qorin_rpc_cbox_io_digital_input_get},
        {0x3378, qorin_rpc_gen_cbox_redundant_io_digital_input_get, qorin_rpc_cbox_redundant_io_digital_input_get},
        {0x3394, qorin_rpc_gen_cbox_io_digital_output_get, qorin_rpc_cbox_io_digital_output_get},
        {0x3398, qorin_rpc_gen_cbox_redundant_io_digital_output_get, qorin_rpc_cbox_redundant_io_digital_output_get},
    };
    for (const auto& [offset, gen, plain] : rows)
    {
        // The first fifteen, and some that the end of the frame cuts or that lie beyond it.
        for (const unsigned int module :
             {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 13u, 14u, 73u, 74u, 75u, 0x10000000u, 0xFFFFFFFFu})
        {
            const auto word = get<std::uint32_t>(offset + std::size_t{224} * module);
            for (unsigned int channel = 0; channel < 16; ++channel)
            {
                expect_number(word >> channel & 1, gen, {module, channel});
                if (module == 0)
                    expect_number(word >> channel & 1, plain, {channel});
            }
        }
        expect_no(io_number_invalid, gen, {0, 16});
        expect_no(io_number_invalid, plain, {16});
        expect_refused(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, ask(plain, {16}, 1), "the box first");
    }
    const auto safety = qorin_rpc_cbox_safety_module_redundant_io_digital_input_get;
    for (unsigned int index = 0; index < 8; ++index)
        expect_number(get<std::uint32_t>(0x5FD0) >> (index + 8) & 1, safety, {index});
    expect_no(io_number_invalid, safety, {8});
}

TEST_F(get_cbox, safety_channels_go_by_their_number)
{
    const auto input = qorin_rpc_gen_cbox_fsoe_io_digital_input_get;
    const auto output = qorin_rpc_gen_cbox_fsoe_io_digital_output_get;
    for (unsigned int i = 0; i < 9; ++i)
        expect_number(get<std::uint32_t>(0x3374 + 224 * 2) >> i & 1, input, {2, 405401 + i});
    expect_number(get<std::uint32_t>(0x3394 + 224 * 2) & 1, output, {2, QORIN_FSOE_MC3_POWER_OUTPUT});
    for (const unsigned int bound : {QORIN_FSOE_INPUT_EMPTY, QORIN_FSOE_INPUT_MAX})
        expect_no(io_number_invalid, input, {0, bound});
    for (const unsigned int bound : {QORIN_FSOE_OUTPUT_EMPTY, QORIN_FSOE_OUTPUT_MAX})
        expect_no(io_number_invalid, output, {0, bound});
}

TEST_F(get_cbox, analog_channels_have_a_value_and_a_mode)
{
    for (const unsigned int module : {0u, 1u, 2u, 73u, 74u, 0xFFFFFFFFu})
    {
        const std::size_t base = std::size_t{224} * module;
        const auto modes = get<std::uint32_t>(0x33A4 + base);
        for (unsigned int channel = 0; channel < 2; ++channel)
        {
            expect_field(0x33A8 + base + 8 * channel, qorin_rpc_gen_cbox_io_analog_input_get, {module, channel});
            expect_field(0x33B8 + base + 8 * channel, qorin_rpc_gen_cbox_io_analog_output_get, {module, channel});
            // Of three outputs only the mode is written.
            expect_number(400700u + (modes >> (channel + 2) & 1), qorin_rpc_gen_cbox_io_analog_input_mode_get,
                          {module, channel});
            expect_number(400700u + (modes >> channel & 1), qorin_rpc_gen_cbox_io_analog_output_mode_get,
                          {module, channel});
        }
    }
    expect_field(0x33B0, qorin_rpc_cbox_io_analog_input_get, {1});
    expect_field(0x33C0, qorin_rpc_cbox_io_analog_output_get, {1});
    expect_no(io_number_invalid, qorin_rpc_cbox_io_analog_input_get, {2});
    expect_no(io_number_invalid, qorin_rpc_cbox_io_analog_output_get, {2});
    for (const auto getter : {qorin_rpc_cbox_io_analog_input_mode_get, qorin_rpc_cbox_io_analog_output_mode_get})
    {
        expect_no(io_number_invalid, getter, {2});
        QORIN_ANALOG_IO_MODE mode{};
        EXPECT_EQ(QORIN_API_RESULT_OK, getter(box.id, 0, &mode, nullptr, nullptr));
    }
}

TEST_F(get_cbox, byte_arrays_are_judged_by_device_and_then_by_size)
{
    using getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int, unsigned char*);
    constexpr auto no_device = QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    constexpr auto no_port = QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    const struct
    {
        getter get;
        std::size_t offset;
        std::size_t stride;
        unsigned int devices;
        unsigned int most;
        QORIN_API_RESULT bad_device;
    } rows[] = {
        {qorin_rpc_cbox_ecat_low_data_io_rx_data_get, 0x5D8E, 168, 4, 32, no_device},
        {qorin_rpc_cbox_ecat_low_data_io_tx_data_get, 0x5DAE, 168, 4, 32, no_device},
        {qorin_rpc_cbox_ecat_io_link_wp_rx_data_get, 0x5591, 116, 16, 32, no_port},
        {qorin_rpc_cbox_ecat_io_link_wp_tx_data_get, 0x55B1, 116, 16, 32, no_port},
        {qorin_rpc_cbox_ecat_io_link_rx_data_get, 0x5CA8, 0, 1, 64, no_device},
        {qorin_rpc_cbox_ecat_io_link_tx_data_get, 0x5CE8, 0, 1, 64, no_device},
    };
    for (const auto& row : rows)
    {
        const auto expect = [&](QORIN_API_RESULT result, unsigned int device, unsigned int size, unsigned int written)
        {
            bytes expected = bytes_at(row.offset + row.stride * device, written);
            expected.resize(70, 0xA5); // what is behind them keeps what was there
            bytes output(70, 0xA5);
            EXPECT_EQ(result, row.get(box.id, device, size, output.data())) << std::hex << row.offset;
            EXPECT_EQ(expected, output) << std::hex << row.offset << " " << device << " " << size;
        };
        for (unsigned int device = 0; device < row.devices; ++device)
            for (const unsigned int size : {0u, 1u, row.most})
                expect(QORIN_API_RESULT_OK, device, size, size);
        expect(QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE, 0, row.most + 1, 0);
        expect(row.bad_device, row.devices, row.most + 1, 0);
    }
}

TEST_F(get_cbox, io_link_state_comes_in_its_own_width)
{
    const std::pair<QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned short*), std::size_t> words[] = {
        {qorin_rpc_cbox_ecat_io_link_input_bit_get, 0x5CA0},
        {qorin_rpc_cbox_ecat_io_link_status_bit_data_get, 0x5CA2},
        {qorin_rpc_cbox_ecat_io_link_output_bit_get, 0x5CA4},
        {qorin_rpc_cbox_ecat_io_link_control_bit_get, 0x5CA6},
    };
    for (const auto& [getter, offset] : words)
    {
        expect_field(offset, getter, {0});
        expect_no(QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER, getter, {1});
    }
    for (unsigned int port = 0; port < 16; ++port)
        expect_field(0x5590 + 116 * port, qorin_rpc_cbox_ecat_io_link_wp_status_data_get, {port});
    expect_no(QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER, qorin_rpc_cbox_ecat_io_link_wp_status_data_get, {16});
}

TEST_F(get_cbox, version_texts_point_into_the_mirror_of_the_box_that_was_asked_last)
{
    const auto* start = reinterpret_cast<const char*>(mirror());
    EXPECT_EQ(start + 0x334C, qorin_cbox_io_module_sw_version_get());
    EXPECT_EQ(start + 0x3268, qorin_cbox_safety_module_sw_version_get());
    EXPECT_EQ(start + 0x3268 + 112, qorin_cbox_safety_module_sw_version_get_with_index(1));
    EXPECT_EQ(24u, std::strlen(qorin_cbox_safety_module_sw_version_get_with_index(150))) << "the frame's last bytes";
    EXPECT_STREQ("", qorin_cbox_safety_module_sw_version_get_with_index(0xFFFFFFFF));
    qorin_api_rpc::set_cur_cbox_id(box.id + 1);
    EXPECT_EQ(nullptr, qorin_cbox_io_module_sw_version_get());
    EXPECT_EQ(nullptr, qorin_cbox_safety_module_sw_version_get());
}
} // namespace
