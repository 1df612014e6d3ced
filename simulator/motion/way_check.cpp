#include "simulator/motion/way_check.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "simulator/motion/joint_way.h"

namespace cbox_simulator::motion
{
namespace
{
constexpr int steps = 100;
/// Steps in which a joint goes farther are looked at more closely, sooner where one is near to its speed. Degrees.
constexpr double wide = 2;
constexpr double wide_near_speed = 0.5;
constexpr double near_speed = 1.5;
/// What a slowed motion leaves of a joint's speed, for what lies between two steps.
constexpr double left_in_hand = 0.97;
/// But none shorter than this. Seconds.
constexpr double shortest_step = 1e-4;
/// A motion that would have to be slower than this share of its speed is no use: it runs by a straight wrist.
constexpr double least_margin = 0.02;

class walk
{
public:
    walk(const planned_motion& motion, const moving_arm& arm, const joint_array& start) : motion_(motion), arm_(arm)
    {
        report_.end_joints = start;
    }

    [[nodiscard]] way_report report() const
    {
        way_report made = report_;
        if (made.result == QORIN_API_RESULT_OK && made.speed_limit < least_margin * fastest_)
            made.result = QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT;
        return made;
    }

    /// From where the walk has come to. False when it ends there.
    bool step(double from, double to)
    {
        const motion_sample sample = motion_.at(to);
        const auto joints = sample.to_joints(arm_.solver, arm_.tool, report_.end_joints);
        if (!joints)
            return fail(QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE, to);
        const double margin = speed_margin(arm_.bounds, report_.end_joints, *joints, to - from);
        const double way = farthest(report_.end_joints, *joints);
        if (sample.point && to - from > 2 * shortest_step && way > (margin < near_speed ? wide_near_speed : wide))
            return step(from, std::midpoint(from, to)) && step(std::midpoint(from, to), to);
        if (!is_within(arm_.bounds, *joints))
            return fail(QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE, to);
        if (sample.point && arm_.solver.is_wrist_straight(*joints))
            return fail(QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT, to);
        if (margin < least_margin)
            return fail(QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT, to);
        if (const double speed = std::midpoint(speed_, sample.path_speed); margin < 1)
            report_.speed_limit = std::min(report_.speed_limit, speed * margin * left_in_hand);
        speed_ = sample.path_speed;
        fastest_ = std::max(fastest_, speed_);
        report_.end_joints = *joints;
        return true;
    }

private:
    bool fail(QORIN_API_RESULT result, double time)
    {
        report_.result = result;
        report_.failed_at = time;
        return false;
    }

    const planned_motion& motion_;
    const moving_arm& arm_;
    way_report report_;
    double speed_ = 0; ///< Where the walk has come to.
    double fastest_ = 0;
};
} // namespace

bool is_within(const joint_bounds& bounds, const joint_array& joints)
{
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        if (!(joints[joint] >= bounds[joint].angle_min && joints[joint] <= bounds[joint].angle_max))
            return false;
    return true;
}

double speed_margin(const joint_bounds& bounds, const joint_array& from, const joint_array& to, double seconds)
{
    double factor = std::numeric_limits<double>::infinity();
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        factor = std::min(factor, bounds[joint].speed_max * seconds / std::abs(to[joint] - from[joint]));
    return factor;
}

way_report check_way(const planned_motion& motion, const moving_arm& arm, const joint_array& start)
{
    walk on_way(motion, arm, start);
    const double step = motion.duration() / steps;
    for (int i = 0; i < steps && step > 0; ++i)
        if (!on_way.step(step * i, i + 1 == steps ? motion.duration() : step * (i + 1)))
            break;
    return on_way.report();
}
} // namespace cbox_simulator::motion
