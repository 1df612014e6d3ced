#include "simulator/motion/position_curve.h"

#include <cmath>
#include <numbers>

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Quaterniond;
using Eigen::Vector3d;

/// The sine of an angle that is as good as none: the circle through such points would be wider than any arm's reach.
constexpr double straight = 1e-7;

class line : public position_curve
{
public:
    line(const Vector3d& start, const Vector3d& end)
        : start_(start), length_((end - start).norm()),
          direction_(length_ > 0 ? Vector3d((end - start) / length_) : Vector3d::Zero())
    {
    }

    double length() const override { return length_; }
    Vector3d at(double length) const override { return start_ + direction_ * length; }
    Vector3d direction_at(double) const override { return direction_; }
    Vector3d bend_at(double) const override { return Vector3d::Zero(); }
    Quaterniond carried_to(double) const override { return Quaterniond::Identity(); }

private:
    Vector3d start_;
    double length_;
    Vector3d direction_;
};

/// Counter-clockwise from the x axis towards the y axis.
class arc : public position_curve
{
public:
    arc(const Vector3d& centre, double radius, const Vector3d& x, const Vector3d& y, double angle)
        : centre_(centre), radius_(radius), x_(x), y_(y), axis_(x.cross(y)), length_(radius * angle)
    {
    }

    double length() const override { return length_; }
    Vector3d at(double length) const override
    {
        const double angle = length / radius_;
        return centre_ + radius_ * (std::cos(angle) * x_ + std::sin(angle) * y_);
    }
    Vector3d direction_at(double length) const override
    {
        const double angle = length / radius_;
        return std::cos(angle) * y_ - std::sin(angle) * x_;
    }
    Vector3d bend_at(double) const override { return axis_ / radius_; }
    Quaterniond carried_to(double length) const override
    {
        return Quaterniond(Eigen::AngleAxisd(length / radius_, axis_));
    }

private:
    Vector3d centre_;
    double radius_;
    Vector3d x_;
    Vector3d y_;
    Vector3d axis_;
    double length_;
};

/// From start through mid and end, to the end or all the way round.
curve_pointer circular(const Vector3d& start, const Vector3d& mid, const Vector3d& end, bool whole)
{
    const Vector3d to_mid = mid - start;
    const Vector3d to_end = end - start;
    const Vector3d normal = to_mid.cross(to_end);
    if (normal.norm() <= straight * to_mid.norm() * to_end.norm())
        return nullptr;
    const Vector3d to_centre =
        (to_mid.squaredNorm() * to_end - to_end.squaredNorm() * to_mid).cross(normal) / (2 * normal.squaredNorm());
    const double radius = to_centre.norm();
    const Vector3d x = -to_centre / radius;
    const Vector3d y = normal.normalized().cross(x);
    const Vector3d end_from_centre = to_end - to_centre;
    double angle = std::atan2(end_from_centre.dot(y), end_from_centre.dot(x));
    if (whole || angle < 0)
        angle = 2 * std::numbers::pi + (whole ? 0 : angle);
    return std::make_shared<arc>(start + to_centre, radius, x, y, angle);
}
} // namespace

curve_pointer line_between(const Vector3d& start, const Vector3d& end)
{
    return std::make_shared<line>(start, end);
}

curve_pointer arc_through(const Vector3d& start, const Vector3d& mid, const Vector3d& end)
{
    return circular(start, mid, end, false);
}

curve_pointer circle_through(const Vector3d& start, const Vector3d& mid, const Vector3d& end)
{
    return circular(start, mid, end, true);
}

curve_pointer arc_at_tangent(const Vector3d& start, const Vector3d& direction, const Vector3d& end)
{
    const Vector3d way = end - start;
    const double ahead = way.dot(direction);
    const Vector3d aside = way - ahead * direction;
    if (aside.norm() <= straight * way.norm())
        return ahead > 0 ? line_between(start, end) : nullptr;
    const Vector3d inwards = aside.normalized();
    const double radius = way.squaredNorm() / (2 * way.dot(inwards));
    return std::make_shared<arc>(start + radius * inwards, radius, -inwards, direction,
                                 2 * std::atan2(way.dot(inwards), ahead));
}

curve_pointer arc_of_radius(const Vector3d& start, const Vector3d& end, double radius, const Vector3d& bulge,
                            bool longer)
{
    const Vector3d chord = (end - start) / 2;
    const double half = chord.norm();
    if (half > radius * (1 + straight))
        return nullptr;
    const Vector3d ahead = chord / half;
    const Vector3d outwards = (bulge - bulge.dot(ahead) * ahead).normalized();
    const double depth = std::sqrt(std::max(0.0, radius * radius - half * half));
    const Vector3d to_centre = chord + (longer ? depth : -depth) * outwards;
    const double true_radius = to_centre.norm();
    const Vector3d x = -to_centre / true_radius;
    const Vector3d y = outwards.cross(ahead).cross(x);
    const double half_angle = std::atan2(half, longer ? -depth : depth);
    return std::make_shared<arc>(start + to_centre, true_radius, x, y, 2 * half_angle);
}
} // namespace cbox_simulator::motion
