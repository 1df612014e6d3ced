#ifndef SIMULATOR_MODEL_STREAM_SOURCES_H
#define SIMULATOR_MODEL_STREAM_SOURCES_H

#include "simulator/model/motion_source.h"
#include "simulator/model/recordings.h"

/// What moves an arm by targets that come from outside while it moves, or that came before.
namespace cbox_simulator
{
/// In velocity control, and told to.
[[nodiscard]] bool turns_by_velocity(const robot_state& robot);
/// Something from outside may move the robot at any time.
[[nodiscard]] bool is_streamed_to(const robot_state& robot);

/// Runs after the last target of a joint chaser: each joint goes a share of its way in each cycle, within its speed and
/// its acceleration. What is beyond a joint's range becomes the end of the range. Lasts while the chaser is on.
class chaser_source : public motion_source
{
public:
    static constexpr double chase_time = 0.02; ///< Seconds in which all but 1/e of a way is covered.

    explicit chaser_source(const joint_array& target) : target_(target) {}

    void set_target(const joint_array& target) { target_ = target; }

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override
    {
        return robot.settings().switches.joint_chaser != QORIN_SWITCH_ON;
    }
    bool is_stream() const override { return true; }

private:
    joint_array target_;
    joint_array speeds_{};
};

/// Takes the external profiler's points, one a period, and goes straight to each in the period that follows, within the
/// speed and acceleration of the joints; to the last one in whatever time that takes. A point that the arm cannot reach
/// is passed over. Lasts while the profiler is on.
class profiler_source : public motion_source
{
public:
    explicit profiler_source(const joint_array& standing) : told_(standing), target_(standing) {}

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override { return robot.profiler().active() != QORIN_SWITCH_ON; }
    bool is_stream() const override { return true; }

private:
    void take_point(robot_state& robot, double cycle);

    joint_array told_; ///< On the way to the target, at the end of the cycle.
    joint_array target_;
    joint_array straight_{}; ///< How fast that goes.
    joint_array speeds_{};
    double left_ = 0; ///< Of the period. Seconds.
};

/// Takes the timed targets of external move, and goes to each in its time on quintic curves: speeds and accelerations
/// never leap. A time that is too short for the joints becomes longer. Lasts while external move is on.
class target_source : public motion_source
{
public:
    explicit target_source(const joint_array& standing) : from_{standing, {}}, to_(from_) {}

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override { return robot.ext_move().active() != QORIN_SWITCH_ON; }
    bool is_stream() const override { return true; }

private:
    struct knot
    {
        joint_array joints;
        joint_array speeds;
    };

    void go_on(robot_state& robot);
    [[nodiscard]] joint_array speeds_at(const timed_target& target, const robot_state& robot) const;
    [[nodiscard]] bool is_too_fast(double seconds, const robot_state& robot) const;

    knot from_;
    knot to_;
    double duration_ = 0; ///< From knot to knot. Seconds.
    double passed_ = 0;
};

/// Plays a recording, an entry a cycle. The little way from where the arm stands to where the recording starts goes by
/// within the first tenth of a second.
class playback_source : public motion_source
{
public:
    /// The recording is not empty.
    playback_source(recording content, const joint_array& standing);

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state&) const override { return played_ >= last(); }

private:
    [[nodiscard]] double last() const { return static_cast<double>(content_.size() - 1); }

    recording content_;
    joint_array offset_;
    double played_ = 0; ///< Entries.
    double passed_ = 0; ///< Seconds.
};

/**
 * Joints that are told how fast to turn. Each comes to its speed with its acceleration, and to rest in time where its
 * range ends.
 */
class turning_joints
{
public:
    using joint_array = robot_state::joint_array;

    explicit turning_joints(const joint_array& speeds = {}) : speeds_(speeds) {}

    /// An acceleration of 0 is as much as the joint can.
    [[nodiscard]] joint_array advance(double seconds, const robot_state& robot, const joint_array& targets,
                                      const joint_array& accelerations);
    [[nodiscard]] bool stand() const { return speeds_ == joint_array{}; }

private:
    joint_array speeds_;
};

/// Velocity control: lasts while a joint turns or has a target to turn.
class velocity_source : public motion_source
{
public:
    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override
    {
        return joints_.stand() && robot.settings().targets.velocity == joint_array{};
    }
    drive_use needed_drives() const override { return drive_use::velocity; }

private:
    turning_joints joints_;
};

/// The hand that guides the arm in direct teaching, joint by joint.
class hand_source : public motion_source
{
public:
    explicit hand_source(const joint_array& speeds) : speeds_(speeds) {}

    void set_speeds(const joint_array& speeds) { speeds_ = speeds; }

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override
    {
        return robot.settings().control_mode != QORIN_DRIVE_CONTROL_MODE_TORQUE ||
               (joints_.stand() && speeds_ == joint_array{});
    }
    drive_use needed_drives() const override { return drive_use::any; }
    bool is_stream() const override { return true; }

private:
    joint_array speeds_;
    turning_joints joints_;
};

/// Brings an arm to rest that cannot stay on its way, each joint as fast as it can.
class coasting_source : public motion_source
{
public:
    explicit coasting_source(const joint_array& speeds) : joints_(speeds) {}

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override
    {
        return joints_.advance(time.clock, robot, {}, {});
    }
    bool has_ended(const robot_state&) const override { return joints_.stand(); }
    drive_use needed_drives() const override { return drive_use::any; }

protected:
    void coast_from(const joint_array& speeds) { joints_ = turning_joints(speeds); }

private:
    turning_joints joints_;
};

/// The same for an arm that has hit something: from where it came to rest it goes back a little on the way that it
/// came, so that it presses against nothing. Without power it stays.
class retreating_source : public coasting_source
{
public:
    static constexpr double back = 0.1; ///< Seconds before the hit: there it goes to.

    explicit retreating_source(const robot_state& hit);

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state& robot) const override
    {
        return coasting_source::has_ended(robot) && (gives_up_ || (retreat_ && passed_ >= retreat_->duration()));
    }

private:
    joint_array behind_;
    std::optional<motion::joint_motion> retreat_;
    double passed_ = 0; ///< Of the retreat.
    bool gives_up_ = false;
};
} // namespace cbox_simulator

#endif
