#ifndef SIMULATOR_MODEL_MOTION_SOURCE_H
#define SIMULATOR_MODEL_MOTION_SOURCE_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "simulator/model/readiness.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// How much of the time passes in a control cycle, in seconds: for everybody, and for the motion. The motion's own time
/// stands still while it is paused, and runs at the speed factor.
struct passing_time
{
    double clock;
    double motion;
};

/// What a change of a motion's speed has to do with: of its way, in the units of the way, at speed factor 1.
struct way_limits
{
    double speed = 0;        ///< At this moment.
    double speed_max = 0;    ///< That it may come to.
    double acceleration = 0; ///< 0: as much as the joints can.
    double deceleration = 0;
};

/**
 * Something that moves an arm: a row of motion commands, a jog, a stream of targets, the hand that guides it.
 *
 * Tells where the arm is commanded to be, cycle by cycle, and nothing else: that it stops in time, waits, shows in the
 * state and ends with the arm at rest is the same for all of them (see motion_executor). Owned by the executor of one
 * robot, and asked once in a cycle. Whoever makes one has passed it through the readiness gate.
 */
class motion_source
{
public:
    using joint_array = robot_state::joint_array;

    motion_source() = default;
    motion_source(const motion_source&) = delete;
    motion_source& operator=(const motion_source&) = delete;
    virtual ~motion_source() = default;

    /// Where the arm is to be next. Nothing when it cannot get there: then the arm is brought to rest beside its way.
    [[nodiscard]] virtual std::optional<joint_array> advance(const passing_time& time, robot_state& robot) = 0;
    [[nodiscard]] virtual bool has_ended(const robot_state& robot) const = 0;
    [[nodiscard]] virtual way_limits limits() const { return {}; }
    [[nodiscard]] virtual drive_use needed_drives() const { return drive_use::position; }

    /// A stream from outside shows in no moving state, and no speed factor holds for it.
    [[nodiscard]] virtual bool is_stream() const { return false; }

    /// What a command's motion tells of itself with events: its sender id, and that it has come to rest.
    [[nodiscard]] virtual bool is_command() const { return false; }
    [[nodiscard]] virtual std::uint32_t command_id() const { return 0; }
    [[nodiscard]] virtual std::string_view name() const { return {}; }
};
} // namespace cbox_simulator

#endif
