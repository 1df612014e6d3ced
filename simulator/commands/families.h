#ifndef SIMULATOR_COMMANDS_FAMILIES_H
#define SIMULATOR_COMMANDS_FAMILIES_H

#include <span>

#include "simulator/commands/command_row.h"

/// The families of commands, each a table in a source of its own.
namespace cbox_simulator
{
/// What applications set on the control box: its network, its mode, its outputs, and what its redundant I/O is for.
[[nodiscard]] std::span<const command_row> cbox_commands();
/// Events on demand, inputs and faults of the control box, and the service data of its modules. They stand for the
/// outside world, so that nobody needs the control for them.
[[nodiscard]] std::span<const command_row> cbox_test_commands();
/// External profiler, external move and conveyor.
[[nodiscard]] std::span<const command_row> external_motion_commands();
/// Modbus, EtherNet/IP, the RDM link, the external registers, and the data of devices on the EtherCAT network.
[[nodiscard]] std::span<const command_row> fieldbus_commands();
/// Force control, the sensor at the flange and the external force-torque input.
[[nodiscard]] std::span<const command_row> force_control_commands();
/// Jogs of joints, and of the TCP's position and orientation.
[[nodiscard]] std::span<const command_row> jog_commands();
/// The user memory, and the sleep that the box keeps a caller waiting for.
[[nodiscard]] std::span<const command_row> memory_commands();
/// Motion commands and their queue, and motions in one request.
[[nodiscard]] std::span<const command_row> motion_commands();
/// Recording of a robot's motion, playback, and the files of recordings.
[[nodiscard]] std::span<const command_row> recording_commands();
/// Robots come and go, get their kinematics, and begin and end to follow streamed targets. All of it needs the control.
[[nodiscard]] std::span<const command_row> robot_commands();
/// Stopping, servo power, override, control mode, velocity control, home position and direct teaching.
[[nodiscard]] std::span<const command_row> robot_control_commands();
/// Collision handling, dynamics calibration, tool and payload.
[[nodiscard]] std::span<const command_row> robot_setup_commands();
/// Inputs and drive values of a robot. They stand for the outside world, so that nobody needs the control for them.
[[nodiscard]] std::span<const command_row> robot_test_commands();
/// Limits, work space planes and TCP bounding shapes.
[[nodiscard]] std::span<const command_row> safety_limit_commands();
/// Creation and end of the system, and who has the control.
[[nodiscard]] std::span<const command_row> system_commands();
/// The I/O module at a robot's flange, and the RS485 port there.
[[nodiscard]] std::span<const command_row> tool_io_commands();
/// What only the motion commands for welding have: weave and arc sensing.
[[nodiscard]] std::span<const command_row> welding_commands();
} // namespace cbox_simulator

#endif
