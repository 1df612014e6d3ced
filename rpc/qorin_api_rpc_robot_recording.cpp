// Recordings of motion, kept on the control box.
#include "qorin/robot_recording.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_recording_create(unsigned int cbox_id, unsigned int robot_id, unsigned int* buffer_id)
{
    return command<"qorin_robot_recording_create">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_create_from_file(unsigned int cbox_id, unsigned int robot_id,
                                                            const char* file, unsigned int* buffer_id)
{
    return command<"qorin_robot_recording_create_from_file">(cbox_id, robot_id, file, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_destroy(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer_id)
{
    return command<"qorin_robot_recording_destroy">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_buffer_memory_optimize(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int buffer_id)
{
    return command<"qorin_robot_recording_buffer_memory_optimize">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_start(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_recording_start">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_end(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer_id)
{
    return command<"qorin_robot_recording_end">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_end_without_error_check(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int buffer_id)
{
    return command<"qorin_robot_recording_end_without_error_check">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_trim(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer_id)
{
    return command<"qorin_robot_recording_trim">(cbox_id, robot_id, buffer_id);
}

QORIN_API_RESULT qorin_rpc_robot_recording_interpolate(unsigned int cbox_id, unsigned int robot_id,
                                                       unsigned int buffer_id,
                                                       QORIN_RECORDING_INTERPOLATION interpolation,
                                                       unsigned int value_1, double value_2, unsigned int* result)
{
    return command<"qorin_robot_recording_interpolate">(cbox_id, robot_id, buffer_id, interpolation, value_1, value_2,
                                                        result);
}

QORIN_API_RESULT qorin_rpc_robot_recording_playback(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer_id,
                                                    unsigned int* result)
{
    return command<"qorin_robot_recording_playback">(cbox_id, robot_id, buffer_id, result);
}

QORIN_API_RESULT qorin_rpc_robot_recording_file_save(unsigned int cbox_id, unsigned int robot_id,
                                                     unsigned int buffer_id, const char* file)
{
    return command<"qorin_robot_recording_file_save">(cbox_id, robot_id, buffer_id, file);
}

QORIN_API_RESULT qorin_rpc_robot_recording_angle_start_get(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int buffer_id, unsigned int joint, double* angle)
{
    return command<"qorin_robot_recording_angle_start_get">(cbox_id, robot_id, buffer_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_robot_recording_angle_end_get(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int buffer_id, unsigned int joint, double* angle)
{
    return command<"qorin_robot_recording_angle_end_get">(cbox_id, robot_id, buffer_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_robot_recording_angle_start_from_file_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     const char* file, unsigned int joint,
                                                                     double* angle)
{
    return command<"qorin_robot_recording_angle_start_from_file_get">(cbox_id, robot_id, file, joint, angle);
}

QORIN_API_RESULT qorin_rpc_robot_recording_angle_end_from_file_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   const char* file, unsigned int joint, double* angle)
{
    return command<"qorin_robot_recording_angle_end_from_file_get">(cbox_id, robot_id, file, joint, angle);
}
