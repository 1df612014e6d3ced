#include "simulator/commands/families.h"

#include <string_view>

#include "simulator/commands/motion_value.h"

namespace cbox_simulator
{
namespace
{
using motion_value::get;
using motion_value::set;
using motion_value::set_vector;
using motion_value::value_of;
using enum number_range;

QORIN_API_RESULT zigzag_ratio_set(welding_weave& weave, double ratio_1, double ratio_2, double ratio_3, double ratio_4)
{
    const auto result = motion_value::judge({ratio_1, ratio_2, ratio_3, ratio_4});
    if (result == QORIN_API_RESULT_OK)
        weave.zigzag_ratio = {ratio_1, ratio_2, ratio_3, ratio_4};
    return result;
}

QORIN_API_RESULT zigzag_ratio_get(welding_weave& weave, double& ratio_1, double& ratio_2, double& ratio_3,
                                  double& ratio_4)
{
    ratio_1 = weave.zigzag_ratio[0];
    ratio_2 = weave.zigzag_ratio[1];
    ratio_3 = weave.zigzag_ratio[2];
    ratio_4 = weave.zigzag_ratio[3];
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT position_fix_set(welding_weave& weave, QORIN_SWITCH value, double x, double y, double z)
{
    auto result = motion_value::judge(value);
    if (result == QORIN_API_RESULT_OK)
        result = set_vector<&welding_weave::position_fix>(weave, x, y, z);
    if (result == QORIN_API_RESULT_OK)
        weave.position_fix_switch = value;
    return result;
}

QORIN_API_RESULT position_fix_get(welding_weave& weave, QORIN_SWITCH& value, double& x, double& y, double& z)
{
    value = weave.position_fix_switch;
    x = weave.position_fix[0];
    y = weave.position_fix[1];
    z = weave.position_fix[2];
    return QORIN_API_RESULT_OK;
}

/// A value of one direction of arc sensing.
template <auto member, number_range range = finite>
QORIN_API_RESULT set_tracking(arc_sensing& sensing, QORIN_ARC_SENSING_DIRECTION direction, value_of<member> value)
{
    const auto result = motion_value::judge(direction);
    return result == QORIN_API_RESULT_OK
               ? set<member, range>(sensing.directions[direction - QORIN_ARC_SENSING_DIRECTION_HORIZONTAL], value)
               : result;
}

template <auto member>
QORIN_API_RESULT get_tracking(arc_sensing& sensing, QORIN_ARC_SENSING_DIRECTION direction, value_of<member>& value)
{
    const auto result = motion_value::judge(direction);
    return result == QORIN_API_RESULT_OK
               ? get<member>(sensing.directions[direction - QORIN_ARC_SENSING_DIRECTION_HORIZONTAL], value)
               : result;
}

/// The simulated torch has no arc, so that there is no data for the file.
QORIN_API_RESULT arc_sensing_data_save(std::string_view file)
{
    return file.empty() ? QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE : QORIN_API_RESULT_OK;
}

using weave = welding_weave;

/// As a setting, and taken over by the weave if it is running.
QORIN_API_RESULT changed(box_model& model, std::uint32_t id, const auto& set_value)
{
    auto* command = model.motion_commands().find(id);
    auto* told = command ? command->find<weave>() : nullptr;
    if (!told)
        return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
    if (!command->robot_id)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    const auto result = set_value(*told);
    if (result == QORIN_API_RESULT_OK)
        model.motions().weave_changed(id, *command);
    return result;
}

template <auto member, number_range range = finite>
QORIN_API_RESULT change(box_model& model, std::uint32_t id, double value)
{
    return changed(model, id, [value](weave& told) { return set<member, range>(told, value); });
}

template <auto member>
QORIN_API_RESULT change_vector(box_model& model, std::uint32_t id, double x, double y, double z)
{
    return changed(model, id, [=](weave& told) { return set_vector<member>(told, x, y, z); });
}

using tracking = arc_tracking;

constexpr command_row rows[] = {
    controlled<set<&weave::motion_switch>>("qorin_motion_command_robot_tcp_welding_weaving_motion_switch_set"),
    controlled<get<&weave::motion_switch>>("qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get"),
    controlled<set<&weave::pattern>>("qorin_motion_command_robot_tcp_welding_weaving_pattern_set"),
    controlled<get<&weave::pattern>>("qorin_motion_command_robot_tcp_welding_weaving_pattern_get"),
    controlled<set<&weave::left_amplitude, not_negative>>("qorin_motion_command_robot_tcp_welding_left_amplitude_set"),
    controlled<change<&weave::left_amplitude, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_left_amplitude_change"),
    controlled<get<&weave::left_amplitude>>("qorin_motion_command_robot_tcp_welding_left_amplitude_get"),
    controlled<set<&weave::right_amplitude, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_right_amplitude_set"),
    controlled<change<&weave::right_amplitude, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_right_amplitude_change"),
    controlled<get<&weave::right_amplitude>>("qorin_motion_command_robot_tcp_welding_right_amplitude_get"),
    controlled<set<&weave::frequency, not_negative>>("qorin_motion_command_robot_tcp_welding_frequency_set"),
    controlled<change<&weave::frequency, not_negative>>("qorin_motion_command_robot_tcp_welding_frequency_change"),
    controlled<get<&weave::frequency>>("qorin_motion_command_robot_tcp_welding_frequency_get"),
    controlled<set<&weave::left_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_left_stop_settling_time_set"),
    controlled<change<&weave::left_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_left_stop_settling_time_change"),
    controlled<get<&weave::left_stop_settling_time>>(
        "qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get"),
    controlled<set<&weave::right_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_right_stop_settling_time_set"),
    controlled<change<&weave::right_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_right_stop_settling_time_change"),
    controlled<get<&weave::right_stop_settling_time>>(
        "qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get"),
    controlled<set<&weave::middle_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_set"),
    controlled<change<&weave::middle_stop_settling_time, not_negative>>(
        "qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_change"),
    controlled<get<&weave::middle_stop_settling_time>>(
        "qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get"),
    controlled<set<&weave::plane_tilt_angle>>("qorin_motion_command_robot_tcp_welding_plane_tilt_angle_set"),
    controlled<get<&weave::plane_tilt_angle>>("qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get"),
    controlled<zigzag_ratio_set>("qorin_motion_command_robot_tcp_welding_zigzag_ratio_set"),
    controlled<zigzag_ratio_get>("qorin_motion_command_robot_tcp_welding_zigzag_ratio_get"),
    controlled<position_fix_set>("qorin_motion_command_robot_tcp_welding_position_fix_swtich_set"),
    controlled<position_fix_get>("qorin_motion_command_robot_tcp_welding_position_fix_swtich_get"),
    controlled<change<&weave::vertical_offset>>("qorin_motion_command_robot_tcp_welding_vertical_offset_pos_change"),
    controlled<change<&weave::horizontal_offset>>(
        "qorin_motion_command_robot_tcp_welding_horizontal_offset_pos_change"),
    controlled<change_vector<&weave::offset>>("qorin_motion_command_robot_tcp_welding_offset_pos_change"),

    controlled<arc_sensing_data_save>("qorin_motion_command_robot_tcp_arc_sensing_data_save"),
    controlled<set<&arc_sensing::data_source>>("qorin_motion_command_robot_tcp_arc_sensing_data_source_set"),
    controlled<get<&arc_sensing::data_source>>("qorin_motion_command_robot_tcp_arc_sensing_data_source_get"),
    controlled<set<&arc_sensing::reference_shift>>("qorin_motion_command_robot_tcp_arc_sensing_reference_shift_set"),
    controlled<get<&arc_sensing::reference_shift>>("qorin_motion_command_robot_tcp_arc_sensing_reference_shift_get"),
    controlled<set_tracking<&tracking::tracking_switch>>("qorin_motion_command_robot_tcp_arc_sensing_switch_set"),
    controlled<get_tracking<&tracking::tracking_switch>>("qorin_motion_command_robot_tcp_arc_sensing_switch_get"),
    controlled<set_tracking<&tracking::start_ref_period>>(
        "qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_set"),
    controlled<get_tracking<&tracking::start_ref_period>>(
        "qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_get"),
    controlled<set_tracking<&tracking::start_tracking_period>>(
        "qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_set"),
    controlled<get_tracking<&tracking::start_tracking_period>>(
        "qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_get"),
    controlled<set_tracking<&tracking::total_limit_distance, not_negative>>(
        "qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_set"),
    controlled<get_tracking<&tracking::total_limit_distance>>(
        "qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_get"),
    controlled<set_tracking<&tracking::limit_distance, not_negative>>(
        "qorin_motion_command_robot_tcp_arc_sensing_limit_distance_set"),
    controlled<get_tracking<&tracking::limit_distance>>(
        "qorin_motion_command_robot_tcp_arc_sensing_limit_distance_get"),
    controlled<set_tracking<&tracking::weighted_factor>>(
        "qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_set"),
    controlled<get_tracking<&tracking::weighted_factor>>(
        "qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_get"),
    controlled<set_tracking<&tracking::dead_band, not_negative>>(
        "qorin_motion_command_robot_tcp_arc_sensing_dead_band_set"),
    controlled<get_tracking<&tracking::dead_band>>("qorin_motion_command_robot_tcp_arc_sensing_dead_band_get"),
};
} // namespace

std::span<const command_row> welding_commands()
{
    return rows;
}
} // namespace cbox_simulator
