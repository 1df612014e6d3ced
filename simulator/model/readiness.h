#ifndef SIMULATOR_MODEL_READINESS_H
#define SIMULATOR_MODEL_READINESS_H

#include <cstdint>
#include <optional>

#include "qorin/result.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/client_id.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// Why a robot cannot be moved at this moment, in the order in which it is looked for.
enum class hindrance : std::uint8_t
{
    none,
    no_control,       ///< nobody has the control: what moved could not be stopped
    link_lost,        ///< the EtherCAT link to the drives
    emergency_button, ///< the box's own or one of the mobile base is pushed
    safety_violation, ///< has happened and stands
    collision,        ///< has been detected and not cleared
    emergency_stop,   ///< ended a motion, and has not been reset
    enable_switch,    ///< the function of the safety module is on
    leaving,          ///< the robot is being destroyed
    servo_off,
    control_mode, ///< the drives are in the mode of another kind of motion
    joint_range   ///< the target lies beyond a joint's range
};

/// What a motion wants of the drives.
enum class drive_use : std::uint8_t
{
    position,
    velocity,
    any ///< for what puts its own mode in force
};

/**
 * The gate that every source of motion passes: queue, motions in one request, jogs, streams, single timed targets,
 * velocity control, playback, calibration, conveyor. To be asked when a motion is told and again in each control cycle
 * that it lasts, since all that it looks at can change meanwhile.
 *
 * Whether another motion has the robot is not looked at here. Owned by the model.
 */
class readiness_gate
{
public:
    readiness_gate(const cbox_state& cbox, const std::optional<client_id>& control_owner)
        : cbox_(cbox), control_owner_(control_owner)
    {
    }

    [[nodiscard]] hindrance hindrance_to(const robot_state& robot, drive_use use = drive_use::position) const;

    /// For a motion that brings the robot to these angles, or through them.
    [[nodiscard]] hindrance hindrance_to(const robot_state& robot, const robot_state::joint_array& target,
                                         drive_use use = drive_use::position) const;

    /// The part of it that stands in the way of powering the drives, and takes their power away; neither a stop that is
    /// to be reset nor the enable switch does.
    [[nodiscard]] hindrance hindrance_to_servo(const robot_state& robot) const;

private:
    const cbox_state& cbox_;
    const std::optional<client_id>& control_owner_;
};

/// While both channels of a pair of the safety module that is assigned to it are 1.
[[nodiscard]] bool is_enable_switch_on(const cbox_state& cbox);

/// A command's answer: QORIN_API_RESULT_OK without a hindrance, `not_ready` for most, and those that have a result of
/// their own by that: QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL, QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED,
/// QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON.
[[nodiscard]] QORIN_API_RESULT refusal_of(hindrance found, QORIN_API_RESULT not_ready);

/// The same for motion commands, which know one result for every state of the robot,
/// QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE, and one for what is beyond a range,
/// QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE.
[[nodiscard]] QORIN_API_RESULT refusal_of_motion(hindrance found);
} // namespace cbox_simulator

#endif
