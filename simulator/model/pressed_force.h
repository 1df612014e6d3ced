#ifndef SIMULATOR_MODEL_PRESSED_FORCE_H
#define SIMULATOR_MODEL_PRESSED_FORCE_H

#include <array>

#include "simulator/model/force_settings.h"
#include "simulator/model/robot_state.h"

/**
 * With what a robot presses on the world, as its sensor and force control take it, and what its joints have to bear.
 *
 * One sign for all: a force is that with which the arm acts. An arm that presses down on a table does so with a force
 * that points down, and holds its load with one that points up. Forces come first, then torques about the TCP: newtons
 * and newton metres.
 */
namespace cbox_simulator
{
/// Where weights go, seen from the base: a length of 1. The first mount angle turns the base about its y axis, the
/// second one then about its own z axis; both 0 are the floor.
[[nodiscard]] std::array<double, 3> down_from_base(const robot_state& robot);

/// Without what the load weighs, along the axes of the TCP: the world's hand, and the plane that the TCP is in.
[[nodiscard]] axis_values pressed_force(const robot_state& robot);
/// As the sensor at the flange measures it, along the axes of the TCP: with what the load weighs, less what the sensor
/// takes for nothing.
[[nodiscard]] axis_values measured_force(const robot_state& robot);
/// As force control takes it, along its axes: by the application's sensor if that is fed, without what the load weighs,
/// less the biases that are on.
[[nodiscard]] axis_values controlled_force(const robot_state& robot);

/// To be called when the switch of a bias was told: what is there at this moment counts as nothing from now on, or
/// counts again.
void take_sensor_bias(robot_state& robot);
void take_force_biases(robot_state& robot);
void take_bias_without_sensor(robot_state& robot);

/// From forces and torques along the axes of the TCP to those along the axes in which force control is told.
[[nodiscard]] axis_values along_axes_of_control(const robot_state& robot, const axis_values& along_tcp);

/// Of all joints, in newton metres. None without power, when the brakes hold the arm, and none of robots that the box
/// does not know.
[[nodiscard]] robot_state::joint_array joint_torques(const robot_state& robot);
/// Of the drives, in amperes; as little as their torque is.
[[nodiscard]] robot_state::joint_array drive_currents(const robot_state& robot,
                                                      const robot_state::joint_array& torques);
} // namespace cbox_simulator

#endif
