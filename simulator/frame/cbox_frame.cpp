#include "simulator/frame/cbox_frame.h"

#include <algorithm>
#include <array>

#include "simulator/frame/frame_text.h"

namespace cbox_simulator
{
namespace
{
using protocol::record_at;
using protocol::shared_data_t;

static_assert(io_modules::module_count * protocol::io_module_data_t::stride <= sizeof(shared_data_t::io_modules));

/// The frame's fields have the sizes of the devices' data.
template <std::size_t size>
void put_bytes(unsigned char (&field)[size], const std::array<unsigned char, size>& data)
{
    std::copy(data.begin(), data.end(), field);
}

/// One bit for each channel, set when the channel measures or drives a current.
std::uint32_t mode_bits(const std::array<QORIN_ANALOG_IO_MODE, io_module::analog_channels>& modes)
{
    std::uint32_t bits = 0;
    for (std::size_t channel = 0; channel < modes.size(); ++channel)
        bits |= (modes[channel] == QORIN_ANALOG_IO_MODE_CURRENT ? 1u : 0u) << channel;
    return bits;
}

void render_buttons(const button_panel& panel, shared_data_t& frame)
{
    frame.power_button_state = panel.power_button();
    frame.emergency_button_state = panel.emergency_button();
    for (std::size_t index = 0; index < button_panel::amr_button_count; ++index)
        frame.amr_emergency_button_state[index] = panel.amr_emergency_buttons()[index];
}

void render_io_module(const io_module& module, protocol::io_module_data_t& record)
{
    put_text(record.sw_version, module.sw_version);
    record.digital_input = module.digital_input;
    record.redundant_digital_input = module.redundant_digital_input;
    record.digital_output = module.digital_output;
    record.redundant_digital_output = module.redundant_digital_output;
    record.analog_mode = mode_bits(module.analog_output_mode) | mode_bits(module.analog_input_mode) << 2;
    for (std::size_t channel = 0; channel < io_module::analog_channels; ++channel)
    {
        record.analog_input[channel] = module.analog_input[channel];
        record.analog_output[channel] = module.analog_output[channel];
    }
}

void render_safety_module(const safety_module& module, shared_data_t& frame)
{
    put_text(record_at<protocol::safety_module_data_t>(frame, 0).sw_version, module.safety_module_sw_version());
    frame.safety_module_redundant_io = module.safety_redundant_word();
    frame.safety_module_48v_smps_switch = module.smps_48v_switch();
}

void render_io_link(const io_link_master& master, shared_data_t& frame)
{
    frame.io_link_input_bit = master.input_bits;
    frame.io_link_status_bit = master.status_bits;
    frame.io_link_output_bit = master.output_bits;
    frame.io_link_control_bit = master.control_bits;
    put_bytes(frame.io_link_rx_data, master.rx_data);
    put_bytes(frame.io_link_tx_data, master.tx_data);
}

void render_ecat_devices(const ecat_devices& devices, shared_data_t& frame)
{
    render_io_link(devices.io_link(), frame);
    for (std::size_t port = 0; port < ecat_devices::wireless_port_count; ++port)
    {
        auto& record = record_at<protocol::io_link_wp_data_t>(frame, port);
        record.status = devices.wireless_ports()[port].status;
        put_bytes(record.rx_data, devices.wireless_ports()[port].rx_data);
        put_bytes(record.tx_data, devices.wireless_ports()[port].tx_data);
    }
    for (std::size_t device = 0; device < ecat_devices::low_data_device_count; ++device)
    {
        auto& record = record_at<protocol::ecat_low_data_t>(frame, device);
        put_bytes(record.rx_data, devices.low_data_devices()[device].rx_data);
        put_bytes(record.tx_data, devices.low_data_devices()[device].tx_data);
    }
}

void render_rs485(const rs485_port& port, shared_data_t& frame)
{
    const auto& setup = port.rs485_setup();
    frame.rs485_setup[0] = setup.serial_interface;
    frame.rs485_setup[1] = setup.baudrate;
    frame.rs485_setup[2] = setup.data_frame;
    frame.rs485_setup[3] = setup.protocol;
    frame.rs485_setup[4] = setup.setup_switch;
    frame.rs485_setup[5] = static_cast<std::uint32_t>(setup.count);
    const auto& control = port.rs485_control();
    frame.rs485_control[0] = control.tx_request;
    frame.rs485_control[1] = control.rx_accepted;
    frame.rs485_control[2] = control.rx_init_request;
    frame.rs485_control[3] = control.tx_continuous;
    frame.rs485_control[4] = control.tx_scan_rate_request;
    frame.rs485_control[5] = control.rx_pause;
    put_bytes(frame.rs485_rx_data, port.rs485_rx_data());
    put_bytes(frame.rs485_tx_data, port.rs485_tx_data());
}

void render_conveyor_encoders(const conveyor_encoders& conveyor, shared_data_t& frame)
{
    const auto& encoders = conveyor.all_conveyor_encoders();
    frame.conveyor_encoder_index = conveyor.conveyor_encoder_index();
    frame.conveyor_encoder_switch = conveyor.conveyor_encoder_switch();
    for (std::size_t index = 0; index < conveyor_encoders::encoder_count; ++index)
    {
        frame.conveyor_encoders[index].scale_divisor = encoders[index].scale_divisor;
        frame.conveyor_encoders[index].scale_factor = encoders[index].scale_factor;
    }
    // The first I/O module counts for both.
    auto& counter = record_at<protocol::io_module_data_t>(frame, 0);
    counter.conveyor_encoder_rate_0 = encoders[0].rate;
    counter.conveyor_encoder_rate_1 = encoders[1].rate;
}
} // namespace

void render_cbox(const cbox_state& cbox, shared_data_t& frame)
{
    frame.ecat_connection_state = cbox.ecat_connection_state();
    frame.master_operational_mode = cbox.operational_mode();
    render_buttons(cbox, frame);
    for (std::size_t module = 0; module < io_modules::module_count; ++module)
        render_io_module(cbox.all_io_modules()[module], record_at<protocol::io_module_data_t>(frame, module));
    render_safety_module(cbox, frame);
    render_ecat_devices(cbox, frame);
    render_conveyor_encoders(cbox, frame);
    render_rs485(cbox, frame);
}
} // namespace cbox_simulator
