#ifndef SIMULATOR_MODEL_PLANNED_SOURCE_H
#define SIMULATOR_MODEL_PLANNED_SOURCE_H

#include <algorithm>
#include <utility>

#include "simulator/model/motion_source.h"
#include "simulator/motion/planned_motion.h"

namespace cbox_simulator
{
/// A planned motion without a command, as a jog.
class planned_source : public motion_source
{
public:
    planned_source(motion::planned_motion planned, double speed_max, double acceleration)
        : planned_(std::move(planned)), limits_{0, speed_max, acceleration, acceleration}
    {
    }

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override
    {
        time_ = std::min(time_ + time.motion, planned_.duration());
        if (planned_.commands().empty())
            return robot.commanded().joints;
        const auto sample = planned_.at(time_);
        limits_.speed = sample.path_speed;
        return sample.to_joints(robot.kinematics(), robot.tcp_from_flange(), robot.commanded().joints);
    }
    bool has_ended(const robot_state&) const override { return time_ >= planned_.duration(); }
    way_limits limits() const override { return limits_; }

private:
    motion::planned_motion planned_;
    way_limits limits_;
    double time_ = 0;
};
} // namespace cbox_simulator

#endif
