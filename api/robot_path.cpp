#include "qorin/robot_path.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "api/frame_read.h"
#include "qorin/enumerations.h"
#include "savrent/cc/math/custum_util.h"
#include "savrent/cc/os_util.h"

namespace
{
using protocol::conveyor_encoder_data_t;
using protocol::io_module_data_t;
using protocol::shared_data_t;
using qorin_api::read_frame_of_robot;
using savrent::cc::math::matrix3;
using savrent::cc::math::matrix4;
using savrent::cc::math::quaternion;
using savrent::cc::math::vector3;
using savrent::cc::math_savrent::custum_util;

constexpr int division_min = 2;
constexpr int division_max = 180;
constexpr std::size_t speed_samples = 7; // odd, so that one stands in the middle
constexpr auto speed_sample_pause = std::chrono::milliseconds(50);

/**
 * The pose in a line of a file: x, y, z, rx, ry, rz and commas between them, in single precision. Fields behind these
 * are read as numbers and ignored.
 *
 * @throws std::invalid_argument when a field is missing or no number, std::out_of_range when it does not fit a float
 */
matrix4 pose_of(const std::string& line)
{
    std::istringstream fields(line);
    std::string field;
    std::array<double, protocol::pose_size> numbers = {};
    for (double& number : numbers)
    {
        field.clear(); // what is missing counts as empty
        std::getline(fields, field, ',');
        number = std::stof(field);
    }
    while (std::getline(fields, field, ','))
        static_cast<void>(std::stof(field));

    matrix4 transformation;
    custum_util::convert_pose_to_trans_mat(vector3(&numbers[0]), vector3(&numbers[3]), transformation);
    return transformation;
}

void write_pose(std::ostream& output, const matrix4& transformation)
{
    vector3 position;
    vector3 orientation;
    custum_util::convert_trans_mat_to_pose(transformation, position, orientation);
    output << position.x << ", " << position.y << ", " << position.z << ", " << orientation.x << ", " << orientation.y
           << ", " << orientation.z << std::endl;
}

/// Distance that is covered while a robot reaches a speed from rest.
double run_up(double speed, double acceleration)
{
    return 0.5 * speed * speed / acceleration;
}

/// Speed of the conveyor: the median of some samples of the mirror, so that short spikes of the encoder do not count.
double measure_conveyor_speed(const shared_data_t& frame)
{
    const bool is_second = frame.conveyor_encoder_index != 0;
    const conveyor_encoder_data_t& encoder = frame.conveyor_encoders[is_second ? 1 : 0];
    const double divisor = encoder.scale_divisor;
    const double factor = encoder.scale_factor;
    const auto& module = protocol::record_at<io_module_data_t>(frame, 0);

    std::array<double, speed_samples> speeds = {};
    for (double& speed : speeds)
    {
        const double rate = is_second ? module.conveyor_encoder_rate_1 : module.conveyor_encoder_rate_0;
        speed = std::fabs(rate * factor / divisor);
        savrent::cc::os_util::sleep_for(speed_sample_pause);
    }
    std::sort(speeds.begin(), speeds.end());
    return speeds[speed_samples / 2];
}
} // namespace

QORIN_API_RESULT qorin_robot_util_common_to_base_coordinate_convert(unsigned int robot_id, const char* input_file,
                                                                    const char* output_file, double x, double y,
                                                                    double z, double rx, double ry, double rz)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    if (result != QORIN_API_RESULT_OK)
        return result;
    matrix4 frame;
    custum_util::convert_pose_to_trans_mat({x, y, z}, {rx, ry, rz}, frame);

    std::ifstream input(input_file);
    static_cast<void>(std::remove(output_file));
    std::ofstream output(output_file);
    if (!input.is_open() || !output.is_open())
        return QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE;
    for (std::string line; std::getline(input, line);)
        write_pose(output, frame * pose_of(line));
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_tcp_quaternion_from_orientation_get(double rx, double ry, double rz, double* x, double* y,
                                                                 double* z, double* w)
{
    quaternion q;
    custum_util::convert_euler_angle_to_quaternion({rx, ry, rz}, q);
    *x = q.x;
    *y = q.y;
    *z = q.z;
    *w = q.w;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_tcp_orientation_from_quaternion_get(double x, double y, double z, double w, double* rx,
                                                                 double* ry, double* rz)
{
    vector3 euler;
    custum_util::convert_quaternion_to_euler_angle(quaternion(w, x, y, z), euler);
    *rx = euler.x;
    *ry = euler.y;
    *rz = euler.z;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_tcp_divide_circumference_get(const double* point_1, const double* point_2,
                                                          const double* point_3, int division_count, double* points)
{
    if (division_count < division_min || division_count > division_max)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const vector3 p1(point_1);
    const vector3 p2(point_2);
    const vector3 p3(point_3);
    if (custum_util::is_straight_line_three_pts(p1, p2, p3))
        return QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE;
    vector3 centre;
    if (!custum_util::get_outer_circle_center(p1, p2, p3, centre))
        return QORIN_API_RESULT_ERROR_ROBOT_OUTER_CIRCLE_NOT_FOUND;

    const double step = 360.0 / division_count;
    const vector3 axis = (p2 - p1).crossProduct(p3 - p2).normalisedCopy();
    for (int i = 1; i < division_count; ++i)
    {
        matrix3 rotation;
        custum_util::convert_axis_angle_to_rot_mat(axis, i * step, rotation);
        const vector3 point = centre + rotation * (p1 - centre);
        points = std::copy_n(point.ptr(), 3, points);
    }
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_conveyor_offset_calculate(unsigned int robot_id, double* offset, double speed,
                                                       double acceleration)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    if (result == QORIN_API_RESULT_OK)
        *offset = run_up(speed, acceleration);
    return result;
}

QORIN_API_RESULT qorin_robot_conveyor_offset_calculate_with_encoder(unsigned int robot_id, double* offset,
                                                                    double acceleration)
{
    return read_frame_of_robot(robot_id,
                               [&](const shared_data_t& frame)
                               {
                                   if (frame.conveyor_encoder_switch == QORIN_SWITCH_OFF)
                                       return QORIN_API_RESULT_WARNING_ROBOT_CONVEYOR_ENCODER_NOT_SETTING;
                                   *offset = run_up(measure_conveyor_speed(frame), acceleration);
                                   return QORIN_API_RESULT_OK;
                               });
}
