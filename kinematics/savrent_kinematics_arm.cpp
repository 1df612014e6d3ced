#include "qorin/savrent_kinematics.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <shared_mutex>

#include "kinematics/arm_models.h"
#include "kinematics/arm_solver.h"

// The C surface of the arm module: arrays in, arrays out, and one lock per instance. All mathematics is the solver's.
namespace
{
using namespace savrent::kinematics;

/// What a handle points to. Solves share the lock; only a change of the table, which is rare, takes it alone.
class arm_instance
{
public:
    [[nodiscard]] arm_solver solver() const
    {
        const std::shared_lock lock(mutex_);
        return solver_;
    }

    void use(const dh_table& table)
    {
        const arm_solver replacement(table);
        const std::unique_lock lock(mutex_);
        solver_ = replacement;
    }

private:
    mutable std::shared_mutex mutex_;
    arm_solver solver_{arm_models().front().table};
};

arm_instance* instance_of(void* handle)
{
    return static_cast<arm_instance*>(handle);
}

joint_array joints_from(const double* values)
{
    joint_array joints;
    std::copy_n(values, joint_count, joints.begin());
    return joints;
}

flange_pose pose_from(const double* position, const double* orientation)
{
    flange_pose pose;
    std::copy_n(position, pose.position.size(), pose.position.begin());
    std::copy_n(orientation, pose.orientation.size(), pose.orientation.begin());
    return pose;
}

char store_if_found(const std::optional<joint_array>& found, double* joints)
{
    if (!found)
        return 0;
    std::ranges::copy(*found, joints);
    return 1;
}
} // namespace

int savrent_kinematics_get_num_of_models(void)
{
    return static_cast<int>(arm_models().size());
}

void savrent_kinematics_get_model_name(int* models)
{
    std::ranges::transform(arm_models(), models, [](const arm_model& arm) { return static_cast<int>(arm.model); });
}

int savrent_kinematics_get_num_of_joints(void)
{
    return static_cast<int>(joint_count);
}

void savrent_kinematics_create(void** handle)
{
    *handle = new (std::nothrow) arm_instance;
}

void savrent_kinematics_destroy(void** handle)
{
    delete instance_of(*handle);
    *handle = nullptr;
}

void savrent_kinematics_set_model_name(void* handle, QORIN_ROBOT_MODEL model)
{
    if (const arm_model* arm = find_arm_model(model))
        instance_of(handle)->use(arm->table);
}

void savrent_kinematics_forward(void* handle, const double* joints, double* position, double* orientation)
{
    const flange_pose pose = instance_of(handle)->solver().forward(joints_from(joints));
    std::ranges::copy(pose.position, position);
    std::ranges::copy(pose.orientation, orientation);
}

char savrent_kinematics_inverse(void* handle, const double* position, const double* orientation,
                                const double* reference_joints, double* joints)
{
    const arm_solver solver = instance_of(handle)->solver();
    return store_if_found(solver.inverse(pose_from(position, orientation), joints_from(reference_joints)), joints);
}

void savrent_kinematics_inverse_all_solutions(void* handle, const double* position, const double* orientation,
                                              double* solutions, char* valid)
{
    const arm_solver solver = instance_of(handle)->solver();
    const solution_set found = solver.inverse_all_solutions(pose_from(position, orientation));
    for (std::size_t i = 0; i < solution_count; ++i)
    {
        std::ranges::copy(found.joints[i], solutions + i * joint_count);
        valid[i] = found.valid[i] ? 1 : 0;
    }
}

char savrent_kinematics_inverse_from_posture(void* handle, const double* position, const double* orientation,
                                             const char* posture, double* joints)
{
    const arm_solver solver = instance_of(handle)->solver();
    const savrent::kinematics::posture wanted{posture[0] != 0, posture[1] != 0, posture[2] != 0};
    return store_if_found(solver.inverse_from_posture(pose_from(position, orientation), wanted), joints);
}

void savrent_kinematics_set_dh_parameter(void* handle, const double* parameter_1, const double* parameter_2,
                                         const double* parameter_3, const double* parameter_4)
{
    const dh_table table{joints_from(parameter_1), joints_from(parameter_2), joints_from(parameter_3),
                         joints_from(parameter_4)};
    if (describes_an_arm(table))
        instance_of(handle)->use(table);
}

void savrent_kinematics_get_dh_parameter(void* handle, double* parameter_1, double* parameter_2, double* parameter_3,
                                         double* parameter_4)
{
    const dh_table table = instance_of(handle)->solver().table();
    std::ranges::copy(table.theta, parameter_1);
    std::ranges::copy(table.d, parameter_2);
    std::ranges::copy(table.a, parameter_3);
    std::ranges::copy(table.alpha, parameter_4);
}
