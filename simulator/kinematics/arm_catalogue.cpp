#include "simulator/kinematics/arm_catalogue.h"

#include <set>
#include <stdexcept>
#include <string>
#include <system_error>

#include <fmt/format.h>

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::arm_model;
using savrent::kinematics::joint_range;

// Of a robot of which nothing is known. Degrees or the units of its lengths, and seconds; kilograms.
constexpr joint_range wide_range{-100'000, 100'000, 1000, 10'000};
constexpr joint_range no_range{0, 0, 1, 1}; ///< a joint that is not there
constexpr double large_payload = 1000;

/// "x.so" is one, and so is "x.so1".
bool is_module_name(const std::string& name)
{
    return name.size() >= 4 && name.find(".so", name.size() - 4) != std::string::npos;
}

std::set<std::filesystem::path> modules_in(const std::filesystem::path& directory)
{
    std::set<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator at(directory, error), end; !error && at != end; at.increment(error))
        if (is_module_name(at->path().filename().string()))
            files.insert(at->path());
    if (error)
        throw std::invalid_argument(
            fmt::format("cannot read the kinematics modules of {}: {}", directory.string(), error.message()));
    if (files.empty())
        throw std::invalid_argument(fmt::format("there is no kinematics module in {}", directory.string()));
    return files;
}

arm_model data_of(QORIN_ROBOT_MODEL model, const arm_kinematics& kinematics)
{
    const auto* known = savrent::kinematics::find_arm_model(model);
    if (known && kinematics.joint_count() == savrent::kinematics::joint_count)
        return *known;
    arm_model data{model, kinematics.table(), {}, large_payload};
    for (std::size_t joint = 0; joint < data.joints.size(); ++joint)
        data.joints[joint] = joint < kinematics.joint_count() ? wide_range : no_range;
    return data;
}
} // namespace

arm_catalogue::arm_catalogue()
{
    for (const auto& arm : savrent::kinematics::arm_models())
        entries_.emplace(arm.model, entry{arm, arm_kinematics(arm.table)});
}

void arm_catalogue::add_modules(const std::filesystem::path& directory)
{
    std::set<QORIN_ROBOT_MODEL> served;
    for (const auto& file : modules_in(directory))
    {
        const auto module = std::make_shared<const kinematics_module>(file);
        for (const auto model : module->models())
        {
            if (!served.insert(model).second)
                continue;
            const arm_kinematics kinematics(module, model);
            entries_.insert_or_assign(model, entry{data_of(model, kinematics), kinematics});
        }
    }
}

const arm_catalogue::entry* arm_catalogue::find(QORIN_ROBOT_MODEL model) const
{
    const auto found = entries_.find(model);
    return found == entries_.end() ? nullptr : &found->second;
}
} // namespace cbox_simulator
