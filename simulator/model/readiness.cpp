#include "simulator/model/readiness.h"

#include <algorithm>

#include "simulator/model/moving_state.h"

namespace cbox_simulator
{
namespace
{
bool serves(QORIN_DRIVE_CONTROL_MODE mode, drive_use use)
{
    switch (use)
    {
    case drive_use::position:
        return mode == QORIN_DRIVE_CONTROL_MODE_POSITION;
    case drive_use::velocity:
        return mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY || mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE;
    case drive_use::any:
        break;
    }
    return true;
}

bool is_pushed(QORIN_BUTTON_STATE button)
{
    return button == QORIN_BUTTON_STATE_PUSHED;
}
} // namespace

bool is_enable_switch_on(const cbox_state& cbox)
{
    constexpr std::uint32_t first_input = 8;
    const auto is_on = [&](std::uint32_t channel)
    { return (cbox.safety_redundant_word() >> (first_input + channel) & 1u) == 1; };
    return std::ranges::any_of(cbox.safety_inputs().front().pairs(),
                               [&](const redundant_pair& pair)
                               {
                                   return pair.function == QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_ENABLE_SWITCH &&
                                          is_on(pair.channel_1) && is_on(pair.channel_2);
                               });
}

hindrance readiness_gate::hindrance_to(const robot_state& robot, drive_use use) const
{
    if (!control_owner_)
        return hindrance::no_control;
    if (const auto found = hindrance_to_servo(robot); found != hindrance::none)
        return found;
    if (robot.is_leaving())
        return hindrance::leaving;
    if (robot.collision() != 0)
        return hindrance::collision;
    if (is_stopped_until_reset(robot.moving_state()))
        return hindrance::emergency_stop;
    if (is_enable_switch_on(cbox_))
        return hindrance::enable_switch;
    if (robot.settings().switches.servo != QORIN_SWITCH_ON)
        return hindrance::servo_off;
    return serves(robot.settings().control_mode, use) ? hindrance::none : hindrance::control_mode;
}

hindrance readiness_gate::hindrance_to(const robot_state& robot, const robot_state::joint_array& target,
                                       drive_use use) const
{
    const auto found = hindrance_to(robot, use);
    return found == hindrance::none && !robot.can_stand_at(target) ? hindrance::joint_range : found;
}

hindrance readiness_gate::hindrance_to_servo(const robot_state& robot) const
{
    if (cbox_.ecat_connection_state() != QORIN_ECAT_CONN_STATE_CONNECTED)
        return hindrance::link_lost;
    if (is_pushed(cbox_.emergency_button()) || std::ranges::any_of(cbox_.amr_emergency_buttons(), is_pushed))
        return hindrance::emergency_button;
    return robot.safety_violation() != 0 ? hindrance::safety_violation : hindrance::none;
}

QORIN_API_RESULT refusal_of(hindrance found, QORIN_API_RESULT not_ready)
{
    switch (found)
    {
    case hindrance::none:
        return QORIN_API_RESULT_OK;
    case hindrance::no_control:
        return QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
    case hindrance::link_lost:
        return QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED;
    case hindrance::enable_switch:
        return QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON;
    default:
        return not_ready;
    }
}

QORIN_API_RESULT refusal_of_motion(hindrance found)
{
    switch (found)
    {
    case hindrance::none:
        return QORIN_API_RESULT_OK;
    case hindrance::joint_range:
        return QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE;
    default:
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    }
}
} // namespace cbox_simulator
