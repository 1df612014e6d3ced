#include <algorithm>
#include <cstdio>
#include <fstream>
#include <span>
#include <stdexcept>

#include <fmt/format.h>
#include <toml++/toml.h>

#include "simulator/printable.h"
#include "simulator/scene/robot_keys.h"
#include "simulator/scene/scene.h"
#include "simulator/scene/scene_names.h"

namespace cbox_simulator
{
namespace
{
std::string name_of(std::span<const scene_name> names, std::uint32_t value)
{
    const auto found = std::ranges::find(names, value, &scene_name::value);
    return found == names.end() ? std::to_string(value) : std::string(found->name);
}

/// Numbers are written in the shortest form that reads back as the same number.
std::string list_of(const std::vector<double>& values)
{
    return values.size() == 1 ? fmt::format("{}", values.front()) : fmt::format("[{}]", fmt::join(values, ", "));
}

std::vector<double> without_trailing_zeros(std::vector<double> values)
{
    while (values.size() > 1 && values.back() == 0)
        values.pop_back();
    return values;
}

std::string robot_text(robot_state& robot)
{
    auto text = fmt::format("\n[[robot]]\nmodel = \"{}\"\n", name_of(robot_model_names(), robot.arm().model));
    for (const auto& key : robot_keys())
        text += fmt::format("{} = {}\n", key.name, list_of(key.get(robot)));
    std::vector<std::string> planes;
    for (std::size_t id = 0; id < safety_planes::capacity; ++id)
        if (const auto* held = robot.planes().find(id))
            planes.push_back(list_of({held->normal[0], held->normal[1], held->normal[2], -held->constant}));
    if (!planes.empty())
        text += fmt::format("planes = [{}]\n", fmt::join(planes, ", "));
    if (const auto& shape = robot.tcp_shape())
        text += fmt::format("tcp_shape = {{ shape = \"{}\", coordinate = \"{}\", values = [{}] }}\n",
                            name_of(bounding_shape_names(), shape->shape),
                            name_of(ref_coordinate_names(), shape->coordinate),
                            fmt::join(std::span(shape->values).first(value_count(shape->shape)), ", "));
    return text;
}

std::string robots_text(box_model& model)
{
    if (model.robots().exists(1) && !model.robots().exists(0))
        throw std::invalid_argument("a scene cannot have a robot 1 without a robot 0");
    std::string text;
    model.robots().for_each([&](std::uint32_t, robot_state& robot) { text += robot_text(robot); });
    return text;
}

template <class Modules>
std::string pairs_text(std::string_view terminals, const Modules& modules, std::span<const scene_name> names)
{
    std::string text;
    for (std::size_t module = 0; module < modules.size(); ++module)
    {
        for (const auto& pair : modules[module].pairs())
            text += fmt::format(
                "\n[[redundant]]\nterminals = \"{}\"\nmodule = {}\nchannels = [{}, {}]\nfunction = \"{}\"\n", terminals,
                module, pair.channel_1, pair.channel_2, name_of(names, pair.function));
    }
    return text;
}

/// As the language of scenes has texts. It knows no others than those of UTF-8.
std::string quoted(const std::string& text)
{
    std::string told;
    for (const char c : text)
    {
        const bool is_plain = static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\' && c != 0x7f;
        told += is_plain ? std::string(1, c) : fmt::format("\\u{:04x}", static_cast<unsigned char>(c));
    }
    told = '"' + told + '"';
    try
    {
        static_cast<void>(toml::parse("text = " + told));
    }
    catch (const toml::parse_error&)
    {
        throw std::invalid_argument(fmt::format("a scene cannot tell {}, which is no UTF-8", printable(text)));
    }
    return told;
}

std::string value_of(const user_value& value)
{
    switch (value.type)
    {
    case QORIN_USER_DATA_TYPE_INT:
        return std::to_string(value.integer);
    case QORIN_USER_DATA_TYPE_STRING:
        return quoted(value.text);
    case QORIN_USER_DATA_TYPE_BOOL:
        return value.character != 0 ? "true" : "false";
    case QORIN_USER_DATA_TYPE_LONGLONG:
        return fmt::format("{{ long = {} }}", value.long_integer);
    default:
        break;
    }
    // A number that is whole is written as one that need not be.
    const auto number = fmt::format("{}", value.real);
    return number.find_first_not_of("-0123456789") == number.npos ? number + ".0" : number;
}

std::string memory_text(box_model& model)
{
    std::string text;
    for (const auto& [name, value] : model.user_memory().all())
        if (value.type != QORIN_USER_DATA_NO_TYPE)
            text += fmt::format("{} = {}\n", quoted(name), value_of(value));
    return text.empty() ? text : "\n[memory]\n" + text;
}

std::string recordings_text(const recording_files& files)
{
    std::string text;
    for (const auto& [name, file] : files)
    {
        text += fmt::format("\n[[recording]]\nfile = {}\nmodel = \"{}\"\nentries = [\n", quoted(name),
                            name_of(robot_model_names(), file.model));
        for (const auto& angles : file.content)
            text += fmt::format("  [{}],\n", fmt::join(angles, ", "));
        text += "]\n";
    }
    return text;
}

std::string world_text(box_model& model)
{
    std::string names;
    for (const auto& [name, point] : model.world().names())
        names += fmt::format("\"{}\" = \"{}\"\n", name, point);
    std::string inputs;
    model.world().for_each_input(
        [&](const std::string& point, const std::vector<double>& values, bool touched)
        {
            const bool is_row_of_bytes = values.size() > 6;
            if (touched)
                inputs += fmt::format("\"{}\" = {}\n", point,
                                      list_of(is_row_of_bytes ? without_trailing_zeros(values) : values));
        });
    std::string wires;
    for (const auto& [input, output] : model.world().wires())
        wires += fmt::format("\"{}\" = \"{}\"\n", input, output);
    return fmt::format("\n[names]\n{}\n[inputs]\n{}\n[wires]\n{}", names, inputs, wires);
}
} // namespace

std::string scene_of(box_model& model)
{
    std::string text = "# A scene of the simulated control box.\n";
    if (const auto& system = model.system())
        text += fmt::format("\n[system]\nmodel = \"{}\"\nrobots = {}\n", name_of(cbox_model_names(), system->model),
                            system->robot_capacity);
    text += robots_text(model);
    text += pairs_text("inputs", model.cbox().redundant_inputs(), redundant_input_names());
    text += pairs_text("outputs", model.cbox().redundant_outputs(), redundant_output_names());
    text += pairs_text("safety_inputs", model.cbox().safety_inputs(), safety_input_names());
    return text + world_text(model) + memory_text(model) + recordings_text(model.files());
}

void save_scene(box_model& model, const std::string& path)
{
    const auto text = scene_of(model);
    // A file that cannot be written to its end must not take the place of a good one.
    const auto unfinished = path + ".new";
    std::ofstream file(unfinished, std::ios::trunc);
    file << text << std::flush;
    file.close();
    if (!file || std::rename(unfinished.c_str(), path.c_str()) != 0)
    {
        std::remove(unfinished.c_str());
        throw std::invalid_argument(fmt::format("cannot write {}", printable(path)));
    }
}
} // namespace cbox_simulator
