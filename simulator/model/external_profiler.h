#ifndef SIMULATOR_MODEL_EXTERNAL_PROFILER_H
#define SIMULATOR_MODEL_EXTERNAL_PROFILER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// Where the arm is to be next: all joints, or a pose in the base frame.
struct profiler_point
{
    enum class kind : std::uint8_t
    {
        joints,
        pose
    };

    kind form;
    std::array<double, 6> values;
};

/**
 * The buffer between an application that streams points and the arm that takes one of them a period.
 *
 * Points may wait before the profiler is on; what still waits when it goes off is forgotten, as the arm would jump to
 * it later. Each point has been judged by whoever adds it.
 */
class external_profiler
{
public:
    static constexpr std::size_t capacity = 100;

    [[nodiscard]] QORIN_SWITCH active() const { return active_; }
    [[nodiscard]] std::uint32_t period_cycles() const { return period_cycles_; }
    [[nodiscard]] std::uint32_t waiting() const { return static_cast<std::uint32_t>(points_.size()); }
    [[nodiscard]] QORIN_POSE_TYPE pose_type() const { return pose_type_; }

    /// These refuse with QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE what is no switch, a pose type that is none,
    /// and a period of 0 or of more cycles than a frame can tell. A period is at least one cycle.
    QORIN_API_RESULT set_active(QORIN_SWITCH value);
    QORIN_API_RESULT set_period(std::uint32_t milliseconds, double control_cycle_us);
    QORIN_API_RESULT set_pose_type(QORIN_POSE_TYPE value);

    /// QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL when it has no room.
    QORIN_API_RESULT add(const profiler_point& point);

    /// To be asked once in every control cycle: the point that falls due in it.
    [[nodiscard]] std::optional<profiler_point> take_due_point();

private:
    QORIN_SWITCH active_ = QORIN_SWITCH_OFF;
    QORIN_POSE_TYPE pose_type_ = QORIN_POSE_TYPE_TCP;
    std::uint32_t period_cycles_ = 1;
    std::uint32_t cycles_since_point_ = 0;
    std::deque<profiler_point> points_;
};
} // namespace cbox_simulator

#endif
