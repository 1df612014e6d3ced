#ifndef SIMULATOR_MOTION_DRIVE_LAG_H
#define SIMULATOR_MOTION_DRIVE_LAG_H

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "kinematics/dh_table.h"

namespace cbox_simulator::motion
{
/**
 * How the measured angles of an arm follow the commanded ones: each joint as a first-order element, solved exactly for
 * a command that runs straight from cycle to cycle. At a steady speed v the arm lies v * time_constant behind.
 */
class drive_lag
{
public:
    using joint_array = savrent::kinematics::joint_array;

    static constexpr double time_constant = 0.004; ///< Seconds.
    static constexpr double settled_band = 0.0001; ///< Degrees: nearer to the command than this is settled.

    explicit drive_lag(const joint_array& standing = {}) : command_(standing), actual_(standing) {}

    /// A joint that is held does not turn, whatever it is commanded.
    void hold(std::size_t joint, bool held) { held_[joint] = held; }

    /// At the start of time, or where the arm is put at once.
    void stand_at(const joint_array& angles) { command_ = actual_ = angles; }

    /// The command after one more cycle; answers what is measured then.
    const joint_array& follow(const joint_array& command, double seconds)
    {
        const double kept = std::exp(-seconds / time_constant);
        for (std::size_t joint = 0; joint < command.size(); ++joint)
        {
            if (held_[joint])
                continue;
            const double behind = (command[joint] - command_[joint]) / seconds * time_constant;
            actual_[joint] = command[joint] - behind + (actual_[joint] - command_[joint] + behind) * kept;
        }
        command_ = command;
        return actual_;
    }

    [[nodiscard]] const joint_array& actual() const { return actual_; }

    /// The greatest of all joints. Degrees.
    [[nodiscard]] double following_error() const
    {
        double error = 0;
        for (std::size_t joint = 0; joint < actual_.size(); ++joint)
            error = std::max(error, std::abs(command_[joint] - actual_[joint]));
        return error;
    }
    [[nodiscard]] bool has_settled() const { return following_error() < settled_band; }

private:
    joint_array command_;
    joint_array actual_;
    std::array<bool, savrent::kinematics::joint_count> held_{};
};
} // namespace cbox_simulator::motion

#endif
