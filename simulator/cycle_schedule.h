#ifndef SIMULATOR_CYCLE_SCHEDULE_H
#define SIMULATOR_CYCLE_SCHEDULE_H

#include <algorithm>
#include <chrono>

namespace cbox_simulator
{
/// What falls due at one moment. The frame shows what the cycle made.
struct due_work
{
    bool cycle = false;
    bool frame = false;
};

/**
 * When the box's control cycles and frames fall due.
 *
 * Both have absolute times, so that their mean rates are exact although a single one may come late. A late machine
 * makes up for every cycle that it missed, in the order of time, so that motions keep pace with the clock on the wall;
 * of its frames it sends a few. What it missed for longer is dropped: a machine that was asleep does not run through
 * hours when it wakes up. Knows no clock: whoever asks tells the time.
 */
class cycle_schedule
{
public:
    using clock = std::chrono::steady_clock;
    using time_point = clock::time_point;
    using duration = clock::duration;

    static constexpr duration longest_lag = std::chrono::milliseconds(200);
    static constexpr int most_late_frames = 4;

    cycle_schedule(duration cycle_period, duration frame_period)
        : cycle_period_(cycle_period), frame_period_(frame_period)
    {
    }

    void start(time_point now)
    {
        next_cycle_ = now + cycle_period_;
        next_frame_ = now + frame_period_;
    }

    [[nodiscard]] time_point next_cycle() const { return next_cycle_; }
    [[nodiscard]] time_point next_frame() const { return next_frame_; }

    /// The earliest work that is due by then, to be asked for until there is none.
    [[nodiscard]] due_work take_due(time_point now)
    {
        drop_missed(next_cycle_, cycle_period_, std::max(longest_lag, cycle_period_), now);
        drop_missed(next_frame_, frame_period_, most_late_frames * frame_period_, now);
        const auto moment = std::min(next_cycle_, next_frame_);
        due_work due;
        if (moment > now)
            return due;
        due.cycle = next_cycle_ == moment;
        if (due.cycle)
            next_cycle_ += cycle_period_;
        due.frame = next_frame_ == moment;
        if (due.frame)
            next_frame_ += frame_period_;
        return due;
    }

private:
    static void drop_missed(time_point& next, duration period, duration tolerated, time_point now)
    {
        if (now - next > tolerated)
            next += (now - next) / period * period;
    }

    duration cycle_period_;
    duration frame_period_;
    time_point next_cycle_;
    time_point next_frame_;
};
} // namespace cbox_simulator

#endif
