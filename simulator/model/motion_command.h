#ifndef SIMULATOR_MODEL_MOTION_COMMAND_H
#define SIMULATOR_MODEL_MOTION_COMMAND_H

#include <array>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "kinematics/dh_table.h"
#include "qorin/enumerations.h"
#include "simulator/model/motion_io.h"

/// What a motion command is told before it runs: plain values, which whoever sets them has judged before.
namespace cbox_simulator
{
enum class motion_kind : std::uint8_t
{
    joint,
    tcp,
    tcp_welding
};

/// x, y, z in millimetres or rx, ry, rz in degrees.
using vector3 = std::array<double, 3>;

/// Degrees. A joint without an end stays where it is; the simulated arm starts from where it stands.
struct joint_path
{
    using angles = std::array<std::optional<double>, savrent::kinematics::joint_count>;
    angles angle_start;
    angles angle_end;

    bool operator==(const joint_path&) const = default;
};

/// What is not told of the end stays as it is at the start.
struct tcp_path
{
    std::optional<vector3> position_start;
    std::optional<vector3> position_mid;
    std::optional<vector3> position_end;
    std::optional<vector3> direction; ///< From the start to the end, in place of a told end.
    std::optional<vector3> orientation_start;
    std::optional<vector3> orientation_end;
    double speed_start = 0;
    double speed_end = 0;
    double radius = 0;
    QORIN_REF_COORDINATE coordinate = QORIN_REF_COORDINATE_BASE;
    QORIN_POSE_TYPE pose_type = QORIN_POSE_TYPE_TCP;
    QORIN_SWITCH offset_mode = QORIN_SWITCH_OFF;
    QORIN_INTERPOLATOR interpolator = QORIN_INTERPOLATOR_LINEAR;
    QORIN_ORIENTATION_MODE orientation_mode = QORIN_ORIENTATION_MODE_SLERP;
    std::vector<vector3> free_path_points;

    bool operator==(const tcp_path&) const = default;
};

struct welding_weave
{
    QORIN_SWITCH motion_switch = QORIN_SWITCH_OFF;
    QORIN_WELDING_WEAVING_PATTERN pattern = QORIN_WELDING_WEAVING_PATTERN_ZIGZAG;
    double left_amplitude = 0;
    double right_amplitude = 0;
    double frequency = 0;
    double left_stop_settling_time = 0;
    double right_stop_settling_time = 0;
    double middle_stop_settling_time = 0;
    double plane_tilt_angle = 0;
    std::array<double, 4> zigzag_ratio{};
    QORIN_SWITCH position_fix_switch = QORIN_SWITCH_OFF;
    vector3 position_fix{};
    double vertical_offset = 0;
    double horizontal_offset = 0;
    vector3 offset{};

    bool operator==(const welding_weave&) const = default;
};

/// Arc sensing in one direction.
struct arc_tracking
{
    QORIN_SWITCH tracking_switch = QORIN_SWITCH_OFF;
    std::uint32_t start_ref_period = 0;
    std::uint32_t start_tracking_period = 0;
    double total_limit_distance = 0;
    double limit_distance = 0;
    double weighted_factor = 0;
    double dead_band = 0;

    bool operator==(const arc_tracking&) const = default;
};

struct arc_sensing
{
    QORIN_ARC_SENSING_SRC data_source = QORIN_ARC_SENSING_SRC_ECAT_ANALOG0;
    double reference_shift = 0;
    std::array<arc_tracking, 2> directions; ///< Horizontal, vertical.

    bool operator==(const arc_sensing&) const = default;
};

/// What only some kinds have.
template <class Part>
concept motion_part = std::same_as<Part, joint_path> || std::same_as<Part, tcp_path> ||
    std::same_as<Part, welding_weave> || std::same_as<Part, arc_sensing>;

/// The kind decides which parts the command has; all else is common to the kinds.
struct motion_command
{
    explicit motion_command(motion_kind command_kind) : kind(command_kind)
    {
        if (kind == motion_kind::joint)
            std::get<std::optional<joint_path>>(parts).emplace();
        else
            std::get<std::optional<tcp_path>>(parts).emplace();
        if (kind == motion_kind::tcp_welding)
        {
            std::get<std::optional<welding_weave>>(parts).emplace();
            std::get<std::optional<arc_sensing>>(parts).emplace();
        }
    }

    /// Null when the kind has no such part.
    template <motion_part Part>
    [[nodiscard]] Part* find()
    {
        auto& part = std::get<std::optional<Part>>(parts);
        return part ? &*part : nullptr;
    }
    template <motion_part Part>
    [[nodiscard]] const Part* find() const
    {
        const auto& part = std::get<std::optional<Part>>(parts);
        return part ? &*part : nullptr;
    }

    /// Nothing but, perhaps, the robot.
    [[nodiscard]] bool is_empty() const
    {
        motion_command fresh(kind);
        fresh.robot_id = robot_id;
        return *this == fresh;
    }

    // Inlined, g++ 12 takes parts that are not there for uninitialised ones that are looked at.
    [[gnu::noinline]] bool operator==(const motion_command&) const = default;

    motion_kind kind;
    std::optional<std::uint32_t> robot_id;
    std::string name;
    QORIN_VELOCITY_PROFILE velocity_profiler = QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE;
    // A slow motion on every arm, in the units of the path: degrees or millimetres, and seconds.
    double acc_max = 100;
    double dec_max = 100;
    double speed_max = 50;
    double jerk_percentage = 50;
    QORIN_SWITCH blending_motion_mode = QORIN_SWITCH_OFF;
    QORIN_SWITCH blending_auto_start = QORIN_SWITCH_OFF;
    QORIN_SWITCH blending_stop_mode = QORIN_SWITCH_OFF;
    double radius_for_blending = 0;
    std::optional<start_condition> start;
    std::optional<io_command> io;
    double running_time = 0;              ///< Seconds: as planned when it was queued, then as long as it took.
    std::optional<double> adjusted_speed; ///< What the joints can keep up with, known when it was queued.
    std::tuple<std::optional<joint_path>, std::optional<tcp_path>, std::optional<welding_weave>,
               std::optional<arc_sensing>>
        parts;
};
} // namespace cbox_simulator

#endif
