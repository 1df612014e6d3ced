#ifndef API_INTERNAL_ROBOT_COMMON_H
#define API_INTERNAL_ROBOT_COMMON_H

#include "protocol/status_frame.h"
#include "qorin/result.h"

/**
 * Judges a robot id and hands out the robot's record in the mirror of the current control box.
 *
 * Takes no lock and writes no line. Any thread.
 *
 * @param robot_data  output; null when only the id is to be judged, and then the mirror is not looked at.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the id is above 1, has no robot that this
 *         process created, or is not below the mirror's robot count.
 */
QORIN_API_RESULT qorin_internal_robot_common_check(unsigned int robot_id, const protocol::robot_data_t** robot_data);

/// The same, and then the joint against the robot's number of joints:
/// QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE.
QORIN_API_RESULT qorin_internal_robot_common_check_with_joint(unsigned int robot_id, unsigned int joint,
                                                              const protocol::robot_data_t** robot_data);

#endif
