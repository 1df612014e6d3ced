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
 * @param[out] control_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH* control_switch);

/**
 * Frame in which the axes of force control lie.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] coordinate  base or TCP.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_coordinate_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_REF_COORDINATE* coordinate);

/**
 * Axes on which force control acts.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  on or off along x.
 * @param[out] y  on or off along y.
 * @param[out] z  on or off along z.
 * @param[out] rx  on or off about x.
 * @param[out] ry  on or off about y.
 * @param[out] rz  on or off about z.
 * @return as every robot getter.
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
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
 * @param[out] rx  torque about x.
 * @param[out] ry  torque about y.
 * @param[out] rz  torque about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_force_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                                double* y, double* z, double* rx, double* ry,
                                                                double* rz);

/**
 * Velocity of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  velocity along x.
 * @param[out] y  velocity along y.
 * @param[out] z  velocity along z.
 * @param[out] rx  velocity about x.
 * @param[out] ry  velocity about y.
 * @param[out] rz  velocity about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   double* x, double* y, double* z, double* rx,
                                                                   double* ry, double* rz);

/**
 * Acceleration of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  acceleration along x.
 * @param[out] y  acceleration along y.
 * @param[out] z  acceleration along z.
 * @param[out] rx  acceleration about x.
 * @param[out] ry  acceleration about y.
 * @param[out] rz  acceleration about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_acc_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                              double* y, double* z, double* rx, double* ry, double* rz);

/**
 * Deceleration of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  deceleration along x.
 * @param[out] y  deceleration along y.
 * @param[out] z  deceleration along z.
 * @param[out] rx  deceleration about x.
 * @param[out] ry  deceleration about y.
 * @param[out] rz  deceleration about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_dec_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                              double* y, double* z, double* rx, double* ry, double* rz);

/**
 * Stiffness of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  stiffness along x.
 * @param[out] y  stiffness along y.
 * @param[out] z  stiffness along z.
 * @param[out] rx  stiffness about x.
 * @param[out] ry  stiffness about y.
 * @param[out] rz  stiffness about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_stiffness_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    double* x, double* y, double* z, double* rx,
                                                                    double* ry, double* rz);

/**
 * Damping ratio of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  damping ratio along x.
 * @param[out] y  damping ratio along y.
 * @param[out] z  damping ratio along z.
 * @param[out] rx  damping ratio about x.
 * @param[out] ry  damping ratio about y.
 * @param[out] rz  damping ratio about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_damping_ratio_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        double* x, double* y, double* z, double* rx,
                                                                        double* ry, double* rz);

/**
 * Inertia of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  inertia along x.
 * @param[out] y  inertia along y.
 * @param[out] z  inertia along z.
 * @param[out] rx  inertia about x.
 * @param[out] ry  inertia about y.
 * @param[out] rz  inertia about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_inertia_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* x, double* y, double* z, double* rx,
                                                                  double* ry, double* rz);

/**
 * Approach velocity of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  velocity along x.
 * @param[out] y  velocity along y.
 * @param[out] z  velocity along z.
 * @param[out] rx  velocity about x.
 * @param[out] ry  velocity about y.
 * @param[out] rz  velocity about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_approach_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            double* x, double* y, double* z, double* rx,
                                                                            double* ry, double* rz);

/**
 * Low-pass filter setting of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] low_pass_filter  setting, as it was given to the control box.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_low_pass_filter_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          double* low_pass_filter);

/**
 * Sensorless bias of force control.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] bias_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_sensorless_bias_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH* bias_switch);

/**
 * Bias of the force value of force control, per axis.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  on or off along x.
 * @param[out] y  on or off along y.
 * @param[out] z  on or off along z.
 * @param[out] rx  on or off about x.
 * @param[out] ry  on or off about y.
 * @param[out] rz  on or off about z.
 * @return as every robot getter.
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
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_ctrl_actual_force_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       double* x, double* y, double* z);

/**
 * Torque that force control estimates.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  torque about x.
 * @param[out] y  torque about y.
 * @param[out] z  torque about z.
 * @return as every robot getter.
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
 * @param[out] sensor_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH* sensor_switch);

/**
 * Force that the force-torque sensor of a robot measures.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
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
 * @param[out] x  torque about x.
 * @param[out] y  torque about y.
 * @param[out] z  torque about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_force_torq_sensor_actual_torq_get(unsigned int cbox_id,
                                                                             unsigned int robot_id, double* x,
                                                                             double* y, double* z);

/**
 * Whether the input of force and torque from the application is in use for a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] sensor_switch  on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_force_torq_sensor_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH* sensor_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] control_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_switch_get(unsigned int robot_id, QORIN_SWITCH* control_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_coordinate_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] coordinate  base or TCP.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_coordinate_get(unsigned int robot_id,
                                                                 QORIN_REF_COORDINATE* coordinate);

/**
 * The same as qorin_rpc_robot_force_ctrl_direction_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  on or off along x.
 * @param[out] y  on or off along y.
 * @param[out] z  on or off along z.
 * @param[out] rx  on or off about x.
 * @param[out] ry  on or off about y.
 * @param[out] rz  on or off about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_direction_switch_get(unsigned int robot_id, QORIN_SWITCH* x,
                                                                       QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                       QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                                       QORIN_SWITCH* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
 * @param[out] rx  torque about x.
 * @param[out] ry  torque about y.
 * @param[out] rz  torque about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_force_get(unsigned int robot_id, double* x, double* y, double* z,
                                                            double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_velocity_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  velocity along x.
 * @param[out] y  velocity along y.
 * @param[out] z  velocity along z.
 * @param[out] rx  velocity about x.
 * @param[out] ry  velocity about y.
 * @param[out] rz  velocity about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_velocity_get(unsigned int robot_id, double* x, double* y, double* z,
                                                               double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_acc_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  acceleration along x.
 * @param[out] y  acceleration along y.
 * @param[out] z  acceleration along z.
 * @param[out] rx  acceleration about x.
 * @param[out] ry  acceleration about y.
 * @param[out] rz  acceleration about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_acc_get(unsigned int robot_id, double* x, double* y, double* z,
                                                          double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_dec_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  deceleration along x.
 * @param[out] y  deceleration along y.
 * @param[out] z  deceleration along z.
 * @param[out] rx  deceleration about x.
 * @param[out] ry  deceleration about y.
 * @param[out] rz  deceleration about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_dec_get(unsigned int robot_id, double* x, double* y, double* z,
                                                          double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_stiffness_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  stiffness along x.
 * @param[out] y  stiffness along y.
 * @param[out] z  stiffness along z.
 * @param[out] rx  stiffness about x.
 * @param[out] ry  stiffness about y.
 * @param[out] rz  stiffness about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_stiffness_get(unsigned int robot_id, double* x, double* y, double* z,
                                                                double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_damping_ratio_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  damping ratio along x.
 * @param[out] y  damping ratio along y.
 * @param[out] z  damping ratio along z.
 * @param[out] rx  damping ratio about x.
 * @param[out] ry  damping ratio about y.
 * @param[out] rz  damping ratio about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_damping_ratio_get(unsigned int robot_id, double* x, double* y,
                                                                    double* z, double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_inertia_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  inertia along x.
 * @param[out] y  inertia along y.
 * @param[out] z  inertia along z.
 * @param[out] rx  inertia about x.
 * @param[out] ry  inertia about y.
 * @param[out] rz  inertia about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_inertia_get(unsigned int robot_id, double* x, double* y, double* z,
                                                              double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_approach_velocity_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  velocity along x.
 * @param[out] y  velocity along y.
 * @param[out] z  velocity along z.
 * @param[out] rx  velocity about x.
 * @param[out] ry  velocity about y.
 * @param[out] rz  velocity about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_approach_velocity_get(unsigned int robot_id, double* x, double* y,
                                                                        double* z, double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_low_pass_filter_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] low_pass_filter  setting, as it was given to the control box.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_low_pass_filter_get(unsigned int robot_id, double* low_pass_filter);

/**
 * The same as qorin_rpc_robot_force_ctrl_sensorless_bias_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] bias_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_sensorless_bias_get(unsigned int robot_id, QORIN_SWITCH* bias_switch);

/**
 * The same as qorin_rpc_robot_force_ctrl_force_value_bias_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  on or off along x.
 * @param[out] y  on or off along y.
 * @param[out] z  on or off along z.
 * @param[out] rx  on or off about x.
 * @param[out] ry  on or off about y.
 * @param[out] rz  on or off about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_force_value_bias_get(unsigned int robot_id, QORIN_SWITCH* x,
                                                                       QORIN_SWITCH* y, QORIN_SWITCH* z,
                                                                       QORIN_SWITCH* rx, QORIN_SWITCH* ry,
                                                                       QORIN_SWITCH* rz);

/**
 * The same as qorin_rpc_robot_force_ctrl_actual_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_actual_force_get(unsigned int robot_id, double* x, double* y,
                                                                   double* z);

/**
 * The same as qorin_rpc_robot_force_ctrl_actual_torq_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  torque about x.
 * @param[out] y  torque about y.
 * @param[out] z  torque about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_ctrl_actual_torq_get(unsigned int robot_id, double* x, double* y,
                                                                  double* z);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] sensor_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_switch_get(unsigned int robot_id, QORIN_SWITCH* sensor_switch);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_actual_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force along x.
 * @param[out] y  force along y.
 * @param[out] z  force along z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_force_get(unsigned int robot_id, double* x, double* y,
                                                                          double* z);

/**
 * The same as qorin_rpc_robot_force_torq_sensor_actual_torq_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  torque about x.
 * @param[out] y  torque about y.
 * @param[out] z  torque about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_force_torq_sensor_actual_torq_get(unsigned int robot_id, double* x, double* y,
                                                                         double* z);

/**
 * The same as qorin_rpc_robot_ext_force_torq_sensor_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] sensor_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_force_torq_sensor_switch_get(unsigned int robot_id,
                                                                        QORIN_SWITCH* sensor_switch);

QORIN_API_C_END

#endif
