/**
 * @file robot_status.h
 * State of a robot: model, motion, poses, joints, drives and specification.
 *
 * Getters. Each function here and in the other robot status headers reads the status mirror, the latest frame that the
 * control box has streamed: it takes no lock, writes no line, sends nothing, does not allocate and does not block, so
 * it may run beside a command that blocks in another thread. Outputs stay untouched unless the result is
 * QORIN_API_RESULT_OK; an output pointer must not be null. A value that is no member of its enumeration is handed on as
 * it is.
 *
 * Robots. A robot exists when its id is 0 or 1, this process has created it with qorin_rpc_robot_create() or attached
 * it with qorin_robot_attach() and has not destroyed it, and the id is below the number of robots that the control box
 * has. A getter whose text says that the robot is known, not that it exists, does not look at the number of robots. The
 * robot is judged first, then any other index.
 *
 * Every robot getter returns
 *   - QORIN_API_RESULT_OK: the outputs tell the state of the latest frame,
 *   - QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected,
 *   - QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist,
 *
 * and what its text adds.
 *
 * Joints are counted from 0. Most getters do not bound the joint, as their text says: a joint that the robot does not
 * have gives a number without meaning, and 0 where the mirror ends.
 *
 * Frames. The base frame stands at the foot of the robot, the flange frame on its last joint. The TCP frame is the
 * flange frame moved by the tool. A pose is a position x, y, z and an orientation rx, ry, rz: Euler angles, with
 * rotation Rz(rz) * Ry(ry) * Rx(rx).
 *
 * Units. Angles are in degrees, joint speeds in degrees per second, joint accelerations in degrees per second squared.
 * The unit of position is the control box's; the library scales nothing. Commanded is what the control box asks of the
 * drives, measured is what the drives report.
 *
 * The mirror has no lock: a frame that arrives meanwhile may show in part, so the values of one call can come from two
 * frames. It stands still when the data link is lost, and getters go on answering from it. Before the first frame it is
 * all zero, and no robot exists.
 *
 * Each getter has a local form without cbox_id, which reads the control box that was asked last, by any thread. So two
 * threads that read different control boxes at the same moment can read each other's. Every local form returns what its
 * getter does, with QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
#ifndef QORIN_ROBOT_STATUS_H
#define QORIN_ROBOT_STATUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Model of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] model  a QORIN_ROBOT_MODEL value.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_model_name_get(unsigned int cbox_id, unsigned int robot_id,
                                                          QORIN_ROBOT_MODEL* model);

/**
 * Number of joints of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] count  number of joints, at most 6.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_number_of_joints_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int* count);

/**
 * Servo power of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] servo_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_servo_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_SWITCH* servo_switch);

/**
 * Drive control mode of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] mode  a QORIN_DRIVE_CONTROL_MODE value.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_control_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_DRIVE_CONTROL_MODE* mode);

/**
 * Whether a robot is under velocity control.
 *
 * Made from the drive control mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] control_switch  on when the drive control mode is QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE or
 * QORIN_DRIVE_CONTROL_MODE_VELOCITY, else off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_velocity_control_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH* control_switch);

/**
 * Whether a robot can be led by hand.
 *
 * Made from the drive control mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] teaching_switch  on when the drive control mode is QORIN_DRIVE_CONTROL_MODE_TORQUE, else off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_direct_teaching_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      QORIN_SWITCH* teaching_switch);

/**
 * Joint chaser of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  on while the robot follows streamed joint angles, else off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_state_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH* state);

/**
 * Motion state of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  a QORIN_MOVING_STATE value.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_state_moving_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_MOVING_STATE* state);

/**
 * Name of the motion command that a robot runs.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] name  [32 text] the name with its NUL; room for 32 bytes must be there. Bytes behind the NUL stay
 * untouched.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_current_motion_name_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   char* name);

/**
 * Speed override of a robot.
 *
 * It scales the speed of the motions of the robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_factor  override factor.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_speed_factor_get(unsigned int cbox_id, unsigned int robot_id,
                                                            double* speed_factor);

/**
 * Automatic adjustment of acceleration and deceleration of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] adjustment_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_acc_dec_auto_adjustment_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH* adjustment_switch);

/**
 * Whether a robot reports weaving as events.
 *
 * The switch is set on a motion command, and read back from the robot that runs it.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] event_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH* event_switch);

/**
 * Mount angles of a robot.
 *
 * In the order in which qorin_rpc_robot_installation_mount_set takes them.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] mount_1  first mount angle, in the unit in which it was set.
 * @param[out] mount_2  second mount angle, in the unit in which it was set.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_installation_mount_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* mount_1, double* mount_2);

/**
 * Payload of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] mass  mass in kilograms.
 * @param[out] center_x  centre of mass along x.
 * @param[out] center_y  centre of mass along y.
 * @param[out] center_z  centre of mass along z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_payload_get(unsigned int cbox_id, unsigned int robot_id, double* mass,
                                                           double* center_x, double* center_y, double* center_z);

/**
 * TCP of a robot relative to its flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                               double* y, double* z, double* rx, double* ry,
                                                               double* rz);

/**
 * Commanded pose of the TCP of a robot, in the base frame.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_pose_command_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                                double* y, double* z, double* rx, double* ry,
                                                                double* rz);

/**
 * Measured pose of the TCP of a robot, in the base frame.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_pose_actual_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                               double* y, double* z, double* rx, double* ry,
                                                               double* rz);

/**
 * Commanded pose of the flange of a robot, in the base frame.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_flange_pose_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   double* x, double* y, double* z, double* rx,
                                                                   double* ry, double* rz);

/**
 * Measured pose of the flange of a robot, in the base frame.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_flange_pose_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* x, double* y, double* z, double* rx,
                                                                  double* ry, double* rz);

/**
 * Commanded translation speed of the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  speed along x.
 * @param[out] y  speed along y.
 * @param[out] z  speed along z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_pos_speed_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     double* x, double* y, double* z);

/**
 * Commanded rotation speed of the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] rx  speed about x.
 * @param[out] ry  speed about y.
 * @param[out] rz  speed about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_ort_speed_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     double* rx, double* ry, double* rz);

/**
 * Measured translation speed of the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  speed along x.
 * @param[out] y  speed along y.
 * @param[out] z  speed along z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_pos_speed_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    double* x, double* y, double* z);

/**
 * Measured rotation speed of the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] rx  speed about x.
 * @param[out] ry  speed about y.
 * @param[out] rz  speed about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_ort_speed_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    double* rx, double* ry, double* rz);

/**
 * Commanded angle of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle  angle in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_angle_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int joint, double* angle);

/**
 * Measured angle of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle  angle in degrees.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_angle_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint, double* angle);

/**
 * Commanded speed of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed  speed in degrees per second.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_speed_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int joint, double* speed);

/**
 * Measured speed of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed  speed in degrees per second.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_speed_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint, double* speed);

/**
 * Commanded acceleration of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc  acceleration in degrees per second squared.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_acc_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int joint, double* acc);

/**
 * Measured acceleration of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc  acceleration in degrees per second squared.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_acc_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double* acc);

/**
 * Measured torque of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] torque  torque that the drive reports, in the control box's unit.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_torque_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int joint, double* torque);

/**
 * Target of velocity control for a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] velocity  speed in degrees per second.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int joint, double* velocity);

/**
 * Target of velocity control for a joint, in revolutions per minute.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] velocity  speed in revolutions per minute.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_rpm_get(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double* velocity);

/**
 * Acceleration target of velocity control for a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] acceleration  acceleration in degrees per second squared.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_get(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double* acceleration);

/**
 * Acceleration target of velocity control for a joint, in revolutions per minute.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] acceleration  acceleration in revolutions per minute, per second.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_rpm_get(unsigned int cbox_id,
                                                                             unsigned int robot_id, unsigned int joint,
                                                                             double* acceleration);

/**
 * Temperature of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] temperature  temperature, as the drive gives it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_temperature_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int joint, double* temperature);

/**
 * Voltage of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] voltage  voltage, as the drive gives it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_voltage_get(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int joint, double* voltage);

/**
 * Current of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] current  current, as the drive gives it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_current_get(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int joint, double* current);

/**
 * Error words of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] code_1  first word.
 * @param[out] code_2  second word.
 * @param[out] code_3  third word.
 * @param[out] code_4  fourth word.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_error_code_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, unsigned short* code_1,
                                                                unsigned short* code_2, unsigned short* code_3,
                                                                unsigned short* code_4);

/**
 * Friction feed rate of a joint in the dynamics model.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] feedrate  feed rate.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_dynamics_friction_feedrate_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned int joint, double* feedrate);

/**
 * Velocity feed-forward ratio of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] ratio  ratio of the velocity feed-forward, as the control box scales it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_joint_velocity_feedforward_ratio_get(unsigned int cbox_id,
                                                                                   unsigned int robot_id,
                                                                                   unsigned int joint, double* ratio);

/**
 * Torque feed-forward ratio of the drive of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] ratio  ratio of the torque feed-forward, as the control box scales it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_ratio_get(unsigned int cbox_id,
                                                                                 unsigned int robot_id,
                                                                                 unsigned int joint, double* ratio);

/**
 * Specified limit of the TCP speed of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_max  largest speed.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_spec_tcp_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  double* speed_max);

/**
 * Specified limit of the TCP acceleration of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] acc_max  largest acceleration.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_spec_tcp_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                double* acc_max);

/**
 * Specified angle range of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle_1  one end of the range, in degrees; the one that the control box sends second.
 * @param[out] angle_2  the other end, in degrees; the one that the control box sends first.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_spec_joint_angle_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double* angle_1, double* angle_2);

/**
 * Specified speed limit of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed_max  largest speed, in degrees per second.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_spec_joint_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    unsigned int joint, double* speed_max);

/**
 * Specified acceleration limit of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc_max  largest acceleration, in degrees per second squared.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_spec_joint_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint, double* acc_max);

/**
 * The same as qorin_rpc_robot_model_name_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] model  a QORIN_ROBOT_MODEL value.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_model_name_get(unsigned int robot_id, QORIN_ROBOT_MODEL* model);

/**
 * The same as qorin_rpc_robot_number_of_joints_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] count  number of joints, at most 6.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_number_of_joints_get(unsigned int robot_id, unsigned int* count);

/**
 * The same as qorin_rpc_robot_servo_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] servo_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_servo_switch_get(unsigned int robot_id, QORIN_SWITCH* servo_switch);

/**
 * The same as qorin_rpc_robot_control_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] mode  a QORIN_DRIVE_CONTROL_MODE value.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_control_mode_get(unsigned int robot_id, QORIN_DRIVE_CONTROL_MODE* mode);

/**
 * The same as qorin_rpc_robot_velocity_control_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] control_switch  on when the drive control mode is QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE or
 * QORIN_DRIVE_CONTROL_MODE_VELOCITY, else off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_velocity_control_switch_get(unsigned int robot_id, QORIN_SWITCH* control_switch);

/**
 * The same as qorin_rpc_robot_direct_teaching_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] teaching_switch  on when the drive control mode is QORIN_DRIVE_CONTROL_MODE_TORQUE, else off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_direct_teaching_switch_get(unsigned int robot_id, QORIN_SWITCH* teaching_switch);

/**
 * The same as qorin_rpc_robot_joint_chaser_state_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  on while the robot follows streamed joint angles, else off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_chaser_state_get(unsigned int robot_id, QORIN_SWITCH* state);

/**
 * The same as qorin_rpc_robot_state_moving_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  a QORIN_MOVING_STATE value.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_state_moving_get(unsigned int robot_id, QORIN_MOVING_STATE* state);

/**
 * The same as qorin_rpc_robot_current_motion_name_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] name  [32 text] the name with its NUL; room for 32 bytes must be there. Bytes behind the NUL stay
 * untouched.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_current_motion_name_get(unsigned int robot_id, char* name);

/**
 * The same as qorin_rpc_robot_speed_factor_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_factor  override factor.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_speed_factor_get(unsigned int robot_id, double* speed_factor);

/**
 * The same as qorin_rpc_robot_acc_dec_auto_adjustment_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] adjustment_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_acc_dec_auto_adjustment_get(unsigned int robot_id,
                                                                   QORIN_SWITCH* adjustment_switch);

/**
 * The same as qorin_rpc_motion_command_robot_weaving_event_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] event_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_weaving_event_get(unsigned int robot_id,
                                                                        QORIN_SWITCH* event_switch);

/**
 * The same as qorin_rpc_robot_installation_mount_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] mount_1  first mount angle, in the unit in which it was set.
 * @param[out] mount_2  second mount angle, in the unit in which it was set.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_installation_mount_get(unsigned int robot_id, double* mount_1, double* mount_2);

/**
 * The same as qorin_rpc_robot_tcp_payload_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] mass  mass in kilograms.
 * @param[out] center_x  centre of mass along x.
 * @param[out] center_y  centre of mass along y.
 * @param[out] center_z  centre of mass along z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_payload_get(unsigned int robot_id, double* mass, double* center_x,
                                                       double* center_y, double* center_z);

/**
 * The same as qorin_rpc_robot_tcp_from_flange_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_from_flange_get(unsigned int robot_id, double* x, double* y, double* z,
                                                           double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_tcp_pose_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_pose_command_get(unsigned int robot_id, double* x, double* y, double* z,
                                                            double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_tcp_pose_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_pose_actual_get(unsigned int robot_id, double* x, double* y, double* z,
                                                           double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_flange_pose_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_flange_pose_command_get(unsigned int robot_id, double* x, double* y, double* z,
                                                               double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_flange_pose_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  position along x.
 * @param[out] y  position along y.
 * @param[out] z  position along z.
 * @param[out] rx  rotation about x, in degrees.
 * @param[out] ry  rotation about y, in degrees.
 * @param[out] rz  rotation about z, in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_flange_pose_actual_get(unsigned int robot_id, double* x, double* y, double* z,
                                                              double* rx, double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_tcp_pos_speed_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  speed along x.
 * @param[out] y  speed along y.
 * @param[out] z  speed along z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_pos_speed_command_get(unsigned int robot_id, double* x, double* y,
                                                                 double* z);

/**
 * The same as qorin_rpc_robot_tcp_ort_speed_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] rx  speed about x.
 * @param[out] ry  speed about y.
 * @param[out] rz  speed about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_ort_speed_command_get(unsigned int robot_id, double* rx, double* ry,
                                                                 double* rz);

/**
 * The same as qorin_rpc_robot_tcp_pos_speed_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  speed along x.
 * @param[out] y  speed along y.
 * @param[out] z  speed along z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_pos_speed_actual_get(unsigned int robot_id, double* x, double* y, double* z);

/**
 * The same as qorin_rpc_robot_tcp_ort_speed_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] rx  speed about x.
 * @param[out] ry  speed about y.
 * @param[out] rz  speed about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_ort_speed_actual_get(unsigned int robot_id, double* rx, double* ry,
                                                                double* rz);

/**
 * The same as qorin_rpc_robot_joint_angle_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle  angle in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_angle_command_get(unsigned int robot_id, unsigned int joint,
                                                               double* angle);

/**
 * The same as qorin_rpc_robot_joint_angle_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle  angle in degrees.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_angle_actual_get(unsigned int robot_id, unsigned int joint, double* angle);

/**
 * The same as qorin_rpc_robot_joint_speed_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed  speed in degrees per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_speed_command_get(unsigned int robot_id, unsigned int joint,
                                                               double* speed);

/**
 * The same as qorin_rpc_robot_joint_speed_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed  speed in degrees per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_speed_actual_get(unsigned int robot_id, unsigned int joint, double* speed);

/**
 * The same as qorin_rpc_robot_joint_acc_command_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc  acceleration in degrees per second squared.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_acc_command_get(unsigned int robot_id, unsigned int joint, double* acc);

/**
 * The same as qorin_rpc_robot_joint_acc_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc  acceleration in degrees per second squared.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_acc_actual_get(unsigned int robot_id, unsigned int joint, double* acc);

/**
 * The same as qorin_rpc_robot_joint_torque_actual_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] torque  torque that the drive reports, in the control box's unit.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_torque_actual_get(unsigned int robot_id, unsigned int joint,
                                                               double* torque);

/**
 * The same as qorin_rpc_robot_joint_target_velocity_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] velocity  speed in degrees per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_target_velocity_get(unsigned int robot_id, unsigned int joint,
                                                                 double* velocity);

/**
 * The same as qorin_rpc_robot_joint_target_velocity_rpm_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] velocity  speed in revolutions per minute.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_target_velocity_rpm_get(unsigned int robot_id, unsigned int joint,
                                                                     double* velocity);

/**
 * The same as qorin_rpc_robot_joint_target_acceleration_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] acceleration  acceleration in degrees per second squared.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_target_acceleration_get(unsigned int robot_id, unsigned int joint,
                                                                     double* acceleration);

/**
 * The same as qorin_rpc_robot_joint_target_acceleration_rpm_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] acceleration  acceleration in revolutions per minute, per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_target_acceleration_rpm_get(unsigned int robot_id, unsigned int joint,
                                                                         double* acceleration);

/**
 * The same as qorin_rpc_robot_joint_temperature_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] temperature  temperature, as the drive gives it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_temperature_get(unsigned int robot_id, unsigned int joint,
                                                             double* temperature);

/**
 * The same as qorin_rpc_robot_joint_voltage_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] voltage  voltage, as the drive gives it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_voltage_get(unsigned int robot_id, unsigned int joint, double* voltage);

/**
 * The same as qorin_rpc_robot_joint_current_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] current  current, as the drive gives it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_current_get(unsigned int robot_id, unsigned int joint, double* current);

/**
 * The same as qorin_rpc_robot_joint_error_code_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] code_1  first word.
 * @param[out] code_2  second word.
 * @param[out] code_3  third word.
 * @param[out] code_4  fourth word.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_joint_error_code_get(unsigned int robot_id, unsigned int joint,
                                                            unsigned short* code_1, unsigned short* code_2,
                                                            unsigned short* code_3, unsigned short* code_4);

/**
 * The same as qorin_rpc_robot_dynamics_friction_feedrate_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] feedrate  feed rate.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_dynamics_friction_feedrate_get(unsigned int robot_id, unsigned int joint,
                                                                      double* feedrate);

/**
 * The same as qorin_rpc_ts_robot_joint_velocity_feedforward_ratio_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] ratio  ratio of the velocity feed-forward, as the control box scales it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_ts_robot_joint_velocity_feedforward_ratio_get(unsigned int robot_id,
                                                                               unsigned int joint, double* ratio);

/**
 * The same as qorin_rpc_ts_robot_joint_torque_feedforward_ratio_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] ratio  ratio of the torque feed-forward, as the control box scales it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_ts_robot_joint_torque_feedforward_ratio_get(unsigned int robot_id, unsigned int joint,
                                                                             double* ratio);

/**
 * The same as qorin_rpc_robot_spec_tcp_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_max  largest speed.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_spec_tcp_speed_max_get(unsigned int robot_id, double* speed_max);

/**
 * The same as qorin_rpc_robot_spec_tcp_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] acc_max  largest acceleration.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_spec_tcp_acc_max_get(unsigned int robot_id, double* acc_max);

/**
 * The same as qorin_rpc_robot_spec_joint_angle_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle_1  one end of the range, in degrees; the one that the control box sends second.
 * @param[out] angle_2  the other end, in degrees; the one that the control box sends first.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_spec_joint_angle_get(unsigned int robot_id, unsigned int joint, double* angle_1,
                                                            double* angle_2);

/**
 * The same as qorin_rpc_robot_spec_joint_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed_max  largest speed, in degrees per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_spec_joint_speed_max_get(unsigned int robot_id, unsigned int joint,
                                                                double* speed_max);

/**
 * The same as qorin_rpc_robot_spec_joint_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc_max  largest acceleration, in degrees per second squared.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_spec_joint_acc_max_get(unsigned int robot_id, unsigned int joint,
                                                              double* acc_max);

/**
 * Software version of the drive of a joint.
 *
 * Reads the control box that was asked last; there is no form with cbox_id.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @return the text, in the status mirror: NUL-terminated, valid until the process ends, changed by later frames. Null
 * when the robot does not exist or no control box is connected.
 */
QORIN_API const char* qorin_robot_joint_sw_version_get(unsigned int robot_id, unsigned int joint);

QORIN_API_C_END

#endif
