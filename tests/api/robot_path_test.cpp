#include "qorin/robot_path.h"

#include <array>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qorin/enumerations.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"
#include "tests/support/robot_presence.h"

namespace
{
using test_support::read_file;
using test_support::write_file;

/// A control box with robot 1, which this process knows, and a directory.
class robot_path : public testing::Test
{
protected:
    robot_path() { test_support::make_robot_present(1); }

    /// The frame stands at (100, 0, 0) and is turned by 90 degrees about z.
    QORIN_API_RESULT convert_file(unsigned int robot_id = 1) const
    {
        return qorin_rpc_robot_util_common_to_base_coordinate_convert(box.id, robot_id, input.c_str(), output.c_str(),
                                                                      100, 0, 0, 0, 0, 90);
    }

    const test_support::installation place;
    const test_support::connected_box box;
    protocol::shared_data_t& frame = *qorin_api_rpc::get_cbox(box.id)->get_shared_data();
    const std::string input = place.directory() / "in.txt";
    const std::string output = place.directory() / "out.txt";
};

TEST_F(robot_path, a_file_is_converted_line_by_line)
{
    // Single precision on the way in, six significant digits on the way out; what follows a pose is ignored.
    write_file(input, "1,2,3,0,0,0\n 10.5, 0, -4.25, 30, 0, 10\r\n16777217,0,0,0,0,0,7\n");
    write_file(output, "what stood here before");
    EXPECT_EQ(QORIN_API_RESULT_OK, convert_file());
    EXPECT_EQ("98, 1, 3, 0, -0, 90\n100, 10.5, -4.25, 30, -0, 100\n100, 1.67772e+07, 0, 0, -0, 90\n",
              read_file(output));
    write_file(input, "");
    EXPECT_EQ(QORIN_API_RESULT_OK, convert_file());
    EXPECT_EQ("", read_file(output));
    EXPECT_TRUE(std::filesystem::exists(output));
}

TEST_F(robot_path, a_bad_field_reaches_the_caller_behind_the_lines_that_were_good)
{
    for (const char* const line : {"1,2,x,4,5,6", "1,2,3,4,5", "", "1,2,3,4,5,6,x"})
    {
        write_file(input, "1,2,3,0,0,0\n" + std::string(line) + "\n1,2,3,0,0,0\n");
        try
        {
            convert_file();
            ADD_FAILURE() << line;
        }
        catch (const std::invalid_argument& failure)
        {
            EXPECT_STREQ("stof", failure.what());
        }
        EXPECT_EQ("98, 1, 3, 0, -0, 90\n", read_file(output)) << line;
    }
    write_file(input, "1e99,2,3,4,5,6\n");
    EXPECT_THROW(convert_file(), std::out_of_range);
}

TEST_F(robot_path, files_that_do_not_open_are_refused_and_the_old_output_is_lost)
{
    write_file(output, "what stood here before");
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, convert_file(0));
    EXPECT_NE("", read_file(output)) << "the robot is judged first";
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE, convert_file());
    EXPECT_EQ("", read_file(output));

    write_file(input, "1,2,3,0,0,0\n");
    std::filesystem::remove(output);
    std::filesystem::create_directories(output + "/taken");
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE, convert_file());
}

TEST_F(robot_path, orientations_and_quaternions_turn_into_each_other)
{
    std::array<double, 4> q = {};
    ASSERT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_robot_tcp_quaternion_from_orientation_get(box.id, 0, 0, 90, &q[0], &q[1], &q[2], &q[3]));
    for (std::size_t i = 0; i < q.size(); ++i)
        EXPECT_NEAR((std::array{0., 0., std::sqrt(0.5), std::sqrt(0.5)}[i]), q[i], 1e-12);

    ASSERT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_robot_tcp_quaternion_from_orientation_get(box.id, 20, -30, 140, &q[0], &q[1], &q[2], &q[3]));
    std::array<double, 3> r = {};
    ASSERT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_robot_tcp_orientation_from_quaternion_get(box.id, q[0], q[1], q[2], q[3], &r[0], &r[1], &r[2]));
    for (std::size_t i = 0; i < r.size(); ++i)
        EXPECT_NEAR((std::array{20., -30., 140.}[i]), r[i], 1e-9);
}

TEST_F(robot_path, a_circle_is_divided_behind_its_first_point_and_in_the_sense_of_the_three)
{
    const double p1[] = {11, 0, 5};
    const double p2[] = {10, 1, 5};
    const double p3[] = {9, 0, 5};
    std::array<double, 10> points;
    points.fill(-7);
    ASSERT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tcp_divide_circumference_get(box.id, p1, p2, p3, 4, points.data()));
    const std::array<double, 10> quarters = {10, 1, 5, 9, 0, 5, 10, -1, 5, -7};
    for (std::size_t i = 0; i < quarters.size(); ++i)
        EXPECT_NEAR(quarters[i], points[i], 1e-9);
    ASSERT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tcp_divide_circumference_get(box.id, p3, p2, p1, 2, points.data()));
    EXPECT_NEAR(11, points[0], 1e-9);
    EXPECT_NEAR(9, points[3], 1e-9) << "one point alone is written";

    const double flat[] = {10, 1e-9, 5};
    const double huge[][3] = {{3e16, 1e15, 7e15}, {1e16, 5e16, 2e15}, {-2e16, 4e15, 9e16}}; // lost in rounding
    const struct
    {
        const double* points[3];
        int count;
        QORIN_API_RESULT result;
    } refusals[] = {
        {{p1, p1, p1}, 1, QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE},
        {{p1, p1, p1}, 181, QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE},
        {{p1, p1, p1}, 180, QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE},
        {{p1, flat, p3}, 2, QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE},
        {{huge[0], huge[1], huge[2]}, 2, QORIN_API_RESULT_ERROR_ROBOT_OUTER_CIRCLE_NOT_FOUND},
    };
    for (const auto& [three, count, result] : refusals)
        EXPECT_EQ(result, qorin_rpc_robot_tcp_divide_circumference_get(box.id, three[0], three[1], three[2], count,
                                                                       points.data()));
}

TEST_F(robot_path, a_conveyor_offset_is_the_way_to_its_speed)
{
    double offset = -1;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_conveyor_offset_calculate(box.id, 1, &offset, 30, 100));
    EXPECT_DOUBLE_EQ(4.5, offset);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_conveyor_offset_calculate(box.id, 1, &offset, 30, 0));
    EXPECT_TRUE(std::isinf(offset));
    offset = -1;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID,
              qorin_rpc_robot_conveyor_offset_calculate(box.id, 0, &offset, 30, 100));
    EXPECT_EQ(-1, offset);
}

TEST_F(robot_path, the_speed_of_the_encoder_in_use_is_a_median_without_spikes)
{
    frame.conveyor_encoder_index = 1;
    frame.conveyor_encoders[1].scale_divisor = 4;
    frame.conveyor_encoders[1].scale_factor = 2;
    auto& module = protocol::record_at<protocol::io_module_data_t>(frame, 0);
    module.conveyor_encoder_rate_0 = 1e6;
    module.conveyor_encoder_rate_1 = -60;
    const auto measure = [&](unsigned int robot_id, double* offset)
    { return qorin_rpc_robot_conveyor_offset_calculate_with_encoder(box.id, robot_id, offset, 100); };

    double offset = -1;
    const auto begin = std::chrono::steady_clock::now();
    frame.conveyor_encoder_switch = QORIN_SWITCH_OFF;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, measure(0, &offset));
    EXPECT_EQ(QORIN_API_RESULT_WARNING_ROBOT_CONVEYOR_ENCODER_NOT_SETTING, measure(1, &offset));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(45)) << "at once";
    EXPECT_EQ(-1, offset);

    frame.conveyor_encoder_switch = QORIN_SWITCH_ON;
    EXPECT_EQ(QORIN_API_RESULT_OK, measure(1, &offset));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(350));
    EXPECT_DOUBLE_EQ(4.5, offset);

    module.conveyor_encoder_rate_1 = 1e9; // for the first samples
    std::thread encoder(
        [&]
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            module.conveyor_encoder_rate_1 = 60;
        });
    EXPECT_EQ(QORIN_API_RESULT_OK, measure(1, &offset));
    encoder.join();
    EXPECT_DOUBLE_EQ(4.5, offset);
}
} // namespace
