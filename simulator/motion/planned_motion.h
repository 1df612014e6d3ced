#ifndef SIMULATOR_MOTION_PLANNED_MOTION_H
#define SIMULATOR_MOTION_PLANNED_MOTION_H

#include <cstddef>
#include <span>
#include <variant>
#include <vector>

#include "simulator/motion/joint_motion.h"
#include "simulator/motion/motion_sample.h"
#include "simulator/motion/tcp_motion.h"

namespace cbox_simulator::motion
{
using any_motion = std::variant<joint_motion, tcp_motion>;

/// Seconds from the start of the whole motion. A blended command starts while the one before it still runs.
struct command_times
{
    double start = 0;
    double blend_begin = 0; ///< Where the next command starts; the end when it is not blended into the next one.
    double end = 0;
};

/// One command's own speed in time: up from a blend, its profile, and down into a blend.
class blended_profile
{
public:
    blended_profile() = default;
    blended_profile(const speed_ramp& arriving, const speed_profile& middle, const speed_ramp& leaving);

    [[nodiscard]] double duration() const { return leaving_start_ + leaving_.duration(); }
    [[nodiscard]] double leaving_start() const { return leaving_start_; }
    [[nodiscard]] profile_sample at(double time) const;

private:
    speed_ramp arriving_;
    speed_profile middle_;
    speed_ramp leaving_;
    double leaving_start_ = 0;
};

/**
 * One or several commands as one motion: where the arm is to be at each moment. Ends exactly at the last target.
 *
 * A blend runs the end of one command and the start of the next at the same time: for the same while the one slows down
 * to rest and the other one speeds up, each over the radius. So the speed changes smoothly from one direction to the
 * other, and what is left of the one way and what is gone on the other are together never more than the radius.
 *
 * A value; it knows no robot and no clock. See motion_chain for how one is made of several commands.
 */
class planned_motion
{
public:
    struct command
    {
        any_motion motion;
        blended_profile profile;
    };

    /// Of nothing: lasts no time, and is not to be sampled.
    planned_motion() = default;
    /// From rest to rest.
    explicit planned_motion(any_motion motion);
    /// Each starts where the one before it starts to leave its way.
    explicit planned_motion(std::vector<command> commands);

    [[nodiscard]] double duration() const { return times_.empty() ? 0 : times_.back().end; }
    /// Time 0 is the start; before and after, the motion stands at its ends.
    [[nodiscard]] motion_sample at(double time) const;
    /// How much of a command's own way is gone then, from 0 to 1.
    [[nodiscard]] double share_of_way(std::size_t index, double time) const;
    /// In their order.
    [[nodiscard]] std::span<const command_times> commands() const { return times_; }

private:
    [[nodiscard]] motion_sample sample_of(std::size_t command, double time) const;
    [[nodiscard]] motion_sample blend(std::size_t command, double time) const;

    std::vector<command> commands_;
    std::vector<command_times> times_;
};
} // namespace cbox_simulator::motion

#endif
