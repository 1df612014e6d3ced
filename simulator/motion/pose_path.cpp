#include "simulator/motion/pose_path.h"

#include <algorithm>
#include <utility>

#include "simulator/motion/orientation_course.h"
#include "simulator/motion/pose_frame.h"
#include "simulator/motion/position_curve.h"

namespace cbox_simulator::motion
{
namespace
{
/// Millimetres and degrees that are no more than the rounding of what they come from are no way to go.
double unless_rounding(double length)
{
    return length > 1e-9 ? length : 0;
}
} // namespace

pose_path::pose_path(std::shared_ptr<const position_curve> positions,
                     std::shared_ptr<const orientation_course> orientations, const pose& start, const pose& end)
    : positions_(std::move(positions)), orientations_(std::move(orientations)), start_(start), end_(end),
      way_(unless_rounding(positions_->length())),
      turn_(unless_rounding(savrent::kinematics::degrees(orientations_->turn()))), length_(std::max(way_, turn_))
{
}

pose_path pose_path::line(const pose& start, const pose& end)
{
    return {line_between(position_of(start), position_of(end)), shortest_turn(rotation_of(start), rotation_of(end)),
            start, end};
}

pose_path pose_path::turn(const pose& start, const std::array<double, 3>& orientation_end)
{
    return line(start, {start[0], start[1], start[2], orientation_end[0], orientation_end[1], orientation_end[2]});
}

pose_path pose_path::turn_about(const pose& start, const vector3& axis, double angle)
{
    const Eigen::Vector3d position = position_of(start);
    auto course = turn_about_axis(rotation_of(start), vector_of(axis), savrent::kinematics::radians(angle));
    const pose end = pose_of(position, course->at(1));
    return {line_between(position, position), std::move(course), start, end};
}

pose pose_path::at(double length) const
{
    if (length <= 0)
        return start_;
    if (length >= length_)
        return end_;
    const double share = length / length_;
    return pose_of(positions_->at(share * way_), orientations_->at(share));
}

vector3 pose_path::direction_at(double length) const
{
    if (!(way_ > 0))
        return {};
    return vector3_of(positions_->direction_at(std::clamp(length / length_, 0.0, 1.0) * way_));
}

vector3 pose_path::turning_at(double length) const
{
    if (!(length_ > 0))
        return {};
    const double share = std::clamp(length / length_, 0.0, 1.0);
    return vector3_of(orientations_->turning_at(share) * (savrent::kinematics::degrees(1) / length_));
}
} // namespace cbox_simulator::motion
