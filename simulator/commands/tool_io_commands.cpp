#include "simulator/commands/families.h"

#include "simulator/commands/typed_command.h"
#include "simulator/model/io_channels.h"

namespace cbox_simulator
{
namespace
{
constexpr channel_range digital_channels{tool_module::digital_channels};

QORIN_API_RESULT digital_output_set(robot_state& robot, std::uint32_t channel, std::uint32_t value)
{
    return set_channel(robot.settings().tool.digital_output, digital_channels, channel, value, robot_io_refusals);
}

QORIN_API_RESULT digital_outputs_set(robot_state& robot, std::uint32_t count, const block_of<std::uint32_t>& channels,
                                     const block_of<std::uint32_t>& values)
{
    return set_channels(robot.settings().tool.digital_output, digital_channels, count, channels, values,
                        robot_io_refusals);
}

QORIN_API_RESULT analog_output_set(robot_state& robot, std::uint32_t channel, double value)
{
    return set_analog_channel(robot.settings().tool.analog_output, channel, value, robot_io_refusals);
}

/// The two numbers behind the mode tune the converters of a real module. No frame tells them.
QORIN_API_RESULT analog_input_mode_set(robot_state& robot, std::uint32_t channel, QORIN_ANALOG_IO_MODE mode,
                                       std::int32_t, double)
{
    return set_analog_mode(robot.settings().tool.analog_input_mode, channel, mode, robot_io_refusals);
}

/// The character says nothing to the simulated supply.
QORIN_API_RESULT power_voltage_set(robot_state& robot, QORIN_TOOL_IO_POWER_VOLTAGE_OPTION option, char)
{
    if (!is_possible(option))
        return QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE;
    robot.settings().tool.power_voltage = option;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT led_color_set(robot_state& robot, std::uint32_t color_1, std::uint32_t color_2, std::uint32_t color_3)
{
    robot.settings().tool.led_color = {color_1, color_2, color_3};
    return QORIN_API_RESULT_OK;
}

/// The port is one for the box: of the robot, a command needs no more than that it is there.
template <auto operation, class Operation = decltype(operation)>
struct port_operation;

template <auto operation, class... Parameters>
struct port_operation<operation, QORIN_API_RESULT (rs485_port::*)(Parameters...)>
{
    static QORIN_API_RESULT perform(box_model& model, robot_state&, Parameters... parameters)
    {
        return (model.cbox().*operation)(parameters...);
    }
};

template <auto operation>
constexpr auto on_port = &port_operation<operation>::perform;

QORIN_API_RESULT modbus_rtu_read(box_model& model, robot_state&, std::uint8_t device, std::uint8_t function,
                                 std::uint16_t address, std::uint16_t count, std::uint8_t size,
                                 std::uint32_t& first_bytes)
{
    return model.cbox().read_modbus_rtu(device, function, address, count, size, first_bytes);
}

constexpr command_row rows[] = {
    controlled<digital_output_set>("qorin_robot_tool_io_digital_output_set"),
    controlled<digital_outputs_set>("qorin_robot_tool_io_digital_output_multiple_set"),
    controlled<analog_output_set>("qorin_robot_tool_io_analog_output_set"),
    controlled<analog_input_mode_set>("qorin_robot_tool_io_analog_input_mode_set"),
    controlled<power_voltage_set>("qorin_robot_tool_io_power_voltage_set"),
    controlled<led_color_set>("qorin_robot_tool_io_led_color_set"),
    controlled<on_port<&rs485_port::set_rs485>>("qorin_robot_tool_io_rs485_set"),
    controlled<on_port<&rs485_port::perform_rs485_command>>("qorin_robot_tool_io_rs485_control_cmd"),
    controlled<on_port<&rs485_port::set_rs485_tx_data>>("qorin_robot_tool_io_rs485_io_tx_data_set"),
    controlled<modbus_rtu_read>("qorin_robot_tool_io_rs485_modbus_rtu_read"),
    controlled<on_port<&rs485_port::write_modbus_rtu>>("qorin_robot_tool_io_rs485_modbus_rtu_write"),
};
} // namespace

std::span<const command_row> tool_io_commands()
{
    return rows;
}
} // namespace cbox_simulator
