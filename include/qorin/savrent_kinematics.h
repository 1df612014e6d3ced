/**
 * @file savrent_kinematics.h
 * The C interface of a kinematics module: what a shared object must export so that the client library can compute with
 * the arms that it serves. Write a module of your own against this header and put it into the directory that the key
 * client.kinematics_path of config.ini names.
 *
 * Loading. The client opens every file of that directory whose name ends in ".so", or in ".so" and one more character
 * (an editor's "x.so~" too), asks it for its models, and keeps the first one that serves the model of the robot. The
 * directory must hold kinematics modules only: a file of such a name that is no shared object or lacks these symbols
 * ends the search for all models. All twelve functions have to be there.
 *
 * Units. Joint angles and orientations are in degrees, positions in the unit of the control box's poses; nobody scales
 * on the way. The arms that the shipped module knows are in millimetres; with a table of another unit it takes and
 * gives positions in that unit. An orientation is (rx, ry, rz) and stands for the rotation Rz(rz) * Ry(ry) * Rx(rx). A
 * pose is the pose of the flange seen from the robot's base; tools are the client's business.
 *
 * Shapes. A position and an orientation are 3 doubles each; a joint array has one double per joint, from the base to
 * the flange. The client's joint arrays hold 6 doubles, so a module may have up to 6 joints; one with more is passed
 * over. Arrays belong to the caller and are never kept. An input and an output may be the same array.
 *
 * Results. A char result of 1 is success, anything else failure; on failure outputs stay as they were.
 *
 * Threads. The client calls without any lock: solves of one instance may run at once in several threads. The shipped
 * module allows every call on every instance at any time, except that nothing may run on an instance while it is
 * destroyed.
 *
 * No function may let an exception out.
 */
#ifndef SAVRENT_KINEMATICS_H
#define SAVRENT_KINEMATICS_H

#include "qorin/enumerations.h"

/** Makes a symbol visible in a module that is built with hidden visibility. */
#define SAVRENT_KINEMATICS_EXPORT __attribute__((visibility("default")))

QORIN_API_C_BEGIN

/**
 * Tells how many robot models the module serves.
 *
 * Called on a file that is only a candidate, before any instance exists.
 *
 * @return Number of models: the length of the list of savrent_kinematics_get_model_name().
 */
SAVRENT_KINEMATICS_EXPORT int savrent_kinematics_get_num_of_models(void);

/**
 * Lists the robot models that the module serves.
 *
 * @param models  Out: one QORIN_ROBOT_MODEL value per model, as many as savrent_kinematics_get_num_of_models() tells.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_get_model_name(int* models);

/**
 * Tells the number of joints, which is one for all models of a module.
 *
 * @return Number of joints, 1 to 6. The shipped module: 6.
 */
SAVRENT_KINEMATICS_EXPORT int savrent_kinematics_get_num_of_joints(void);

/**
 * Makes an instance: the kinematics of one robot.
 *
 * The shipped module gives it the table of the first model of its list.
 *
 * @param handle  Out: the instance, to be freed with savrent_kinematics_destroy(). Null when memory is short.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_create(void** handle);

/**
 * Frees an instance.
 *
 * @param handle  The address of the instance. Null is stored there. An instance of null is left alone.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_destroy(void** handle);

/**
 * Selects the robot model of an instance; the client does so right after it has made it.
 *
 * The shipped module loads the model's Denavit-Hartenberg table; a model that it does not serve changes nothing.
 *
 * @param handle  The instance.
 * @param model   One of the models of savrent_kinematics_get_model_name().
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_set_model_name(void* handle, QORIN_ROBOT_MODEL model);

/**
 * Computes the flange pose of joint angles.
 *
 * The shipped module does so for every table. It gives ry within +-90 degrees, and rz = 0 where ry is at that limit.
 *
 * @param handle       The instance.
 * @param joints       Joint angles.
 * @param position     Out: x, y, z.
 * @param orientation  Out: rx, ry, rz.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_forward(void* handle, const double* joints, double* position,
                                                          double* orientation);

/**
 * Computes the joint angles of a flange pose that are nearest to a reference.
 *
 * The shipped module takes the solution with the least sum of squared joint differences, each joint within +-180
 * degrees of its reference, whatever the joint limits. Where a pose leaves a joint free (wrist straight, wrist centre
 * on the axis of joint 1 or 2) that joint (joint 4, 1 or 2) keeps its reference.
 *
 * @param handle            The instance.
 * @param position          x, y, z.
 * @param orientation       rx, ry, rz.
 * @param reference_joints  Joint angles to stay near to. The shipped module refuses values beyond +-36,000 degrees.
 * @param joints            Out: the joint angles. May be the array of reference_joints.
 * @return 1 when there is a solution; 0 when the pose is out of reach, a number is not finite, or the table has no
 * closed form (see savrent_kinematics_set_dh_parameter()).
 */
SAVRENT_KINEMATICS_EXPORT char savrent_kinematics_inverse(void* handle, const double* position,
                                                          const double* orientation, const double* reference_joints,
                                                          double* joints);

/**
 * Computes every solution for a flange pose.
 *
 * In the shipped module solution i is the one of the posture of value QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP + i, joints
 * lie within +-180 degrees, and joints that the pose leaves free are 0. In singular poses solutions coincide.
 *
 * @param handle       The instance.
 * @param position     x, y, z.
 * @param orientation  rx, ry, rz.
 * @param solutions    Out: 8 joint arrays, packed one after the other: 8 times the number of joints. The shipped module
 *                     fills the joints of a solution that does not exist with 0.
 * @param valid        Out: 8 flags: 1 when the solution of that place exists, 0 when not. All are written.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_inverse_all_solutions(void* handle, const double* position,
                                                                        const double* orientation, double* solutions,
                                                                        char* valid);

/**
 * Computes the joint angles of a flange pose in a given posture.
 *
 * Postures in the shipped module:
 * - Front: the wrist centre lies on that side of joint 1's axis to which the x axis of link 1 points. Rear: beyond it.
 * - Above: in the plane of upper arm and forearm, the elbow lies over the line from the shoulder to the wrist centre
 * when this line is laid level in the arm's own direction, ahead for front and behind for rear. Below: under it.
 * - Nonflip: the sine of joint 5's rotation, its angle plus theta of the table, is positive. Flip: negative.
 *
 * Joints lie within +-180 degrees; joints that the pose leaves free are 0. In singular poses postures coincide.
 *
 * @param handle       The instance.
 * @param position     x, y, z.
 * @param orientation  rx, ry, rz.
 * @param posture      3 flags: 0 front, 1 rear; 0 above, 1 below; 0 flip, 1 nonflip.
 * @param joints       Out: the joint angles.
 * @return 1 when there is a solution, 0 otherwise, as of savrent_kinematics_inverse().
 */
SAVRENT_KINEMATICS_EXPORT char savrent_kinematics_inverse_from_posture(void* handle, const double* position,
                                                                       const double* orientation, const char* posture,
                                                                       double* joints);

/**
 * Replaces the Denavit-Hartenberg table of an instance.
 *
 * Which array is which quantity is for the module to say: the client and the control box only keep their order, which
 * is that of dh_parameter_1 to dh_parameter_4 in the status frame. The shipped module takes the standard (distal) form,
 * the transform over joint i at joint angle q being Rz(q + theta) * Tz(d) * Tx(a) * Rx(alpha), with
 *
 *   first array    theta  degrees      added to the joint angle
 *   second array   d      millimetres  along the joint's axis
 *   third array    a      millimetres  along the link's x axis
 *   fourth array   alpha  degrees      twist about the link's x axis
 *
 * Its inverse is in closed form, for arms with a spherical wrist: alpha of joint 1 is +-90 degrees, alpha of joint 2 is
 * 0 or 180 degrees, alpha of joints 4 and 5 is +-90 degrees, a of joints 4 and 5 and d of joint 5 are 0, and upper arm
 * and forearm have a length. With any other table forward works on and every inverse is refused. A table with a number
 * that is not finite, or whose lengths are all 0, describes no arm and is ignored: the client hands over such a table
 * when it has created a robot and the status frame does not tell of its joints yet.
 *
 * @param handle       The instance.
 * @param parameter_1  First array, one double per joint.
 * @param parameter_2  Second array.
 * @param parameter_3  Third array.
 * @param parameter_4  Fourth array.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_set_dh_parameter(void* handle, const double* parameter_1,
                                                                   const double* parameter_2, const double* parameter_3,
                                                                   const double* parameter_4);

/**
 * Reads the Denavit-Hartenberg table of an instance, in the order and units of savrent_kinematics_set_dh_parameter().
 *
 * @param handle       The instance.
 * @param parameter_1  Out: first array, one double per joint.
 * @param parameter_2  Out: second array.
 * @param parameter_3  Out: third array.
 * @param parameter_4  Out: fourth array.
 */
SAVRENT_KINEMATICS_EXPORT void savrent_kinematics_get_dh_parameter(void* handle, double* parameter_1,
                                                                   double* parameter_2, double* parameter_3,
                                                                   double* parameter_4);

QORIN_API_C_END

#endif
