#include "simulator/model/work_space.h"

#include <array>
#include <cmath>
#include <cstddef>

#include <Eigen/Geometry>

#include "kinematics/rotation.h"

namespace cbox_simulator
{
namespace
{
using Eigen::Vector3d;

/// What rounding may take an arm farther out that goes along a plane. Millimetres.
constexpr double way_tolerance = 1e-6;

/// How thick links are, by the length of the whole arm: those up to the forearm, and those of the wrist.
constexpr double thickness_of_arm = 1.0 / 16;
constexpr double thickness_of_wrist = 1.0 / 24;
constexpr std::size_t first_of_wrist = 3;

/// A ball, or a disc about an axis. What lies between those of an arm is within a plane when they are.
struct round_end
{
    Vector3d centre = Vector3d::Zero();
    double ball = 0;
    double disc = 0;
    Vector3d axis = Vector3d::UnitZ();

    [[nodiscard]] double beyond(const plane& of) const
    {
        const Vector3d normal = Vector3d::Map(of.normal.data());
        const double along = normal.dot(axis);
        const double reach = disc > 0 ? disc * std::sqrt(std::max(1 - along * along, 0.0)) : 0;
        return reach + ball - normal.dot(centre) - of.constant;
    }
};

/// All of an arm that can go beyond a plane, in the same order wherever it stands.
class arm_body
{
public:
    arm_body(const robot_state& robot, const stance& at)
    {
        const double rim = add_links(robot, at);
        const auto turned = [](const pose& of) { return savrent::kinematics::rotation_of({of[3], of[4], of[5]}); };
        add({Vector3d::Map(at.flange.data()), 0, rim, turned(at.flange).col(2)});
        add({Vector3d::Map(at.tcp.data())});
        const auto& tool = robot.tcp_shape();
        if (tool && tool->coordinate == QORIN_REF_COORDINATE_TCP &&
            robot.settings().switches.bounding_shape == QORIN_SWITCH_ON)
            add_tool(*tool, Vector3d::Map(at.tcp.data()), turned(at.tcp));
    }

    [[nodiscard]] auto begin() const { return ends_.begin(); }
    [[nodiscard]] auto end() const { return ends_.begin() + static_cast<std::ptrdiff_t>(count_); }

private:
    void add(const round_end& end) { ends_[count_++] = end; }

    /// Answers the radius of the flange.
    double add_links(const robot_state& robot, const stance& at)
    {
        const auto points = robot.kinematics().links(at.joints);
        if (!points)
            return 0;
        const auto& table = robot.table();
        const double length = total_length(table);
        // The first point stands still, the last ones are the flange.
        for (std::size_t point = 1; point + 2 < points->size(); ++point)
        {
            const std::size_t row = point / 2;
            const bool is_new = (point % 2 == 0 ? table.d[row] : table.a[row]) != 0;
            const double thickness = row < first_of_wrist ? thickness_of_arm : thickness_of_wrist;
            if (is_new)
                add({Vector3d::Map((*points)[point].data()), length * thickness});
        }
        return length * thickness_of_wrist;
    }

    void add_tool(const bounding_shape& tool, const Vector3d& tcp, const Eigen::Matrix3d& turned)
    {
        const auto place = [&](std::size_t index)
        { return Vector3d(tcp + turned * Vector3d::Map(&tool.values[index])); };
        if (tool.shape == QORIN_BOUNDING_SHAPE_BOX)
        {
            for (std::size_t corner = 0; corner < tool.values.size(); corner += 3)
                add({place(corner)});
            return;
        }
        if (tool.shape == QORIN_BOUNDING_SHAPE_SPHERE)
        {
            add({place(0), tool.values[3]});
            return;
        }
        const Vector3d axis = turned * Vector3d::Map(&tool.values[3]).normalized();
        const double radius = tool.values[6];
        add({place(0), 0, tool.shape == QORIN_BOUNDING_SHAPE_CYLINDER ? radius : 0, axis});
        add({place(0) + axis * tool.values[7], 0, radius, axis});
    }

    std::array<round_end, 24> ends_;
    std::size_t count_ = 0;
};

bool goes_beyond_a_plane(const robot_state& robot, const stance& from, const stance& to)
{
    std::array<const plane*, safety_planes::capacity> held{};
    std::size_t count = 0;
    for (std::size_t id = 0; id < held.size(); ++id)
        if (const auto* found = robot.planes().find(id))
            held[count++] = found;
    if (count == 0)
        return false;
    const arm_body body(robot, to);
    std::optional<arm_body> before;
    for (std::size_t index = 0; index < count; ++index)
    {
        for (auto end = body.begin(); end != body.end(); ++end)
        {
            const double beyond = end->beyond(*held[index]);
            if (beyond <= way_tolerance)
                continue;
            if (!before)
                before.emplace(robot, from);
            if (beyond > before->begin()[end - body.begin()].beyond(*held[index]) + way_tolerance)
                return true;
        }
    }
    return false;
}

bool goes_out_of_region(const robot_state& robot, const stance& from, const stance& to)
{
    const auto& region = robot.tcp_shape();
    if (!region || region->coordinate != QORIN_REF_COORDINATE_BASE ||
        robot.settings().switches.bounding_shape != QORIN_SWITCH_ON)
        return false;
    const auto outside = [&](const stance& at) { return distance_outside(*region, {at.tcp[0], at.tcp[1], at.tcp[2]}); };
    const double next = outside(to);
    return next > way_tolerance && next > outside(from) + way_tolerance;
}
} // namespace

bool leaves_work_space(const robot_state& robot, const stance& from, const stance& to)
{
    return goes_beyond_a_plane(robot, from, to) || goes_out_of_region(robot, from, to);
}
} // namespace cbox_simulator
