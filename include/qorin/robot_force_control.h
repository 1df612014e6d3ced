/**
 * @file robot_force_control.h
 * Force control of a robot, its force-torque sensor, and force and torque from a sensor of the application's.
 *
 * Six values are one per axis in the order x, y, z, rx, ry, rz, in the frame that
 * qorin_rpc_robot_force_ctrl_coordinate_set() tells. What is set shows in the status mirror; the getters are in
 * robot_force_status.h. Of the sensor's settings only its switch shows; bias, filter, sample rate and calibration have
 * no getter.
 *
 * @code
 * const QORIN_SWITCH on = QORIN_SWITCH_ON;
 * const QORIN_SWITCH off = QORIN_SWITCH_OFF;
 * qorin_rpc_robot_force_ctrl_coordinate_set(cbox_id, robot_id, QORIN_REF_COORDINATE_BASE);
 * qorin_rpc_robot_force_ctrl_direction_switch_set(cbox_id, robot_id, off, off, on, off, off, off);
 * qorin_rpc_robot_force_ctrl_force_set(cbox_id, robot_id, 0.0, 0.0, -20.0, 0.0, 0.0, 0.0);
 * qorin_rpc_robot_force_ctrl_switch_set(cbox_id, robot_id, on);
 * // force control acts along z alone
 * qorin_rpc_robot_force_ctrl_switch_set(cbox_id, robot_id, off);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control box judges ranges, with QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE among others, and defines the units.
 * The status of a sensor comes as an event, QORIN_EVENT_SUBGRP_NOTIFICATION_FT_SENSOR_STATUS, and not as a result.
 */
#ifndef QORIN_ROBOT_FORCE_CONTROL_H
#define QORIN_ROBOT_FORCE_CONTROL_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Force control. */

/**
 * Switches force control.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id        robot id, 0 or 1.
 * @param control_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH control_switch);

/**
 * Sets the frame in which the axes of force control lie.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_coordinate_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_REF_COORDINATE coordinate);

/**
 * Tells on which axes force control acts.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         QORIN_SWITCH_ON to act along x.
 * @param y         the same along y.
 * @param z         the same along z.
 * @param rx        the same about x.
 * @param ry        the same about y.
 * @param rz        the same about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_direction_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH x, QORIN_SWITCH y,
                                                                           QORIN_SWITCH z, QORIN_SWITCH rx,
                                                                           QORIN_SWITCH ry, QORIN_SWITCH rz);

/**
 * Sets the target force and torque.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         force along x.
 * @param y         force along y.
 * @param z         force along z.
 * @param rx        torque about x.
 * @param ry        torque about y.
 * @param rz        torque about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                                double y, double z, double rx, double ry, double rz);

/**
 * Sets the velocity of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         velocity along x.
 * @param y         velocity along y.
 * @param z         velocity along z.
 * @param rx        velocity about x.
 * @param ry        velocity about y.
 * @param rz        velocity about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_velocity_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   double x, double y, double z, double rx, double ry,
                                                                   double rz);

/**
 * Sets the acceleration of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         acceleration along x.
 * @param y         acceleration along y.
 * @param z         acceleration along z.
 * @param rx        acceleration about x.
 * @param ry        acceleration about y.
 * @param rz        acceleration about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_acc_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                              double y, double z, double rx, double ry, double rz);

/**
 * Sets the deceleration of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         deceleration along x.
 * @param y         deceleration along y.
 * @param z         deceleration along z.
 * @param rx        deceleration about x.
 * @param ry        deceleration about y.
 * @param rz        deceleration about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_dec_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                              double y, double z, double rx, double ry, double rz);

/**
 * Sets the damping ratio of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         damping ratio along x.
 * @param y         damping ratio along y.
 * @param z         damping ratio along z.
 * @param rx        damping ratio about x.
 * @param ry        damping ratio about y.
 * @param rz        damping ratio about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_damping_ratio_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        double x, double y, double z, double rx,
                                                                        double ry, double rz);

/**
 * Sets the inertia of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         inertia along x.
 * @param y         inertia along y.
 * @param z         inertia along z.
 * @param rx        inertia about x.
 * @param ry        inertia about y.
 * @param rz        inertia about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_inertia_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                                  double y, double z, double rx, double ry, double rz);

/**
 * Sets the approach velocity of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         approach velocity along x.
 * @param y         approach velocity along y.
 * @param z         approach velocity along z.
 * @param rx        approach velocity about x.
 * @param ry        approach velocity about y.
 * @param rz        approach velocity about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_approach_velocity_set(unsigned int cbox_id, unsigned int robot_id,
                                                                            double x, double y, double z, double rx,
                                                                            double ry, double rz);

/**
 * Sets the stiffness of force control.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         stiffness along x.
 * @param y         stiffness along y.
 * @param z         stiffness along z.
 * @param rx        stiffness about x.
 * @param ry        stiffness about y.
 * @param rz        stiffness about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_stiffness_set(unsigned int cbox_id, unsigned int robot_id,
                                                                    double x, double y, double z, double rx, double ry,
                                                                    double rz);

/**
 * Sets the low-pass filter of force control.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param frequency  setting of the filter; the control box defines its unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_low_pass_filter_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          double frequency);

/**
 * Switches the bias of the force value, per axis.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         QORIN_SWITCH_ON or QORIN_SWITCH_OFF along x.
 * @param y         the same along y.
 * @param z         the same along z.
 * @param rx        the same about x.
 * @param ry        the same about y.
 * @param rz        the same about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_value_bias_set(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH x, QORIN_SWITCH y,
                                                                           QORIN_SWITCH z, QORIN_SWITCH rx,
                                                                           QORIN_SWITCH ry, QORIN_SWITCH rz);

/**
 * Switches the sensorless bias.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param bias      QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_sensorless_bias_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH bias);

/* Force-torque sensor. */

/**
 * Switches the force-torque sensor.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id       robot id, 0 or 1.
 * @param sensor_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH sensor_switch);

/**
 * Switches the bias of the sensor.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param bias_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_bias_switch_set(unsigned int cbox_id,
                                                                             unsigned int robot_id,
                                                                             QORIN_SWITCH bias_switch);

/**
 * Clears the bias of the sensor.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param bias_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; what the two set apart here, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_bias_clear(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH bias_switch);

/**
 * Sets the filter of the sensor.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param filter    a QORIN_FORCE_TORQUE_SENSOR_FILTER value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_filter_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_FORCE_TORQUE_SENSOR_FILTER filter);

/**
 * Sets the sample rate of the sensor.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param sample_rate  a QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_sample_rate_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE sample_rate);

/**
 * Sets the calibration of the sensor.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param calibration  a QORIN_FORCE_TORQUE_SENSOR_CALIBRATION value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_calibration_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_FORCE_TORQUE_SENSOR_CALIBRATION calibration);

/* Force and torque from the application. */

/**
 * Switches the input of force and torque from the application.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param input_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH input_switch);

/**
 * Gives the control box force and torque of a sensor of the application's.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         force along x.
 * @param y         force along y.
 * @param z         force along z.
 * @param rx        torque about x.
 * @param ry        torque about y.
 * @param rz        torque about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_force_torque_set(unsigned int cbox_id,
                                                                                  unsigned int robot_id, double x,
                                                                                  double y, double z, double rx,
                                                                                  double ry, double rz);

QORIN_API_C_END

#endif
