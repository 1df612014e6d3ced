#ifndef SIMULATOR_MOTION_POSE_PATH_H
#define SIMULATOR_MOTION_POSE_PATH_H

#include <array>
#include <memory>

#include "qorin/enumerations.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/pose.h"

namespace cbox_simulator::motion
{
class position_curve;
class orientation_course;

/**
 * The way of a TCP or a flange through space, by the length gone on it. Everything is seen from the base.
 *
 * The orientation turns at a steady rate along the way. A way that turns more degrees than it goes millimetres is paced
 * by its turn: its length() is then in degrees. So a turn in place is a way like any other, and the limits of a motion
 * bound its turning as well, one degree for a millimetre.
 *
 * A value; copies share what they are made of, which never changes.
 */
class pose_path
{
public:
    [[nodiscard]] static pose_path line(const pose& start, const pose& end);
    /// The turn in place, by the shortest way.
    [[nodiscard]] static pose_path turn(const pose& start, const std::array<double, 3>& orientation_end);
    /// About an axis through where it stands, by any angle. The axis is of length 1; degrees.
    [[nodiscard]] static pose_path turn_about(const pose& start, const vector3& axis, double angle);
    /// Along any curve with any course of the orientation that begin and end at the poses.
    pose_path(std::shared_ptr<const position_curve> positions, std::shared_ptr<const orientation_course> orientations,
              const pose& start, const pose& end);

    [[nodiscard]] double length() const { return length_; }
    [[nodiscard]] double way() const { return way_; }   ///< Of the position. Millimetres.
    [[nodiscard]] double turn() const { return turn_; } ///< Of the orientation. Degrees.

    /// Exactly the start up to 0, and exactly the end from the length on.
    [[nodiscard]] pose at(double length) const;
    [[nodiscard]] const pose& start() const { return start_; }
    [[nodiscard]] const pose& end() const { return end_; }
    /// In which direction the position moves there, of length 1; where it does not move at all, 0.
    [[nodiscard]] vector3 direction_at(double length) const;
    /// How the orientation turns there, in degrees for one unit of the length, as a vector along the axis.
    [[nodiscard]] vector3 turning_at(double length) const;

private:
    std::shared_ptr<const position_curve> positions_;
    std::shared_ptr<const orientation_course> orientations_;
    pose start_;
    pose end_;
    double way_;
    double turn_;
    double length_;
};
} // namespace cbox_simulator::motion

#endif
