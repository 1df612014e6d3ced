#include "simulator/motion/orientation_course.h"

#include <algorithm>
#include <utility>

namespace cbox_simulator::motion
{
namespace
{
class steady_turn : public orientation_course
{
public:
    steady_turn(const Eigen::Quaterniond& start, const Eigen::Vector3d& axis, double angle)
        : start_(start), axis_(axis), angle_(angle)
    {
    }

    double turn() const override { return std::abs(angle_); }
    Eigen::Quaterniond at(double share) const override
    {
        return Eigen::Quaterniond(Eigen::AngleAxisd(angle_ * share, axis_)) * start_;
    }
    Eigen::Vector3d turning_at(double) const override { return axis_ * angle_; }

private:
    Eigen::Quaterniond start_;
    Eigen::Vector3d axis_;
    double angle_;
};
/// Where the greatest rate along a bent curve is looked for.
constexpr int looks = 128;

class carried_turn : public orientation_course
{
public:
    carried_turn(curve_pointer curve, const Eigen::Quaterniond& start, const Eigen::AngleAxisd& rest)
        : curve_(std::move(curve)), start_(start), rest_(rest)
    {
        for (int i = 0; i <= looks; ++i)
            turn_ = std::max(turn_, turning_at(static_cast<double>(i) / looks).norm());
    }

    double turn() const override { return turn_; }
    Eigen::Quaterniond at(double share) const override
    {
        return curve_->carried_to(share * curve_->length()) * start_ *
               Eigen::Quaterniond(Eigen::AngleAxisd(rest_.angle() * share, rest_.axis()));
    }
    Eigen::Vector3d turning_at(double share) const override
    {
        const double length = share * curve_->length();
        return curve_->bend_at(length) * curve_->length() +
               curve_->carried_to(length) * (start_ * (rest_.axis() * rest_.angle()));
    }

private:
    curve_pointer curve_;
    Eigen::Quaterniond start_;
    Eigen::AngleAxisd rest_; ///< Seen from the carried orientation.
    double turn_ = 0;
};

/// By the shortest way.
Eigen::AngleAxisd turn_of(Eigen::Quaterniond rotation)
{
    if (rotation.w() < 0)
        rotation.coeffs() = -rotation.coeffs();
    return Eigen::AngleAxisd(rotation);
}
} // namespace

course_pointer turn_about_axis(const Eigen::Quaterniond& start, const Eigen::Vector3d& axis, double angle)
{
    return std::make_shared<steady_turn>(start, axis, angle);
}

course_pointer shortest_turn(const Eigen::Quaterniond& start, const Eigen::Quaterniond& end)
{
    const Eigen::AngleAxisd turn = turn_of(end * start.conjugate());
    return turn_about_axis(start, turn.axis(), turn.angle());
}

course_pointer turn_along(curve_pointer curve, const Eigen::Quaterniond& start,
                          const std::optional<Eigen::Quaterniond>& end)
{
    const Eigen::Quaterniond carried = curve->carried_to(curve->length()) * start;
    const Eigen::AngleAxisd rest =
        end ? turn_of(carried.conjugate() * *end) : Eigen::AngleAxisd(0, Eigen::Vector3d::UnitX());
    return std::make_shared<carried_turn>(std::move(curve), start, rest);
}
} // namespace cbox_simulator::motion
