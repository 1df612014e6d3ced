#ifndef PROTOCOL_STATUS_FRAME_H
#define PROTOCOL_STATUS_FRAME_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "protocol/limits.h"
#include "protocol/wire_record.h"

/**
 * The status frame: the raw image that the control box streams over the data link.
 *
 * No magic, version, counter or checksum stands in it: both sides agree on this layout by build. Enumerated
 * fields hold the numbers of the public enumerations. Reserved stretches belong to the control box.
 */
namespace protocol
{
/// Safety planes of one robot.
struct QORIN_WIRE_RECORD safety_plane_block_t
{
    std::uint32_t
        plane_switch[safety_plane_limit]; ///< Per plane id 0 to 9: QORIN_SWITCH_OFF means that the id holds no plane.
    double plane[safety_plane_limit][4];  ///< Per plane id: normal x, normal y, normal z, constant term d of the plane
                                          ///< equation. The distance that the API reports is -d.
    unsigned char reserved_1[8];
};
static_assert(offsetof(safety_plane_block_t, plane_switch) == 0);
static_assert(offsetof(safety_plane_block_t, plane) == 40);
static_assert(sizeof(safety_plane_block_t) == 368);

/// TCP bounding shape of one robot. The parameters of the shape lie in the reserved stretch.
struct QORIN_WIRE_RECORD safety_shape_block_t
{
    std::uint32_t tcp_bounding_shape_switch; ///< TCP bounding shape in force: a QORIN_SWITCH value.
    unsigned char reserved_1[260];
};
static_assert(offsetof(safety_shape_block_t, tcp_bounding_shape_switch) == 0);
static_assert(sizeof(safety_shape_block_t) == 264);

/// A safety module.
struct QORIN_WIRE_RECORD safety_module_data_t
{
    static constexpr std::size_t frame_offset = 12904; ///< of record 0
    static constexpr std::size_t stride = 112;

    char sw_version[112]; ///< Software version text of the safety module, NUL-terminated.
};
static_assert(offsetof(safety_module_data_t, sw_version) == 0);
static_assert(sizeof(safety_module_data_t) == 112);

/// A control box I/O module.
struct QORIN_WIRE_RECORD io_module_data_t
{
    static constexpr std::size_t frame_offset = 13132; ///< of record 0
    static constexpr std::size_t stride = 224;

    char sw_version[40];         ///< Software version text of the module, NUL-terminated.
    std::uint32_t digital_input; ///< Bit n is input channel n, channels 0 to 15. With the FSoE channel numbers, bits 0
                                 ///< to 8 are the FSoE inputs.
    std::uint32_t redundant_digital_input; ///< Bit n is redundant input channel n, channels 0 to 15.
    unsigned char reserved_1[24];
    std::uint32_t digital_output; ///< Bit n is output channel n, channels 0 to 15. Bit 0 is also the one FSoE output.
    std::uint32_t redundant_digital_output; ///< Bit n is redundant output channel n, channels 0 to 15.
    unsigned char reserved_2[8];
    std::uint32_t analog_mode; ///< Bits 0 and 1: mode of analog output channels 0 and 1. Bits 2 and 3: mode of analog
                               ///< input channels 0 and 1. A set bit means QORIN_ANALOG_IO_MODE_CURRENT, a clear bit
                               ///< QORIN_ANALOG_IO_MODE_VOLTAGE.
    double analog_input[io_analog_channels];  ///< Analog input channels 0 and 1.
    double analog_output[io_analog_channels]; ///< Analog output channels 0 and 1.
    unsigned char reserved_3[8];
    double conveyor_encoder_rate_0; ///< Raw rate of conveyor encoder 0. Read from module 0 only.
    unsigned char reserved_4[8];
    double conveyor_encoder_rate_1; ///< Raw rate of conveyor encoder 1. Read from module 0 only.
    unsigned char reserved_5[68];
};
static_assert(offsetof(io_module_data_t, sw_version) == 0);
static_assert(offsetof(io_module_data_t, digital_input) == 40);
static_assert(offsetof(io_module_data_t, redundant_digital_input) == 44);
static_assert(offsetof(io_module_data_t, digital_output) == 72);
static_assert(offsetof(io_module_data_t, redundant_digital_output) == 76);
static_assert(offsetof(io_module_data_t, analog_mode) == 88);
static_assert(offsetof(io_module_data_t, analog_input) == 92);
static_assert(offsetof(io_module_data_t, analog_output) == 108);
static_assert(offsetof(io_module_data_t, conveyor_encoder_rate_0) == 132);
static_assert(offsetof(io_module_data_t, conveyor_encoder_rate_1) == 148);
static_assert(sizeof(io_module_data_t) == 224);

/// A drive.
struct QORIN_WIRE_RECORD joint_module_data_t
{
    static constexpr std::size_t frame_offset = 16492; ///< of record 0
    static constexpr std::size_t stride = 376;

    char sw_version[36]; ///< Software version text of the drive, NUL-terminated.
    double voltage;      ///< Drive voltage.
    double current;      ///< Drive current.
    double temperature;  ///< Drive temperature.
    unsigned char reserved_1[8];
    std::uint16_t error_code[4]; ///< Four error words of the drive, handed out in this order.
    unsigned char reserved_2[200];
    double velocity_feedforward_ratio; ///< Velocity feed-forward ratio of the drive.
    double torque_feedforward_ratio;   ///< Torque feed-forward ratio of the drive.
    unsigned char reserved_3[84];
};
static_assert(offsetof(joint_module_data_t, sw_version) == 0);
static_assert(offsetof(joint_module_data_t, voltage) == 36);
static_assert(offsetof(joint_module_data_t, current) == 44);
static_assert(offsetof(joint_module_data_t, temperature) == 52);
static_assert(offsetof(joint_module_data_t, error_code) == 68);
static_assert(offsetof(joint_module_data_t, velocity_feedforward_ratio) == 276);
static_assert(offsetof(joint_module_data_t, torque_feedforward_ratio) == 284);
static_assert(sizeof(joint_module_data_t) == 376);

/// A tool flange I/O module.
struct QORIN_WIRE_RECORD tool_module_data_t
{
    static constexpr std::size_t frame_offset = 20940; ///< of record 0
    static constexpr std::size_t stride = 216;

    char hw_name[32];            ///< Hardware name text.
    char hw_version[32];         ///< Hardware version text.
    char sw_version[32];         ///< Software version text.
    std::uint32_t digital_input; ///< Bit n is tool input channel n, channels 0 to 3.
    unsigned char reserved_1[28];
    std::uint32_t digital_output; ///< Bit n is tool output channel n, channels 0 to 3.
    unsigned char reserved_2[12];
    std::uint32_t
        analog_mode; ///< Bits 2 and 3: mode of tool analog input channels 0 and 1, coded as in io_module_data_t.
    double analog_input[tool_analog_channels];  ///< Tool analog input channels 0 and 1.
    double analog_output[tool_analog_channels]; ///< Tool analog output channels 0 and 1.
    unsigned char reserved_3[4];
    std::uint32_t power_voltage; ///< Tool supply voltage option: a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
    double power_current;        ///< Tool supply current.
    std::uint32_t led_color[3];  ///< The three colour values of the tool LED, in the order of
                                 ///< qorin_rpc_robot_tool_io_led_color_set.
    unsigned char reserved_4[8];
};
static_assert(offsetof(tool_module_data_t, hw_name) == 0);
static_assert(offsetof(tool_module_data_t, hw_version) == 32);
static_assert(offsetof(tool_module_data_t, sw_version) == 64);
static_assert(offsetof(tool_module_data_t, digital_input) == 96);
static_assert(offsetof(tool_module_data_t, digital_output) == 128);
static_assert(offsetof(tool_module_data_t, analog_mode) == 144);
static_assert(offsetof(tool_module_data_t, analog_input) == 148);
static_assert(offsetof(tool_module_data_t, analog_output) == 164);
static_assert(offsetof(tool_module_data_t, power_voltage) == 184);
static_assert(offsetof(tool_module_data_t, power_current) == 188);
static_assert(offsetof(tool_module_data_t, led_color) == 196);
static_assert(sizeof(tool_module_data_t) == 216);

/// The force-torque sensor of one robot.
struct QORIN_WIRE_RECORD ft_sensor_data_t
{
    static constexpr std::size_t frame_offset = 21472; ///< of record 0
    static constexpr std::size_t stride = 192;

    std::uint32_t sensor_switch; ///< Sensor in use: a QORIN_SWITCH value.
    unsigned char reserved_1[4];
    double actual_force[3];  ///< Measured force x, y, z.
    double actual_torque[3]; ///< Measured torque x, y, z.
    unsigned char reserved_2[136];
};
static_assert(offsetof(ft_sensor_data_t, sensor_switch) == 0);
static_assert(offsetof(ft_sensor_data_t, actual_force) == 8);
static_assert(offsetof(ft_sensor_data_t, actual_torque) == 32);
static_assert(sizeof(ft_sensor_data_t) == 192);

/// An IO-Link wireless port. The record is shorter than the stride: port 15 ends two bytes ahead of the master's
/// fields.
struct QORIN_WIRE_RECORD io_link_wp_data_t
{
    static constexpr std::size_t frame_offset = 21904; ///< of record 0
    static constexpr std::size_t stride = 116;

    unsigned char status;      ///< Port state byte.
    unsigned char rx_data[32]; ///< Port receive data.
    unsigned char tx_data[32]; ///< Port transmit data.
};
static_assert(offsetof(io_link_wp_data_t, status) == 0);
static_assert(offsetof(io_link_wp_data_t, rx_data) == 1);
static_assert(offsetof(io_link_wp_data_t, tx_data) == 33);
static_assert(sizeof(io_link_wp_data_t) == 65);

/// A low-data EtherCAT device. The record is shorter than the stride: device 3 ends where the next stretch begins.
struct QORIN_WIRE_RECORD ecat_low_data_t
{
    static constexpr std::size_t frame_offset = 23950; ///< of record 0
    static constexpr std::size_t stride = 168;

    unsigned char rx_data[32]; ///< Device receive data.
    unsigned char tx_data[32]; ///< Device transmit data.
};
static_assert(offsetof(ecat_low_data_t, rx_data) == 0);
static_assert(offsetof(ecat_low_data_t, tx_data) == 32);
static_assert(sizeof(ecat_low_data_t) == 64);

/// Calibration of a conveyor encoder.
struct QORIN_WIRE_RECORD conveyor_encoder_data_t
{
    double scale_divisor; ///< Divides the raw encoder rate in the conveyor calculation.
    double scale_factor;  ///< Multiplies the raw encoder rate in the same calculation.
    unsigned char reserved_1[8];
};
static_assert(offsetof(conveyor_encoder_data_t, scale_divisor) == 0);
static_assert(offsetof(conveyor_encoder_data_t, scale_factor) == 8);
static_assert(sizeof(conveyor_encoder_data_t) == 24);

/// An external force-torque input.
struct QORIN_WIRE_RECORD ext_ft_sensor_data_t
{
    std::uint32_t sensor_switch; ///< External force-torque input in use: a QORIN_SWITCH value.
    unsigned char reserved_1[52];
};
static_assert(offsetof(ext_ft_sensor_data_t, sensor_switch) == 0);
static_assert(sizeof(ext_ft_sensor_data_t) == 56);

/// A joint of a robot.
struct QORIN_WIRE_RECORD joint_data_t
{
    std::uint32_t module_index; ///< Index of this joint's drive in joint_modules.
    unsigned char reserved_1[12];
    double angle_command; ///< Commanded angle.
    double speed_command; ///< Commanded speed.
    double acc_command;   ///< Commanded acceleration.
    unsigned char reserved_2[16];
    double angle_actual;  ///< Measured angle.
    double speed_actual;  ///< Measured speed.
    double acc_actual;    ///< Measured acceleration.
    double torque_actual; ///< Measured torque.
    unsigned char reserved_3[8];
    double
        spec_angle[2]; ///< Specified angle range. qorin_robot_spec_joint_angle_get hands out the second element first.
    double spec_speed_max; ///< Specified speed limit.
    double spec_acc_max;   ///< Specified acceleration limit.
    unsigned char reserved_4[8];
    double safety_angle[2];  ///< Safety angle range. qorin_robot_safety_limit_joint_angle_get hands out the second
                             ///< element first.
    double safety_speed_max; ///< Safety speed limit.
    double safety_acc_max;   ///< Safety acceleration limit.
    unsigned char reserved_5[264];
    double friction_feedrate; ///< Friction feed rate of the dynamics model.
    double dh_parameter_2;    ///< Denavit-Hartenberg value: second array of set_dh_parameter.
    double dh_parameter_1;    ///< Denavit-Hartenberg value: first array of set_dh_parameter.
    double dh_parameter_3;    ///< Denavit-Hartenberg value: third array of set_dh_parameter.
    double dh_parameter_4;    ///< Denavit-Hartenberg value: fourth array of set_dh_parameter.
};
static_assert(offsetof(joint_data_t, module_index) == 0);
static_assert(offsetof(joint_data_t, angle_command) == 16);
static_assert(offsetof(joint_data_t, speed_command) == 24);
static_assert(offsetof(joint_data_t, acc_command) == 32);
static_assert(offsetof(joint_data_t, angle_actual) == 56);
static_assert(offsetof(joint_data_t, speed_actual) == 64);
static_assert(offsetof(joint_data_t, acc_actual) == 72);
static_assert(offsetof(joint_data_t, torque_actual) == 80);
static_assert(offsetof(joint_data_t, spec_angle) == 96);
static_assert(offsetof(joint_data_t, spec_speed_max) == 112);
static_assert(offsetof(joint_data_t, spec_acc_max) == 120);
static_assert(offsetof(joint_data_t, safety_angle) == 136);
static_assert(offsetof(joint_data_t, safety_speed_max) == 152);
static_assert(offsetof(joint_data_t, safety_acc_max) == 160);
static_assert(offsetof(joint_data_t, friction_feedrate) == 432);
static_assert(offsetof(joint_data_t, dh_parameter_2) == 440);
static_assert(offsetof(joint_data_t, dh_parameter_1) == 448);
static_assert(offsetof(joint_data_t, dh_parameter_3) == 456);
static_assert(offsetof(joint_data_t, dh_parameter_4) == 464);
static_assert(sizeof(joint_data_t) == 472);

/// A robot. Angles are in degrees, joint velocities in degrees per second.
struct QORIN_WIRE_RECORD robot_data_t
{
    unsigned char reserved_1[4];
    std::uint32_t number_of_joints;  ///< Joints of this robot, at most 6.
    std::uint32_t tool_module_index; ///< Index of the robot's tool flange module in tool_modules.
    std::uint32_t model_name;        ///< Robot model: a QORIN_ROBOT_MODEL value.
    std::uint32_t control_mode;      ///< Drive control mode: a QORIN_DRIVE_CONTROL_MODE value.
    std::uint32_t servo_switch;      ///< Servo power: a QORIN_SWITCH value.
    unsigned char reserved_2[4];
    std::uint32_t collision_detection_switch;  ///< Collision detection: a QORIN_SWITCH value.
    std::uint32_t collision_mitigation_switch; ///< Collision mitigation: a QORIN_SWITCH value.
    unsigned char reserved_3[4];
    std::uint32_t force_ctrl_switch; ///< Force control: a QORIN_SWITCH value.
    unsigned char reserved_4[4];
    std::uint32_t ext_profiler_switch;      ///< External profiler: a QORIN_SWITCH value.
    std::uint32_t weaving_event;            ///< Weaving event reporting: a QORIN_SWITCH value.
    std::uint32_t joint_chaser_state;       ///< Joint chaser: a QORIN_SWITCH value.
    std::uint32_t ext_profiler_period;      ///< External profiler period in control cycles.
    std::uint32_t ext_profiler_buffer_size; ///< Size of the external profiler buffer.
    std::uint32_t ext_profiler_tcp_type;    ///< Pose type of external profiler points: a QORIN_POSE_TYPE value.
    std::uint32_t conveyor_mode;            ///< Conveyor tracking: a QORIN_CONVEYOR_MODE value.
    std::uint32_t state_moving;             ///< Motion state: a QORIN_MOVING_STATE value.
    char current_motion_name[32];           ///< Name of the running motion command, NUL-terminated.
    std::uint32_t safety_violation;         ///< 0 when the robot is in a safe state; any other value means not safe.
    unsigned char reserved_5[4];
    double speed_factor; ///< Speed override factor.
    std::uint32_t
        acc_dec_auto_adjustment; ///< Automatic acceleration and deceleration adjustment: a QORIN_SWITCH value.
    unsigned char reserved_6[4];
    double spec_tcp_speed_max;   ///< Robot specification: TCP speed limit.
    double spec_tcp_acc_max;     ///< Robot specification: TCP acceleration limit.
    double safety_tcp_speed_max; ///< Safety limit: TCP speed.
    double safety_tcp_acc_max;   ///< Safety limit: TCP acceleration.
    unsigned char reserved_7[56];
    double tcp_payload[4];        ///< Payload: mass in kilograms, then centre of mass x, y, z.
    double installation_mount[2]; ///< The two mount angles given to qorin_rpc_robot_installation_mount_set, in order.
    double tcp_from_flange[pose_size];     ///< TCP relative to the flange: x, y, z, rx, ry, rz.
    double tcp_pose_command[pose_size];    ///< Commanded TCP pose: x, y, z, rx, ry, rz.
    double tcp_pose_actual[pose_size];     ///< Measured TCP pose, same order.
    double tcp_pos_speed_command[3];       ///< Commanded TCP translation speed x, y, z.
    double tcp_ort_speed_command[3];       ///< Commanded TCP rotation speed x, y, z.
    double tcp_pos_speed_actual[3];        ///< Measured TCP translation speed x, y, z.
    double tcp_ort_speed_actual[3];        ///< Measured TCP rotation speed x, y, z.
    double flange_pose_command[pose_size]; ///< Commanded flange pose, same order as the TCP pose.
    double flange_pose_actual[pose_size];  ///< Measured flange pose, same order.
    double
        joint_target_velocity[joint_limit]; ///< Per joint: velocity target of velocity control, in degrees per second.
    double joint_target_acceleration[joint_limit]; ///< Per joint: acceleration target of velocity control, in degrees
                                                   ///< per second squared.
    unsigned char reserved_8[56];
    std::uint32_t force_ctrl_direction_switch[pose_size]; ///< Per axis x, y, z, rx, ry, rz: force control active,
                                                          ///< QORIN_SWITCH values.
    double force_ctrl_force[pose_size];         ///< Force control target force and torque, per axis in the same order.
    double force_ctrl_velocity[pose_size];      ///< Force control velocity, per axis in the same order.
    double force_ctrl_acc[pose_size];           ///< Force control acceleration, per axis in the same order.
    double force_ctrl_dec[pose_size];           ///< Force control deceleration, per axis in the same order.
    double force_ctrl_stiffness[pose_size];     ///< Force control stiffness, per axis in the same order.
    double force_ctrl_damping_ratio[pose_size]; ///< Force control damping ratio, per axis in the same order.
    double force_ctrl_inertia[pose_size];       ///< Force control inertia, per axis in the same order.
    double force_ctrl_approach_velocity[pose_size]; ///< Force control approach velocity, per axis in the same order.
    std::uint32_t force_ctrl_coordinate;            ///< Reference frame of force control: a QORIN_REF_COORDINATE value.
    unsigned char reserved_9[4];
    double force_ctrl_low_pass_filter; ///< Force control low-pass filter setting.
    unsigned char reserved_10[48];
    std::uint32_t force_ctrl_sensorless_bias;             ///< Sensorless bias: a QORIN_SWITCH value.
    std::uint32_t force_ctrl_force_value_bias[pose_size]; ///< Force value bias per axis: QORIN_SWITCH values.
    unsigned char reserved_11[4];
    double force_ctrl_actual_force[3];  ///< Force estimated by force control, x, y, z.
    double force_ctrl_actual_torque[3]; ///< Torque estimated by force control, x, y, z.
    unsigned char reserved_12[48];
    double collision_threshold_joint_torque[joint_limit]; ///< Per joint: collision detection torque threshold.
    double collision_threshold_tcp_force[pose_size]; ///< Collision detection force and torque thresholds at the TCP, x,
                                                     ///< y, z, rx, ry, rz.
    double collision_threshold_tcp_resultant_force;  ///< Collision detection threshold of the resultant TCP force.
    unsigned char reserved_13[352];
    double velocity_in_reduced_mode[2]; ///< Reduced mode velocity limits.
                                        ///< qorin_robot_safety_limit_velocity_in_reduced_mode_get hands out the second
                                        ///< element first.
    double collision_torque_in_reduced_mode[joint_limit]; ///< Per joint: collision detection torque in reduced mode.
    double collision_tcp_force_in_reduced_mode;           ///< Collision detection TCP force in reduced mode.
    std::uint32_t safety_crc32; ///< CRC-32 of the safety parameters, as the control box computed it.
    unsigned char reserved_14[4];
    joint_data_t joint[joint_limit]; ///< Joint records. All six are present whatever number_of_joints says.
};
static_assert(offsetof(robot_data_t, number_of_joints) == 4);
static_assert(offsetof(robot_data_t, tool_module_index) == 8);
static_assert(offsetof(robot_data_t, model_name) == 12);
static_assert(offsetof(robot_data_t, control_mode) == 16);
static_assert(offsetof(robot_data_t, servo_switch) == 20);
static_assert(offsetof(robot_data_t, collision_detection_switch) == 28);
static_assert(offsetof(robot_data_t, collision_mitigation_switch) == 32);
static_assert(offsetof(robot_data_t, force_ctrl_switch) == 40);
static_assert(offsetof(robot_data_t, ext_profiler_switch) == 48);
static_assert(offsetof(robot_data_t, weaving_event) == 52);
static_assert(offsetof(robot_data_t, joint_chaser_state) == 56);
static_assert(offsetof(robot_data_t, ext_profiler_period) == 60);
static_assert(offsetof(robot_data_t, ext_profiler_buffer_size) == 64);
static_assert(offsetof(robot_data_t, ext_profiler_tcp_type) == 68);
static_assert(offsetof(robot_data_t, conveyor_mode) == 72);
static_assert(offsetof(robot_data_t, state_moving) == 76);
static_assert(offsetof(robot_data_t, current_motion_name) == 80);
static_assert(offsetof(robot_data_t, safety_violation) == 112);
static_assert(offsetof(robot_data_t, speed_factor) == 120);
static_assert(offsetof(robot_data_t, acc_dec_auto_adjustment) == 128);
static_assert(offsetof(robot_data_t, spec_tcp_speed_max) == 136);
static_assert(offsetof(robot_data_t, spec_tcp_acc_max) == 144);
static_assert(offsetof(robot_data_t, safety_tcp_speed_max) == 152);
static_assert(offsetof(robot_data_t, safety_tcp_acc_max) == 160);
static_assert(offsetof(robot_data_t, tcp_payload) == 224);
static_assert(offsetof(robot_data_t, installation_mount) == 256);
static_assert(offsetof(robot_data_t, tcp_from_flange) == 272);
static_assert(offsetof(robot_data_t, tcp_pose_command) == 320);
static_assert(offsetof(robot_data_t, tcp_pose_actual) == 368);
static_assert(offsetof(robot_data_t, tcp_pos_speed_command) == 416);
static_assert(offsetof(robot_data_t, tcp_ort_speed_command) == 440);
static_assert(offsetof(robot_data_t, tcp_pos_speed_actual) == 464);
static_assert(offsetof(robot_data_t, tcp_ort_speed_actual) == 488);
static_assert(offsetof(robot_data_t, flange_pose_command) == 512);
static_assert(offsetof(robot_data_t, flange_pose_actual) == 560);
static_assert(offsetof(robot_data_t, joint_target_velocity) == 608);
static_assert(offsetof(robot_data_t, joint_target_acceleration) == 656);
static_assert(offsetof(robot_data_t, force_ctrl_direction_switch) == 760);
static_assert(offsetof(robot_data_t, force_ctrl_force) == 784);
static_assert(offsetof(robot_data_t, force_ctrl_velocity) == 832);
static_assert(offsetof(robot_data_t, force_ctrl_acc) == 880);
static_assert(offsetof(robot_data_t, force_ctrl_dec) == 928);
static_assert(offsetof(robot_data_t, force_ctrl_stiffness) == 976);
static_assert(offsetof(robot_data_t, force_ctrl_damping_ratio) == 1024);
static_assert(offsetof(robot_data_t, force_ctrl_inertia) == 1072);
static_assert(offsetof(robot_data_t, force_ctrl_approach_velocity) == 1120);
static_assert(offsetof(robot_data_t, force_ctrl_coordinate) == 1168);
static_assert(offsetof(robot_data_t, force_ctrl_low_pass_filter) == 1176);
static_assert(offsetof(robot_data_t, force_ctrl_sensorless_bias) == 1232);
static_assert(offsetof(robot_data_t, force_ctrl_force_value_bias) == 1236);
static_assert(offsetof(robot_data_t, force_ctrl_actual_force) == 1264);
static_assert(offsetof(robot_data_t, force_ctrl_actual_torque) == 1288);
static_assert(offsetof(robot_data_t, collision_threshold_joint_torque) == 1360);
static_assert(offsetof(robot_data_t, collision_threshold_tcp_force) == 1408);
static_assert(offsetof(robot_data_t, collision_threshold_tcp_resultant_force) == 1456);
static_assert(offsetof(robot_data_t, velocity_in_reduced_mode) == 1816);
static_assert(offsetof(robot_data_t, collision_torque_in_reduced_mode) == 1832);
static_assert(offsetof(robot_data_t, collision_tcp_force_in_reduced_mode) == 1880);
static_assert(offsetof(robot_data_t, safety_crc32) == 1888);
static_assert(offsetof(robot_data_t, joint) == 1896);
static_assert(sizeof(robot_data_t) == 4728);

/// The status frame: the complete state of a control box.
struct QORIN_WIRE_RECORD shared_data_t
{
    char control_sw_version[32]; ///< Version text of the control software, NUL-terminated.
    std::uint32_t cbox_name;     ///< Control box model: a QORIN_CBOX_MODEL value.
    std::uint32_t robot_count;   ///< Number of robot records that the control box fills. A robot id must be below it.
    unsigned char reserved_1[296];
    double control_cycle_us; ///< Length of one control cycle in microseconds.
    unsigned char reserved_2[20];
    std::uint32_t ecat_connection_state; ///< EtherCAT master link: a QORIN_ECAT_CONN_STATE value.
    unsigned char reserved_3[632];
    safety_plane_block_t safety_planes[robot_limit]; ///< Safety planes, indexed by robot id.
    unsigned char reserved_4[312];
    safety_shape_block_t safety_shapes[robot_limit]; ///< TCP bounding shape state, indexed by robot id.
    unsigned char reserved_5[16];
    std::uint32_t
        safety_limit_switch[robot_limit]; ///< Safety limit master switch, indexed by robot id: a QORIN_SWITCH value.
    unsigned char reserved_6[8];
    robot_data_t robots[robot_limit]; ///< Robot records, indexed by robot id.
    unsigned char reserved_7[768];
    std::uint32_t master_operational_mode; ///< EtherCAT master state: a QORIN_OPERATIONAL_MODE value.
    unsigned char reserved_8[68];
    unsigned char safety_modules[228]; ///< Safety modules. Index 0 is the one that the plain getter reads. Reached by
                                       ///< record_at<safety_module_data_t>().
    unsigned char io_modules[3360]; ///< Control box I/O modules, from the sw_version field of module 0 onward. Index 0
                                    ///< is the module that the plain qorin_cbox_io_* getters read. Reached by
                                    ///< record_at<io_module_data_t>().
    unsigned char joint_modules[4448]; ///< Drives, from the sw_version field of drive 0 onward. A joint record names
                                       ///< its drive by module_index. Reached by record_at<joint_module_data_t>().
    unsigned char
        tool_modules[532]; ///< Tool flange I/O modules, from the hw_name field of module 0 onward. A robot record names
                           ///< its module by tool_module_index. Reached by record_at<tool_module_data_t>().
    unsigned char ft_sensors[432]; ///< Force-torque sensors, from the switch field of sensor 0 onward, indexed by robot
                                   ///< id. Reached by record_at<ft_sensor_data_t>().
    unsigned char io_link_wp[1808];    ///< IO-Link wireless ports, from the status field of port 0 onward. Reached by
                                       ///< record_at<io_link_wp_data_t>().
    std::uint16_t io_link_input_bit;   ///< IO-Link master input bits.
    std::uint16_t io_link_status_bit;  ///< IO-Link master status bits.
    std::uint16_t io_link_output_bit;  ///< IO-Link master output bits.
    std::uint16_t io_link_control_bit; ///< IO-Link master control bits.
    unsigned char io_link_rx_data[64]; ///< IO-Link master receive data.
    unsigned char io_link_tx_data[64]; ///< IO-Link master transmit data.
    unsigned char reserved_9[102];
    unsigned char ecat_low_data[568]; ///< Low-data EtherCAT devices, from the rx_data field of device 0 onward. Reached
                                      ///< by record_at<ecat_low_data_t>().
    unsigned char reserved_10[10];
    std::uint32_t safety_module_redundant_io; ///< Safety module word: bits 8 to 15 are redundant digital inputs 0 to 7;
                                              ///< the other bits are not interpreted.
    unsigned char reserved_11[48];
    std::uint32_t power_button_state; ///< Power button: a QORIN_BUTTON_STATE value.
    unsigned char reserved_12[4];
    std::uint32_t emergency_button_state; ///< Emergency button: a QORIN_BUTTON_STATE value.
    std::uint32_t
        amr_emergency_button_state[amr_emergency_button_limit]; ///< Emergency buttons of a mobile base, indexed 0 to 3:
                                                                ///< QORIN_BUTTON_STATE values.
    std::uint32_t conveyor_encoder_index;  ///< Which of the two conveyor encoders is in use: 0 or 1.
    std::uint32_t conveyor_encoder_switch; ///< Conveyor encoder in use: a QORIN_SWITCH value.
    conveyor_encoder_data_t conveyor_encoders[conveyor_encoder_limit]; ///< Calibration of the conveyor encoders.
    ext_ft_sensor_data_t ext_ft_sensors[robot_limit]; ///< External force-torque inputs, indexed by robot id.
    unsigned char reserved_13[4728];
    std::uint32_t safety_module_48v_smps_switch; ///< 48 V supply of the safety module: a QORIN_SWITCH value.
    std::uint32_t
        rs485_setup[6]; ///< Tool RS485 setup, in this order: QORIN_RS485_SERIAL_INTERFACE, QORIN_RS485_BAUDRATE,
                        ///< QORIN_RS485_DATA_FRAME, QORIN_RS485_PROTOCOL, a QORIN_SWITCH, a signed count: the six
                        ///< values of qorin_rpc_robot_tool_io_rs485_set.
    std::uint32_t
        rs485_status[8]; ///< Tool RS485 status words, read out in this order by qorin_robot_tool_io_rs485_status_get.
    unsigned char rs485_status_byte; ///< Ninth value of the RS485 status.
    unsigned char reserved_14[3];
    std::uint32_t rs485_control[6]; ///< Tool RS485 control words, read out in this order by
                                    ///< qorin_robot_tool_io_rs485_control_get.
    unsigned char reserved_15[1];
    unsigned char rs485_rx_data[64]; ///< Tool RS485 receive data.
    unsigned char rs485_tx_data[64]; ///< Tool RS485 transmit data.
    unsigned char reserved_16[7];
};
static_assert(offsetof(shared_data_t, control_sw_version) == 0);
static_assert(offsetof(shared_data_t, cbox_name) == 32);
static_assert(offsetof(shared_data_t, robot_count) == 36);
static_assert(offsetof(shared_data_t, control_cycle_us) == 336);
static_assert(offsetof(shared_data_t, ecat_connection_state) == 364);
static_assert(offsetof(shared_data_t, safety_planes) == 1000);
static_assert(offsetof(shared_data_t, safety_shapes) == 2048);
static_assert(offsetof(shared_data_t, safety_limit_switch) == 2592);
static_assert(offsetof(shared_data_t, robots) == 2608);
static_assert(offsetof(shared_data_t, master_operational_mode) == 12832);
static_assert(offsetof(shared_data_t, safety_modules) == 12904);
static_assert(offsetof(shared_data_t, io_modules) == 13132);
static_assert(offsetof(shared_data_t, joint_modules) == 16492);
static_assert(offsetof(shared_data_t, tool_modules) == 20940);
static_assert(offsetof(shared_data_t, ft_sensors) == 21472);
static_assert(offsetof(shared_data_t, io_link_wp) == 21904);
static_assert(offsetof(shared_data_t, io_link_input_bit) == 23712);
static_assert(offsetof(shared_data_t, io_link_status_bit) == 23714);
static_assert(offsetof(shared_data_t, io_link_output_bit) == 23716);
static_assert(offsetof(shared_data_t, io_link_control_bit) == 23718);
static_assert(offsetof(shared_data_t, io_link_rx_data) == 23720);
static_assert(offsetof(shared_data_t, io_link_tx_data) == 23784);
static_assert(offsetof(shared_data_t, ecat_low_data) == 23950);
static_assert(offsetof(shared_data_t, safety_module_redundant_io) == 24528);
static_assert(offsetof(shared_data_t, power_button_state) == 24580);
static_assert(offsetof(shared_data_t, emergency_button_state) == 24588);
static_assert(offsetof(shared_data_t, amr_emergency_button_state) == 24592);
static_assert(offsetof(shared_data_t, conveyor_encoder_index) == 24608);
static_assert(offsetof(shared_data_t, conveyor_encoder_switch) == 24612);
static_assert(offsetof(shared_data_t, conveyor_encoders) == 24616);
static_assert(offsetof(shared_data_t, ext_ft_sensors) == 24664);
static_assert(offsetof(shared_data_t, safety_module_48v_smps_switch) == 29504);
static_assert(offsetof(shared_data_t, rs485_setup) == 29508);
static_assert(offsetof(shared_data_t, rs485_status) == 29532);
static_assert(offsetof(shared_data_t, rs485_status_byte) == 29564);
static_assert(offsetof(shared_data_t, rs485_control) == 29568);
static_assert(offsetof(shared_data_t, rs485_rx_data) == 29593);
static_assert(offsetof(shared_data_t, rs485_tx_data) == 29657);
static_assert(sizeof(shared_data_t) == 29728);

/// A frame as the library keeps it: whatever is read from it by an index that leads out of it reads zeroes.
struct mirrored_frame
{
    alignas(64) shared_data_t frame = {};
    unsigned char behind[512] = {}; ///< stays zero
};

/// What lies `offset` bytes from the start of a mirrored frame. The offset is bounded by nothing but the frame's end.
template <class Record>
[[nodiscard]] inline const Record& read_at(const shared_data_t& frame, std::size_t offset)
{
    static_assert(sizeof(Record) <= sizeof(mirrored_frame::behind));
    const auto* bytes = reinterpret_cast<const unsigned char*>(&frame);
    return *reinterpret_cast<const Record*>(bytes + std::min(offset, sizeof(frame)));
}

/**
 * Record number `index` of a stretch whose count the frame does not tell (modules, drives, ports), for readers of a
 * mirrored frame: the index may be any, and one that is too large reads what lies further on.
 */
template <class Record>
[[nodiscard]] inline const Record& record_at(const shared_data_t& frame, std::size_t index)
{
    return read_at<Record>(frame, Record::frame_offset + Record::stride * index);
}

/// The same for who fills a frame, and answers for the index.
template <class Record>
[[nodiscard]] inline Record& record_at(shared_data_t& frame, std::size_t index)
{
    auto* bytes = reinterpret_cast<unsigned char*>(&frame);
    return *reinterpret_cast<Record*>(bytes + Record::frame_offset + Record::stride * index);
}

// Each stretch begins where the frame says, and its last whole record ends within it.
static_assert(safety_module_data_t::frame_offset == offsetof(shared_data_t, safety_modules));
static_assert(io_module_data_t::frame_offset == offsetof(shared_data_t, io_modules));
static_assert(joint_module_data_t::frame_offset == offsetof(shared_data_t, joint_modules));
static_assert(tool_module_data_t::frame_offset == offsetof(shared_data_t, tool_modules));
static_assert(ft_sensor_data_t::frame_offset == offsetof(shared_data_t, ft_sensors));
static_assert(io_link_wp_data_t::frame_offset == offsetof(shared_data_t, io_link_wp));
static_assert(ecat_low_data_t::frame_offset == offsetof(shared_data_t, ecat_low_data));
static_assert((io_link_port_limit - 1) * io_link_wp_data_t::stride + sizeof(io_link_wp_data_t) == 0x5C9D - 0x5590);
static_assert((low_data_device_limit - 1) * ecat_low_data_t::stride + sizeof(ecat_low_data_t) ==
              sizeof(shared_data_t::ecat_low_data));
} // namespace protocol

#endif
