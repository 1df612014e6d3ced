#include "tools/qorin/doctor/setup.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>
#include <dlfcn.h>
#include <fmt/format.h>

#include "tools/qorin/nearest_name.h"

namespace qorin_cli::doctor
{
namespace
{
namespace fs = std::filesystem;
using boost::property_tree::ptree;

constexpr const char* check = "configuration";

/// A key of the library, the word that its value is compared with, and what holds without it.
struct known_key
{
    std::string name;
    std::string word; ///< empty: a path
    verdict when_missing;
    const char* without;
};

const std::vector<known_key>& known_keys()
{
    static const std::vector<known_key> keys = {
        {"client.log_save_path", "", verdict::warning, "the logs go to the root directory"},
        {"client.log_print_out", "on", verdict::note, "nothing goes to the screen"},
        {"client.kinematics_path", "", verdict::warning, "modules are looked for in the working directory"},
        {"server.log_trans", "on", verdict::note, "no line goes to the log transport"},
        {"common.transfer_protocol", "tcp", verdict::note, "shared data travels by memory"}};
    return keys;
}

std::string in_small_letters(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

void examine_unknown_keys(const ptree& configuration, findings& found)
{
    std::vector<std::string> names;
    for (const known_key& known : known_keys())
        names.push_back(known.name);
    for (const auto& [section, keys] : configuration)
        for (const auto& [key, value] : keys)
        {
            const std::string name = section + "." + key;
            if (std::find(names.begin(), names.end(), name) != names.end())
                continue;
            const auto nearest = nearest_names(name, names, 1);
            found.push_back({check, name, verdict::warning, origin::setup,
                             nearest.empty() ? "no key that the library knows"
                                             : fmt::format("no key; perhaps {} is meant", nearest.front())});
        }
}

void examine_value(const known_key& known, const std::string& value, findings& found)
{
    if (!known.word.empty() && value != known.word && in_small_letters(value) == known.word)
        found.push_back({check, fmt::format("{}={}", known.name, value), verdict::warning, origin::setup,
                         fmt::format("means nothing: the library compares exactly with \"{}\"", known.word)});
}

/// A path as the library takes it: one that is not absolute stands below $SAVRENT_V3, with nothing in between.
fs::path below_installation(std::string path)
{
    const char* installation = std::getenv("SAVRENT_V3");
    if (path.starts_with('/') || installation == nullptr)
        return path;
    if (path.starts_with(".."))
        path.insert(0, 1, '/');
    else if (path.starts_with('.'))
        path.erase(0, 1);
    return installation + path;
}

const char* const module_symbols[] = {"savrent_kinematics_get_num_of_models",
                                      "savrent_kinematics_get_model_name",
                                      "savrent_kinematics_get_num_of_joints",
                                      "savrent_kinematics_create",
                                      "savrent_kinematics_destroy",
                                      "savrent_kinematics_set_model_name",
                                      "savrent_kinematics_forward",
                                      "savrent_kinematics_inverse",
                                      "savrent_kinematics_inverse_all_solutions",
                                      "savrent_kinematics_inverse_from_posture",
                                      "savrent_kinematics_set_dh_parameter",
                                      "savrent_kinematics_get_dh_parameter"};

/// "x.so" and "x.so1" are modules to the library.
bool is_candidate(const std::string& name)
{
    return name.size() >= 4 && name.find(".so", name.size() - 4) != std::string::npos;
}

finding examined_module(const fs::path& file)
{
    finding seen{"kinematics", file.filename().string(), verdict::ok, origin::none, {}};
    const auto refuse = [&](const std::string& why)
    {
        seen.judged = verdict::error;
        seen.blamed = origin::setup;
        seen.words = fmt::format("is no kinematics module, which ends the search for all models: {}", why);
        return seen;
    };
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr)
        return refuse(dlerror());
    for (const char* symbol : module_symbols)
        if (dlsym(module, symbol) == nullptr)
            return refuse(fmt::format("it lacks {}", symbol));
    const auto models = reinterpret_cast<int (*)()>(dlsym(module, module_symbols[0]))();
    const auto joints = reinterpret_cast<int (*)()>(dlsym(module, module_symbols[2]))();
    seen.words = fmt::format("a module for {} robot models of {} joints", models, joints);
    if (models < 1 || joints < 1 || joints > 6)
    {
        seen.judged = verdict::warning;
        seen.blamed = origin::setup;
        seen.words += ": the library passes it over";
    }
    return seen;
}
} // namespace

directories examine_configuration(const std::string& path, findings& found)
{
    ptree configuration;
    try
    {
        boost::property_tree::ini_parser::read_ini(path, configuration);
    }
    catch (const boost::property_tree::ini_parser_error& error)
    {
        found.push_back(
            {check, path, verdict::error, origin::setup, fmt::format("the library cannot load it: {}", error.what())});
        return {};
    }
    const std::size_t before = found.size();
    examine_unknown_keys(configuration, found);
    for (const known_key& known : known_keys())
        if (const auto value = configuration.get_optional<std::string>(known.name); value && !value->empty())
            examine_value(known, *value, found);
        else
            found.push_back({check, known.name, known.when_missing,
                             known.when_missing == verdict::note ? origin::none : origin::setup,
                             fmt::format("not given: {}", known.without)});
    if (found.size() == before)
        found.push_back({check, "5 keys", verdict::ok, origin::none, "all known, none missing"});
    return {below_installation(configuration.get("client.log_save_path", "")) / "",
            below_installation(configuration.get("client.kinematics_path", ""))};
}

void examine_kinematics(const fs::path& directory, findings& found)
{
    std::error_code failed;
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory.empty() ? "." : directory, failed))
        if (is_candidate(entry.path().filename().string()))
            files.push_back(entry.path());
    if (failed)
        found.push_back({"kinematics", directory.string(), verdict::warning, origin::setup,
                         fmt::format("no modules, hence no robot with conversions: {}", failed.message())});
    else if (files.empty())
        found.push_back({"kinematics", directory.string(), verdict::warning, origin::setup,
                         "no module is there: creating an arm fails here, after the control box has created it"});
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files)
        found.push_back(examined_module(file));
}
} // namespace qorin_cli::doctor
