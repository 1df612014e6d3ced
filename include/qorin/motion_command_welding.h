/**
 * @file motion_command_welding.h
 * Motion commands: the weave of a welding motion.
 *
 * motion_command.h tells what motion commands are and what these functions have in common. The functions are for
 * commands of qorin_rpc_motion_command_robot_tcp_welding_create().
 */
#ifndef QORIN_MOTION_COMMAND_WELDING_H
#define QORIN_MOTION_COMMAND_WELDING_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Weave. */

/**
 * Switches the events of a zigzag weave.
 *
 * Read back from the robot, by robot id, with qorin_rpc_motion_command_robot_weaving_event_get().
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param event_switch  QORIN_SWITCH_ON for an event at each section,
 *                      QORIN_EVENT_SUBGRP_MOTION_COMMAND_ZIGZANG_WEAVING_SECTION_CHANGE.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_set(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_SWITCH event_switch);

/**
 * Sets the switch of the weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param weaving     QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_set(unsigned int cbox_id,
                                                                                                unsigned int command_id,
                                                                                                QORIN_SWITCH weaving);

/**
 * Asks for the switch of the weave.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] weaving  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int cbox_id,
                                                                                                unsigned int command_id,
                                                                                                QORIN_SWITCH* weaving);

/**
 * Sets the pattern of the weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param pattern     a QORIN_WELDING_WEAVING_PATTERN value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN pattern);

/**
 * Asks for the pattern of the weave.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] pattern  a QORIN_WELDING_WEAVING_PATTERN value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN* pattern);

/**
 * Sets the amplitude of the weave to the left.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   how far the weave goes to the left.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double amplitude);

/**
 * Asks for the amplitude of the weave to the left.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param[out] amplitude  how far the weave goes to the left.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double* amplitude);

/**
 * Sets the amplitude of the weave to the right.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   how far the weave goes to the right.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double amplitude);

/**
 * Asks for the amplitude of the weave to the right.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param[out] amplitude  how far the weave goes to the right.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double* amplitude);

/**
 * Sets the frequency of the weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param frequency   how often the weave repeats; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_set(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double frequency);

/**
 * Asks for the frequency of the weave.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param[out] frequency  how often the weave repeats; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_get(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double* frequency);

/**
 * Sets the settling time of the stop on the left of the weave.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop on the left lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the settling time of the stop on the left of the weave.
 *
 * @param cbox_id             control box id from qorin_rpc_system_cbox_connect().
 * @param command_id          motion command id.
 * @param[out] settling_time  how long the stop on the left lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the settling time of the stop on the right of the weave.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop on the right lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the settling time of the stop on the right of the weave.
 *
 * @param cbox_id             control box id from qorin_rpc_system_cbox_connect().
 * @param command_id          motion command id.
 * @param[out] settling_time  how long the stop on the right lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the settling time of the stop in the middle of the weave.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop in the middle lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the settling time of the stop in the middle of the weave.
 *
 * @param cbox_id             control box id from qorin_rpc_system_cbox_connect().
 * @param command_id          motion command id.
 * @param[out] settling_time  how long the stop in the middle lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the tilt angle of the plane of the weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param angle       angle by which the plane is tilted; the control box defines from where and in which unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_set(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double angle);

/**
 * Asks for the tilt angle of the plane of the weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] angle  angle by which the plane is tilted; the control box defines from where and in which unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double* angle);

/**
 * Sets the four ratios of a zigzag weave.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param ratio_1     first of four ratios; the control box defines of what.
 * @param ratio_2     second of these.
 * @param ratio_3     third of these.
 * @param ratio_4     fourth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_set(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double ratio_1, double ratio_2,
                                                                                       double ratio_3, double ratio_4);

/**
 * Asks for the four ratios of a zigzag weave.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] ratio_1  first of four ratios; the control box defines of what.
 * @param[out] ratio_2  second of these.
 * @param[out] ratio_3  third of these.
 * @param[out] ratio_4  fourth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get(
    unsigned int cbox_id, unsigned int command_id, double* ratio_1, double* ratio_2, double* ratio_3, double* ratio_4);

/**
 * Sets the fixing of the position.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param fix         QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @param value_1     first of three numbers that go with it; the control box defines them.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_SWITCH fix, double value_1, double value_2, double value_3);

/**
 * Asks for the fixing of the position.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] fix      QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @param[out] value_1  first of three numbers that go with it; the control box defines them.
 * @param[out] value_2  second of these.
 * @param[out] value_3  third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_SWITCH* fix, double* value_1, double* value_2,
    double* value_3);

/* Changes to a weave. */

/**
 * Changes the amplitude of the weave to the left.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set() in a command of its own; when they
 * take effect, the control box decides.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   how far the weave goes to the left.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_change(unsigned int cbox_id,
                                                                                            unsigned int command_id,
                                                                                            double amplitude);

/**
 * Changes the amplitude of the weave to the right.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set() in a command of its own; when
 * they take effect, the control box decides.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   how far the weave goes to the right.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_change(unsigned int cbox_id,
                                                                                             unsigned int command_id,
                                                                                             double amplitude);

/**
 * Changes the frequency of the weave.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_frequency_set() in a command of its own; when they take
 * effect, the control box decides.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param frequency   how often the weave repeats; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_change(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double frequency);

/**
 * Changes the settling time of the stop on the left of the weave.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set() in a command of its own;
 * when they take effect, the control box decides.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop on the left lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the settling time of the stop on the right of the weave.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set() in a command of its own;
 * when they take effect, the control box decides.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop on the right lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the settling time of the stop in the middle of the weave.
 *
 * The parameters of qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set() in a command of its
 * own; when they take effect, the control box decides.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  how long the stop in the middle lasts; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the vertical offset of the position. No call sets it ahead or reads it back.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param offset      vertical offset; the control box defines against what.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_vertical_offset_pos_change(
    unsigned int cbox_id, unsigned int command_id, double offset);

/**
 * Changes the horizontal offset of the position. No call sets it ahead or reads it back.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param offset      horizontal offset; the control box defines against what.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_horizontal_offset_pos_change(
    unsigned int cbox_id, unsigned int command_id, double offset);

/**
 * Changes the offset of the position. No call sets it ahead or reads it back.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first of three numbers for the offset; the control box defines them.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_offset_pos_change(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double value_1, double value_2,
                                                                                        double value_3);

/* Local forms. A client has no motion commands, and finds none. */

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get() asks the control
 * box.
 *
 * @param command_id    motion command id.
 * @param[out] weaving  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int command_id,
                                                                                            QORIN_SWITCH* weaving);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] pattern  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_pattern_get(
    unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN* pattern);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param[out] amplitude  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int command_id,
                                                                                     double* amplitude);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param[out] amplitude  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int command_id,
                                                                                      double* amplitude);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_frequency_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param[out] frequency  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_frequency_get(unsigned int command_id,
                                                                                double* frequency);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] ratio_1  not written.
 * @param[out] ratio_2  not written.
 * @param[out] ratio_3  not written.
 * @param[out] ratio_4  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_zigzag_ratio_get(unsigned int command_id,
                                                                                   double* ratio_1, double* ratio_2,
                                                                                   double* ratio_3, double* ratio_4);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id          motion command id.
 * @param[out] settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get(unsigned int command_id,
                                                                                              double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id          motion command id.
 * @param[out] settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get(unsigned int command_id,
                                                                                               double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id          motion command id.
 * @param[out] settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get(unsigned int command_id,
                                                                                                double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] fix      not written.
 * @param[out] value_1  not written.
 * @param[out] value_2  not written.
 * @param[out] value_3  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_position_fix_swtich_get(
    unsigned int command_id, QORIN_SWITCH* fix, double* value_1, double* value_2, double* value_3);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int command_id,
                                                                                       double* angle);

QORIN_API_C_END

#endif
