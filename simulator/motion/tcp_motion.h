#ifndef SIMULATOR_MOTION_TCP_MOTION_H
#define SIMULATOR_MOTION_TCP_MOTION_H

#include "simulator/motion/pose_path.h"
#include "simulator/motion/speed_profile.h"

namespace cbox_simulator::motion
{
/// A way through space in time, of the TCP or of the flange.
class tcp_motion
{
public:
    /// Millimetres per second where the way is paced by its millimetres, else degrees per second.
    tcp_motion(pose_path path, const motion_limits& limits, double start_speed = 0, double end_speed = 0,
               QORIN_POSE_TYPE pose_type = QORIN_POSE_TYPE_TCP)
        : path_(std::move(path)), limits_(limits), start_speed_(start_speed), end_speed_(end_speed),
          pose_type_(pose_type), profile_(speed_profile::plan(limits, path_.length(), start_speed, end_speed))
    {
    }

    [[nodiscard]] const pose_path& path() const { return path_; }
    [[nodiscard]] double length() const { return path_.length(); }
    [[nodiscard]] const motion_limits& limits() const { return limits_; }
    [[nodiscard]] double start_speed() const { return start_speed_; } ///< As it was told.
    [[nodiscard]] double end_speed() const { return end_speed_; }     ///< As it was told.
    [[nodiscard]] QORIN_POSE_TYPE pose_type() const { return pose_type_; }

    [[nodiscard]] double duration() const { return profile_.duration(); }
    /// Exactly the end of the path from the end of the duration on.
    [[nodiscard]] pose at(double time) const { return path_.at(profile_.at(time).position); }
    [[nodiscard]] const speed_profile& profile() const { return profile_; }

private:
    pose_path path_;
    motion_limits limits_;
    double start_speed_;
    double end_speed_;
    QORIN_POSE_TYPE pose_type_;
    speed_profile profile_;
};
} // namespace cbox_simulator::motion

#endif
