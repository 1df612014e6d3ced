#include "simulator/commands/families.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include <Eigen/Geometry>

#include "kinematics/angles.h"
#include "kinematics/rotation.h"
#include "simulator/commands/typed_command.h"
#include "simulator/model/moving_state.h"
#include "simulator/model/stream_sources.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_count;

/// A buffer that has been recorded into, or why there is none.
struct filled_buffer
{
    recording* content;
    QORIN_API_RESULT result;
};

filled_buffer find_filled(robot_state& robot, std::uint32_t id)
{
    auto* buffer = robot.recordings().find(id);
    if (!buffer)
        return {nullptr, QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID};
    return {buffer, buffer->empty() ? QORIN_API_RESULT_ERROR_ROBOT_RECORDING_EMPTY_BUFFER : QORIN_API_RESULT_OK};
}

/// A file whose recording is of the robot's arm, or why there is none.
struct readable_file
{
    const recording* content;
    QORIN_API_RESULT result;
};

readable_file find_file(const box_model& model, const robot_state& robot, std::string_view name)
{
    const auto found = model.files().find(name);
    if (found == model.files().end())
        return {nullptr, QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE};
    if (found->second.model != robot.arm().model)
        return {nullptr, QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INFO_MODULUS_FAILURE};
    return {&found->second.content, QORIN_API_RESULT_OK};
}

QORIN_API_RESULT create(robot_state& robot, std::uint32_t& id)
{
    id = robot.recordings().create();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT create_from_file(box_model& model, robot_state& robot, std::string_view name, std::uint32_t& id)
{
    const auto [content, result] = find_file(model, robot, name);
    if (result == QORIN_API_RESULT_OK)
        id = robot.recordings().create(*content);
    return result;
}

QORIN_API_RESULT start(robot_state& robot)
{
    return robot.recordings().start(robot.joint_angles());
}

/// The simulated box finds no errors in what it has recorded: both forms of ending lead here.
QORIN_API_RESULT end(robot_state& robot, std::uint32_t id)
{
    return robot.recordings().end(id);
}

QORIN_API_RESULT destroy(robot_state& robot, std::uint32_t id)
{
    return robot.recordings().destroy(id);
}

QORIN_API_RESULT optimize_memory(robot_state& robot, std::uint32_t id)
{
    auto* buffer = robot.recordings().find(id);
    if (!buffer)
        return QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID;
    buffer->shrink_to_fit();
    return QORIN_API_RESULT_OK;
}

/// Takes away, at either end, where the robot stands still.
QORIN_API_RESULT trim(robot_state& robot, std::uint32_t id)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const auto differs_from = [](const joint_array& angles)
    { return [&](const auto& each) { return each != angles; }; };
    const auto last_moving = std::find_if(buffer->rbegin(), buffer->rend(), differs_from(buffer->back()));
    if (last_moving == buffer->rend())
    {
        buffer->resize(1);
        return QORIN_API_RESULT_OK;
    }
    buffer->erase(last_moving.base() + 1, buffer->end());
    const auto first_moving = std::ranges::find_if(*buffer, differs_from(buffer->front()));
    buffer->erase(buffer->begin(), first_moving - 1);
    return QORIN_API_RESULT_OK;
}

/// At a share of the straight way and of the shortest turn.
pose pose_between(const pose& from, const pose& to, double share)
{
    const auto turn = turn_from_to(from, to);
    const Eigen::Vector3d axis = Eigen::Vector3d::Map(turn.data());
    const double angle = savrent::kinematics::radians(axis.norm() * share);
    const auto orientation = savrent::kinematics::orientation_of(
        Eigen::AngleAxisd(angle, angle > 0 ? Eigen::Vector3d(axis.normalized()) : Eigen::Vector3d::UnitX()) *
        savrent::kinematics::rotation_of({from[3], from[4], from[5]}));
    return {std::lerp(from[0], to[0], share),
            std::lerp(from[1], to[1], share),
            std::lerp(from[2], to[2], share),
            orientation[0],
            orientation[1],
            orientation[2]};
}

/// Between two entries: the joints straight, or the TCP straight and with a steady turn. Nothing where the arm cannot
/// follow.
std::optional<joint_array> between(const robot_state& robot, QORIN_RECORDING_INTERPOLATION space,
                                   const joint_array& from, const joint_array& to, double share)
{
    joint_array joints{};
    for (std::size_t joint = 0; joint < joints.size(); ++joint)
        joints[joint] = std::lerp(from[joint], to[joint], share);
    if (space == QORIN_RECORDING_INTERPOLATION_JOINT || share == 0)
        return joints;
    const auto tcp_at = [&](const joint_array& angles)
    { return placed(robot.flange_pose_at(angles), robot.tcp_from_flange()); };
    return robot.joints_at(outer_of(pose_between(tcp_at(from), tcp_at(to), share), robot.tcp_from_flange()), joints);
}

bool is_too_fast(box_model& model, const robot_state& robot, const joint_array& from, const joint_array& to)
{
    for (std::size_t joint = 0; joint < from.size(); ++joint)
        if (std::abs(to[joint] - from[joint]) > robot.range_of(joint).speed_max * model.control_cycle_us() * 1e-6)
            return true;
    return false;
}

/// The buffer is made anew so that it plays that many times as fast; the output is the number of its entries, which are
/// a control cycle apart as before. The last entry stays the last one.
QORIN_API_RESULT interpolate(box_model& model, robot_state& robot, std::uint32_t id,
                             QORIN_RECORDING_INTERPOLATION space, std::uint32_t, double speed_factor,
                             std::uint32_t& entries)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    if (!is_possible(space))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const double steps = std::ceil(static_cast<double>(buffer->size() - 1) / speed_factor);
    if (!is_possible(speed_factor, number_range::positive) || !(steps < recordings::length_limit))
        return QORIN_API_RESULT_ERROR_ROBOT_RECORDING_SPEED_FACTOR_OUT_OF_RANGE;
    recording resampled{buffer->front()};
    for (double step = 1; step <= steps; ++step)
    {
        const double place = std::min(step * speed_factor, static_cast<double>(buffer->size() - 1));
        const auto before = static_cast<std::size_t>(place);
        const auto behind = std::min(before + 1, buffer->size() - 1);
        const auto joints =
            between(robot, space, (*buffer)[before], (*buffer)[behind], place - static_cast<double>(before));
        if (!joints)
            return QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INVERSE_FAILURE;
        if (speed_factor > 1 && is_too_fast(model, robot, resampled.back(), *joints))
            return QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INTERPOLATION_FAILURE;
        resampled.push_back(*joints);
    }
    *buffer = std::move(resampled);
    entries = static_cast<std::uint32_t>(buffer->size());
    return QORIN_API_RESULT_OK;
}

/// Each joint about where the recording starts: from elsewhere the arm would leap there.
bool stands_at_start(const robot_state& robot, const recording& content)
{
    constexpr double tolerance = 0.1; // degrees
    return std::ranges::equal(robot.joint_angles(), content.front(),
                              [](double stands, double starts) { return std::abs(stands - starts) <= tolerance; });
}

/// The output is the number of entries that are played, one in each control cycle.
QORIN_API_RESULT playback(box_model& model, robot_state& robot, std::uint32_t id, std::uint32_t& entries)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    for (const auto& angles : *buffer)
    {
        const auto refusal = refusal_of_motion(model.readiness().hindrance_to(robot, angles));
        if (refusal != QORIN_API_RESULT_OK)
            return refusal;
    }
    auto& motion = model.motion_of(robot);
    if (!is_at_rest(robot.moving_state()) || !motion.is_free())
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    if (!stands_at_start(robot, *buffer))
        return QORIN_API_RESULT_ROBOT_TARGET_START_POSE_NOT_MATCHED;
    motion.start(std::unique_ptr<motion_source>(std::make_unique<playback_source>(*buffer, robot.commanded().joints)));
    entries = static_cast<std::uint32_t>(buffer->size());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT save(box_model& model, robot_state& robot, std::uint32_t id, std::string_view name)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    if (name.empty())
        return QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE;
    model.files().insert_or_assign(std::string(name), recording_file{robot.arm().model, *buffer});
    return QORIN_API_RESULT_OK;
}

/// The first entry of a recording, or its last.
enum class place
{
    start,
    end
};

QORIN_API_RESULT angle_of(const recording& content, place which, std::uint32_t joint, double& angle)
{
    if (joint >= joint_count)
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    angle = (which == place::start ? content.front() : content.back())[joint];
    return QORIN_API_RESULT_OK;
}

template <place which>
QORIN_API_RESULT angle_get(robot_state& robot, std::uint32_t id, std::uint32_t joint, double& angle)
{
    const auto [buffer, result] = find_filled(robot, id);
    return result == QORIN_API_RESULT_OK ? angle_of(*buffer, which, joint, angle) : result;
}

template <place which>
QORIN_API_RESULT angle_from_file_get(box_model& model, robot_state& robot, std::string_view name, std::uint32_t joint,
                                     double& angle)
{
    const auto [content, result] = find_file(model, robot, name);
    return result == QORIN_API_RESULT_OK ? angle_of(*content, which, joint, angle) : result;
}

constexpr command_row rows[] = {
    controlled<create>("qorin_robot_recording_create"),
    controlled<create_from_file>("qorin_robot_recording_create_from_file"),
    controlled<start>("qorin_robot_recording_start"),
    controlled<end>("qorin_robot_recording_end"),
    controlled<end>("qorin_robot_recording_end_without_error_check"),
    controlled<destroy>("qorin_robot_recording_destroy"),
    controlled<optimize_memory>("qorin_robot_recording_buffer_memory_optimize"),
    controlled<trim>("qorin_robot_recording_trim"),
    controlled<interpolate>("qorin_robot_recording_interpolate"),
    controlled<playback>("qorin_robot_recording_playback"),
    controlled<save>("qorin_robot_recording_file_save"),
    controlled<angle_get<place::start>>("qorin_robot_recording_angle_start_get"),
    controlled<angle_get<place::end>>("qorin_robot_recording_angle_end_get"),
    controlled<angle_from_file_get<place::start>>("qorin_robot_recording_angle_start_from_file_get"),
    controlled<angle_from_file_get<place::end>>("qorin_robot_recording_angle_end_from_file_get"),
};
} // namespace

std::span<const command_row> recording_commands()
{
    return rows;
}
} // namespace cbox_simulator
