#include "qorin/robot_path.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_util_common_to_base_coordinate_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                        const char* input_file, const char* output_file,
                                                                        double x, double y, double z, double rx,
                                                                        double ry, double rz)
{
    return from_mirror(cbox_id, qorin_robot_util_common_to_base_coordinate_convert, robot_id, input_file, output_file,
                       x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_quaternion_from_orientation_get(unsigned int cbox_id, double rx, double ry,
                                                                     double rz, double* x, double* y, double* z,
                                                                     double* w)
{
    return from_mirror(cbox_id, qorin_robot_tcp_quaternion_from_orientation_get, rx, ry, rz, x, y, z, w);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_orientation_from_quaternion_get(unsigned int cbox_id, double x, double y, double z,
                                                                     double w, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_orientation_from_quaternion_get, x, y, z, w, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_divide_circumference_get(unsigned int cbox_id, const double* point_1,
                                                              const double* point_2, const double* point_3,
                                                              int division_count, double* points)
{
    return from_mirror(cbox_id, qorin_robot_tcp_divide_circumference_get, point_1, point_2, point_3, division_count,
                       points);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_calculate(unsigned int cbox_id, unsigned int robot_id, double* offset,
                                                           double speed, double acceleration)
{
    return from_mirror(cbox_id, qorin_robot_conveyor_offset_calculate, robot_id, offset, speed, acceleration);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_calculate_with_encoder(unsigned int cbox_id, unsigned int robot_id,
                                                                        double* offset, double acceleration)
{
    return from_mirror(cbox_id, qorin_robot_conveyor_offset_calculate_with_encoder, robot_id, offset, acceleration);
}
