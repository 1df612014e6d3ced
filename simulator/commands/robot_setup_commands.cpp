#include "simulator/commands/families.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"
#include "simulator/model/moving_state.h"
#include "simulator/model/tool_calibration.h"

namespace cbox_simulator
{
namespace
{
using settings = robot_settings;
using thresholds = collision_thresholds;

constexpr std::uint32_t least_tool_poses = 3;
constexpr std::uint32_t most_tool_poses = 10;

/// The robot can be moved again, unless a violation stands beside the collision.
QORIN_API_RESULT collision_detection_clear(box_model& model, robot_state& robot)
{
    if (robot.collision() == 0)
        return QORIN_API_RESULT_OK;
    if (!is_at_rest(robot.moving_state()))
        return QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE;
    robot.set_collision(0);
    if (robot.safety_violation() == 0)
        model.motion_of(robot).reset();
    return QORIN_API_RESULT_OK;
}

template <auto operation>
QORIN_API_RESULT calibrate(robot_state& robot)
{
    return (robot.calibration().*operation)();
}

template <auto operation>
QORIN_API_RESULT calibrate_joint(robot_state& robot, std::uint32_t joint)
{
    return (robot.calibration().*operation)(joint);
}

/// How the dry run moves the arm is of no matter to an arm that is calibrated without.
QORIN_API_RESULT dry_run_start(robot_state& robot, double value, std::uint32_t)
{
    return is_possible(value) ? robot.calibration().start_dry_run() : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

QORIN_API_RESULT dry_run_state_get(robot_state& robot, QORIN_SWITCH& dry_run)
{
    dry_run = robot.calibration().dry_run();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT tcp_from_flange_set(robot_state& robot, double x, double y, double z, double rx, double ry, double rz)
{
    return robot.set_tcp_from_flange({x, y, z, rx, ry, rz});
}

/// The flange poses come as one array for each coordinate. The tool's tip was at one point in all of them; how well
/// they agree is answered, in millimetres. The tool keeps its orientation.
QORIN_API_RESULT tcp_from_positions_set(robot_state& robot, std::uint32_t count, const block_of<double>& x,
                                        const block_of<double>& y, const block_of<double>& z,
                                        const block_of<double>& rx, const block_of<double>& ry,
                                        const block_of<double>& rz, double& deviation)
{
    if (count < least_tool_poses || count > most_tool_poses)
        return QORIN_API_RESULT_ROBOT_TCP_INVALID_NUMBER_OF_ARRAY;
    std::vector<pose> poses;
    for (std::size_t i = 0; i < count; ++i)
        poses.push_back({x[i], y[i], z[i], rx[i], ry[i], rz[i]});
    if (!std::ranges::all_of(poses, is_finite))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto found = tool_position_from(poses);
    if (!found)
        return QORIN_API_RESULT_ROBOT_TCP_HAS_SEVERAL_SOLUTIONS;
    pose tool = robot.tcp_from_flange();
    std::ranges::copy(found->tip, tool.begin());
    const auto result = robot.set_tcp_from_flange(tool);
    if (result == QORIN_API_RESULT_OK)
        deviation = found->deviation;
    return result;
}

/// The orientation is what the tool has in the base frame while the arm stands as it does. One pose agrees with itself,
/// so that the deviation is 0. The tool's tip stays.
QORIN_API_RESULT tcp_from_orientation_set(robot_state& robot, double rx, double ry, double rz, double& deviation)
{
    pose tool = robot.tcp_from_flange();
    std::ranges::copy(tool_orientation_from(robot.flange_pose(), {rx, ry, rz}), tool.begin() + 3);
    deviation = 0;
    return robot.set_tcp_from_flange(tool);
}

QORIN_API_RESULT tcp_payload_set(robot_state& robot, double mass, double x, double y, double z)
{
    return robot.set_payload({mass, {x, y, z}});
}

constexpr auto switches = &settings::switches;
constexpr auto collision = &settings::collision;
using dynamics = dynamics_calibration;

constexpr auto calibration_failure = QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FAILURE;
constexpr auto dry_run_failure = QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE;

constexpr command_row rows[] = {
    controlled<collision_detection_clear>("qorin_robot_collision_detection_clear"),
    controlled<keep<magnitude, collision, &thresholds::tcp_resultant_force>>(
        "qorin_robot_collision_detection_threshold_tcp_resultant_force_set"),
    controlled<keep_for_joint<magnitude, collision, &thresholds::joint_torque>>(
        "qorin_robot_collision_detection_threshold_joint_torque_set"),
    controlled<keep<possible, switches, &robot_switches::collision_detection>>(
        "qorin_robot_collision_detection_switch_set"),
    controlled<keep<possible, switches, &robot_switches::collision_mitigation>>(
        "qorin_robot_collision_mitigation_switch_set"),
    controlled<keep_six<magnitude, collision, &thresholds::tcp_force>>(
        "qorin_robot_collision_detection_threshold_tcp_force_set"),
    controlled<when_ready<calibrate<&dynamics::calibrate>, calibration_failure>>(
        "qorin_robot_dynamics_calibration_start"),
    controlled<calibrate<&dynamics::save>>("qorin_robot_dynamics_calibration_save"),
    controlled<calibrate<&dynamics::end_dry_run>>("qorin_robot_dynamics_dry_run_end"),
    controlled<when_ready<calibrate_joint<&dynamics::calibrate_joint>, calibration_failure>>(
        "qorin_robot_joint_dynamics_calibration_start"),
    controlled<calibrate_joint<&dynamics::save_joint>>("qorin_robot_joint_dynamics_calibration_save"),
    controlled<keep_for_joint<possible, &settings::friction_feedrate>>("qorin_robot_dynamics_friction_feedrate_set"),
    controlled<dry_run_state_get>("qorin_robot_dynamics_dry_run_state_get"),
    controlled<when_ready<dry_run_start, dry_run_failure>>("qorin_robot_dynamics_dry_run_start"),
    controlled<while_standing<tcp_from_flange_set>>("qorin_robot_tcp_from_flange_set"),
    controlled<while_standing<tcp_from_positions_set>>("qorin_robot_tcp_from_flange_multiple_position_set"),
    controlled<while_standing<tcp_from_orientation_set>>("qorin_robot_tcp_from_flange_multiple_orientation_set"),
    controlled<while_standing<tcp_payload_set>>("qorin_robot_tcp_payload_set"),
};
} // namespace

std::span<const command_row> robot_setup_commands()
{
    return rows;
}
} // namespace cbox_simulator
