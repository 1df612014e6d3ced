#ifndef SIMULATOR_MODEL_EXTERNAL_MOVE_H
#define SIMULATOR_MODEL_EXTERNAL_MOVE_H

#include <array>
#include <cstddef>
#include <deque>
#include <optional>

#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// Where the joints are to be, and within which time from the target before. Degrees, seconds.
struct timed_target
{
    std::array<double, 6> joints;
    double seconds;
};

/**
 * Single timed targets from an application, on their way to the arm.
 *
 * As with the external profiler they may wait before it is on, and what still waits when it goes off is forgotten. Each
 * target has been judged by whoever adds it.
 */
class external_move
{
public:
    static constexpr std::size_t capacity = 100;

    [[nodiscard]] QORIN_SWITCH active() const { return active_; }
    [[nodiscard]] QORIN_SWITCH stop_mode() const { return stop_mode_; }

    /// These refuse what is no switch with QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE.
    QORIN_API_RESULT set_active(QORIN_SWITCH value);
    /// With it the arm comes to rest at each target.
    QORIN_API_RESULT set_stop_mode(QORIN_SWITCH value);

    /// QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL when it has no room.
    QORIN_API_RESULT add(const timed_target& target);

    /// The target that was added last, whether it has been taken or not; none since the switch went off.
    [[nodiscard]] const std::optional<timed_target>& last() const { return last_; }
    /// Null when there is none; good until it is taken.
    [[nodiscard]] const timed_target* next() const { return targets_.empty() ? nullptr : &targets_.front(); }
    [[nodiscard]] std::optional<timed_target> take();

private:
    QORIN_SWITCH active_ = QORIN_SWITCH_OFF;
    QORIN_SWITCH stop_mode_ = QORIN_SWITCH_ON;
    std::deque<timed_target> targets_;
    std::optional<timed_target> last_;
};
} // namespace cbox_simulator

#endif
