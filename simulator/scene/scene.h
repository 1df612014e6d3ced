#ifndef SIMULATOR_SCENE_SCENE_H
#define SIMULATOR_SCENE_SCENE_H

#include <string>

#include "simulator/model/box_model.h"

/// A cell in a file (TOML): system, robots, what is wired and assigned, and what stands at the inputs.
namespace cbox_simulator
{
/// Sets up a new model. Throws std::invalid_argument for a file that is no scene, with one line that names file, line
/// and key; the model is of no use then.
void load_scene(box_model& model, const std::string& path);

/// What load_scene() would need to set the model up as it is now. Throws std::invalid_argument when no scene can tell
/// it: with a robot 1 but no robot 0.
[[nodiscard]] std::string scene_of(box_model& model);

/// Writes it to a file, in the place of one that is there. Throws std::invalid_argument also when it cannot be written.
void save_scene(box_model& model, const std::string& path);
} // namespace cbox_simulator

#endif
