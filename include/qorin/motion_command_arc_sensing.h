/**
 * @file motion_command_arc_sensing.h
 * Motion commands: arc sensing of a welding motion.
 *
 * motion_command.h tells what motion commands are and what these functions have in common. The functions are for
 * commands of qorin_rpc_motion_command_robot_tcp_welding_create(). The parameters have the names that the control box
 * gives them, and what each does to a motion is the control box's: the client carries the values.
 */
#ifndef QORIN_MOTION_COMMAND_ARC_SENSING_H
#define QORIN_MOTION_COMMAND_ARC_SENSING_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Arc sensing. */

/**
 * Sets the data source of arc sensing.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param source      where the sensed value comes from; a QORIN_ARC_SENSING_SRC value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          QORIN_ARC_SENSING_SRC source);

/**
 * Asks for the data source of arc sensing.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param[out] source  where the sensed value comes from; a QORIN_ARC_SENSING_SRC value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_SRC* source);

/**
 * Sets the reference shift of arc sensing.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param shift       how far the reference is shifted.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_set(unsigned int cbox_id,
                                                                                              unsigned int command_id,
                                                                                              double shift);

/**
 * Asks for the reference shift of arc sensing.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] shift  how far the reference is shifted.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int cbox_id,
                                                                                              unsigned int command_id,
                                                                                              double* shift);

/**
 * Sets the switch of arc sensing in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param sensing     QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, QORIN_SWITCH sensing);

/**
 * Asks for the switch of arc sensing in one direction.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param direction     QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] sensing  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, QORIN_SWITCH* sensing);

/**
 * Sets the period at which the reference of arc sensing in one direction starts.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      number of the period; the control box defines what it counts.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period);

/**
 * Asks for the period at which the reference of arc sensing in one direction starts.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param direction    QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] period  number of the period; the control box defines what it counts.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Sets the period at which the tracking of arc sensing in one direction starts.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      number of the period; the control box defines what it counts.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period);

/**
 * Asks for the period at which the tracking of arc sensing in one direction starts.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param direction    QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] period  number of the period; the control box defines what it counts.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Sets the total limit distance of arc sensing in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    total limit, a distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance);

/**
 * Asks for the total limit distance of arc sensing in one direction.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param direction      QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] distance  total limit, a distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Sets the limit distance of arc sensing in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    limit, a distance; beside the total one.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance);

/**
 * Asks for the limit distance of arc sensing in one direction.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param direction      QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] distance  limit, a distance; beside the total one.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Sets the weighted factor of arc sensing in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param factor      factor by which the direction is weighted.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double factor);

/**
 * Asks for the weighted factor of arc sensing in one direction.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param direction    QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] factor  factor by which the direction is weighted.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* factor);

/**
 * Sets the dead band of arc sensing in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param dead_band   width of the band in which nothing is answered to.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double dead_band);

/**
 * Asks for the dead band of arc sensing in one direction.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param direction       QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param[out] dead_band  width of the band in which nothing is answered to.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* dead_band);

/**
 * Has the control box save the data of arc sensing to a file of its own.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param file     name of a file of the control box; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_save(unsigned int cbox_id,
                                                                                    const char* file);

/* Local forms. A client has no motion commands, and finds none. */

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param[out] source  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_data_source_get(unsigned int command_id,
                                                                                      QORIN_ARC_SENSING_SRC* source);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] shift  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int command_id,
                                                                                          double* shift);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param direction     not read.
 * @param[out] sensing  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_switch_get(unsigned int command_id,
                                                                                 QORIN_ARC_SENSING_DIRECTION direction,
                                                                                 QORIN_SWITCH* sensing);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param direction    not read.
 * @param[out] period  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_get() asks the control
 * box.
 *
 * @param command_id   motion command id.
 * @param direction    not read.
 * @param[out] period  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_get() asks the control
 * box.
 *
 * @param command_id     motion command id.
 * @param direction      not read.
 * @param[out] distance  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_get() asks the control box.
 *
 * @param command_id     motion command id.
 * @param direction      not read.
 * @param[out] distance  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param direction    not read.
 * @param[out] factor  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* factor);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param direction       not read.
 * @param[out] dead_band  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_dead_band_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* dead_band);

QORIN_API_C_END

#endif
