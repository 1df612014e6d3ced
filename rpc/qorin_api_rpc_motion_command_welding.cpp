// The weave of welding motions.
#include "qorin/motion_command_welding.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_set(unsigned int cbox_id, unsigned int command_id,
                                                                  QORIN_SWITCH event_switch)
{
    return command<"qorin_motion_command_robot_weaving_event_set">(cbox_id, command_id, event_switch);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_set(unsigned int cbox_id,
                                                                                      unsigned int command_id,
                                                                                      QORIN_SWITCH weaving)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_motion_switch_set">(cbox_id, command_id, weaving);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int cbox_id,
                                                                                      unsigned int command_id,
                                                                                      QORIN_SWITCH* weaving)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get">(cbox_id, command_id, weaving);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_WELDING_WEAVING_PATTERN pattern)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_pattern_set">(cbox_id, command_id, pattern);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_WELDING_WEAVING_PATTERN* pattern)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_pattern_get">(cbox_id, command_id, pattern);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_set">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               double* amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_get">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_set">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                double* amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_get">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_set(unsigned int cbox_id, unsigned int command_id,
                                                                          double frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_set">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_get(unsigned int cbox_id, unsigned int command_id,
                                                                          double* frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_get">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_set">(cbox_id, command_id,
                                                                                         settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get">(cbox_id, command_id,
                                                                                         settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_set">(cbox_id, command_id,
                                                                                          settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get">(cbox_id, command_id,
                                                                                          settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_set">(cbox_id, command_id,
                                                                                           settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get">(cbox_id, command_id,
                                                                                           settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_set(unsigned int cbox_id,
                                                                                 unsigned int command_id, double angle)
{
    return command<"qorin_motion_command_robot_tcp_welding_plane_tilt_angle_set">(cbox_id, command_id, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int cbox_id,
                                                                                 unsigned int command_id, double* angle)
{
    return command<"qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get">(cbox_id, command_id, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_set(unsigned int cbox_id,
                                                                             unsigned int command_id, double ratio_1,
                                                                             double ratio_2, double ratio_3,
                                                                             double ratio_4)
{
    return command<"qorin_motion_command_robot_tcp_welding_zigzag_ratio_set">(cbox_id, command_id, ratio_1, ratio_2,
                                                                              ratio_3, ratio_4);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get(unsigned int cbox_id,
                                                                             unsigned int command_id, double* ratio_1,
                                                                             double* ratio_2, double* ratio_3,
                                                                             double* ratio_4)
{
    return command<"qorin_motion_command_robot_tcp_welding_zigzag_ratio_get">(cbox_id, command_id, ratio_1, ratio_2,
                                                                              ratio_3, ratio_4);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_set(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    QORIN_SWITCH fix, double value_1,
                                                                                    double value_2, double value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_position_fix_swtich_set">(cbox_id, command_id, fix, value_1,
                                                                                     value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    QORIN_SWITCH* fix, double* value_1,
                                                                                    double* value_2, double* value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_position_fix_swtich_get">(cbox_id, command_id, fix, value_1,
                                                                                     value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_change(unsigned int cbox_id,
                                                                                  unsigned int command_id,
                                                                                  double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_change">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_change(unsigned int cbox_id,
                                                                                   unsigned int command_id,
                                                                                   double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_change">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_change(unsigned int cbox_id,
                                                                             unsigned int command_id, double frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_change">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_change(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_change">(cbox_id, command_id,
                                                                                            settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_change(unsigned int cbox_id,
                                                                                            unsigned int command_id,
                                                                                            double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_change">(cbox_id, command_id,
                                                                                             settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_change(unsigned int cbox_id,
                                                                                             unsigned int command_id,
                                                                                             double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_change">(cbox_id, command_id,
                                                                                              settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_vertical_offset_pos_change(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double offset)
{
    return command<"qorin_motion_command_robot_tcp_welding_vertical_offset_pos_change">(cbox_id, command_id, offset);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_horizontal_offset_pos_change(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double offset)
{
    return command<"qorin_motion_command_robot_tcp_welding_horizontal_offset_pos_change">(cbox_id, command_id, offset);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_offset_pos_change(unsigned int cbox_id,
                                                                              unsigned int command_id, double value_1,
                                                                              double value_2, double value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_offset_pos_change">(cbox_id, command_id, value_1, value_2,
                                                                               value_3);
}
