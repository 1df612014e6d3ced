#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/commanded_box.h"

namespace
{
using six = std::array<double, 6>;
using text = std::array<char, 32>;
constexpr std::size_t record_of[] = {2608, 2608 + 4728};

struct matrix
{
    double at[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};

matrix operator*(const matrix& a, const matrix& b)
{
    matrix result;
    for (int i = 0; i < 16; ++i)
    {
        double sum = 0;
        for (int k = 0; k < 4; ++k)
            sum += a.at[i / 4][k] * b.at[k][i % 4];
        result.at[i / 4][i % 4] = sum;
    }
    return result;
}

/// A turn about axis 0, 1 or 2 by degrees.
matrix turn(int axis, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    const int u = (axis + 1) % 3;
    const int v = (axis + 2) % 3;
    matrix result;
    result.at[u][u] = result.at[v][v] = std::cos(angle);
    result.at[v][u] = std::sin(angle);
    result.at[u][v] = -result.at[v][u];
    return result;
}

matrix shift(double x, double y, double z)
{
    return {{{1, 0, 0, x}, {0, 1, 0, y}, {0, 0, 1, z}, {0, 0, 0, 1}}};
}

matrix matrix_of(const six& pose)
{
    return shift(pose[0], pose[1], pose[2]) * turn(2, pose[5]) * turn(1, pose[4]) * turn(0, pose[3]);
}

/// The flange by the joint angles and the table that the frame tells.
matrix flange_of(const commanded_box& box, std::size_t robot)
{
    matrix result;
    for (std::size_t joint = 0; joint < 6; ++joint)
    {
        const auto at = record_of[robot] + 1896 + 472 * joint;
        const auto value = [&](std::size_t offset) { return box.field<double>(at + offset); };
        result = result * turn(2, value(56) + value(448)) * shift(0, 0, value(440)) * shift(value(456), 0, 0) *
                 turn(0, value(464));
    }
    return result;
}

/// Measured and commanded poses of flange and TCP are what joints, table and tool make.
void expect_consistent(const commanded_box& box, std::size_t robot)
{
    const auto pose_at = [&](std::size_t offset) { return box.field<six>(record_of[robot] + offset); };
    const auto flange = flange_of(box, robot);
    const auto tcp = flange * matrix_of(pose_at(272));
    for (const auto& [offset, expected] : {std::pair{320, tcp}, {368, tcp}, {512, flange}, {560, flange}})
    {
        const auto told = matrix_of(pose_at(static_cast<std::size_t>(offset)));
        for (int i = 0; i < 12; ++i)
            EXPECT_NEAR(told.at[i / 4][i % 4], expected.at[i / 4][i % 4], 1e-9) << "pose at " << offset;
    }
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
    auto request = raw::request("qorin_robot_create", 401510);
    commanded_box without_system;
    without_system.model.destroy_system(1);
    EXPECT_EQ(without_system.call(request, 2).result, 100003u) << "the control is judged first";
    EXPECT_EQ(without_system.call(request).result, 100009u);

    struct creation_row
    {
        std::uint32_t capacity;
        std::vector<std::uint32_t> models;
        std::vector<std::uint32_t> results;
    };
    const creation_row rows[] = {
        {1, {401510, 401511}, {100000, 102001}},
        {2, {401510, 401518, 401510}, {100000, 100000, 102001}},
        {5, {401510, 401510, 401510}, {100000, 100000, 102001}},
        {0, {401510}, {102001}},
        {2, {401509, 401519, 401500, 401507, 0}, {102038, 102038, 102038, 102038, 102038}},
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
    EXPECT_EQ(box.call(raw::request("qorin_robot_create", 401510)).value[0], 0u);
    EXPECT_EQ(box.field<std::uint32_t>(36), 1u);
    EXPECT_EQ(box.call(raw::request("qorin_robot_create", 401518)).value[0], 1u);
    EXPECT_EQ(box.call(raw::request("qorin_robot_destroy", 0), 2).result, 100003u);
    EXPECT_EQ(box.destroy(0), 100000u);
    EXPECT_EQ(box.destroy(0), 102000u);
    EXPECT_EQ(box.destroy(2), 102000u);
    EXPECT_EQ(box.field<std::uint32_t>(36), 2u);
    EXPECT_EQ(box.field<std::uint32_t>(record_of[0] + 4), 0u) << "nothing is left of robot 0";
    EXPECT_EQ(box.field<std::uint32_t>(record_of[1] + 12), 401518u);

    box.model.robots().set_servo(1, QORIN_SWITCH_ON);
    const auto again = box.call(raw::request("qorin_robot_create", 401512));
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
        EXPECT_NEAR(ready.at[2][2], -1, 1e-12) << "the flange looks down";
        EXPECT_GT(ready.at[0][3], 100) << "before the base";
        EXPECT_GT(ready.at[2][3], 100) << "above the floor";

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
    const auto before = box.field<std::array<char, 29728>>(0);
    const double nan = std::nan("");
    EXPECT_EQ(robots.set_joint_angles(0, {0, -96, 0, 0, 0, 0}) + 0u, 103002u);
    EXPECT_EQ(robots.set_joint_angles(0, {0, 0, 0, 0, 0, nan}) + 0u, 103002u);
    EXPECT_EQ(robots.set_joint_angles(1, {}) + 0u, 102000u);
    EXPECT_EQ(robots.set_tcp_from_flange(0, {0, 0, nan, 0, 0, 0}) + 0u, 102007u);
    EXPECT_EQ(robots.set_servo(0, QORIN_SWITCH{}) + 0u, 102007u);
    EXPECT_EQ((box.field<std::array<char, 29728>>(0)), before);
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
        auto request = raw::request("qorin_robot_kinematics_dh_parameter_set", row.id);
        request.value[1] = row.count;
        const double table[4][6] = {{1, -88, -91, 2, 3, 4},
                                    {row.first_length, 5, 6, largest == row.first_length ? largest : 250, 7, 80},
                                    {8, 240, 9, 10, 11, 12},
                                    {-89, 1, -92, 93, -94, 13}};
        for (std::size_t array = 0; array < 4; ++array)
            std::memcpy(request.double_block[array], table[array], sizeof table[array]);
        EXPECT_EQ(box.call(request, 2).result, 100003u);
        EXPECT_EQ(box.call(request).result, row.result);
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
