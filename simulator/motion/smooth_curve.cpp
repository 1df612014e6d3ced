#include <algorithm>
#include <array>
#include <vector>

#include "simulator/motion/position_curve.h"

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Quaterniond;
using Eigen::Vector3d;

/// Of the parameter's range between two points, for lengths and turns.
constexpr int pieces_of_span = 32;

/// A cubic between two points, by a parameter from 0 to its width.
struct span_of_curve
{
    double width;
    std::array<Vector3d, 4> factors;

    Vector3d at(double u) const { return factors[0] + u * (factors[1] + u * (factors[2] + u * factors[3])); }
    Vector3d slope(double u) const { return factors[1] + u * (2 * factors[2] + 3 * u * factors[3]); }
    Vector3d second(double u) const { return 2 * factors[2] + 6 * u * factors[3]; }

    /// By Gauss and Legendre over a piece, over which the slope hardly changes.
    double length(double from, double to) const
    {
        constexpr std::array<double, 3> node = {0, 0.5384693101056831, 0.9061798459386640};
        constexpr std::array<double, 3> weight = {0.5688888888888889, 0.4786286704993665, 0.2369268850561891};
        const double middle = (from + to) / 2;
        const double half = (to - from) / 2;
        double sum = weight[0] * slope(middle).norm();
        for (std::size_t i = 1; i < node.size(); ++i)
            sum += weight[i] * (slope(middle - half * node[i]).norm() + slope(middle + half * node[i]).norm());
        return half * sum;
    }
};

/**
 * The natural cubic spline through the points over the lengths of the lines between them: where the points lie in one
 * line, so does the curve, and its parameter runs nearly as its length does.
 */
std::vector<span_of_curve> spline_through(std::span<const Vector3d> points)
{
    const std::size_t count = points.size() - 1;
    std::vector<double> width(count);
    for (std::size_t i = 0; i < count; ++i)
        width[i] = (points[i + 1] - points[i]).norm();

    // The second derivatives at the inner points, from a tridiagonal system; those at the ends are 0.
    std::vector<Vector3d> second(points.size(), Vector3d::Zero());
    std::vector<double> above(points.size(), 0);
    for (std::size_t i = 1; i < count; ++i)
    {
        const Vector3d change = (points[i + 1] - points[i]) / width[i] - (points[i] - points[i - 1]) / width[i - 1];
        const double pivot = 2 * (width[i - 1] + width[i]) - width[i - 1] * above[i - 1];
        above[i] = width[i] / pivot;
        second[i] = (6 * change - width[i - 1] * second[i - 1]) / pivot;
    }
    for (std::size_t i = count - 1; i > 0; --i)
        second[i] -= above[i] * second[i + 1];

    std::vector<span_of_curve> spans;
    for (std::size_t i = 0; i < count; ++i)
        spans.push_back(
            {width[i],
             {points[i], (points[i + 1] - points[i]) / width[i] - width[i] / 6 * (2 * second[i] + second[i + 1]),
              second[i] / 2, (second[i + 1] - second[i]) / (6 * width[i])}});
    return spans;
}

class smooth_curve : public position_curve
{
public:
    explicit smooth_curve(std::span<const Vector3d> points) : spans_(spline_through(points))
    {
        double length = 0;
        Quaterniond carried = Quaterniond::Identity();
        for (const span_of_curve& span : spans_)
            for (int i = 0; i < pieces_of_span; ++i)
            {
                const double from = span.width * i / pieces_of_span;
                const Vector3d direction = span.slope(from).normalized();
                if (!pieces_.empty())
                    carried = Quaterniond::FromTwoVectors(pieces_.back().direction, direction) * carried;
                pieces_.push_back({length, &span - spans_.data(), from, direction, carried.normalized()});
                length += span.length(from, span.width * (i + 1) / pieces_of_span);
            }
        length_ = length;
    }

    double length() const override { return length_; }
    Vector3d at(double length) const override
    {
        const place there = find(length);
        return there.span->at(there.parameter);
    }
    Vector3d direction_at(double length) const override
    {
        const place there = find(length);
        return there.span->slope(there.parameter).normalized();
    }
    Vector3d bend_at(double length) const override
    {
        const place there = find(length);
        const Vector3d slope = there.span->slope(there.parameter);
        return slope.cross(there.span->second(there.parameter)) / (slope.squaredNorm() * slope.norm());
    }
    Quaterniond carried_to(double length) const override
    {
        const place there = find(length);
        return Quaterniond::FromTwoVectors(there.piece->direction, there.span->slope(there.parameter)) *
               there.piece->carried;
    }

private:
    struct piece_of_curve
    {
        double length; ///< Gone at its start.
        std::ptrdiff_t span;
        double from;
        Vector3d direction;
        Quaterniond carried;
    };
    struct place
    {
        const piece_of_curve* piece;
        const span_of_curve* span;
        double parameter;
    };

    place find(double length) const
    {
        const auto after =
            std::upper_bound(pieces_.begin() + 1, pieces_.end(), length,
                             [](double gone, const piece_of_curve& piece) { return gone < piece.length; });
        const piece_of_curve& start = *(after - 1);
        const span_of_curve& span = spans_[static_cast<std::size_t>(start.span)];
        const double left = length - start.length;
        double parameter = start.from + left / span.slope(start.from).norm();
        for (int i = 0; i < 3; ++i)
            parameter += (left - span.length(start.from, parameter)) / span.slope(parameter).norm();
        return {&start, &span, parameter};
    }

    std::vector<span_of_curve> spans_;
    std::vector<piece_of_curve> pieces_;
    double length_;
};
} // namespace

curve_pointer curve_through(std::span<const Vector3d> points)
{
    return std::make_shared<smooth_curve>(points);
}
} // namespace cbox_simulator::motion
