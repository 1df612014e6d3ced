// Every command of the library against the simulated control box, which has its own table of what commands carry.
#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <iterator>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "qorin/qorin_api_rpc_client.h"
#include "simulator/commands/command_table.h"
#include "simulator/control_box.h"
#include "tests/support/installation.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::argument_kind;
using cbox_simulator::argument_type;

/// What one parameter of an exported function is on the wire, by the rules of marshalling alone.
template <class Parameter>
argument_type type_of()
{
    if constexpr (!std::is_pointer_v<Parameter>)
    {
        if constexpr (std::is_same_v<Parameter, double>)
            return argument_type::of<double>(argument_kind::real);
        else if constexpr (std::is_same_v<Parameter, long>) // travels by its low half
            return argument_type::of<std::int32_t>(argument_kind::value);
        else
            return argument_type::of<Parameter>(argument_kind::value);
    }
    else
    {
        using Element = std::remove_const_t<std::remove_pointer_t<Parameter>>;
        constexpr bool output = !std::is_const_v<std::remove_pointer_t<Parameter>>;
        if constexpr (std::is_same_v<Element, double>)
            return argument_type::of<double>(output ? argument_kind::real_output : argument_kind::real_block);
        else if constexpr (output && !std::is_enum_v<Element>) // 4 bytes, whatever it points at
            return argument_type::of<std::uint32_t>(argument_kind::value_output);
        else
            return argument_type::of<Element>(output ? argument_kind::value_output : argument_kind::block);
    }
}

std::string name_of(const argument_type& type)
{
    return fmt::format("{} {}", static_cast<int>(type.kind), type.element->name());
}

/// An argument to call with, another for each place of a parameter list, and how the control box is to print it.
template <class Parameter>
struct sample
{
    explicit sample(int place)
    {
        if constexpr (!std::is_pointer_v<Parameter>)
        {
            value = static_cast<Parameter>(std::is_same_v<Parameter, double> ? 0.5 + place
                                           : std::is_unsigned_v<Parameter>   ? 1001 + place
                                                                             : -1001 - place);
            if constexpr (std::is_same_v<Parameter, long>)
                text = fmt::format("{}", static_cast<std::int32_t>(value));
            else if constexpr (std::is_enum_v<Parameter>)
                text = fmt::format("{}", static_cast<unsigned int>(value));
            else
                text = fmt::format("{}", +value);
        }
        else if constexpr (!std::is_const_v<std::remove_pointer_t<Parameter>>)
            text = "&";
        else if constexpr (std::is_same_v<Parameter, const char*>)
        {
            const std::string word = fmt::format("text {}", place);
            std::memcpy(memory, word.c_str(), word.size());
            text = fmt::format("\"{}\"", word);
        }
        else
        {
            auto* elements = reinterpret_cast<std::remove_const_t<std::remove_pointer_t<Parameter>>*>(memory);
            elements[0] = 7;
            elements[2] = static_cast<std::remove_const_t<std::remove_pointer_t<Parameter>>>(place + 1);
            text = fmt::format("[7, 0, {}]", place + 1);
        }
    }

    Parameter get()
    {
        if constexpr (std::is_pointer_v<Parameter>)
            return reinterpret_cast<Parameter>(memory);
        else
            return value;
    }

    std::conditional_t<std::is_pointer_v<Parameter>, char, Parameter> value{};
    alignas(8) unsigned char memory[128] = {};
    std::string text;
};

/// A command of the library. Calling it gives the arguments as the control box is to print them.
struct command_row
{
    template <class... Parameters>
    command_row(const char* name, QORIN_API_RESULT (*function)(unsigned int, Parameters...))
        : wire_name(std::string("qorin_") + name), types{type_of<Parameters>()...},
          call(
              [function](unsigned int cbox_id)
              {
                  int next = 0;
                  [[maybe_unused]] const auto place = [&] { return next++; };
                  std::tuple<sample<Parameters>...> samples{sample<Parameters>(place())...};
                  return std::apply(
                      [&](auto&... each)
                      {
                          function(cbox_id, each.get()...);
                          std::string text;
                          ((text += (text.empty() ? "" : ", ") + each.text), ...);
                          return text;
                      },
                      samples);
              })
    {
    }

    std::string wire_name;
    std::vector<argument_type> types;
    std::function<std::string(unsigned int cbox_id)> call;
};

#define COMMAND(name) command_row(#name, qorin_rpc_##name)

/// The exit of the control software comes last: nothing is answered afterwards.
const std::vector<command_row>& commands()
{
    // clang-format off
    static const std::vector<command_row> rows = {
        COMMAND(cbox_ecat_io_link_control_bit_set), COMMAND(cbox_ecat_io_link_output_bit_set),
        COMMAND(cbox_ecat_io_link_tx_data_set), COMMAND(cbox_ecat_io_link_wp_tx_data_set),
        COMMAND(cbox_ecat_low_data_io_tx_data_set), COMMAND(cbox_ext_eip_adaptor_start),
        COMMAND(cbox_ext_eip_adaptor_status), COMMAND(cbox_ext_eip_adaptor_stop),
        COMMAND(cbox_ext_eip_scanner_rx_data_get), COMMAND(cbox_ext_eip_scanner_start),
        COMMAND(cbox_ext_eip_scanner_status), COMMAND(cbox_ext_eip_scanner_stop),
        COMMAND(cbox_ext_eip_scanner_tx_data_get), COMMAND(cbox_ext_eip_scanner_tx_data_set),
        COMMAND(cbox_ext_input_bit_register_get), COMMAND(cbox_ext_input_float_register_get),
        COMMAND(cbox_ext_input_int_register_get), COMMAND(cbox_ext_modbus_client_bit_io_get),
        COMMAND(cbox_ext_modbus_client_bit_io_set), COMMAND(cbox_ext_modbus_client_create),
        COMMAND(cbox_ext_modbus_client_destroy), COMMAND(cbox_ext_modbus_client_io_create),
        COMMAND(cbox_ext_modbus_client_io_destroy), COMMAND(cbox_ext_modbus_client_io_start),
        COMMAND(cbox_ext_modbus_client_io_status_get), COMMAND(cbox_ext_modbus_client_io_stop),
        COMMAND(cbox_ext_modbus_client_io_type_get), COMMAND(cbox_ext_modbus_client_register_io_get),
        COMMAND(cbox_ext_modbus_client_register_io_set), COMMAND(cbox_ext_modbus_client_seq_mode_switch_get),
        COMMAND(cbox_ext_modbus_client_seq_mode_switch_set), COMMAND(cbox_ext_modbus_client_status_get),
        COMMAND(cbox_ext_modbus_local_bit_get), COMMAND(cbox_ext_modbus_local_bit_set),
        COMMAND(cbox_ext_modbus_local_register_get), COMMAND(cbox_ext_modbus_local_register_set),
        COMMAND(cbox_ext_modbus_server_start), COMMAND(cbox_ext_modbus_server_stop),
        COMMAND(cbox_ext_output_bit_register_get), COMMAND(cbox_ext_output_bit_register_set),
        COMMAND(cbox_ext_output_float_register_get), COMMAND(cbox_ext_output_float_register_set),
        COMMAND(cbox_ext_output_int_register_get), COMMAND(cbox_ext_output_int_register_set),
        COMMAND(cbox_ext_rdm_start), COMMAND(cbox_ext_rdm_stop), COMMAND(cbox_io_analog_input_mode_set),
        COMMAND(cbox_io_analog_output_mode_set), COMMAND(cbox_io_analog_output_set),
        COMMAND(cbox_io_digital_output_multiple_set), COMMAND(cbox_io_digital_output_set),
        COMMAND(cbox_io_redundant_in_remove), COMMAND(cbox_io_redundant_in_remove_all),
        COMMAND(cbox_io_redundant_in_set), COMMAND(cbox_io_redundant_out_remove),
        COMMAND(cbox_io_redundant_out_remove_all), COMMAND(cbox_io_redundant_out_set),
        COMMAND(cbox_master_ecat_connect), COMMAND(cbox_master_ecat_disconnect),
        COMMAND(cbox_master_operational_mode_set), COMMAND(cbox_modbus_client_bit_io_get),
        COMMAND(cbox_modbus_client_io_status_get), COMMAND(cbox_modbus_client_io_type_get),
        COMMAND(cbox_modbus_client_register_io_get), COMMAND(cbox_reset),
        COMMAND(cbox_safety_module_io_redundant_in_remove), COMMAND(cbox_safety_module_io_redundant_in_remove_all),
        COMMAND(cbox_safety_module_io_redundant_in_set), COMMAND(cbox_state_manual_control_set),
        COMMAND(cbox_state_ui_program_set), COMMAND(clear_user_memory), COMMAND(delete_user_memory),
        COMMAND(gen_cbox_fsoe_io_digital_output_set), COMMAND(gen_cbox_io_analog_input_mode_set),
        COMMAND(gen_cbox_io_analog_output_mode_set), COMMAND(gen_cbox_io_analog_output_set),
        COMMAND(gen_cbox_io_digital_output_multiple_set), COMMAND(gen_cbox_io_digital_output_set),
        COMMAND(gen_multi_robot_system_create), COMMAND(gen_system_create), COMMAND(get_user_memory),
        COMMAND(just_robot_blending_joint_move), COMMAND(just_robot_blending_tcp_move),
        COMMAND(just_robot_joint_move), COMMAND(just_robot_tcp_move), COMMAND(motion_command_acc_max_get),
        COMMAND(motion_command_acc_max_set), COMMAND(motion_command_blending_auto_start_get),
        COMMAND(motion_command_blending_auto_start_set), COMMAND(motion_command_blending_motion_mode_get),
        COMMAND(motion_command_blending_motion_mode_set), COMMAND(motion_command_blending_stop_mode_get),
        COMMAND(motion_command_blending_stop_mode_set), COMMAND(motion_command_dec_max_get),
        COMMAND(motion_command_dec_max_set), COMMAND(motion_command_deep_copy), COMMAND(motion_command_destroy),
        COMMAND(motion_command_destroy_all), COMMAND(motion_command_io_command_type_set),
        COMMAND(motion_command_is_runnable), COMMAND(motion_command_jerk_percentage_get),
        COMMAND(motion_command_jerk_percentage_set), COMMAND(motion_command_name_get),
        COMMAND(motion_command_name_set), COMMAND(motion_command_queue_add), COMMAND(motion_command_queue_clear),
        COMMAND(motion_command_queue_flush), COMMAND(motion_command_radius_for_blending_get),
        COMMAND(motion_command_radius_for_blending_set), COMMAND(motion_command_robot_joint_angle_end_get),
        COMMAND(motion_command_robot_joint_angle_end_set), COMMAND(motion_command_robot_joint_angle_start_get),
        COMMAND(motion_command_robot_joint_angle_start_set), COMMAND(motion_command_robot_joint_create),
        COMMAND(motion_command_robot_orientation_mode_get), COMMAND(motion_command_robot_orientation_mode_set),
        COMMAND(motion_command_robot_robot_id_get), COMMAND(motion_command_robot_robot_id_set),
        COMMAND(motion_command_robot_tcp_adjusted_speed_get), COMMAND(motion_command_robot_tcp_arc_sensing_data_save),
        COMMAND(motion_command_robot_tcp_arc_sensing_data_source_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_data_source_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_dead_band_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_dead_band_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_limit_distance_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_limit_distance_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_reference_shift_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_reference_shift_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_start_ref_period_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_start_ref_period_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_start_tracking_period_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_start_tracking_period_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_switch_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_switch_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_total_limit_distance_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_total_limit_distance_set),
        COMMAND(motion_command_robot_tcp_arc_sensing_weighted_factor_get),
        COMMAND(motion_command_robot_tcp_arc_sensing_weighted_factor_set),
        COMMAND(motion_command_robot_tcp_coordinate_get), COMMAND(motion_command_robot_tcp_coordinate_set),
        COMMAND(motion_command_robot_tcp_create), COMMAND(motion_command_robot_tcp_free_path_points_set),
        COMMAND(motion_command_robot_tcp_internal_add), COMMAND(motion_command_robot_tcp_interpolator_get),
        COMMAND(motion_command_robot_tcp_interpolator_set), COMMAND(motion_command_robot_tcp_offset_mode_get),
        COMMAND(motion_command_robot_tcp_offset_mode_set), COMMAND(motion_command_robot_tcp_orientation_end_get),
        COMMAND(motion_command_robot_tcp_orientation_end_set),
        COMMAND(motion_command_robot_tcp_orientation_start_get),
        COMMAND(motion_command_robot_tcp_orientation_start_set), COMMAND(motion_command_robot_tcp_pose_type_set),
        COMMAND(motion_command_robot_tcp_position_and_orientation_end_set_from_direction),
        COMMAND(motion_command_robot_tcp_position_end_get), COMMAND(motion_command_robot_tcp_position_end_set),
        COMMAND(motion_command_robot_tcp_position_end_set_from_direction),
        COMMAND(motion_command_robot_tcp_position_mid_get), COMMAND(motion_command_robot_tcp_position_mid_set),
        COMMAND(motion_command_robot_tcp_position_start_get), COMMAND(motion_command_robot_tcp_position_start_set),
        COMMAND(motion_command_robot_tcp_radius_get), COMMAND(motion_command_robot_tcp_radius_set),
        COMMAND(motion_command_robot_tcp_speed_end_get), COMMAND(motion_command_robot_tcp_speed_end_set),
        COMMAND(motion_command_robot_tcp_speed_start_get), COMMAND(motion_command_robot_tcp_speed_start_set),
        COMMAND(motion_command_robot_tcp_welding_create), COMMAND(motion_command_robot_tcp_welding_frequency_change),
        COMMAND(motion_command_robot_tcp_welding_frequency_get),
        COMMAND(motion_command_robot_tcp_welding_frequency_set),
        COMMAND(motion_command_robot_tcp_welding_horizontal_offset_pos_change),
        COMMAND(motion_command_robot_tcp_welding_left_amplitude_change),
        COMMAND(motion_command_robot_tcp_welding_left_amplitude_get),
        COMMAND(motion_command_robot_tcp_welding_left_amplitude_set),
        COMMAND(motion_command_robot_tcp_welding_left_stop_settling_time_change),
        COMMAND(motion_command_robot_tcp_welding_left_stop_settling_time_get),
        COMMAND(motion_command_robot_tcp_welding_left_stop_settling_time_set),
        COMMAND(motion_command_robot_tcp_welding_middle_stop_settling_time_change),
        COMMAND(motion_command_robot_tcp_welding_middle_stop_settling_time_get),
        COMMAND(motion_command_robot_tcp_welding_middle_stop_settling_time_set),
        COMMAND(motion_command_robot_tcp_welding_offset_pos_change),
        COMMAND(motion_command_robot_tcp_welding_plane_tilt_angle_get),
        COMMAND(motion_command_robot_tcp_welding_plane_tilt_angle_set),
        COMMAND(motion_command_robot_tcp_welding_position_fix_swtich_get),
        COMMAND(motion_command_robot_tcp_welding_position_fix_swtich_set),
        COMMAND(motion_command_robot_tcp_welding_right_amplitude_change),
        COMMAND(motion_command_robot_tcp_welding_right_amplitude_get),
        COMMAND(motion_command_robot_tcp_welding_right_amplitude_set),
        COMMAND(motion_command_robot_tcp_welding_right_stop_settling_time_change),
        COMMAND(motion_command_robot_tcp_welding_right_stop_settling_time_get),
        COMMAND(motion_command_robot_tcp_welding_right_stop_settling_time_set),
        COMMAND(motion_command_robot_tcp_welding_vertical_offset_pos_change),
        COMMAND(motion_command_robot_tcp_welding_weaving_motion_switch_get),
        COMMAND(motion_command_robot_tcp_welding_weaving_motion_switch_set),
        COMMAND(motion_command_robot_tcp_welding_weaving_pattern_get),
        COMMAND(motion_command_robot_tcp_welding_weaving_pattern_set),
        COMMAND(motion_command_robot_tcp_welding_zigzag_ratio_get),
        COMMAND(motion_command_robot_tcp_welding_zigzag_ratio_set), COMMAND(motion_command_robot_weaving_event_set),
        COMMAND(motion_command_running_time_get), COMMAND(motion_command_speed_max_get),
        COMMAND(motion_command_speed_max_set), COMMAND(motion_command_start_condition_set),
        COMMAND(motion_command_velocity_profiler_get), COMMAND(motion_command_velocity_profiler_set),
        COMMAND(robot_acc_dec_auto_adjustment_set), COMMAND(robot_collision_detection_clear),
        COMMAND(robot_collision_detection_switch_set), COMMAND(robot_collision_detection_threshold_joint_torque_set),
        COMMAND(robot_collision_detection_threshold_tcp_force_set),
        COMMAND(robot_collision_detection_threshold_tcp_resultant_force_set),
        COMMAND(robot_collision_mitigation_switch_set), COMMAND(robot_control_mode_set),
        COMMAND(robot_conveyor_encoder_info_set), COMMAND(robot_conveyor_encoder_switch_set),
        COMMAND(robot_conveyor_mode_end), COMMAND(robot_conveyor_mode_start),
        COMMAND(robot_conveyor_offset_start_pose_set), COMMAND(robot_create), COMMAND(robot_destroy),
        COMMAND(robot_direct_teaching_force_to_switch_on), COMMAND(robot_direct_teaching_payload_sensitivity_set),
        COMMAND(robot_direct_teaching_switch_set), COMMAND(robot_dynamics_calibration_save),
        COMMAND(robot_dynamics_calibration_start), COMMAND(robot_dynamics_dry_run_end),
        COMMAND(robot_dynamics_dry_run_start), COMMAND(robot_dynamics_dry_run_state_get),
        COMMAND(robot_dynamics_friction_feedrate_set), COMMAND(robot_emergency_stop),
        COMMAND(robot_ext_force_torq_sensor_force_torque_set), COMMAND(robot_ext_force_torq_sensor_switch_set),
        COMMAND(robot_ext_move_joint), COMMAND(robot_ext_move_pos_ort_euler_add),
        COMMAND(robot_ext_move_pos_ort_quat_add), COMMAND(robot_ext_move_stop_mode_get),
        COMMAND(robot_ext_move_stop_mode_set), COMMAND(robot_ext_move_switch_get), COMMAND(robot_ext_move_switch_set),
        COMMAND(robot_ext_profiler_joint_add), COMMAND(robot_ext_profiler_period_set),
        COMMAND(robot_ext_profiler_pos_ort_euler_add), COMMAND(robot_ext_profiler_pos_ort_quat_add),
        COMMAND(robot_ext_profiler_switch_set), COMMAND(robot_ext_profiler_tcp_type_set),
        COMMAND(robot_force_ctrl_acc_set), COMMAND(robot_force_ctrl_approach_velocity_set),
        COMMAND(robot_force_ctrl_coordinate_set), COMMAND(robot_force_ctrl_damping_ratio_set),
        COMMAND(robot_force_ctrl_dec_set), COMMAND(robot_force_ctrl_direction_switch_set),
        COMMAND(robot_force_ctrl_force_set), COMMAND(robot_force_ctrl_force_value_bias_set),
        COMMAND(robot_force_ctrl_inertia_set), COMMAND(robot_force_ctrl_low_pass_filter_set),
        COMMAND(robot_force_ctrl_sensorless_bias_set), COMMAND(robot_force_ctrl_stiffness_set),
        COMMAND(robot_force_ctrl_switch_set), COMMAND(robot_force_ctrl_velocity_set),
        COMMAND(robot_force_torq_sensor_bias_clear), COMMAND(robot_force_torq_sensor_bias_switch_set),
        COMMAND(robot_force_torq_sensor_calibration_set), COMMAND(robot_force_torq_sensor_filter_set),
        COMMAND(robot_force_torq_sensor_sample_rate_set), COMMAND(robot_force_torq_sensor_switch_set),
        COMMAND(robot_home_joint_position_reset), COMMAND(robot_home_position_auto_reset),
        COMMAND(robot_home_position_reset), COMMAND(robot_installation_mount_set), COMMAND(robot_jog_joint),
        COMMAND(robot_jog_tcp_orientation), COMMAND(robot_jog_tcp_orientation_x),
        COMMAND(robot_jog_tcp_orientation_y), COMMAND(robot_jog_tcp_orientation_z), COMMAND(robot_jog_tcp_position),
        COMMAND(robot_jog_tcp_position_x), COMMAND(robot_jog_tcp_position_y), COMMAND(robot_jog_tcp_position_z),
        COMMAND(robot_joint_chaser_state_set), COMMAND(robot_joint_dynamics_calibration_save),
        COMMAND(robot_joint_dynamics_calibration_start), COMMAND(robot_joint_target_acceleration_rpm_set),
        COMMAND(robot_joint_target_acceleration_set), COMMAND(robot_joint_target_velocity_rpm_set),
        COMMAND(robot_joint_target_velocity_set), COMMAND(robot_kinematics_dh_parameter_set),
        COMMAND(robot_motion_auto_adjust_swith_set), COMMAND(robot_pause), COMMAND(robot_pause_auto_time),
        COMMAND(robot_recording_angle_end_from_file_get), COMMAND(robot_recording_angle_end_get),
        COMMAND(robot_recording_angle_start_from_file_get), COMMAND(robot_recording_angle_start_get),
        COMMAND(robot_recording_buffer_memory_optimize), COMMAND(robot_recording_create),
        COMMAND(robot_recording_create_from_file), COMMAND(robot_recording_destroy), COMMAND(robot_recording_end),
        COMMAND(robot_recording_end_without_error_check), COMMAND(robot_recording_file_save),
        COMMAND(robot_recording_interpolate), COMMAND(robot_recording_playback), COMMAND(robot_recording_start),
        COMMAND(robot_recording_trim), COMMAND(robot_reset), COMMAND(robot_resume),
        COMMAND(robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_set),
        COMMAND(robot_safety_limit_collision_detection_torque_in_reduced_mode_set),
        COMMAND(robot_safety_limit_joint_acc_max_set), COMMAND(robot_safety_limit_joint_angle_set),
        COMMAND(robot_safety_limit_joint_speed_max_set), COMMAND(robot_safety_limit_plane_create_with_norm_distance),
        COMMAND(robot_safety_limit_plane_create_with_norm_origin), COMMAND(robot_safety_limit_plane_remove),
        COMMAND(robot_safety_limit_plane_remove_all), COMMAND(robot_safety_limit_switch_set),
        COMMAND(robot_safety_limit_tcp_acc_max_set), COMMAND(robot_safety_limit_tcp_bounding_box_set),
        COMMAND(robot_safety_limit_tcp_bounding_cone_set), COMMAND(robot_safety_limit_tcp_bounding_cylinder_set),
        COMMAND(robot_safety_limit_tcp_bounding_shape_delete),
        COMMAND(robot_safety_limit_tcp_bounding_shape_switch_set),
        COMMAND(robot_safety_limit_tcp_bounding_sphere_set), COMMAND(robot_safety_limit_tcp_speed_max_set),
        COMMAND(robot_safety_limit_velocity_in_reduced_mode_set), COMMAND(robot_servo_switch_set),
        COMMAND(robot_speed_factor_set), COMMAND(robot_stop), COMMAND(robot_stop_auto_time),
        COMMAND(robot_tcp_from_flange_multiple_orientation_set), COMMAND(robot_tcp_from_flange_multiple_position_set),
        COMMAND(robot_tcp_from_flange_set), COMMAND(robot_tcp_payload_set),
        COMMAND(robot_tool_io_analog_input_mode_set), COMMAND(robot_tool_io_analog_output_set),
        COMMAND(robot_tool_io_digital_output_multiple_set), COMMAND(robot_tool_io_digital_output_set),
        COMMAND(robot_tool_io_led_color_set), COMMAND(robot_tool_io_power_voltage_set),
        COMMAND(robot_tool_io_rs485_control_cmd), COMMAND(robot_tool_io_rs485_io_tx_data_set),
        COMMAND(robot_tool_io_rs485_modbus_rtu_read), COMMAND(robot_tool_io_rs485_modbus_rtu_write),
        COMMAND(robot_tool_io_rs485_set), COMMAND(robot_velocity_control_switch_set), COMMAND(rt_sleep),
        COMMAND(set_user_memory), COMMAND(system_control_release), COMMAND(system_control_take),
        COMMAND(system_controllable_get), COMMAND(system_destroy), COMMAND(system_reset),
        COMMAND(ts_cbox_io_digital_input_set), COMMAND(ts_cbox_redundant_io_digital_input_set),
        COMMAND(ts_cbox_redundant_io_digital_output_set), COMMAND(ts_cbox_sdo_read), COMMAND(ts_cbox_sdo_write),
        COMMAND(ts_epc_io_digital_input_set), COMMAND(ts_event_echo), COMMAND(ts_fault_inject),
        COMMAND(ts_gen_cbox_io_digital_input_set), COMMAND(ts_gen_cbox_redundant_io_digital_input_set),
        COMMAND(ts_gen_cbox_redundant_io_digital_output_set), COMMAND(ts_robot_joint_torque_feedforward_current_set),
        COMMAND(ts_robot_joint_torque_feedforward_ratio_set), COMMAND(ts_robot_joint_velocity_feedforward_ratio_set),
        COMMAND(ts_robot_tool_io_digital_input_set), COMMAND(ts_safety_module_redundant_io_digital_input_set),
        COMMAND(system_control_sw_exit)
    };
    // clang-format on
    return rows;
}

#undef COMMAND

TEST(commands, are_known_to_the_simulated_box_with_the_same_arguments)
{
    const auto table = cbox_simulator::make_command_table();
    std::set<std::string> names;
    for (const auto& command : commands())
    {
        names.insert(command.wire_name);
        const auto* row = table.find(command.wire_name);
        if (row == nullptr)
        {
            ADD_FAILURE() << command.wire_name << " is not in the simulated box's table";
            continue;
        }
        std::vector<std::string> ours;
        std::vector<std::string> its;
        std::ranges::transform(command.types, std::back_inserter(ours), name_of);
        std::ranges::transform(row->arguments, std::back_inserter(its), name_of);
        EXPECT_EQ(ours, its) << command.wire_name;
    }
    EXPECT_EQ(369u, names.size());
    for (const auto& row : table.rows())
        EXPECT_TRUE(names.contains(std::string(row.wire_name))) << row.wire_name << " is no command of the library";
}

/// The log of a control box, whose last line is there before the reply to its command.
class box_console
{
public:
    cbox_simulator::log_sink sink()
    {
        return [this](cbox_simulator::log_level, std::string_view line)
        {
            const std::lock_guard lock(mutex_);
            lines_.emplace_back(line);
        };
    }

    /// Whether a line with this has come since the last time.
    bool take(const std::string& text)
    {
        const std::lock_guard lock(mutex_);
        const bool found =
            std::ranges::any_of(lines_, [&](const std::string& line) { return line.find(text) != std::string::npos; });
        if (found)
            lines_.clear();
        return found;
    }

    std::string text()
    {
        const std::lock_guard lock(mutex_);
        return fmt::format("{}", fmt::join(lines_, "\n"));
    }

private:
    std::mutex mutex_;
    std::vector<std::string> lines_;
};

TEST(commands, arrive_with_every_argument_in_its_place)
{
    std::signal(SIGPIPE, SIG_IGN);
    box_console console;
    cbox_simulator::control_box_options options;
    options.address = test_support::own_address();
    options.log = console.sink();
    options.level = cbox_simulator::log_level::debug;
    cbox_simulator::control_box box(options);
    box.start();
    const test_support::installation place;
    unsigned int id = 0;
    ASSERT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_system_cbox_connect(place.config_path().c_str(), options.address.c_str(), &id));
    for (const auto& command : commands())
    {
        // Commands that need the control are refused without it, and the arguments are printed all the same; with it,
        // a robot that is not there is.
        const std::string arguments = command.call(id);
        EXPECT_TRUE(console.take(fmt::format(" {}({}): ", command.wire_name, arguments)))
            << command.wire_name << '(' << arguments << ") is not in:\n"
            << console.text();
    }
}
} // namespace
