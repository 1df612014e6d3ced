#ifndef SIMULATOR_KINEMATICS_ARM_CATALOGUE_H
#define SIMULATOR_KINEMATICS_ARM_CATALOGUE_H

#include <filesystem>
#include <map>
#include <memory>

#include "kinematics/arm_models.h"
#include "simulator/kinematics/arm_kinematics.h"

namespace cbox_simulator
{
/**
 * The robots that a box can be told to create: the nine arms that it knows, and those of its user's modules.
 *
 * A module says nothing of ranges, speeds and payload. For a model that the box knows they stay as they are; any other
 * robot can go a long way in each joint, at a thousand of its units a second.
 */
class arm_catalogue
{
public:
    struct entry
    {
        savrent::kinematics::arm_model data;
        arm_kinematics kinematics;
    };

    arm_catalogue();

    /// Takes every module of the directory, by the names that the client library takes. Of two for one model the first
    /// by name counts. Throws std::invalid_argument, with one line, when the directory cannot be read, holds no module
    /// or a file that is none.
    void add_modules(const std::filesystem::path& directory);

    /// Null when it has no such model.
    [[nodiscard]] const entry* find(QORIN_ROBOT_MODEL model) const;

private:
    std::map<QORIN_ROBOT_MODEL, entry> entries_;
};
} // namespace cbox_simulator

#endif
