#include "simulator/motion/weave.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "simulator/motion/pose_frame.h"

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Vector3d;

/// Of a section of a zigzag, before or after a turn.
constexpr double rounded_share = 0.2;
/// Swings a second.
constexpr double fastest = 50;

/// From 0 to 1 in a share of 1, straight but for the rounded ends.
double rounded(double share, bool at_start, bool at_end)
{
    const double speed = 1 / (1 - rounded_share / 2 * ((at_start ? 1 : 0) + (at_end ? 1 : 0)));
    const double left = 1 - share;
    if (at_start && share < rounded_share)
        return speed * share * share / (2 * rounded_share);
    if (at_end && left < rounded_share)
        return 1 - speed * left * left / (2 * rounded_share);
    return speed * (share - (at_start ? rounded_share / 2 : 0));
}

double smooth_step(double share)
{
    const double s = std::clamp(share, 0.0, 1.0);
    return s * s * (3 - 2 * s);
}

bool stays_in_middle(const welding_weave& told)
{
    return told.pattern != QORIN_WELDING_WEAVING_PATTERN_ELLIPSE && told.middle_stop_settling_time > 0;
}

/// Left and up of a way, seen from the base.
struct sides
{
    Vector3d ahead;
    Vector3d left;
    Vector3d up;
};

sides sides_at(const path_point& point, const welding_weave& told)
{
    const Eigen::Quaterniond tool = rotation_of(point.target);
    Vector3d ahead = vector_of(point.direction);
    if (ahead.isZero())
        ahead = tool * Vector3d::UnitX();
    const auto across = [&](const Vector3d& vector) -> Vector3d { return vector - vector.dot(ahead) * ahead; };
    Vector3d up = across(tool * -Vector3d::UnitZ());
    if (up.norm() < 1e-6)
        up = across(tool * Vector3d::UnitX());
    if (told.position_fix_switch == QORIN_SWITCH_ON)
        if (const Vector3d left = across(vector_of(told.position_fix) - position_of(point.target)); left.norm() > 1e-6)
            up = ahead.cross(left);
    up.normalize();
    const Vector3d left = up.cross(ahead);
    const Eigen::AngleAxisd tilt(savrent::kinematics::radians(told.plane_tilt_angle), ahead);
    return {ahead, tilt * left, tilt * up};
}
} // namespace

weave::weave(const welding_weave& told) : told_(told)
{
    ease_to(told, 0);
    begin_section();
}

void weave::ease_to(const welding_weave& told, double seconds)
{
    const auto ease = [&](eased_value& value, double target)
    {
        if (value.target() != target)
            value.go_to(target, seconds);
    };
    ease(amplitudes_[0], told.left_amplitude);
    ease(amplitudes_[1], told.right_amplitude);
    ease(frequency_, std::clamp(told.frequency, 0.0, fastest));
    ease(offsets_[0], told.vertical_offset);
    ease(offsets_[1], told.horizontal_offset);
    for (std::size_t axis = 0; axis < 3; ++axis)
        ease(offsets_[2 + axis], told.offset[axis]);
}

void weave::change(const welding_weave& told)
{
    ease_to(told, ease_time);
    told_.left_stop_settling_time = told.left_stop_settling_time;
    told_.right_stop_settling_time = told.right_stop_settling_time;
    told_.middle_stop_settling_time = told.middle_stop_settling_time;
}

bool weave::has_told_shares() const
{
    return told_.pattern == QORIN_WELDING_WEAVING_PATTERN_ZIGZAG &&
           std::ranges::all_of(told_.zigzag_ratio, [](double part) { return part > 0; });
}

/// Of a period. It follows the amplitudes while they change, so that the speed in the middle does not leap.
double weave::share_of_section() const
{
    const std::size_t section = (sections_ - 1) % 4;
    if (has_told_shares())
        return told_.zigzag_ratio[section] / std::accumulate(told_.zigzag_ratio.begin(), told_.zigzag_ratio.end(), 0.0);
    const double left = std::abs(amplitudes_[0].value());
    const double right = std::abs(amplitudes_[1].value());
    return left + right > 0 ? (section < 2 ? left : right) / (2 * (left + right)) : 0.25;
}

/// Whether it rests in the middle is decided where the way back to it begins, since two sections share that.
void weave::begin_section()
{
    const std::size_t section = sections_++ % 4;
    if (section % 2 == 1 || sections_ == 1)
        rests_in_middle_ = has_told_shares() || stays_in_middle(told_) ||
                           std::ranges::any_of(amplitudes_, [](const auto& side) { return side.value() == 0; });
    in_section_ = stayed_ = 0;
}

double weave::stay_after_section() const
{
    if (told_.pattern == QORIN_WELDING_WEAVING_PATTERN_ELLIPSE)
        return 0;
    switch ((sections_ - 1) % 4)
    {
    case 0:
        return told_.left_stop_settling_time;
    case 2:
        return told_.right_stop_settling_time;
    default:
        return rests_in_middle_ && stays_in_middle(told_) ? told_.middle_stop_settling_time : 0;
    }
}

/// Time in which the frequency makes up so many periods.
void weave::pass(double seconds, double periods)
{
    double left = 1; // of the time
    while (left > 0 && periods > 0)
    {
        if (in_section_ < 1)
        {
            const double section = share_of_section();
            const double used = std::min(left, (1 - in_section_) * section / periods);
            in_section_ = used < left ? 1 : in_section_ + used * periods / section;
            left -= used;
        }
        if (in_section_ >= 1)
        {
            const double used = std::min(left, std::max(0.0, stay_after_section() - stayed_) / seconds);
            stayed_ += used * seconds;
            left -= used;
            if (stayed_ < stay_after_section())
                return;
            begin_section();
        }
    }
}

void weave::advance(double seconds, double left)
{
    if (!(seconds > 0))
        return;
    age_ += seconds;
    fade_ = smooth_step(age_ / fade_time) * smooth_step(left / fade_time);
    for (eased_value& amplitude : amplitudes_)
        amplitude.advance(seconds);
    for (eased_value& offset : offsets_)
        offset.advance(seconds);
    const double periods = frequency_.advance(seconds);
    if (told_.motion_switch == QORIN_SWITCH_ON)
        pass(seconds, periods);
}

std::uint32_t weave::sections() const
{
    return told_.pattern == QORIN_WELDING_WEAVING_PATTERN_ZIGZAG ? sections_ : 0;
}

weave::swing weave::swing_now() const
{
    if (told_.motion_switch != QORIN_SWITCH_ON)
        return {};
    const std::size_t section = (sections_ - 1) % 4;
    const bool outwards = section % 2 == 0;
    const double amplitude = section < 2 ? amplitudes_[0].value() : -amplitudes_[1].value();
    const double quarter = in_section_ * std::numbers::pi / 2;
    double gone = 0; // from the middle, of the amplitude
    if (told_.pattern == QORIN_WELDING_WEAVING_PATTERN_ZIGZAG)
    {
        const double share = rounded(in_section_, rests_in_middle_ || !outwards, rests_in_middle_ || outwards);
        gone = outwards ? share : 1 - share;
    }
    else if (rests_in_middle_)
        gone = (1 + std::cos(2 * quarter) * (outwards ? -1 : 1)) / 2;
    else
        gone = outwards ? std::sin(quarter) : std::cos(quarter);
    if (told_.pattern != QORIN_WELDING_WEAVING_PATTERN_ELLIPSE)
        return {amplitude * gone, 0};
    const double height = (std::abs(amplitudes_[0].value()) + std::abs(amplitudes_[1].value())) / 4;
    return {amplitude * gone, -height * std::cos(quarter + std::numbers::pi / 2 * static_cast<double>(section))};
}

pose weave::laid_over(const path_point& point) const
{
    const sides at = sides_at(point, told_);
    const auto [left, ahead] = swing_now();
    const Vector3d offset(offsets_[2].value(), offsets_[3].value(), offsets_[4].value());
    const Vector3d aside =
        at.ahead * ahead + at.left * (left + offsets_[1].value()) + at.up * offsets_[0].value() + offset;
    pose made = point.target;
    Eigen::Vector3d::Map(made.data()) += fade_ * aside;
    return made;
}
} // namespace cbox_simulator::motion
