#include "qorin/robot_conversion.h"

#include <array>
#include <cmath>
#include <cstring>
#include <numbers>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "api/api_call_robot_internal_data.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"
#include "tests/support/module_directory.h"
#include "tests/support/robot_presence.h"

namespace
{
using joint_array = std::array<double, 6>;
using vector_array = std::array<double, 3>;

constexpr auto flange = QORIN_POSE_TYPE_FLANGE;
constexpr auto tcp = QORIN_POSE_TYPE_TCP;

/// Robot 1 of a control box whose mirror tells of a tool and of six joints.
class robot_conversion : public testing::Test
{
protected:
    robot_conversion()
    {
        frame.robot_count = 2;
        frame.robots[1].number_of_joints = 6;
        const double tool[6] = {100, 0, 0, 0, 0, 90};
        std::memcpy(&frame.robots[1].tcp_from_flange, tool, sizeof tool);
    }

    test_support::connected_box box;
    protocol::shared_data_t& frame = *qorin_api_rpc::get_cbox(box.id)->get_shared_data();
};

/**
 * The same with a module that records what it is asked. It answers joint angles (x, x + 1, ...) for a position x, y, z,
 * nothing for a negative x, and the position (j, j + 1, j + 2) for a first joint j.
 */
class recorded_conversion : public robot_conversion
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(place.config_path().c_str()));
        ASSERT_EQ(QORIN_API_RESULT_OK,
                  qorin_api::api_call_robot_internal_data::get_instance()->create(1, QORIN_ROBOT_MODEL_ARM_A));
        record.calls();
    }

    const test_support::installation place;
    test_support::module_record record{
        test_support::put_module(QORIN_RECORDING_MODULE, place.directory() / "kin", "module.so")};
    QORIN_API_RESULT solve(const vector_array& position)
    {
        return qorin_rpc_robot_util_pose_to_joint_angle_convert(box.id, 1, flange, reference.data(), position.data(),
                                                                orientation.data(), joints.data());
    }

    QORIN_API_RESULT approach(unsigned int steps, const vector_array& position)
    {
        return qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative(
            box.id, 1, flange, reference.data(), position.data(), orientation.data(), steps, joints.data());
    }

    const joint_array reference = {10, 20, 30, 40, 50, 60};
    const vector_array orientation = {7, 8, 9};
    std::array<double, 7> joints = {-1, -1, -1, -1, -1, -1, -1};
};

TEST_F(recorded_conversion, a_pose_that_is_solved_at_once_is_not_approached)
{
    EXPECT_EQ(QORIN_API_RESULT_OK, solve({5, 6, 7}));
    EXPECT_EQ("inverse 1 5,6,7 7,8,9 10,20,30,40,50,60;", record.calls());
    EXPECT_EQ((std::array{5., 6., 7., 8., 9., 10., -1.}), joints);
}

TEST_F(recorded_conversion, an_approach_ends_at_the_first_step_without_a_solution_and_writes_nothing)
{
    // From (10, 11, 12) the sixth of ten steps is at x = -0.8, rounded towards zero in the record.
    EXPECT_EQ(QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE, solve({-8, 11, 12}));
    EXPECT_EQ("inverse 1 -8,11,12 7,8,9 10,20,30,40,50,60;"
              "forward 1 10,20,30,40,50,60;"
              "inverse 1 8,11,12 7,8,9 10,20,30,40,50,60;"
              "inverse 1 6,11,12 7,8,9 8,9,10,11,12,13;"
              "inverse 1 4,11,12 7,8,9 6,7,8,9,10,11;"
              "inverse 1 2,11,12 7,8,9 4,5,6,7,8,9;"
              "inverse 1 1,11,12 7,8,9 2,3,4,5,6,7;"
              "inverse 1 0,11,12 7,8,9 1,2,3,4,5,6;",
              record.calls());
    EXPECT_EQ((std::array{-1., -1., -1., -1., -1., -1., -1.}), joints);
}

TEST_F(recorded_conversion, steps_are_counted_and_stand_on_a_straight_line)
{
    const auto approached = [&](unsigned int steps, const vector_array& position)
    {
        EXPECT_EQ(QORIN_API_RESULT_OK, approach(steps, position));
        return record.calls();
    };
    const std::string start = "forward 1 10,20,30,40,50,60;";
    EXPECT_EQ(start, approached(0, {50, 11, 12}));
    EXPECT_EQ((std::array{10., 20., 30., 40., 50., 60., -1.}), joints);
    EXPECT_EQ(start + "inverse 1 50,11,12 7,8,9 10,20,30,40,50,60;", approached(1, {50, 11, 12}));
    EXPECT_EQ((std::array{50., 51., 52., 53., 54., 55., -1.}), joints);
    EXPECT_EQ(start + "inverse 1 30,21,42 7,8,9 10,20,30,40,50,60;inverse 1 50,31,72 7,8,9 30,31,32,33,34,35;",
              approached(2, {50.001, 31.001, 72.001}));
    EXPECT_EQ(start + "inverse 1 10,11,12 7,8,9 10,20,30,40,50,60;inverse 1 10,11,12 7,8,9 10,11,12,13,14,15;",
              approached(2, {10, 11, 12}))
        << "no way to go";
}

TEST_F(recorded_conversion, an_approach_takes_the_joints_that_the_mirror_tells_at_most_six)
{
    frame.robots[1].number_of_joints = 2;
    EXPECT_EQ(QORIN_API_RESULT_OK, approach(1, {50, 11, 12}));
    EXPECT_EQ("forward 1 10,20,30,40,50,60;inverse 1 50,11,12 7,8,9 10,20,0,0,0,0;", record.calls());
    EXPECT_EQ((std::array{50., 51., -1., -1., -1., -1., -1.}), joints);
    frame.robots[1].number_of_joints = 4'000'000'000;
    EXPECT_EQ(QORIN_API_RESULT_OK, approach(1, {60, 11, 12}));
    EXPECT_EQ((std::array{60., 61., 62., 63., 64., 65., -1.}), joints);
}

TEST_F(recorded_conversion, all_solutions_and_a_posture_are_asked_for_the_flange)
{
    frame.robot_count = 0; // they need nothing of the mirror
    const vector_array position = {1, 2, 3};
    std::array<double, 48> solutions = {};
    bool valid[8] = {true};
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(
                                       box.id, 1, position.data(), orientation.data(), solutions.data(), valid));
    EXPECT_EQ(47, solutions[47]);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(i != 0, valid[i]);

    bool success = false;
    const auto solve_from_posture = [&](double x)
    {
        const vector_array at = {x, 2, 3};
        return qorin_rpc_robot_util_pose_to_posture_joint_angle_convert(
            box.id, 1, QORIN_ROBOT_POSTURE_FRONT_BELOW_FLIP, at.data(), orientation.data(), joints.data(), &success);
    };
    EXPECT_EQ(QORIN_API_RESULT_OK, solve_from_posture(1));
    EXPECT_TRUE(success);
    EXPECT_EQ(QORIN_API_RESULT_OK, solve_from_posture(-1)) << "no solution is no error";
    EXPECT_FALSE(success);
    EXPECT_EQ((std::array{1., 2., 3., 4., 5., 6., -1.}), joints);
    EXPECT_EQ("all 1 1,2,3 7,8,9;posture 1 1,2,3 7,8,9 010;posture 1 -1,2,3 7,8,9 010;", record.calls());
}

TEST_F(recorded_conversion, a_trajectory_interpolates_the_joints)
{
    const joint_array end = {30, 20, 30, 40, 50, 0};
    std::array<double, 4> x = {-1, -1, -1, -1};
    auto y = x;
    auto z = x;
    const auto trajectory = [&](unsigned int joint_count, unsigned int points)
    {
        return qorin_rpc_robot_util_position_trajectory_get(box.id, 1, joint_count, reference.data(), end.data(),
                                                            points, flange, x.data(), y.data(), z.data());
    };
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED, trajectory(5, 3));
    EXPECT_EQ(QORIN_API_RESULT_OK, trajectory(6, 0));
    EXPECT_EQ("", record.calls());
    EXPECT_EQ(-1, x[0]);

    EXPECT_EQ(QORIN_API_RESULT_OK, trajectory(6, 3));
    EXPECT_EQ("forward 1 10,20,30,40,50,60;forward 1 20,20,30,40,50,30;forward 1 30,20,30,40,50,0;", record.calls());
    EXPECT_EQ((std::array{10., 20., 30., -1.}), x);
    EXPECT_EQ((std::array{11., 21., 31., -1.}), y);
    EXPECT_EQ((std::array{12., 22., 32., -1.}), z);

    EXPECT_EQ(QORIN_API_RESULT_OK, trajectory(6, 1));
    EXPECT_TRUE(std::isnan(x[0]));
}

TEST_F(recorded_conversion, robots_and_boxes_that_are_not_there_are_refused)
{
    std::array<double, 48> memory = {}; // for all that goes in and comes out
    bool flags[8] = {};
    double* const d = memory.data();
    for (const auto& [cbox_id, robot_id, result] : {std::tuple{box.id, 0u, QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID},
                                                    {box.id, 2u, QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID},
                                                    {box.id + 1, 1u, QORIN_API_RESULT_ERROR_CBOX_ID_INVALID}})
        for (const QORIN_API_RESULT refusal :
             {qorin_rpc_robot_util_joint_angle_to_pose_convert(cbox_id, robot_id, flange, d, d, d),
              qorin_rpc_robot_util_pose_to_joint_angle_convert(cbox_id, robot_id, flange, d, d, d, d),
              qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative(cbox_id, robot_id, flange, d, d, d, 1, d),
              qorin_rpc_robot_util_position_trajectory_get(cbox_id, robot_id, 6, d, d, 1, flange, d, d, d),
              qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(cbox_id, robot_id, d, d, d, flags),
              qorin_rpc_robot_util_pose_to_posture_joint_angle_convert(
                  cbox_id, robot_id, QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP, d, d, d, flags)})
            EXPECT_EQ(result, refusal) << cbox_id << " " << robot_id;
    EXPECT_EQ("", record.calls());
    EXPECT_EQ((std::array<double, 48>{}), memory);
}

TEST(conversion_without_a_control_box, needs_one_for_the_tool_and_the_number_of_joints)
{
    qorin_api_rpc::set_cur_cbox_id(99); // which nobody has connected
    test_support::make_robot_present(1);
    const joint_array joints = {10, -20, 70, 15, 50, -40};
    joint_array found = {};
    vector_array p = {};
    vector_array o = {};
    const auto to_pose = [&](QORIN_POSE_TYPE type)
    { return qorin_robot_util_joint_angle_to_pose_convert(1, type, joints.data(), p.data(), o.data()); };
    const auto to_joints = [&](QORIN_POSE_TYPE type)
    { return qorin_robot_util_pose_to_joint_angle_convert(1, type, joints.data(), p.data(), o.data(), found.data()); };
    EXPECT_EQ(QORIN_API_RESULT_OK, to_pose(flange));
    EXPECT_EQ(QORIN_API_RESULT_OK, to_joints(flange));
    EXPECT_NEAR(joints[2], found[2], 1e-6);
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, to_pose(tcp));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, to_joints(tcp));
    p = {1e6, 0, 0};
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, to_joints(flange)) << "out of reach, so it would be approached";
}

TEST_F(robot_conversion, poses_of_flange_and_tool_come_back_as_the_joints_that_they_are_of)
{
    test_support::make_robot_present(1);
    const joint_array joints = {10, -20, 70, 15, 50, -40};
    vector_array position[2];
    vector_array orientation[2];
    for (const QORIN_POSE_TYPE type : {flange, tcp})
    {
        vector_array& p = position[type == tcp];
        vector_array& o = orientation[type == tcp];
        ASSERT_EQ(QORIN_API_RESULT_OK,
                  qorin_rpc_robot_util_joint_angle_to_pose_convert(box.id, 1, type, joints.data(), p.data(), o.data()));
        joint_array found = {};
        ASSERT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_util_pose_to_joint_angle_convert(
                                           box.id, 1, type, joints.data(), p.data(), o.data(), found.data()));
        for (std::size_t i = 0; i < joints.size(); ++i)
            EXPECT_NEAR(joints[i], found[i], 1e-6);

        // Start and end of a trajectory are the poses of its joints.
        double x[2];
        double y[2];
        double z[2];
        ASSERT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_util_position_trajectory_get(box.id, 1, 6, joints.data(),
                                                                                    joints.data(), 2, type, x, y, z));
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(p, (vector_array{x[i], y[i], z[i]}));
    }
    // The tool stands 100 ahead on the flange's x axis, whose direction is the first column of the rotation.
    const double ry = orientation[0][1] * std::numbers::pi / 180;
    const double rz = orientation[0][2] * std::numbers::pi / 180;
    const double axis[3] = {std::cos(ry) * std::cos(rz), std::cos(ry) * std::sin(rz), -std::sin(ry)};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(position[0][i] + 100 * axis[i], position[1][i], 1e-6);
}
} // namespace
