#include "simulator/model/world_points.h"

#include <algorithm>
#include <type_traits>

namespace cbox_simulator
{
namespace
{
using parts = parts_with_terminals;
using index = point_index;
using values_in = std::span<const double>;
using values_out = std::vector<double>;

constexpr auto drive_count = static_cast<std::uint32_t>(savrent::kinematics::joint_count);
constexpr std::uint32_t registers = register_bank<double>::register_count;

std::uint32_t whole(values_in values)
{
    return static_cast<std::uint32_t>(values.front());
}

std::vector<unsigned char> bytes_of(values_in values)
{
    std::vector<unsigned char> bytes;
    std::ranges::transform(values, std::back_inserter(bytes),
                           [](double value) { return static_cast<unsigned char>(value); });
    return bytes;
}

/// Words, numbers and arrays of either.
template <class Value>
void tell(values_out& values, const Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>)
        values.assign(1, static_cast<double>(value));
    else
        values.assign(value.begin(), value.end());
}

void tell_bit(values_out& values, std::uint32_t word, std::uint32_t bit)
{
    tell(values, word >> bit & 1u);
}

robot_settings& settings_of(const parts& of, const index& at)
{
    return of.robots.find(at[0])->settings();
}

// The ways to a value, one for each shape of a part.

template <auto word>
void module_bit(const parts& of, const index& at, values_out& values)
{
    tell_bit(values, of.cbox.all_io_modules()[at[0]].*word, at[1]);
}

template <auto array>
void module_real(const parts& of, const index& at, values_out& values)
{
    tell(values, (of.cbox.all_io_modules()[at[0]].*array)[at[1]]);
}

template <auto word>
void tool_bit(const parts& of, const index& at, values_out& values)
{
    tell_bit(values, settings_of(of, at).tool.*word, at[1]);
}

template <auto array>
void tool_real(const parts& of, const index& at, values_out& values)
{
    tell(values, (settings_of(of, at).tool.*array)[at[1]]);
}

template <auto bank>
void register_value(const parts& of, const index& at, values_out& values)
{
    auto value = typename std::remove_cvref_t<decltype(of.fieldbuses.registers.*bank)>::value_type{};
    static_cast<void>((of.fieldbuses.registers.*bank).get(static_cast<std::uint16_t>(at[0]), value));
    tell(values, value);
}

template <auto bank>
QORIN_API_RESULT set_register(const parts& of, const index& at, values_in values)
{
    using value = typename std::remove_cvref_t<decltype(of.fieldbuses.registers.*bank)>::value_type;
    return (of.fieldbuses.registers.*bank).set(static_cast<std::uint16_t>(at[0]), static_cast<value>(values.front()));
}

template <auto member>
void touch_axes(const parts& of, const index& at, values_out& values)
{
    tell(values, settings_of(of, at).touch.*member);
}

template <auto member>
QORIN_API_RESULT set_touch(const parts& of, const index& at, values_in values)
{
    std::ranges::copy(values, (settings_of(of, at).touch.*member).begin());
    return QORIN_API_RESULT_OK;
}

/// A plane without a stiffness is none. One with it has a normal.
QORIN_API_RESULT set_contact_plane(const parts& of, const index& at, values_in values)
{
    const bool has_normal = values[0] != 0 || values[1] != 0 || values[2] != 0;
    if (values[4] < 0 || values[5] < 0 || (values[4] > 0 && !has_normal))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    return set_touch<&touch::contact_plane>(of, at, values);
}

template <auto member>
void drive_value(const parts& of, const index& at, values_out& values)
{
    tell(values, settings_of(of, at).drives[at[1]].*member);
}

template <auto member>
QORIN_API_RESULT set_drive_value(const parts& of, const index& at, values_in values)
{
    settings_of(of, at).drives[at[1]].*member = values.front();
    return QORIN_API_RESULT_OK;
}

template <auto member>
void io_link_value(const parts& of, const index&, values_out& values)
{
    tell(values, of.cbox.io_link().*member);
}

template <auto member>
void wireless_value(const parts& of, const index& at, values_out& values)
{
    tell(values, of.cbox.wireless_ports()[at[0]].*member);
}

template <auto member>
void low_data_value(const parts& of, const index& at, values_out& values)
{
    tell(values, of.cbox.low_data_devices()[at[0]].*member);
}

/// Setters of the box with a module and a channel, with a channel, and with bytes of a device.
template <auto set>
QORIN_API_RESULT set_in_module(const parts& of, const index& at, values_in values)
{
    return (of.cbox.*set)(at[0], at[1], whole(values));
}

template <auto set>
QORIN_API_RESULT set_number(const parts& of, const index& at, values_in values)
{
    return (of.cbox.*set)(at[0], whole(values));
}

template <auto set>
QORIN_API_RESULT set_io_link_bits(const parts& of, const index&, values_in values)
{
    return (of.cbox.*set)(0, static_cast<std::uint16_t>(values.front()));
}

template <auto set>
QORIN_API_RESULT set_bytes(const parts& of, const index& at, values_in values)
{
    return (of.cbox.*set)(at[0], bytes_of(values));
}

QORIN_API_RESULT set_analog_input(const parts& of, const index& at, values_in values)
{
    return of.cbox.set_analog_input(at[0], at[1], values.front());
}

QORIN_API_RESULT set_tool_input(const parts& of, const index& at, values_in values)
{
    return set_channel(settings_of(of, at).tool.digital_input, {tool_module::digital_channels}, at[1], whole(values),
                       robot_io_refusals);
}

QORIN_API_RESULT set_tool_analog_input(const parts& of, const index& at, values_in values)
{
    return set_analog_channel(settings_of(of, at).tool.analog_input, at[1], values.front(), robot_io_refusals);
}

void encoder_rate(const parts& of, const index& at, values_out& values)
{
    tell(values, of.cbox.all_conveyor_encoders()[at[0]].rate);
}

QORIN_API_RESULT set_encoder_rate(const parts& of, const index& at, values_in values)
{
    return of.cbox.set_conveyor_encoder_rate(at[0], values.front());
}

void rs485_rx(const parts& of, const index&, values_out& values)
{
    tell(values, of.cbox.rs485_rx_data());
}

QORIN_API_RESULT set_rs485_rx(const parts& of, const index&, values_in values)
{
    return of.cbox.set_rs485_rx_data(bytes_of(values));
}

void rs485_tx(const parts& of, const index&, values_out& values)
{
    tell(values, of.cbox.rs485_tx_data());
}

void scanner_rx(const parts& of, const index&, values_out& values)
{
    tell(values, of.fieldbuses.services.scanner_rx_bytes());
}

QORIN_API_RESULT set_scanner_rx(const parts& of, const index&, values_in values)
{
    fieldbus_services::byte_block block{};
    std::ranges::copy(bytes_of(values), block.begin());
    return of.fieldbuses.services.set_scanner_rx_data(static_cast<std::uint32_t>(values.size()), block);
}

void scanner_tx(const parts& of, const index&, values_out& values)
{
    tell(values, of.fieldbuses.services.scanner_tx_bytes());
}

void safety_input(const parts& of, const index& at, values_out& values)
{
    tell_bit(values, of.cbox.safety_redundant_word(), 8 + at[0]);
}

void epc_input(const parts& of, const index& at, values_out& values)
{
    tell_bit(values, of.cbox.epc_inputs(), at[0]);
}

QORIN_BUTTON_STATE button_of(values_in values)
{
    return values.front() == 1 ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED;
}

/// Button 0 is the box's own, the others are those of the mobile base.
void emergency_button(const parts& of, const index& at, values_out& values)
{
    const auto state = at[0] == 0 ? of.cbox.emergency_knob() : of.cbox.amr_emergency_buttons()[at[0] - 1];
    tell(values, state == QORIN_BUTTON_STATE_PUSHED ? 1 : 0);
}

QORIN_API_RESULT set_emergency_button(const parts& of, const index& at, values_in values)
{
    return at[0] == 0 ? of.cbox.set_emergency_button(button_of(values))
                      : of.cbox.set_amr_emergency_button(at[0] - 1, button_of(values));
}

void power_button(const parts& of, const index&, values_out& values)
{
    tell(values, of.cbox.power_button() == QORIN_BUTTON_STATE_PUSHED ? 1 : 0);
}

QORIN_API_RESULT set_power_button(const parts& of, const index&, values_in values)
{
    return of.cbox.set_power_button(button_of(values));
}

constexpr std::array<std::string_view, 2> no_index{};
constexpr std::array<std::string_view, 2> module_channel{"module", "channel"};
constexpr std::array<std::string_view, 2> robot_channel{"robot", "channel"};
constexpr std::array<std::string_view, 2> robot_joint{"robot", "joint"};
constexpr std::array<std::string_view, 2> robot_only{"robot"};
constexpr std::array<std::string_view, 2> number_only{"number"};

constexpr index none{1, 1};
constexpr index bits{io_modules::module_count, io_module::digital_channels};
constexpr index reals{io_modules::module_count, io_module::analog_channels};
constexpr index tool_bits{robot_set::robot_limit, tool_module::digital_channels};
constexpr index tool_reals{robot_set::robot_limit, 2};
constexpr index joints{robot_set::robot_limit, drive_count};
constexpr index robots{robot_set::robot_limit, 1};
constexpr index numbers{registers, 1};
constexpr index ports{ecat_devices::wireless_port_count, 1};
constexpr index devices{ecat_devices::low_data_device_count, 1};

using enum point_value;
using external = external_registers;
using wireless = io_link_wireless_port;

constexpr point_kind kinds[] = {
    {"digital_input", module_channel, bits, bit, 1, module_bit<&io_module::digital_input>,
     set_in_module<&cbox_state::set_digital_input>},
    {"redundant_input", module_channel, bits, bit, 1, module_bit<&io_module::redundant_digital_input>,
     set_in_module<&cbox_state::set_redundant_input>},
    {"safety_input", number_only, {8, 1}, bit, 1, safety_input, set_number<&cbox_state::set_safety_redundant_input>},
    {"epc_input",
     number_only,
     {cbox_state::epc_input_count, 1},
     bit,
     1,
     epc_input,
     set_number<&cbox_state::set_epc_input>},
    {"analog_input", module_channel, reals, real, 0, module_real<&io_module::analog_input>, set_analog_input},
    {"tool_input", robot_channel, tool_bits, bit, 1, tool_bit<&tool_module::digital_input>, set_tool_input},
    {"tool_analog_input", robot_channel, tool_reals, real, 0, tool_real<&tool_module::analog_input>,
     set_tool_analog_input},
    {"input_bit", number_only, numbers, bit, 1, register_value<&external::input_bits>,
     set_register<&external::input_bits>},
    {"input_integer", number_only, numbers, integer, 0xffffffff, register_value<&external::input_integers>,
     set_register<&external::input_integers>},
    {"input_real", number_only, numbers, real, 0, register_value<&external::input_reals>,
     set_register<&external::input_reals>},
    {"encoder_rate", number_only, {conveyor_encoders::encoder_count, 1}, real, 0, encoder_rate, set_encoder_rate},
    {"rs485_rx", no_index, none, bytes, rs485_port::data_size, rs485_rx, set_rs485_rx},
    {"io_link_rx", no_index, none, bytes, 64, io_link_value<&io_link_master::rx_data>,
     set_bytes<&cbox_state::set_io_link_rx_data>},
    {"io_link_input_bits", no_index, none, integer, 0xffff, io_link_value<&io_link_master::input_bits>,
     set_io_link_bits<&cbox_state::set_io_link_input_bits>},
    {"io_link_status_bits", no_index, none, integer, 0xffff, io_link_value<&io_link_master::status_bits>,
     set_io_link_bits<&cbox_state::set_io_link_status_bits>},
    {"wireless_status", number_only, ports, integer, 0xff, wireless_value<&wireless::status>,
     [](const parts& of, const index& at, values_in values)
     { return of.cbox.set_wireless_port_status(at[0], static_cast<unsigned char>(values.front())); }},
    {"wireless_rx", number_only, ports, bytes, 32, wireless_value<&wireless::rx_data>,
     set_bytes<&cbox_state::set_wireless_port_rx_data>},
    {"low_data_rx", number_only, devices, bytes, 32, low_data_value<&low_data_device::rx_data>,
     set_bytes<&cbox_state::set_low_data_rx_data>},
    {"scanner_rx", no_index, none, bytes, 128, scanner_rx, set_scanner_rx},
    {"force_torque", robot_only, robots, axes, 0, touch_axes<&touch::force_torque>, set_touch<&touch::force_torque>},
    {"contact_plane", robot_only, robots, axes, 0, touch_axes<&touch::contact_plane>, set_contact_plane},
    {"hand", robot_only, robots, axes, 0, touch_axes<&touch::hand>, set_touch<&touch::hand>},
    {"drive_temperature", robot_joint, joints, real, 0, drive_value<&drive::temperature>,
     set_drive_value<&drive::temperature>, 30},
    {"drive_voltage", robot_joint, joints, real, 0, drive_value<&drive::voltage>, set_drive_value<&drive::voltage>, 48},
    {"emergency_button",
     number_only,
     {1 + button_panel::amr_button_count, 1},
     bit,
     1,
     emergency_button,
     set_emergency_button},
    {"power_button", no_index, none, bit, 1, power_button, set_power_button},

    {"digital_output", module_channel, bits, bit, 1, module_bit<&io_module::digital_output>, nullptr},
    {"redundant_output", module_channel, bits, bit, 1, module_bit<&io_module::redundant_digital_output>, nullptr},
    {"analog_output", module_channel, reals, real, 0, module_real<&io_module::analog_output>, nullptr},
    {"tool_output", robot_channel, tool_bits, bit, 1, tool_bit<&tool_module::digital_output>, nullptr},
    {"tool_analog_output", robot_channel, tool_reals, real, 0, tool_real<&tool_module::analog_output>, nullptr},
    {"output_bit", number_only, numbers, bit, 1, register_value<&external::output_bits>, nullptr},
    {"output_integer", number_only, numbers, integer, 0xffffffff, register_value<&external::output_integers>, nullptr},
    {"output_real", number_only, numbers, real, 0, register_value<&external::output_reals>, nullptr},
    {"rs485_tx", no_index, none, bytes, rs485_port::data_size, rs485_tx, nullptr},
    {"io_link_tx", no_index, none, bytes, 64, io_link_value<&io_link_master::tx_data>, nullptr},
    {"io_link_output_bits", no_index, none, integer, 0xffff, io_link_value<&io_link_master::output_bits>, nullptr},
    {"io_link_control_bits", no_index, none, integer, 0xffff, io_link_value<&io_link_master::control_bits>, nullptr},
    {"wireless_tx", number_only, ports, bytes, 32, wireless_value<&wireless::tx_data>, nullptr},
    {"low_data_tx", number_only, devices, bytes, 32, low_data_value<&low_data_device::tx_data>, nullptr},
    {"scanner_tx", no_index, none, bytes, 128, scanner_tx, nullptr},
};
} // namespace

std::size_t point_kind::index_count() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(index_names, [](std::string_view each) { return !each.empty(); }));
}

std::span<const point_kind> point_kinds()
{
    return kinds;
}
} // namespace cbox_simulator
