// Local getters of motion commands: the objects live in the control software.
#include "qorin/motion_command.h"

#include "api/internal_robot_state.h"

namespace
{
/// A client finds no motion command, whatever the id.
QORIN_API_RESULT find_motion_command(unsigned int command_id)
{
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    const void* command = qorin_internal_get_motion_command(static_cast<int>(command_id), result);
    return command == nullptr ? QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID : result;
}
} // namespace

QORIN_API_RESULT qorin_motion_command_velocity_profiler_get(unsigned int command_id,
                                                            QORIN_VELOCITY_PROFILE* /*profile*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_acc_max_get(unsigned int command_id, double* /*acc_max*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_dec_max_get(unsigned int command_id, double* /*dec_max*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_speed_max_get(unsigned int command_id, double* /*speed_max*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_jerk_percentage_get(unsigned int command_id, double* /*jerk_percentage*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_blending_motion_mode_get(unsigned int command_id, QORIN_SWITCH* /*mode*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_radius_for_blending_get(unsigned int command_id, double* /*radius*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_blending_auto_start_get(unsigned int command_id, QORIN_SWITCH* /*auto_start*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_blending_stop_mode_get(unsigned int command_id, QORIN_SWITCH* /*stop_mode*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_name_get(unsigned int command_id, char* /*name*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_running_time_get(unsigned int command_id, double* /*running_time*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_is_runnable(unsigned int command_id)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_robot_id_get(unsigned int command_id, unsigned int* /*robot_id*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_joint_angle_start_get(unsigned int command_id, unsigned int /*joint*/,
                                                                  double* /*angle*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_joint_angle_end_get(unsigned int command_id, unsigned int /*joint*/,
                                                                double* /*angle*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_start_get(unsigned int command_id, double* /*speed*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_end_get(unsigned int command_id, double* /*speed*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_position_start_get(unsigned int command_id, double* /*x*/,
                                                                   double* /*y*/, double* /*z*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_position_mid_get(unsigned int command_id, double* /*x*/, double* /*y*/,
                                                                 double* /*z*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_position_end_get(unsigned int command_id, double* /*x*/, double* /*y*/,
                                                                 double* /*z*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_start_get(unsigned int command_id, double* /*rx*/,
                                                                      double* /*ry*/, double* /*rz*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_end_get(unsigned int command_id, double* /*rx*/,
                                                                    double* /*ry*/, double* /*rz*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_offset_mode_get(unsigned int command_id, QORIN_SWITCH* /*offset_mode*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_interpolator_get(unsigned int command_id,
                                                                 QORIN_INTERPOLATOR* /*interpolator*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_radius_get(unsigned int command_id, double* /*radius*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_coordinate_get(unsigned int command_id,
                                                               QORIN_REF_COORDINATE* /*coordinate*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_orientation_mode_get(unsigned int command_id,
                                                                 QORIN_ORIENTATION_MODE* /*orientation_mode*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_adjusted_speed_get(unsigned int command_id, double* /*speed*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_data_source_get(unsigned int command_id,
                                                                            QORIN_ARC_SENSING_SRC* /*source*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int command_id,
                                                                                double* /*shift*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_switch_get(unsigned int command_id,
                                                                       QORIN_ARC_SENSING_DIRECTION /*direction*/,
                                                                       QORIN_SWITCH* /*sensing*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION /*direction*/, unsigned int* /*period*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION /*direction*/, unsigned int* /*period*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION /*direction*/, double* /*distance*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION /*direction*/, double* /*distance*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION /*direction*/, double* /*factor*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_dead_band_get(unsigned int command_id,
                                                                          QORIN_ARC_SENSING_DIRECTION /*direction*/,
                                                                          double* /*dead_band*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int command_id,
                                                                                  QORIN_SWITCH* /*weaving*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_pattern_get(unsigned int command_id,
                                                                            QORIN_WELDING_WEAVING_PATTERN* /*pattern*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int command_id,
                                                                           double* /*amplitude*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int command_id,
                                                                            double* /*amplitude*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_frequency_get(unsigned int command_id, double* /*frequency*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_zigzag_ratio_get(unsigned int command_id, double* /*ratio_1*/,
                                                                         double* /*ratio_2*/, double* /*ratio_3*/,
                                                                         double* /*ratio_4*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get(unsigned int command_id,
                                                                                    double* /*settling_time*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get(unsigned int command_id,
                                                                                     double* /*settling_time*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get(unsigned int command_id,
                                                                                      double* /*settling_time*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_position_fix_swtich_get(
    unsigned int command_id, QORIN_SWITCH* /*fix*/, double* /*value_1*/, double* /*value_2*/, double* /*value_3*/)
{
    return find_motion_command(command_id);
}

QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int command_id, double* /*angle*/)
{
    return find_motion_command(command_id);
}
