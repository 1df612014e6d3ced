#ifndef SIMULATOR_COMMANDS_WHEN_READY_H
#define SIMULATOR_COMMANDS_WHEN_READY_H

#include "simulator/model/box_model.h"
#include "simulator/model/moving_state.h"

/// Puts a judgement of the robot's state ahead of a handler, which takes the robot, or the box and the robot. A switch
/// passes when it is not to be on: what is under way can be ended at any time.
namespace cbox_simulator
{
template <class Handler>
struct judged_handler;

template <class... Parameters>
struct judged_handler<QORIN_API_RESULT (*)(robot_state&, Parameters...)>
{
    template <auto handler, auto judge>
    static QORIN_API_RESULT perform(box_model& model, robot_state& robot, Parameters... parameters)
    {
        const auto refusal = judge(model, robot, parameters...);
        return refusal == QORIN_API_RESULT_OK ? handler(robot, parameters...) : refusal;
    }
};

template <class... Parameters>
struct judged_handler<QORIN_API_RESULT (*)(box_model&, robot_state&, Parameters...)>
{
    template <auto handler, auto judge>
    static QORIN_API_RESULT perform(box_model& model, robot_state& robot, Parameters... parameters)
    {
        const auto refusal = judge(model, robot, parameters...);
        return refusal == QORIN_API_RESULT_OK ? handler(model, robot, parameters...) : refusal;
    }
};

template <auto handler, auto judge>
inline constexpr auto judged_by = &judged_handler<decltype(handler)>::template perform<handler, judge>;

inline bool ends_something(QORIN_SWITCH value)
{
    return value != QORIN_SWITCH_ON;
}
template <class... Others>
bool ends_something(const Others&...)
{
    return false;
}

/// The readiness gate, for what sets the robot in motion or lets something move it.
template <auto handler, QORIN_API_RESULT not_ready = QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE,
          drive_use use = drive_use::position>
inline constexpr auto when_ready =
    judged_by<handler, [](box_model& model, const robot_state& robot, const auto&... parameters)
              {
                  return ends_something(parameters...)
                             ? QORIN_API_RESULT_OK
                             : refusal_of(model.readiness().hindrance_to(robot, use), not_ready);
              }>;

/// For what would surprise an arm on its way: QORIN_API_RESULT_ROBOT_IS_MOVING_STATE.
template <auto handler>
inline constexpr auto while_standing =
    judged_by<handler, [](box_model& model, const robot_state& robot, const auto&... parameters)
              {
                  const bool stands = is_at_rest(robot.moving_state()) && model.motion_of(robot).is_free();
                  return stands || ends_something(parameters...) ? QORIN_API_RESULT_OK
                                                                 : QORIN_API_RESULT_ROBOT_IS_MOVING_STATE;
              }>;

/// For what the drives must not be powered for: QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE.
template <auto handler>
inline constexpr auto while_unpowered = judged_by<handler, [](box_model&, const robot_state& robot, const auto&...)
                                                  {
                                                      return robot.settings().switches.servo == QORIN_SWITCH_ON
                                                                 ? QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE
                                                                 : QORIN_API_RESULT_OK;
                                                  }>;

/// For what is the hand's while it holds the enable switch: QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON.
template <auto handler>
inline constexpr auto unless_enable_switch =
    judged_by<handler, [](box_model& model, const robot_state&, const auto&...) {
        return is_enable_switch_on(model.cbox()) ? QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON : QORIN_API_RESULT_OK;
    }>;
} // namespace cbox_simulator

#endif
