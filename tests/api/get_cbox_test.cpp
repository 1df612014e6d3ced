#include "qorin/cbox.h"

#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "protocol/status_frame.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "tests/rpc/connected_box.h"

namespace
{
using test_support::connected_box;
using bytes = std::vector<unsigned char>;

/// A byte that differs from its neighbours, from the same place in neighbouring records, and from zero.
unsigned char distinct(std::size_t offset)
{
    return static_cast<unsigned char>(1 + (offset * 7 + (offset >> 8) * 13) % 251);
}

/// The mirror of a connected box, every byte of it distinct.
class get_cbox : public testing::Test
{
protected:
    void SetUp() override
    {
        mirror_ = reinterpret_cast<unsigned char*>(qorin_api_rpc::get_cbox(box_.id)->get_shared_data());
        for (std::size_t i = 0; i < sizeof(protocol::shared_data_t); ++i)
            mirror_[i] = distinct(i);
    }

    template <class T>
    T at(std::size_t offset) const
    {
        T value;
        std::memcpy(&value, mirror_ + offset, sizeof(value));
        return value;
    }

    /// What a getter writes, as bytes; empty when it writes nothing.
    template <std::size_t Size, class Getter>
    bytes written(QORIN_API_RESULT expected, Getter&& getter) const
    {
        unsigned char output[Size];
        std::memset(output, 0, Size);
        EXPECT_EQ(expected, getter(output));
        bytes first(output, output + Size);
        std::memset(output, 0xFF, Size);
        EXPECT_EQ(expected, getter(output));
        // Bytes that kept what was there before, twice, were not written.
        bytes result;
        for (std::size_t i = 0; i < Size && !(first[i] == 0 && output[i] == 0xFF); ++i)
            result.push_back(output[i]);
        return result;
    }

    bytes frame_bytes(std::size_t offset, std::size_t count) const
    {
        return bytes(mirror_ + offset, mirror_ + offset + count);
    }

    connected_box box_;
    unsigned char* mirror_ = nullptr;
};

TEST_F(get_cbox, numbers_come_from_their_field_alone)
{
    struct row
    {
        const char* name;
        std::size_t offset;
        std::function<QORIN_API_RESULT(unsigned int, unsigned int*)> get;
    };
    const auto as = []<class Enum>(QORIN_API_RESULT (*getter)(unsigned int, Enum*))
    { return [getter](unsigned int id, unsigned int* out) { return getter(id, reinterpret_cast<Enum*>(out)); }; };
    const auto amr = [](unsigned int index)
    {
        return [index](unsigned int id, unsigned int* out) {
            return qorin_rpc_cbox_amr_emergency_button_state_get(id, index, reinterpret_cast<QORIN_BUTTON_STATE*>(out));
        };
    };
    const row rows[] = {
        {"master_operational_mode", 0x3220, as(qorin_rpc_cbox_master_operational_mode_get)},
        {"name", 0x0020, as(qorin_rpc_cbox_name_get)},
        {"emergency_button", 0x600C, as(qorin_rpc_cbox_emergency_button_state_get)},
        {"ecat_connection", 0x016C, as(qorin_rpc_cbox_ecat_connection_state_get)},
        {"power_button", 0x6004, as(qorin_rpc_cbox_power_button_state_get)},
        {"48v", 0x7340, as(qorin_rpc_cbox_safety_module_48v_smps_switch_get)},
        {"amr 0", 0x6010, amr(0)},
        {"amr 3", 0x601C, amr(3)},
    };
    for (const row& expected : rows)
    {
        unsigned int value = 0;
        EXPECT_EQ(QORIN_API_RESULT_OK, expected.get(box_.id, &value)) << expected.name;
        EXPECT_EQ(at<unsigned int>(expected.offset), value) << expected.name;
        value = 77;
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, expected.get(box_.id + 1, &value)) << expected.name;
        EXPECT_EQ(77u, value) << expected.name;
    }
    unsigned int value = 77;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER, amr(4)(box_.id, &value));
    EXPECT_EQ(77u, value);
}

TEST_F(get_cbox, bits_come_from_their_word_and_module)
{
    using gen_getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int, unsigned int*);
    using plain_getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int*);
    struct row
    {
        const char* name;
        std::size_t offset;
        gen_getter gen;
        plain_getter plain;
    };
    const row rows[] = {
        {"input", 0x3374, qorin_rpc_gen_cbox_io_digital_input_get, qorin_rpc_cbox_io_digital_input_get},
        {"redundant input", 0x3378, qorin_rpc_gen_cbox_redundant_io_digital_input_get,
         qorin_rpc_cbox_redundant_io_digital_input_get},
        {"output", 0x3394, qorin_rpc_gen_cbox_io_digital_output_get, qorin_rpc_cbox_io_digital_output_get},
        {"redundant output", 0x3398, qorin_rpc_gen_cbox_redundant_io_digital_output_get,
         qorin_rpc_cbox_redundant_io_digital_output_get},
    };
    for (const row& expected : rows)
    {
        for (unsigned int module = 0; module < 15; ++module)
        {
            const std::uint32_t word = at<std::uint32_t>(expected.offset + std::size_t{224} * module);
            for (unsigned int channel = 0; channel < 16; ++channel)
            {
                unsigned int value = 77;
                EXPECT_EQ(QORIN_API_RESULT_OK, expected.gen(box_.id, module, channel, &value));
                EXPECT_EQ(word >> channel & 1, value) << expected.name << " " << module << " " << channel;
                if (module == 0)
                {
                    unsigned int plain = 77;
                    EXPECT_EQ(QORIN_API_RESULT_OK, expected.plain(box_.id, channel, &plain));
                    EXPECT_EQ(value, plain);
                }
            }
        }
        unsigned int value = 77;
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER, expected.gen(box_.id, 0, 16, &value));
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER, expected.plain(box_.id, 16, &value));
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, expected.plain(box_.id + 1, 16, &value)) << "the box first";
        EXPECT_EQ(77u, value);
    }
    for (unsigned int index = 0; index < 8; ++index)
    {
        unsigned int value = 77;
        EXPECT_EQ(QORIN_API_RESULT_OK,
                  qorin_rpc_cbox_safety_module_redundant_io_digital_input_get(box_.id, index, &value));
        EXPECT_EQ(at<std::uint32_t>(0x5FD0) >> (index + 8) & 1, value);
    }
    unsigned int value = 77;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER,
              qorin_rpc_cbox_safety_module_redundant_io_digital_input_get(box_.id, 8, &value));
    EXPECT_EQ(77u, value);
}

TEST_F(get_cbox, safety_channels_go_by_their_number)
{
    unsigned int value = 77;
    const std::uint32_t inputs = at<std::uint32_t>(0x3374 + 224 * 2);
    for (unsigned int i = 0; i < 9; ++i)
    {
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_cbox_fsoe_io_digital_input_get(
                                           box_.id, 2, static_cast<QORIN_FSOE_IO_INPUT_DATA>(405401 + i), &value));
        EXPECT_EQ(inputs >> i & 1, value) << i;
    }
    EXPECT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_gen_cbox_fsoe_io_digital_output_get(box_.id, 2, QORIN_FSOE_MC3_POWER_OUTPUT, &value));
    EXPECT_EQ(at<std::uint32_t>(0x3394 + 224 * 2) & 1, value);

    value = 77;
    for (const auto input : {QORIN_FSOE_INPUT_EMPTY, QORIN_FSOE_INPUT_MAX})
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER,
                  qorin_rpc_gen_cbox_fsoe_io_digital_input_get(box_.id, 0, input, &value));
    for (const auto output : {QORIN_FSOE_OUTPUT_EMPTY, QORIN_FSOE_OUTPUT_MAX})
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER,
                  qorin_rpc_gen_cbox_fsoe_io_digital_output_get(box_.id, 0, output, &value));
    EXPECT_EQ(77u, value);
}

TEST_F(get_cbox, analog_channels_have_a_value_and_a_mode)
{
    for (unsigned int module = 0; module < 3; ++module)
    {
        const std::size_t base = std::size_t{224} * module;
        for (unsigned int channel = 0; channel < 2; ++channel)
        {
            double value = 0;
            EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_cbox_io_analog_input_get(box_.id, module, channel, &value));
            EXPECT_EQ(at<double>(0x33A8 + base + 8 * channel), value);
            EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_cbox_io_analog_output_get(box_.id, module, channel, &value));
            EXPECT_EQ(at<double>(0x33B8 + base + 8 * channel), value);

            const std::uint32_t modes = at<std::uint32_t>(0x33A4 + base);
            QORIN_ANALOG_IO_MODE mode{};
            int range = 7;
            double range_value = 7;
            EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_cbox_io_analog_input_mode_get(box_.id, module, channel, &mode,
                                                                                       &range, &range_value));
            EXPECT_EQ(400700u + (modes >> (channel + 2) & 1), mode);
            EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_gen_cbox_io_analog_output_mode_get(box_.id, module, channel, &mode,
                                                                                        &range, &range_value));
            EXPECT_EQ(400700u + (modes >> channel & 1), mode);
            EXPECT_EQ(7, range);
            EXPECT_EQ(7.0, range_value);
        }
    }
    double value = 0;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_analog_input_get(box_.id, 1, &value));
    EXPECT_EQ(at<double>(0x33B0), value);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_analog_output_get(box_.id, 1, &value));
    EXPECT_EQ(at<double>(0x33C0), value);
    value = 77;
    QORIN_ANALOG_IO_MODE mode{};
    for (const QORIN_API_RESULT refused :
         {qorin_rpc_cbox_io_analog_input_get(box_.id, 2, &value),
          qorin_rpc_cbox_io_analog_output_get(box_.id, 2, &value),
          qorin_rpc_cbox_io_analog_input_mode_get(box_.id, 2, &mode, nullptr, nullptr),
          qorin_rpc_cbox_io_analog_output_mode_get(box_.id, 2, &mode, nullptr, nullptr)})
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER, refused);
    EXPECT_EQ(77.0, value);
    EXPECT_EQ(0u, mode);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_analog_input_mode_get(box_.id, 0, &mode, nullptr, nullptr));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_io_analog_output_mode_get(box_.id, 0, &mode, nullptr, nullptr));
}

TEST_F(get_cbox, byte_arrays_are_judged_by_device_and_then_by_size)
{
    using getter = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int, unsigned char*);
    struct row
    {
        const char* name;
        getter get;
        std::size_t offset;
        std::size_t stride;
        unsigned int devices;
        unsigned int most;
        QORIN_API_RESULT bad_device;
    };
    const row rows[] = {
        {"low rx", qorin_rpc_cbox_ecat_low_data_io_rx_data_get, 0x5D8E, 168, 4, 32,
         QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER},
        {"low tx", qorin_rpc_cbox_ecat_low_data_io_tx_data_get, 0x5DAE, 168, 4, 32,
         QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER},
        {"port rx", qorin_rpc_cbox_ecat_io_link_wp_rx_data_get, 0x5591, 116, 16, 32,
         QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER},
        {"port tx", qorin_rpc_cbox_ecat_io_link_wp_tx_data_get, 0x55B1, 116, 16, 32,
         QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER},
        {"master rx", qorin_rpc_cbox_ecat_io_link_rx_data_get, 0x5CA8, 0, 1, 64,
         QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER},
        {"master tx", qorin_rpc_cbox_ecat_io_link_tx_data_get, 0x5CE8, 0, 1, 64,
         QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER},
    };
    for (const row& expected : rows)
    {
        for (unsigned int device = 0; device < expected.devices; ++device)
        {
            for (const unsigned int size : {0u, 1u, expected.most})
                EXPECT_EQ(frame_bytes(expected.offset + expected.stride * device, size),
                          (written<70>(QORIN_API_RESULT_OK,
                                       [&](unsigned char* data) { return expected.get(box_.id, device, size, data); })))
                    << expected.name << " " << device << " " << size;
        }
        const auto refused = [&](unsigned int device, unsigned int size, QORIN_API_RESULT result)
        {
            EXPECT_TRUE(
                written<70>(result, [&](unsigned char* data) { return expected.get(box_.id, device, size, data); })
                    .empty())
                << expected.name;
        };
        refused(0, expected.most + 1, QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE);
        refused(expected.devices, expected.most + 1, expected.bad_device);
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
        const auto get = [&, get = getter](unsigned int device) {
            return [=, this](unsigned char* data)
            { return get(box_.id, device, reinterpret_cast<unsigned short*>(data)); };
        };
        EXPECT_EQ(frame_bytes(offset, 2), written<4>(QORIN_API_RESULT_OK, get(0)));
        EXPECT_TRUE(written<4>(QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER, get(1)).empty());
    }
    for (unsigned int port = 0; port < 16; ++port)
        EXPECT_EQ(frame_bytes(0x5590 + 116 * port, 1),
                  written<4>(QORIN_API_RESULT_OK, [&](unsigned char* data)
                             { return qorin_rpc_cbox_ecat_io_link_wp_status_data_get(box_.id, port, data); }));
    EXPECT_TRUE(written<4>(QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER, [&](unsigned char* data)
                           { return qorin_rpc_cbox_ecat_io_link_wp_status_data_get(box_.id, 16, data); })
                    .empty());
}

TEST_F(get_cbox, version_texts_point_into_the_mirror_of_the_box_that_was_asked_last)
{
    qorin_api_rpc::set_cur_cbox_id(box_.id + 1);
    EXPECT_EQ(nullptr, qorin_cbox_io_module_sw_version_get());
    EXPECT_EQ(nullptr, qorin_cbox_safety_module_sw_version_get());
    qorin_api_rpc::set_cur_cbox_id(box_.id);
    const auto* start = reinterpret_cast<const char*>(mirror_);
    EXPECT_EQ(start + 0x334C, qorin_cbox_io_module_sw_version_get());
    EXPECT_EQ(start + 0x3268, qorin_cbox_safety_module_sw_version_get());
    EXPECT_EQ(start + 0x3268 + 112, qorin_cbox_safety_module_sw_version_get_with_index(1));
}
} // namespace
