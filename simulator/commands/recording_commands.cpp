#include "simulator/commands/recording_commands.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "simulator/commands/typed_command.h"
#include "simulator/model/motion_plan.h"

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

/// A recording has no times here, so that there is nothing to sample anew: the buffer stays as it is, and the output is
/// its number of entries. The double is taken for a speed factor.
QORIN_API_RESULT interpolate(robot_state& robot, std::uint32_t id, QORIN_RECORDING_INTERPOLATION space, std::uint32_t,
                             double speed_factor, std::uint32_t& entries)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    if (space != QORIN_RECORDING_INTERPOLATION_TCP && space != QORIN_RECORDING_INTERPOLATION_JOINT)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    if (!(speed_factor > 0) || !std::isfinite(speed_factor))
        return QORIN_API_RESULT_ERROR_ROBOT_RECORDING_SPEED_FACTOR_OUT_OF_RANGE;
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

/// Takes no time, as every simulated motion; the output is the number of entries that were played.
QORIN_API_RESULT playback(box_model& model, robot_state& robot, std::uint32_t id, std::uint32_t& entries)
{
    const auto [buffer, result] = find_filled(robot, id);
    if (result != QORIN_API_RESULT_OK)
        return result;
    if (!is_ready_to_move(robot, model.cbox()))
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    if (!stands_at_start(robot, *buffer))
        return QORIN_API_RESULT_ROBOT_TARGET_START_POSE_NOT_MATCHED;
    for (const auto& angles : *buffer)
        robot.set_joint_angles(angles);
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
    open_to_all<angle_get<place::start>>("qorin_robot_recording_angle_start_get"),
    open_to_all<angle_get<place::end>>("qorin_robot_recording_angle_end_get"),
    open_to_all<angle_from_file_get<place::start>>("qorin_robot_recording_angle_start_from_file_get"),
    open_to_all<angle_from_file_get<place::end>>("qorin_robot_recording_angle_end_from_file_get"),
};
} // namespace

std::span<const command_row> recording_commands()
{
    return rows;
}
} // namespace cbox_simulator
