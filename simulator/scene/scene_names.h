#ifndef SIMULATOR_SCENE_SCENE_NAMES_H
#define SIMULATOR_SCENE_SCENE_NAMES_H

#include <cstdint>
#include <span>
#include <string_view>

/// What scenes call the members of enumerations: their names without what all of them begin with.
namespace cbox_simulator
{
struct scene_name
{
    std::string_view name;
    std::uint32_t value;
};

[[nodiscard]] std::span<const scene_name> cbox_model_names();
[[nodiscard]] std::span<const scene_name> robot_model_names();
[[nodiscard]] std::span<const scene_name> bounding_shape_names();
[[nodiscard]] std::span<const scene_name> ref_coordinate_names();
[[nodiscard]] std::span<const scene_name> redundant_input_names();
[[nodiscard]] std::span<const scene_name> redundant_output_names();
[[nodiscard]] std::span<const scene_name> safety_input_names();
} // namespace cbox_simulator

#endif
