#ifndef SIMULATOR_MOTION_SPEED_CAP_H
#define SIMULATOR_MOTION_SPEED_CAP_H

namespace cbox_simulator::motion
{
/**
 * Slows the time of a motion down so that it keeps a limit of speed, whatever the motion is.
 *
 * Told once in a cycle how fast the arm was, as a share of the limit, it answers the factor to the motion's time in the
 * cycle that comes. When the limit comes into force, an arm that is too fast comes down to it in the time of the fade;
 * when it has gone, the arm has its speed again in about that time. While it is there, speed rises by `rise` times the
 * limit in a second at the most.
 */
class speed_cap
{
public:
    static constexpr double fade = 0.5; ///< Seconds.
    static constexpr double rise = 4;   ///< Shares of the limit, per second.

    /// There is no limit, and what it has slowed down has its speed again.
    [[nodiscard]] bool is_off(bool in_force) const { return !in_force && !active_; }
    /// A motion that is being stopped keeps its factor.
    double advance(bool in_force, double share_of_limit, bool stops, double seconds);

private:
    bool active_ = false;
    bool in_force_ = false;
    double factor_ = 1;
    double wanted_ = 0;  ///< Share of the limit at which the motion would run by itself.
    double allowed_ = 1; ///< Share of the limit.
    double slope_ = 0;   ///< Of what is allowed, per second.
};
} // namespace cbox_simulator::motion

#endif
