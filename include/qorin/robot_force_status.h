/**
 * @file robot_force_status.h
 * Force control and force-torque sensors of a robot.
 *
 * Getters over the status mirror: robot_status.h tells what they have in common, when a robot exists, frames and units.
 * Units of force, torque and what force control makes of them are the control box's.
 *
 * Six values are one per axis: x, y, z for translation, rx, ry, rz for rotation.
 */
#ifndef QORIN_ROBOT_FORCE_STATUS_H
#define QORIN_ROBOT_FORCE_STATUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Force control of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param control_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH* control_switch);

/**
 * Frame in which the axes of force control lie.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param coordinate  output: base or TCP.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_coordinate_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_REF_COORDINATE* coordinate);

/**
 * Axes on which force control acts.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: on or off along x.
 * @param y  output: on or off along y.
 * @param z  output: on or off along z.
 * @param rx  output: on or off about x.
 * @param ry  output: on or off about y.
 * @param rz  output: on or off about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_direction_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH* x, QORIN_SWITCH* y,
                                                                           QORIN_SWITCH* z, QORIN_SWITCH* rx,
                                                                           QORIN_SWITCH* ry, QORIN_SWITCH* rz);

/**
 * Target force and torque of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @param rx  output: torque about x.
 * @param ry  output: torque about y.
 * @param rz  output: torque about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                                double* y, double* z, double* rx, double* ry,
                                                                double* rz);

/**
 * Velocity of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: velocity along x.
 * @param y  output: velocity along y.
 * @param z  output: velocity along z.
 * @param rx  output: velocity about x.
 * @param ry  output: velocity about y.
 * @param rz  output: velocity about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   double* x, double* y, double* z, double* rx,
                                                                   double* ry, double* rz);

/**
 * Acceleration of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: acceleration along x.
 * @param y  output: acceleration along y.
 * @param z  output: acceleration along z.
 * @param rx  output: acceleration about x.
 * @param ry  output: acceleration about y.
 * @param rz  output: acceleration about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_acc_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                              double* y, double* z, double* rx, double* ry, double* rz);

/**
 * Deceleration of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: deceleration along x.
 * @param y  output: deceleration along y.
 * @param z  output: deceleration along z.
 * @param rx  output: deceleration about x.
 * @param ry  output: deceleration about y.
 * @param rz  output: deceleration about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_dec_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                              double* y, double* z, double* rx, double* ry, double* rz);

/**
 * Stiffness of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: stiffness along x.
 * @param y  output: stiffness along y.
 * @param z  output: stiffness along z.
 * @param rx  output: stiffness about x.
 * @param ry  output: stiffness about y.
 * @param rz  output: stiffness about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_stiffness_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    double* x, double* y, double* z, double* rx,
                                                                    double* ry, double* rz);

/**
 * Damping ratio of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: damping ratio along x.
 * @param y  output: damping ratio along y.
 * @param z  output: damping ratio along z.
 * @param rx  output: damping ratio about x.
 * @param ry  output: damping ratio about y.
 * @param rz  output: damping ratio about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_damping_ratio_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        double* x, double* y, double* z, double* rx,
                                                                        double* ry, double* rz);

/**
 * Inertia of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: inertia along x.
 * @param y  output: inertia along y.
 * @param z  output: inertia along z.
 * @param rx  output: inertia about x.
 * @param ry  output: inertia about y.
 * @param rz  output: inertia about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_inertia_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* x, double* y, double* z, double* rx,
                                                                  double* ry, double* rz);

/**
 * Approach velocity of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: velocity along x.
 * @param y  output: velocity along y.
 * @param z  output: velocity along z.
 * @param rx  output: velocity about x.
 * @param ry  output: velocity about y.
 * @param rz  output: velocity about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_approach_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            double* x, double* y, double* z, double* rx,
                                                                            double* ry, double* rz);

/**
 * Low-pass filter setting of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param low_pass_filter  output: setting, as it was given to the control box.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_low_pass_filter_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          double* low_pass_filter);

/**
 * Bias of force control that works without a sensor.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param bias_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_sensorless_bias_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH* bias_switch);

/**
 * Bias of the force value of force control, per axis.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: on or off along x.
 * @param y  output: on or off along y.
 * @param z  output: on or off along z.
 * @param rx  output: on or off about x.
 * @param ry  output: on or off about y.
 * @param rz  output: on or off about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_value_bias_get(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH* x, QORIN_SWITCH* y,
                                                                           QORIN_SWITCH* z, QORIN_SWITCH* rx,
                                                                           QORIN_SWITCH* ry, QORIN_SWITCH* rz);

/**
 * Force that force control estimates.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_actual_force_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       double* x, double* y, double* z);

/**
 * Torque that force control estimates.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: torque about x.
 * @param y  output: torque about y.
 * @param z  output: torque about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_actual_torq_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      double* x, double* y, double* z);

/**
 * Whether the force-torque sensor of a robot is in use.
 *
 * Unlike the values of the sensor, the switch is told only of a robot that the control box has.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param sensor_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH* sensor_switch);

/**
 * Force that the force-torque sensor of a robot measures.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_actual_force_get(unsigned int cbox_id,
                                                                              unsigned int robot_id, double* x,
                                                                              double* y, double* z);

/**
 * Torque that the force-torque sensor of a robot measures.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: torque about x.
 * @param y  output: torque about y.
 * @param z  output: torque about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_actual_torq_get(unsigned int cbox_id,
                                                                             unsigned int robot_id, double* x,
                                                                             double* y, double* z);

/**
 * Whether forces that the application sends stand for the force-torque sensor of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param sensor_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH* sensor_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param control_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_switch_get(unsigned int robot_id, QORIN_SWITCH* control_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_coordinate_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param coordinate  output: base or TCP.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_coordinate_get(unsigned int robot_id,
                                                                 QORIN_REF_COORDINATE* coordinate);

/**
 * The same as qorin_rpc_robot_force_ctrl_direction_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: on or off along x.
 * @param y  output: on or off along y.
 * @param z  output: on or off along z.
 * @param rx  output: on or off about x.
 * @param ry  output: on or off about y.
 * @param rz  output: on or off about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_direction_switch_get(unsigned int robot_id, QORIN_SWITCH* x,
                                                                       QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                       QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                                       QORIN_SWITCH* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @param rx  output: torque about x.
 * @param ry  output: torque about y.
 * @param rz  output: torque about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_force_get(unsigned int robot_id, double* x, double* y, double* z,
                                                            double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_velocity_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: velocity along x.
 * @param y  output: velocity along y.
 * @param z  output: velocity along z.
 * @param rx  output: velocity about x.
 * @param ry  output: velocity about y.
 * @param rz  output: velocity about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_velocity_get(unsigned int robot_id, double* x, double* y, double* z,
                                                               double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_acc_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: acceleration along x.
 * @param y  output: acceleration along y.
 * @param z  output: acceleration along z.
 * @param rx  output: acceleration about x.
 * @param ry  output: acceleration about y.
 * @param rz  output: acceleration about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_acc_get(unsigned int robot_id, double* x, double* y, double* z,
                                                          double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_dec_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: deceleration along x.
 * @param y  output: deceleration along y.
 * @param z  output: deceleration along z.
 * @param rx  output: deceleration about x.
 * @param ry  output: deceleration about y.
 * @param rz  output: deceleration about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_dec_get(unsigned int robot_id, double* x, double* y, double* z,
                                                          double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_stiffness_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: stiffness along x.
 * @param y  output: stiffness along y.
 * @param z  output: stiffness along z.
 * @param rx  output: stiffness about x.
 * @param ry  output: stiffness about y.
 * @param rz  output: stiffness about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_stiffness_get(unsigned int robot_id, double* x, double* y, double* z,
                                                                double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_damping_ratio_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: damping ratio along x.
 * @param y  output: damping ratio along y.
 * @param z  output: damping ratio along z.
 * @param rx  output: damping ratio about x.
 * @param ry  output: damping ratio about y.
 * @param rz  output: damping ratio about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_damping_ratio_get(unsigned int robot_id, double* x, double* y,
                                                                    double* z, double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_inertia_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: inertia along x.
 * @param y  output: inertia along y.
 * @param z  output: inertia along z.
 * @param rx  output: inertia about x.
 * @param ry  output: inertia about y.
 * @param rz  output: inertia about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_inertia_get(unsigned int robot_id, double* x, double* y, double* z,
                                                              double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_approach_velocity_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: velocity along x.
 * @param y  output: velocity along y.
 * @param z  output: velocity along z.
 * @param rx  output: velocity about x.
 * @param ry  output: velocity about y.
 * @param rz  output: velocity about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_approach_velocity_get(unsigned int robot_id, double* x, double* y,
                                                                        double* z, double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_low_pass_filter_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param low_pass_filter  output: setting, as it was given to the control box.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_low_pass_filter_get(unsigned int robot_id, double* low_pass_filter);

/**
 * The same as qorin_rpc_robot_force_ctrl_sensorless_bias_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param bias_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_sensorless_bias_get(unsigned int robot_id, QORIN_SWITCH* bias_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_force_value_bias_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: on or off along x.
 * @param y  output: on or off along y.
 * @param z  output: on or off along z.
 * @param rx  output: on or off about x.
 * @param ry  output: on or off about y.
 * @param rz  output: on or off about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_force_value_bias_get(unsigned int robot_id, QORIN_SWITCH* x,
                                                                       QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                       QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                                       QORIN_SWITCH* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_actual_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_actual_force_get(unsigned int robot_id, double* x, double* y,
                                                                   double* z);

/**
 * The same as qorin_rpc_robot_force_ctrl_actual_torq_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: torque about x.
 * @param y  output: torque about y.
 * @param z  output: torque about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_actual_torq_get(unsigned int robot_id, double* x, double* y,
                                                                  double* z);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param sensor_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_switch_get(unsigned int robot_id, QORIN_SWITCH* sensor_switch);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_actual_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force along x.
 * @param y  output: force along y.
 * @param z  output: force along z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_force_get(unsigned int robot_id, double* x, double* y,
                                                                          double* z);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_actual_torq_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: torque about x.
 * @param y  output: torque about y.
 * @param z  output: torque about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_torq_get(unsigned int robot_id, double* x, double* y,
                                                                         double* z);

/**
 * The same as qorin_rpc_robot_ext_force_torq_sensor_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param sensor_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_force_torq_sensor_switch_get(unsigned int robot_id,
                                                                        QORIN_SWITCH* sensor_switch);

QORIN_API_C_END

#endif
