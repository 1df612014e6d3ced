#ifndef SIMULATOR_MOTION_WEAVE_H
#define SIMULATOR_MOTION_WEAVE_H

#include <array>
#include <cstdint>

#include "simulator/motion/motion_sample.h"
#include "simulator/motion/rate_governor.h"

namespace cbox_simulator::motion
{
/**
 * The swing of a welding motion to the sides of its way, laid over the poses of the way.
 *
 * A swing is four sections: from the middle to the left, back, to the right, back. Left and up are those of who stands
 * on the work, looks along the way and has the tool come from above; with a fixed position, left is where that point,
 * seen from the base, lies. The tilt of the plane turns both about the way.
 *
 * The sections share a period as the zigzag ratio tells; where it does not, as far as they go, so that the swing
 * crosses the middle at the same speed both ways. A settling time is a stay between sections, on top of the period.
 * More than 50 swings a second count as 50.
 *
 * - zigzag: straight, rounded before and after a turn or a stay
 * - sine: as the name tells; half a cosine for each section where it stays or turns in the middle
 * - ellipse: the sine to the sides, with a cosine of half its height along the way; it does not stay anywhere
 *
 * The swing begins and ends on the way, within fade_time; the corrections that come while it runs (vertical offset, up;
 * horizontal offset, to the left; offset, along the axes of the base) end there likewise, so that the motion ends at
 * its target. All that is changed while it runs comes in within ease_time, without a leap of place or speed; a settling
 * time, when the next one starts.
 *
 * It runs on the motion's own time, so that a paused motion does not swing.
 */
class weave
{
public:
    static constexpr double fade_time = 0.25; ///< Seconds.
    static constexpr double ease_time = 0.25; ///< Seconds.

    explicit weave(const welding_weave& told);

    /// Takes over what has changed of the command: amplitudes, frequency, settling times and offsets.
    void change(const welding_weave& told);

    /// Lets motion time pass; `left` is how much of the motion is left after it.
    void advance(double seconds, double left);

    /// Lays the swing over a point of the way. The orientation stays.
    [[nodiscard]] pose laid_over(const path_point& point) const;

    /// How many sections of a zigzag have begun, the first one included: the section changes where this grows. The
    /// other patterns count none.
    [[nodiscard]] std::uint32_t sections() const;

private:
    struct swing
    {
        double left = 0;  ///< Negative to the right.
        double ahead = 0; ///< Along the way.
    };
    [[nodiscard]] swing swing_now() const;
    [[nodiscard]] bool has_told_shares() const;
    [[nodiscard]] double share_of_section() const;
    [[nodiscard]] double stay_after_section() const;
    void begin_section();
    void ease_to(const welding_weave& told, double seconds);
    void pass(double seconds, double periods);

    welding_weave told_;
    std::array<eased_value, 2> amplitudes_; ///< Left, right.
    eased_value frequency_;
    std::array<eased_value, 5> offsets_; ///< Vertical, horizontal, x, y, z.
    std::uint32_t sections_ = 0;
    bool rests_in_middle_ = false; ///< Where this section begins or ends.
    double in_section_ = 0;        ///< The share of the section that is gone; 1 while it stays at its end.
    double stayed_ = 0;            ///< Seconds.
    double age_ = 0;               ///< Seconds.
    double fade_ = 0;              ///< 0 to 1.
};
} // namespace cbox_simulator::motion

#endif
