#ifndef API_INTERNAL_ROBOT_STATE_H
#define API_INTERNAL_ROBOT_STATE_H

#include "qorin/result.h"

/**
 * What local getters of a robot ask and only the control software knows. The connection layer answers for the client:
 * no dry run, no motion command, and recorded angles that are OK and stay unwritten.
 */
[[nodiscard]] bool is_dry_run(unsigned int robot_id);
[[nodiscard]] void* qorin_internal_get_motion_command(int command_id, QORIN_API_RESULT& result);
QORIN_API_RESULT qorin_internal_robot_recording_angle_start_get(unsigned int robot_id, unsigned int buffer_id,
                                                                unsigned int joint, double* angle);
QORIN_API_RESULT qorin_internal_robot_recording_angle_end_get(unsigned int robot_id, unsigned int buffer_id,
                                                              unsigned int joint, double* angle);
QORIN_API_RESULT qorin_internal_robot_recording_angle_start_from_file_get(unsigned int robot_id, const char* file,
                                                                          unsigned int joint, double* angle);
QORIN_API_RESULT qorin_internal_robot_recording_angle_end_from_file_get(unsigned int robot_id, const char* file,
                                                                        unsigned int joint, double* angle);

#endif
