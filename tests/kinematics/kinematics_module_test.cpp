#include "qorin/savrent_kinematics.h"

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "arm_test_support.h"

namespace
{
using namespace kinematics_test;

/// The built module, opened as the client opens it: all by symbol, nothing linked.
class kinematics_module : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(library) << dlerror();
        create(&handle);
        ASSERT_TRUE(handle);
    }

    void TearDown() override
    {
        destroy(&handle);
        EXPECT_EQ(nullptr, handle);
    }

#define FUNCTION(name)                                                                                                 \
    decltype(&savrent_kinematics_##name) name =                                                                        \
        reinterpret_cast<decltype(name)>(library ? dlsym(library.get(), "savrent_kinematics_" #name) : nullptr)
    struct closer
    {
        void operator()(void* opened) const { dlclose(opened); }
    };
    std::unique_ptr<void, closer> library{dlopen(QORIN_KINEMATICS_ARM_MODULE, RTLD_NOW | RTLD_LOCAL)};
    FUNCTION(get_num_of_models);
    FUNCTION(get_model_name);
    FUNCTION(get_num_of_joints);
    FUNCTION(create);
    FUNCTION(destroy);
    FUNCTION(set_model_name);
    FUNCTION(forward);
    FUNCTION(inverse);
    FUNCTION(inverse_all_solutions);
    FUNCTION(inverse_from_posture);
    FUNCTION(set_dh_parameter);
    FUNCTION(get_dh_parameter);
#undef FUNCTION

    dh_table table_of_handle() const
    {
        dh_table table;
        get_dh_parameter(handle, table.theta.data(), table.d.data(), table.a.data(), table.alpha.data());
        return table;
    }

    void set_table(const dh_table& table) const
    {
        set_dh_parameter(handle, table.theta.data(), table.d.data(), table.a.data(), table.alpha.data());
    }

    flange_pose pose_of(const joint_array& joints) const
    {
        flange_pose pose;
        forward(handle, joints.data(), pose.position.data(), pose.orientation.data());
        return pose;
    }

    void* handle = nullptr;
};

constexpr joint_array some_joints{20.0, 35.0, 60.0, 15.0, 70.0, -160.0};

TEST_F(kinematics_module, serves_the_nine_arm_models)
{
    std::vector<int> models(static_cast<std::size_t>(get_num_of_models()));
    get_model_name(models.data());
    EXPECT_EQ((std::vector{401510, 401511, 401512, 401513, 401514, 401515, 401516, 401517, 401518}), models);
    EXPECT_EQ(6, get_num_of_joints());
    for (const int model : models)
    {
        set_model_name(handle, static_cast<QORIN_ROBOT_MODEL>(model));
        EXPECT_EQ(find_arm_model(static_cast<QORIN_ROBOT_MODEL>(model))->table, table_of_handle());
    }
}

TEST_F(kinematics_module, solves_what_its_forward_gives)
{
    set_model_name(handle, QORIN_ROBOT_MODEL_ARM_G);
    const dh_table table = table_of_handle();
    const flange_pose pose = pose_of(some_joints);
    const double* position = pose.position.data();
    const double* orientation = pose.orientation.data();
    const Eigen::Isometry3d target = link_frames(table, some_joints).back();
    EXPECT_LT(position_error(target, transform_of(pose)), position_tolerance);
    EXPECT_LT(rotation_error(target, transform_of(pose)), rotation_tolerance);

    joint_array joints = some_joints; // the reference's array and the output's at once
    joints[0] += 5.0;
    ASSERT_EQ(1, inverse(handle, position, orientation, joints.data(), joints.data()));
    for (std::size_t j = 0; j < joint_count; ++j)
        EXPECT_NEAR(some_joints[j], joints[j], 1e-9);

    std::array<joint_array, 8> solutions;
    std::array<char, 8> valid;
    inverse_all_solutions(handle, position, orientation, solutions.front().data(), valid.data());
    for (std::size_t p = 0; p < solution_count; ++p)
    {
        const char posture_flags[] = {static_cast<char>(p >> 2U & 1U), static_cast<char>(p >> 1U & 1U),
                                      static_cast<char>(p & 1U)};
        EXPECT_EQ(valid[p], inverse_from_posture(handle, position, orientation, posture_flags, joints.data())) << p;
        ASSERT_EQ(1, valid[p]) << p;
        EXPECT_EQ(solutions[p], joints) << p;
        EXPECT_EQ(p, observed_posture(table, joints).index());
        EXPECT_LT(position_error(target, link_frames(table, joints).back()), position_tolerance) << p;
    }
}

TEST_F(kinematics_module, leaves_outputs_alone_when_there_is_no_solution)
{
    const double far_away[] = {9'000.0, 0.0, 0.0};
    const double level[] = {0.0, 0.0, 0.0};
    const char any[] = {0, 0, 0};
    joint_array joints = some_joints;
    EXPECT_EQ(0, inverse(handle, far_away, level, joints.data(), joints.data()));
    EXPECT_EQ(0, inverse_from_posture(handle, far_away, level, any, joints.data()));
    EXPECT_EQ(some_joints, joints);

    std::array<double, 48> solutions;
    std::array<char, 8> valid;
    valid.fill(1);
    inverse_all_solutions(handle, far_away, level, solutions.data(), valid.data());
    EXPECT_EQ((std::array<char, 8>{}), valid);
}

TEST_F(kinematics_module, takes_the_table_of_a_control_box)
{
    set_model_name(handle, QORIN_ROBOT_MODEL_ARM_B);
    dh_table table = table_of_handle();
    table.d[5] += 50.0; // a longer flange moves straight ahead
    set_table(table);
    EXPECT_EQ(table, table_of_handle());
    const Eigen::Isometry3d target = link_frames(table, some_joints).back();
    EXPECT_LT(position_error(target, transform_of(pose_of(some_joints))), position_tolerance);

    // What describes no arm changes nothing: a status frame without joint data, a broken number, a foreign model.
    dh_table broken = table;
    broken.alpha[2] = std::nan("");
    set_table(dh_table{});
    set_table(broken);
    set_model_name(handle, QORIN_ROBOT_MODEL_OHT);
    EXPECT_EQ(table, table_of_handle());
}

TEST_F(kinematics_module, solves_in_many_threads_while_the_table_changes)
{
    const arm_model& small = arm_models()[0];
    const arm_model& large = arm_models()[5];
    const flange_pose of_small = arm_solver(small.table).forward(some_joints);
    const flange_pose of_large = arm_solver(large.table).forward(some_joints);
    std::atomic<int> mixed = 0;
    const auto solve = [&]
    {
        for (int i = 0; i < 3'000; ++i)
        {
            const flange_pose pose = pose_of(some_joints);
            mixed += pose.position != of_small.position && pose.position != of_large.position;
            joint_array joints = some_joints;
            // Within the large arm's reach only; the small arm refuses.
            const bool found = inverse(handle, of_large.position.data(), of_large.orientation.data(), joints.data(),
                                       joints.data()) == 1;
            mixed += found && std::abs(joints[1] - some_joints[1]) > 1e-9;
        }
    };
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(solve);
    for (int i = 0; i < 1'000; ++i)
        set_table(i % 2 == 0 ? small.table : large.table);
    threads.clear();
    EXPECT_EQ(0, mixed);
    EXPECT_EQ(large.table, table_of_handle());
}
} // namespace
