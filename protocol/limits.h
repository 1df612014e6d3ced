#ifndef PROTOCOL_LIMITS_H
#define PROTOCOL_LIMITS_H

#include <cstdint>

/// How many there are of what a record counts: the most that a control box has, and the channels of its modules.
namespace protocol
{
inline constexpr std::uint32_t robot_limit = 2;
inline constexpr std::uint32_t joint_limit = 6;         ///< of one robot
inline constexpr std::uint32_t safety_plane_limit = 10; ///< of one robot
inline constexpr std::uint32_t amr_emergency_button_limit = 4;
inline constexpr std::uint32_t conveyor_encoder_limit = 2;
inline constexpr std::uint32_t low_data_device_limit = 4;
inline constexpr std::uint32_t io_link_port_limit = 16;

inline constexpr std::uint32_t pose_size = 6; ///< x, y, z, rx, ry, rz

inline constexpr std::uint32_t io_digital_channels = 16;
inline constexpr std::uint32_t io_analog_channels = 2;
inline constexpr std::uint32_t tool_digital_channels = 4;
inline constexpr std::uint32_t tool_analog_channels = 2;
inline constexpr std::uint32_t safety_module_inputs = 8;
} // namespace protocol

#endif
