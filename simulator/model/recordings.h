#ifndef SIMULATOR_MODEL_RECORDINGS_H
#define SIMULATOR_MODEL_RECORDINGS_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kinematics/dh_table.h"
#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// Joint angles in the order in which the robot had them: those of the start, one entry for each change. What is
/// longer than the limit has lost its end.
using recording = std::vector<savrent::kinematics::joint_array>;

/// A recording belongs to the arm that made it.
struct recording_file
{
    QORIN_ROBOT_MODEL model;
    recording content;
};

/// The files of the box with recordings, in its memory: they end with the box.
using recording_files = std::map<std::string, recording_file, std::less<>>;

/**
 * The recording buffers of one robot by their ids, which count from 1, and the recording that is running.
 *
 * An id without a buffer is QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID. Owned by the robot, which tells where
 * it goes.
 */
class recordings
{
public:
    static constexpr std::size_t length_limit = 100'000;

    /// The id of a new buffer.
    std::uint32_t create(const recording& content = {});
    QORIN_API_RESULT destroy(std::uint32_t id);

    /// Null when there is no such buffer; otherwise good until it is destroyed.
    [[nodiscard]] recording* find(std::uint32_t id);

    /// A second start is QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_RUNNING_STATE.
    QORIN_API_RESULT start(const savrent::kinematics::joint_array& angles);
    /// What is recorded takes the place of the buffer's content. An end without a start is
    /// QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_STOP_STATE, which is judged before the id.
    QORIN_API_RESULT end(std::uint32_t id);
    /// To be told of every change.
    void follow(const savrent::kinematics::joint_array& angles);
    [[nodiscard]] bool is_running() const { return running_.has_value(); }
    /// True once after a recording has become as long as it can be.
    [[nodiscard]] bool take_time_out() { return std::exchange(timed_out_, false); }

private:
    std::map<std::uint32_t, recording> buffers_;
    std::uint32_t last_id_ = 0;
    std::optional<recording> running_;
    bool timed_out_ = false;
};
} // namespace cbox_simulator

#endif
