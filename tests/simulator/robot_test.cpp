#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/kinematics/arm_test_support.h"
#include "tests/simulator/commanded_box.h"

namespace
{
using six = std::array<double, 6>;
using text = std::array<char, 32>;
constexpr std::size_t record_of[] = {2608, 2608 + 4728};

/// The flange by the joint angles and the table that the frame tells.
Eigen::Isometry3d flange_of(const commanded_box& box, std::size_t robot)
{
    kinematics_test::dh_table table;
    kinematics_test::joint_array joints;
    for (std::size_t joint = 0; joint < 6; ++joint)
    {
        const auto at = record_of[robot] + 1896 + 472 * joint;
        joints[joint] = box.field<double>(at + 56);
        table.d[joint] = box.field<double>(at + 440);
        table.theta[joint] = box.field<double>(at + 448);
        table.a[joint] = box.field<double>(at + 456);
        table.alpha[joint] = box.field<double>(at + 464);
    }
    return kinematics_test::link_frames(table, joints).back();
}

/// Measured and commanded poses of flange and TCP are what joints, table and tool make.
void expect_consistent(const commanded_box& box, std::size_t robot)
{
    const auto pose_at = [&](std::size_t offset)
    { return kinematics_test::transform_of(box.field<kinematics_test::flange_pose>(record_of[robot] + offset)); };
    const Eigen::Isometry3d flange = flange_of(box, robot);
    const Eigen::Isometry3d tcp = flange * pose_at(272);
    for (const auto& [offset, expected] : {std::pair{320u, tcp}, {368u, tcp}, {512u, flange}, {560u, flange}})
        EXPECT_TRUE(pose_at(offset).isApprox(expected, 1e-12)) << "pose at " << offset;
}

/// A field by its place in the record, and what it holds for either robot.
template <class Value>
struct field_row
{
    std::size_t offset;
    Value first;
    Value second;
};

TEST(robot, creation_needs_control_a_system_a_free_place_and_an_arm)
{
    commanded_box without_system;
    without_system.model.destroy_system(1);
    EXPECT_EQ(without_system.call(request("robot_create", {{401510}}), 2).result, 100003u) << "the control comes first";
    EXPECT_EQ(without_system.create(401510), 100009u);

    struct creation_row
    {
        std::uint32_t capacity;
        std::vector<std::uint32_t> models;
        std::vector<std::uint32_t> results;
    };
    const creation_row rows[] = {
        {1, {401510, 401511}, {100000, 102001}},
        {2, {401510, 401518, 401510}, {100000, 100000, 102001}},
        {2, {401509, 401519, 401500, 401507, 0}, {102001, 102001, 102001, 102001, 102001}},
    };
    for (const auto& row : rows)
    {
        commanded_box box(row.capacity);
        for (std::size_t i = 0; i < row.models.size(); ++i)
            EXPECT_EQ(box.create(row.models[i]), row.results[i]) << "row " << &row - rows << ", creation " << i;
    }
}

TEST(robot, the_lowest_free_id_is_given_and_the_count_covers_the_highest)
{
    commanded_box box;
    EXPECT_EQ(box.field<std::uint32_t>(36), 0u);
    EXPECT_EQ(box.ask("robot_create", {{401510}}).value[0], 0u);
    EXPECT_EQ(box.field<std::uint32_t>(36), 1u);
    EXPECT_EQ(box.ask("robot_create", {{401518}}).value[0], 1u);
    EXPECT_EQ(box.call(request("robot_destroy"), 2).result, 100003u);
    EXPECT_EQ(box.destroy(0), 100000u);
    EXPECT_EQ(box.destroy(0), 102000u);
    EXPECT_EQ(box.destroy(2), 102000u);
    EXPECT_EQ(box.field<std::uint32_t>(36), 2u);
    EXPECT_EQ(box.field<std::uint32_t>(record_of[0] + 4), 0u) << "nothing is left of robot 0";
    EXPECT_EQ(box.field<std::uint32_t>(record_of[1] + 12), 401518u);

    box.model.robots().set_servo(1, QORIN_SWITCH_ON);
    const auto again = box.ask("robot_create", {{401512}});
    EXPECT_EQ(again.value[0], 0u);
    EXPECT_EQ(box.field<std::uint32_t>(record_of[0] + 20), 400101u);
    EXPECT_EQ(box.field<std::uint32_t>(record_of[1] + 20), 400100u);

    box.model.release_control(1);
    EXPECT_TRUE(box.model.robots().exists(1)) << "robots outlive the control";
    box.model.destroy_system(1);
    EXPECT_EQ(box.field<std::uint32_t>(36), 0u);
    EXPECT_FALSE(box.model.robots().exists(1));
}

TEST(robot, the_frame_tells_each_robot_in_its_record)
{
    commanded_box box;
    box.create(401510);
    box.create(401517);
    const field_row<std::uint32_t> words[] = {
        {4, 6, 6},
        {8, 0, 1},
        {12, 401510, 401517},
        {16, 403108, 403108},
        {20, 400101, 400101},
        {76, 400900, 400900},
        {760 + 20, 400101, 400101},
        {1896, 0, 6},
        {1896 + 472 * 5, 5, 11},
    };
    constexpr std::size_t joint_3 = 1896 + 472 * 2;
    const field_row<double> reals[] = {
        {120, 1, 1},
        {1816 + 8, 250, 250},
        {joint_3 + 16, 90, 0},
        {joint_3 + 56, 90, 0},
        {joint_3 + 96, 155, 190},
        {joint_3 + 104, -155, -80},
        {joint_3 + 112, 220, 215},
        {joint_3 + 120, 1100, 850},
        {joint_3 + 136, 155, 190},
        {joint_3 + 144, -155, -80},
        {joint_3 + 448, -90, 0},
        {1896 + 440, 218, 437},
        {1896 + 464, -90, 90},
        {1896 + 472 + 456, 241, 671},
    };
    for (std::size_t id = 0; id < 2; ++id)
    {
        for (const auto& row : words)
            EXPECT_EQ(box.field<std::uint32_t>(record_of[id] + row.offset), id == 0 ? row.first : row.second)
                << id << ": " << row.offset;
        for (const auto& row : reals)
            EXPECT_EQ(box.field<double>(record_of[id] + row.offset), id == 0 ? row.first : row.second)
                << id << ": " << row.offset;
        EXPECT_STREQ(box.field<text>(20940 + 216 * id).data(), "SIM.TOOL");
        EXPECT_EQ(box.field<std::uint32_t>(20940 + 216 * id + 184), 400800u);
        EXPECT_STREQ(box.field<text>(16492 + 376 * (6 * id + 5)).data(), "SIM.DRIVE.v1.0");
        EXPECT_EQ(box.field<double>(16492 + 376 * (6 * id + 5) + 36), 48.0);
    }
}

TEST(robot, every_arm_stands_ready_and_its_poses_follow_joints_and_tool)
{
    for (std::uint32_t robot_model = 401510; robot_model <= 401518; ++robot_model)
    {
        SCOPED_TRACE(robot_model);
        commanded_box box;
        box.create(robot_model);
        box.create(robot_model);
        auto& robots = box.model.robots();
        EXPECT_EQ(robots.set_joint_angles(0, robots.find(0)->joint_angles()), QORIN_API_RESULT_OK) << "within range";
        const auto ready = flange_of(box, 0);
        EXPECT_NEAR(ready.linear()(2, 2), -1, 1e-12) << "the flange looks down";
        EXPECT_GT(ready.translation().x(), 100) << "before the base";
        EXPECT_GT(ready.translation().z(), 100) << "above the floor";

        EXPECT_EQ(robots.set_joint_angles(1, {11, -22, 33, 44, -55, 66}), QORIN_API_RESULT_OK);
        EXPECT_EQ(robots.set_tcp_from_flange(1, {10, -20, 130, 15, -25, 35}), QORIN_API_RESULT_OK);
        for (std::size_t id = 0; id < 2; ++id)
            expect_consistent(box, id);
    }
}

TEST(robot, what_cannot_be_is_refused_and_changes_nothing)
{
    commanded_box box;
    box.create(401516);
    auto& robots = box.model.robots();
    const auto before = box.frame();
    const double nan = std::nan("");
    EXPECT_EQ(robots.set_joint_angles(0, {0, -96, 0, 0, 0, 0}) + 0u, 103002u);
    EXPECT_EQ(robots.set_joint_angles(0, {0, 0, 0, 0, 0, nan}) + 0u, 103002u);
    EXPECT_EQ(robots.set_joint_angles(1, {}) + 0u, 102000u);
    EXPECT_EQ(robots.set_tcp_from_flange(0, {0, 0, nan, 0, 0, 0}) + 0u, 102007u);
    EXPECT_EQ(robots.set_servo(0, QORIN_SWITCH{}) + 0u, 102007u);
    EXPECT_EQ(box.frame(), before);
}

TEST(robot, a_new_table_takes_the_place_of_the_arms_own)
{
    const double largest = std::numeric_limits<double>::max();
    struct table_row
    {
        std::uint32_t id;
        std::uint32_t count;
        double first_length;
        std::uint32_t result;
    };
    const table_row rows[] = {{0, 6, 300, 100000},
                              {1, 6, 300, 102000},
                              {0, 5, 300, 103000},
                              {0, 6, std::nan(""), 102007},
                              {0, 6, largest, 102007}};
    for (const auto& row : rows)
    {
        commanded_box box;
        box.create(401510);
        const std::vector<std::vector<double>> table = {
            {1, -88, -91, 2, 3, 4},
            {row.first_length, 5, 6, largest == row.first_length ? largest : 250, 7, 80},
            {8, 240, 9, 10, 11, 12},
            {-89, 1, -92, 93, -94, 13}};
        const auto set = request("robot_kinematics_dh_parameter_set", {{row.id, row.count}, {}, {}, table});
        EXPECT_EQ(box.call(set, 2).result, 100003u);
        EXPECT_EQ(box.call(set).result, row.result);
        // A joint's record holds its four values in another order than the arrays have.
        const std::size_t fields[] = {448, 440, 456, 464};
        const auto& own = savrent::kinematics::arm_models()[0].table;
        const six* const factory[] = {&own.theta, &own.d, &own.a, &own.alpha};
        for (std::size_t i = 0; i < 24; ++i)
        {
            EXPECT_EQ(box.field<double>(record_of[0] + 1896 + 472 * (i % 6) + fields[i / 6]),
                      row.result == 100000 ? table[i / 6][i % 6] : factory[i / 6]->at(i % 6));
        }
        expect_consistent(box, 0);
    }
}
} // namespace
