/**
 * @file robot_control.h
 * Control of one robot: stop and resume, servo power, speed override, homing, jog, direct teaching, collisions,
 * calibration, tool and payload.
 *
 * What a command changes shows in the status mirror when the control box has sent a frame with it; the getters of
 * robot_status.h, robot_safety_status.h and robot_tool_status.h read it there. The client keeps nothing of it.
 *
 * @code
 * qorin_rpc_system_control_take(cbox_id);
 * qorin_rpc_robot_servo_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON);
 * qorin_rpc_robot_speed_factor_set(cbox_id, robot_id, 0.5); // an override; its range is the control box's
 * qorin_rpc_robot_pause_auto_time(cbox_id, robot_id);
 * qorin_rpc_robot_resume(cbox_id, robot_id);
 * qorin_rpc_robot_stop_auto_time(cbox_id, robot_id);
 * qorin_rpc_robot_servo_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control of the system is needed (qorin_rpc_system_control_take()). A command that the control box answers late keeps
 * the other commands of the process waiting. The control box answers among others
 *   - QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE and
 *     QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE for what is not there or not allowed,
 *   - QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE for a setting that wants the servo off,
 *   - QORIN_API_RESULT_ROBOT_IS_MOVING_STATE for a command that wants an idle robot,
 *   - QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON while the enable switch function is on,
 *   - QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED without the EtherCAT link.
 *
 * Joint angles and orientations are in degrees. Where no unit is told, the control box defines it. The client judges
 * nothing and converts nothing.
 */
#ifndef QORIN_ROBOT_CONTROL_H
#define QORIN_ROBOT_CONTROL_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Stop and resume. */

/**
 * Resets a robot's state.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE while there is motion.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_reset(unsigned int cbox_id, unsigned int robot_id);

/**
 * Stops a robot's motion within a time.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param stop_time  time for coming to rest.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_stop(unsigned int cbox_id, unsigned int robot_id, double stop_time);

/**
 * Stops a robot's motion within a time that the control box chooses.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_stop_auto_time(unsigned int cbox_id, unsigned int robot_id);

/**
 * Stops a robot as in an emergency within a time.
 *
 * This goes over the network and through the control software: it replaces no emergency stop button.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param stop_time  time for coming to rest.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_emergency_stop(unsigned int cbox_id, unsigned int robot_id,
                                                          double stop_time);

/**
 * Pauses a robot's motion within a time; qorin_rpc_robot_resume() goes on with it.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param stop_time  time for coming to rest.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_pause(unsigned int cbox_id, unsigned int robot_id, double stop_time);

/**
 * Pauses a robot's motion within a time that the control box chooses.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_pause_auto_time(unsigned int cbox_id, unsigned int robot_id);

/**
 * Goes on with a paused motion.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_resume(unsigned int cbox_id, unsigned int robot_id);

/* Servo, override, mount and mode. */

/**
 * Switches the servo power of a robot.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param servo_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_servo_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_SWITCH servo_switch);

/**
 * Sets the speed override of a robot.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param speed_factor  factor by which the control box scales the speed of motions; it judges the range.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_speed_factor_set(unsigned int cbox_id, unsigned int robot_id,
                                                            double speed_factor);

/**
 * Switches the automatic adjustment of accelerations and decelerations.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param adjustment  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_acc_dec_auto_adjustment_set(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH adjustment);

/**
 * Switches the automatic adjustment of motions.
 *
 * It does not show: qorin_rpc_robot_motion_auto_adjust_swith_get() tells the client's record, which is always off.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param auto_adjust  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_motion_auto_adjust_swith_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH auto_adjust);

/**
 * Tells how a robot is mounted.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param angle_1   first mounting angle; the control box defines unit and axis.
 * @param angle_2   second mounting angle.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_installation_mount_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  double angle_1, double angle_2);

/**
 * Sets the control mode of a robot's drives.
 *
 * The getters of direct teaching and of velocity control are derived from it.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param mode      a QORIN_DRIVE_CONTROL_MODE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_control_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_DRIVE_CONTROL_MODE mode);

/* Velocity control. */

/**
 * Switches velocity control of a robot's joints.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id          robot id, 0 or 1.
 * @param velocity_control  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_velocity_control_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH velocity_control);

/**
 * Sets the target speed of a joint.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param velocity  speed in degrees per second.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int joint, double velocity);

/**
 * Sets the target acceleration of a joint.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param joint         joint, 0 for the first.
 * @param acceleration  acceleration in degrees per second squared.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double acceleration);

/**
 * Sets the target speed of a joint in revolutions per minute.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param velocity  speed in revolutions per minute; sent as it stands, nothing is converted here.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_rpm_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double velocity);

/**
 * Sets the target acceleration of a joint in revolutions per minute and second.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param joint         joint, 0 for the first.
 * @param acceleration  acceleration in revolutions per minute and second; sent as it stands, nothing is converted here.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_rpm_set(unsigned int cbox_id,
                                                                             unsigned int robot_id, unsigned int joint,
                                                                             double acceleration);

/* Home position. */

/**
 * Resets the home position of all joints.
 *
 * QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_NO_RESPONSE or ..._INVALID_PARAMETER tell that it failed.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_home_position_reset(unsigned int cbox_id, unsigned int robot_id);

/**
 * Resets the home position of all joints automatically; what that does, the control box defines.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_home_position_auto_reset(unsigned int cbox_id, unsigned int robot_id);

/**
 * Resets the home position of one joint.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_home_joint_position_reset(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int joint);

/* Jog. */

/**
 * Jogs one joint.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param joint      joint, 0 for the first.
 * @param direction  QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1    first of two numbers whose meaning the control box defines.
 * @param value_2    second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_joint(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                     QORIN_DIRECTION direction, double value_1, double value_2);

/**
 * Jogs the position of the TCP.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of five numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @param value_4     fourth of these.
 * @param value_5     fifth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_REF_COORDINATE coordinate, double value_1,
                                                            double value_2, double value_3, double value_4,
                                                            double value_5);

/**
 * Jogs the orientation of the TCP.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of five numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @param value_4     fourth of these.
 * @param value_5     fifth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation(unsigned int cbox_id, unsigned int robot_id,
                                                               QORIN_REF_COORDINATE coordinate, double value_1,
                                                               double value_2, double value_3, double value_4,
                                                               double value_5);

/**
 * Jogs the position of the TCP along x.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_x(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_REF_COORDINATE coordinate,
                                                              QORIN_DIRECTION direction, double value_1,
                                                              double value_2);

/**
 * Jogs the position of the TCP along y.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_y(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_REF_COORDINATE coordinate,
                                                              QORIN_DIRECTION direction, double value_1,
                                                              double value_2);

/**
 * Jogs the position of the TCP along z.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_z(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_REF_COORDINATE coordinate,
                                                              QORIN_DIRECTION direction, double value_1,
                                                              double value_2);

/**
 * Jogs the orientation of the TCP about x.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_x(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_REF_COORDINATE coordinate,
                                                                 QORIN_DIRECTION direction, double value_1,
                                                                 double value_2);

/**
 * Jogs the orientation of the TCP about y.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_y(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_REF_COORDINATE coordinate,
                                                                 QORIN_DIRECTION direction, double value_1,
                                                                 double value_2);

/**
 * Jogs the orientation of the TCP about z.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE while motion stands in its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param direction   QORIN_DIRECTION_POSITIVE or QORIN_DIRECTION_NEGATIVE.
 * @param value_1     first of two numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_z(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_REF_COORDINATE coordinate,
                                                                 QORIN_DIRECTION direction, double value_1,
                                                                 double value_2);

/* Direct teaching. */

/**
 * Switches direct teaching.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id         robot id, 0 or 1.
 * @param teaching_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_direct_teaching_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                      QORIN_SWITCH teaching_switch);

/**
 * Forces direct teaching on. What that overrides, the control box defines.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_direct_teaching_force_to_switch_on(unsigned int cbox_id,
                                                                              unsigned int robot_id);

/**
 * Sets the payload sensitivity of direct teaching. No getter tells it.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param sensitivity  a number whose scale the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_direct_teaching_payload_sensitivity_set(unsigned int cbox_id,
                                                                                   unsigned int robot_id,
                                                                                   int sensitivity);

/* Collisions. */

/**
 * Switches the detection of collisions.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param detection  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH detection);

/**
 * Clears a detected collision.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_clear(unsigned int cbox_id, unsigned int robot_id);

/**
 * Switches the mitigation of collisions.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param mitigation  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_mitigation_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH mitigation);

/**
 * Sets the torque of a joint that counts as a collision.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param torque    torque from which on it counts as a collision.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_joint_torque_set(unsigned int cbox_id,
                                                                                          unsigned int robot_id,
                                                                                          unsigned int joint,
                                                                                          double torque);

/**
 * Sets the forces and torques at the TCP that count as a collision.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         force threshold along x.
 * @param y         force threshold along y.
 * @param z         force threshold along z.
 * @param rx        torque threshold about x.
 * @param ry        torque threshold about y.
 * @param rz        torque threshold about z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_force_set(unsigned int cbox_id,
                                                                                       unsigned int robot_id, double x,
                                                                                       double y, double z, double rx,
                                                                                       double ry, double rz);

/**
 * Sets the resultant force at the TCP that counts as a collision.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param force     resultant force from which on it counts as a collision.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_set(unsigned int cbox_id,
                                                                                                 unsigned int robot_id,
                                                                                                 double force);

/* Dynamics calibration. */

/**
 * Starts the dynamics calibration of a robot.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FAILURE when it fails.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_calibration_start(unsigned int cbox_id, unsigned int robot_id);

/**
 * Saves the dynamics calibration of a robot.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE when it fails.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_calibration_save(unsigned int cbox_id, unsigned int robot_id);

/**
 * Starts the dynamics calibration of one joint.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FAILURE when it fails.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_dynamics_calibration_start(unsigned int cbox_id, unsigned int robot_id,
                                                                            unsigned int joint);

/**
 * Saves the dynamics calibration of one joint.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE when it fails.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_dynamics_calibration_save(unsigned int cbox_id, unsigned int robot_id,
                                                                           unsigned int joint);

/**
 * Sets the friction feed rate of a joint.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param feedrate  feed rate for the friction of the dynamics model, as the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_friction_feedrate_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned int joint, double feedrate);

/**
 * Starts the dry run ahead of a calibration.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE when it fails.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   a number whose meaning the control box defines.
 * @param value_2   another such number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_start(unsigned int cbox_id, unsigned int robot_id,
                                                                  double value_1, unsigned int value_2);

/**
 * Ends the dry run.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_end(unsigned int cbox_id, unsigned int robot_id);

/**
 * Asks the control box whether a dry run goes on.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param[out] dry_run  QORIN_SWITCH_ON while a dry run goes on.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_state_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      QORIN_SWITCH* dry_run);

/* Tool and payload. */

/**
 * Sets the pose of the TCP in the flange's frame.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         position along x.
 * @param y         position along y.
 * @param z         position along z.
 * @param rx        rotation about x, in degrees.
 * @param ry        rotation about y, in degrees.
 * @param rz        rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                               double y, double z, double rx, double ry, double rz);

/**
 * Has the control box compute the TCP from several taught flange poses.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_TCP_INVALID_NUMBER_OF_ARRAY for another count, and
 * QORIN_API_RESULT_ROBOT_TCP_HAS_SEVERAL_SOLUTIONS when the poses are not diverse enough.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param count         number of poses, 3 to 10.
 * @param coordinate_1  [count] first coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param coordinate_2  [count] second coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param coordinate_3  [count] third coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param coordinate_4  [count] fourth coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param coordinate_5  [count] fifth coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param coordinate_6  [count] sixth coordinate of each taught flange pose; 16 doubles are read whatever the count
 *                      says.
 * @param[out] result   one double that the control box defines, written whatever the control box answers; 16 doubles
 *                      are read from it, so it needs room for them.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_multiple_position_set(
    unsigned int cbox_id, unsigned int robot_id, unsigned int count, const double* coordinate_1,
    const double* coordinate_2, const double* coordinate_3, const double* coordinate_4, const double* coordinate_5,
    const double* coordinate_6, double* result);

/**
 * Has the control box compute the TCP's orientation from flange poses.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param value_1      first of three numbers whose meaning the control box defines.
 * @param value_2      second of these.
 * @param value_3      third of these.
 * @param[out] result  one double that the control box defines; 16 doubles are read from it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_multiple_orientation_set(unsigned int cbox_id,
                                                                                    unsigned int robot_id,
                                                                                    double value_1, double value_2,
                                                                                    double value_3, double* result);

/**
 * Sets the payload at the TCP.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_LESS_THAN_ZERO,
 * ..._IS_ZERO_BUT_CENTER_OF_MASS_NOT_ZERO, ..._MORE_THAN_MAX_CAPACITY or ..._CENTER_OF_MASS_OUT_OF_RANGE.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param mass      mass in kilograms.
 * @param x         centre of mass along x.
 * @param y         centre of mass along y.
 * @param z         centre of mass along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_payload_set(unsigned int cbox_id, unsigned int robot_id, double mass,
                                                           double x, double y, double z);

QORIN_API_C_END

#endif
