#ifndef QORIN_CPP_VALUES_HPP
#define QORIN_CPP_VALUES_HPP

#include <array>
#include <cstddef>

#include "qorin/cpp/call.hpp"

/// Values of robots. The units stand in the names; positions are in millimetres for every robot whose control box
/// counts in these, which the library does not look at.
namespace qorin::inline QORIN_LAYER
{
using cbox_id = id<class cbox>;
using robot_id = id<class robot>;
using motion_id = id<class motion>;
using recording_id = id<class recording>;
using plane_id = id<struct plane>;

inline constexpr std::size_t joint_count = 6; ///< Of the arms; a robot with fewer leaves the last values at 0.
using per_joint = std::array<double, joint_count>;

/// Joint angles from the base on, in degrees.
struct joints
{
    per_joint degrees{};

    [[nodiscard]] constexpr double& operator[](std::size_t joint) { return degrees[joint]; }
    [[nodiscard]] constexpr double operator[](std::size_t joint) const { return degrees[joint]; }
    friend constexpr bool operator==(const joints&, const joints&) = default;
};

struct position
{
    double x_mm = 0;
    double y_mm = 0;
    double z_mm = 0;
    friend constexpr bool operator==(const position&, const position&) = default;
};

/// The rotation Rz(rz) * Ry(ry) * Rx(rx).
struct orientation
{
    double rx_deg = 0;
    double ry_deg = 0;
    double rz_deg = 0;
    friend constexpr bool operator==(const orientation&, const orientation&) = default;
};

struct pose
{
    double x_mm = 0;
    double y_mm = 0;
    double z_mm = 0;
    double rx_deg = 0;
    double ry_deg = 0;
    double rz_deg = 0;

    [[nodiscard]] constexpr qorin::position position() const { return {x_mm, y_mm, z_mm}; }
    [[nodiscard]] constexpr qorin::orientation orientation() const { return {rx_deg, ry_deg, rz_deg}; }
    friend constexpr bool operator==(const pose&, const pose&) = default;
};

/// Force along the axes and torque about them.
struct wrench
{
    double x_n = 0;
    double y_n = 0;
    double z_n = 0;
    double rx_nm = 0;
    double ry_nm = 0;
    double rz_nm = 0;
};

/// What is given back at scope end, or ahead of it by give_back(), which tells how that went. The rest of it is a
/// copyable name of the same thing, that owns nothing.
template <class Thing>
class [[nodiscard]] scoped : public Thing
{
public:
    explicit scoped(const Thing& thing) : Thing(thing), mine_(true) {}
    scoped(scoped&& other) noexcept : Thing(other), mine_(std::exchange(other.mine_, false)) {}
    scoped& operator=(scoped&& other) noexcept
    {
        if (this != &other)
        {
            static_cast<void>(give_back());
            static_cast<Thing&>(*this) = other;
            mine_ = std::exchange(other.mine_, false);
        }
        return *this;
    }
    ~scoped() { static_cast<void>(give_back()); }

    result<void> give_back() { return std::exchange(mine_, false) ? Thing::end() : result<void>(); }

    /// Leaves it to others to give it back.
    Thing keep()
    {
        mine_ = false;
        return *this;
    }

private:
    bool mine_;
};
} // namespace qorin::inline QORIN_LAYER

#endif
