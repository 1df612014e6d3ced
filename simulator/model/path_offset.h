#ifndef SIMULATOR_MODEL_PATH_OFFSET_H
#define SIMULATOR_MODEL_PATH_OFFSET_H

#include <array>
#include <optional>

#include "simulator/model/force_settings.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// Force control or conveyor mode is on.
[[nodiscard]] bool is_taken_along(const robot_state& robot);

/**
 * What takes the TCP away from where its motion puts it: the belt that carries the workpiece along, and the way that it
 * takes to press as hard as it is told.
 *
 * Motions stay as they are planned, and this lies over them: a line along a workpiece stays a line on it, while the
 * workpiece rides on a belt and the tool follows its surface. It begins with force control or conveyor mode, and lasts
 * until both are off, their speed is gone, and no motion counts on it any more. Belt and force speed up and slow down
 * in time. Owned by the executor of a robot, and asked once in a cycle.
 */
class path_offset
{
public:
    using joint_array = robot_state::joint_array;

    /// Since when there is something to follow, until forget().
    [[nodiscard]] bool is_begun() const { return begun_; }
    /// Takes the TCP further away, or lets it come back.
    [[nodiscard]] bool moves() const;
    /// When nothing is to be followed any more. Seconds.
    [[nodiscard]] double time_to_rest() const;
    /// Where the motion alone puts the arm.
    [[nodiscard]] const joint_array& undisturbed() const { return undisturbed_; }

    void begin(const joint_array& undisturbed);
    /// What it has come to is as if a motion had led there.
    void forget() { *this = {}; }

    /// What the joints are to be, if the motion puts them there. Held, it comes to rest. Nothing when the belt has
    /// carried the workpiece out of reach; what cannot be pressed for lack of reach or speed is not pressed.
    [[nodiscard]] std::optional<joint_array> laid_over(const joint_array& undisturbed, const robot_state& robot,
                                                       double seconds, bool held);

private:
    /// From the undisturbed TCP: along the axes of the base, and a rotation about them, as its matrix.
    struct displacement
    {
        std::array<double, 3> way{};
        std::array<double, 9> turn{1, 0, 0, 0, 1, 0, 0, 0, 1};
    };

    void follow_belt(const robot_state& robot, double seconds, bool held);
    [[nodiscard]] displacement pressed_further(const robot_state& robot, double seconds, bool held);
    [[nodiscard]] axis_values wanted_velocity(const robot_state& robot, double seconds);
    [[nodiscard]] bool has_room(const robot_state& robot, const axis_values& velocity) const;
    [[nodiscard]] displacement moved(const robot_state& robot, const axis_values& by) const;
    [[nodiscard]] std::optional<joint_array> displaced(const robot_state& robot, const displacement& by,
                                                       double seconds) const;

    bool begun_ = false;
    joint_array undisturbed_{};
    displacement displacement_;
    bool on_belt_ = false;
    double belt_acceleration_ = 0; ///< Millimetres per second squared.
    std::array<double, 3> belt_velocity_{};
    axis_values press_velocity_{}; ///< Along the axes of force control: millimetres, degrees, seconds.
    std::optional<axis_values> filtered_;
};
} // namespace cbox_simulator

#endif
