#ifndef SIMULATOR_MOTION_RATE_GOVERNOR_H
#define SIMULATOR_MOTION_RATE_GOVERNOR_H

namespace cbox_simulator::motion
{
/**
 * A value that goes to its targets on cubics: value and slope never leap, whenever a new target comes, and the value
 * never goes beyond its targets.
 *
 * From rest the greatest slope is 1.5 times the change over the time. A slope that already leads to the target so fast
 * that the value would go beyond it shortens the way. One that leads away is brought to 0 first, within half of what
 * was left to go and half of the told time, which begins then.
 */
class eased_value
{
public:
    explicit eased_value(double value = 0) : from_(value), to_(value) {}

    /// At once when the time is 0.
    void go_to(double target, double seconds);
    /// Lets time pass; answers the integral of the value over it.
    double advance(double seconds);

    [[nodiscard]] double value() const;
    [[nodiscard]] double slope() const;
    [[nodiscard]] double target() const { return to_; }
    [[nodiscard]] bool has_arrived() const { return passed_ >= duration(); }

private:
    [[nodiscard]] double duration() const { return brake_time_ + cubic_time_; }
    [[nodiscard]] double left_to_go() const;
    [[nodiscard]] double integral(double time) const; ///< From the start of the way to a time on it.

    double from_; ///< Where the cubic starts.
    double to_;
    double start_slope_ = 0; ///< Of the brake when there is one, else of the cubic.
    double brake_time_ = 0;
    double cubic_time_ = 0;
    double passed_ = 0;
};

/**
 * How fast the time of a motion runs against the clock: 1 as planned, 0 standing. Speed factor, pause, resume and stop
 * are changes of this rate, so that the arm never leaves its way and a resumed motion ends where it would have.
 */
class rate_governor
{
public:
    /// At the start of a motion, from rest: at the rate at once, as the motion itself starts from rest.
    void start_at(double rate) { rate_ = eased_value(rate); }
    /// 0 or above, in the told time; at once when it is 0.
    void go_to(double rate, double seconds) { rate_.go_to(rate, seconds); }

    /// Lets time of the clock pass; answers how much of the motion's time has passed.
    double advance(double seconds) { return rate_.advance(seconds); }

    [[nodiscard]] double rate() const { return rate_.value(); }
    /// Per second.
    [[nodiscard]] double rate_slope() const { return rate_.slope(); }
    [[nodiscard]] double target() const { return rate_.target(); }
    [[nodiscard]] bool has_arrived() const { return rate_.has_arrived(); }
    [[nodiscard]] bool stands() const { return has_arrived() && target() <= 0; }

    /// The shortest time of a change of rate that keeps a motion's change of speed within a bound: at the told speed
    /// (of the motion as planned) no more than the told acceleration.
    [[nodiscard]] static double shortest_time(double rate_change, double speed, double acceleration);

private:
    eased_value rate_{1};
};
} // namespace cbox_simulator::motion

#endif
