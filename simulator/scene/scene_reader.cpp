#include <algorithm>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <toml++/toml.h>

#include "simulator/printable.h"
#include "simulator/scene/robot_keys.h"
#include "simulator/scene/scene.h"
#include "simulator/scene/scene_names.h"

namespace cbox_simulator
{
namespace
{
/// Keys stand in quotes in the file already, where they need them.
std::string one_line(std::string_view key)
{
    const auto quoted = printable(key);
    return quoted.substr(1, quoted.size() - 2);
}

class scene_reader
{
public:
    scene_reader(box_model& model, const std::string& path) : model_(model), path_(path) {}

    void read(const std::string& path)
    {
        const auto root = parsed(path);
        check_keys(root, "", {"system", "robot", "redundant", "names", "inputs", "wires", "memory", "recording"});
        if (const auto* system = table_at(root, "", "system"))
            read_system(*system);
        for_each_table(root, "robot",
                       [this](const toml::table& table, const std::string& key) { read_robot(table, key); });
        for_each_table(root, "redundant",
                       [this](const toml::table& table, const std::string& key) { read_redundant(table, key); });
        for_each_entry(root, "names",
                       [this](const std::string& name, const toml::node& value, const std::string& key)
                       { model_.world().name(name, text_of(value, key)); });
        for_each_entry(root, "inputs",
                       [this](const std::string& point, const toml::node& value, const std::string& key)
                       { model_.world().set(point, numbers_of(value, key)); });
        for_each_entry(root, "wires",
                       [this](const std::string& input, const toml::node& value, const std::string& key)
                       { model_.world().connect(text_of(value, key), input); });
        for_each_entry(root, "memory",
                       [this](const std::string& name, const toml::node& value, const std::string& key)
                       { accept(model_.user_memory().set(name, memory_value(value, key)), value, key); });
        for_each_table(root, "recording",
                       [this](const toml::table& table, const std::string& key) { read_recording(table, key); });
    }

private:
    [[noreturn]] void fail(const toml::source_region& at, std::string_view key, std::string_view why) const
    {
        throw std::invalid_argument(
            fmt::format("{}:{}: {}{}{}", path_, at.begin.line, one_line(key), key.empty() ? "" : ": ", why));
    }

    [[noreturn]] void fail(const toml::node& at, std::string_view key, std::string_view why) const
    {
        fail(at.source(), key, why);
    }

    [[nodiscard]] toml::table parsed(const std::string& path) const
    {
        std::ifstream file(path);
        // A directory opens, and has nothing to read.
        if (!file || file.peek() == std::ifstream::traits_type::eof())
            throw std::invalid_argument(fmt::format("{}: cannot be read, or is empty", path_));
        try
        {
            return toml::parse(file, path);
        }
        catch (const toml::parse_error& error)
        {
            fail(error.source(), "", printable(error.description()));
        }
    }

    void check_keys(const toml::table& table, const std::string& where,
                    const std::vector<std::string_view>& known) const
    {
        for (const auto& [key, value] : table)
            if (std::ranges::find(known, key.str()) == known.end())
                fail(value, where + std::string(key.str()), fmt::format("is none of {}", fmt::join(known, ", ")));
    }

    const toml::table* table_at(const toml::table& parent, const std::string& where, const std::string& key) const
    {
        const auto* node = parent.get(key);
        if (node && !node->is_table())
            fail(*node, where + key, "is no table");
        return node ? node->as_table() : nullptr;
    }

    /// What a key must have.
    const toml::node& need(const toml::table& table, const std::string& where, std::string_view key) const
    {
        const auto* node = table.get(key);
        if (!node)
            fail(table, where + std::string(key), "is missing");
        return *node;
    }

    template <class Use>
    void for_each_table(const toml::table& root, const std::string& key, const Use& use) const
    {
        const auto* node = root.get(key);
        if (!node)
            return;
        if (!node->is_array_of_tables())
            fail(*node, key, fmt::format("is no list of tables: write [[{}]]", key));
        for (const auto& each : *node->as_array())
            use(*each.as_table(), key + ".");
    }

    /// The world tells itself what it refuses, but not where that stands.
    template <class Use>
    void for_each_entry(const toml::table& root, const std::string& section, const Use& use) const
    {
        const auto* table = table_at(root, "", section);
        if (!table)
            return;
        for (const auto& [name, value] : *table)
        {
            const auto key = fmt::format("{}.\"{}\"", section, name.str());
            std::string refusal;
            try
            {
                use(std::string(name.str()), value, key);
                continue;
            }
            catch (const std::invalid_argument& error)
            {
                refusal = error.what();
            }
            if (refusal.starts_with(path_ + ":"))
                throw std::invalid_argument(refusal);
            fail(value, key, refusal);
        }
    }

    [[nodiscard]] std::string text_of(const toml::node& node, std::string_view key) const
    {
        const auto text = node.value_exact<std::string>();
        if (!text)
            fail(node, key, "is no text");
        return *text;
    }

    [[nodiscard]] double number_of(const toml::node& node, std::string_view key) const
    {
        if (const auto flag = node.value_exact<bool>())
            return *flag ? 1 : 0;
        const auto number = node.is_number() ? node.value<double>() : std::nullopt;
        if (!number || !std::isfinite(*number))
            fail(node, key, "is no finite number");
        return *number;
    }

    /// One number, or a list of them.
    [[nodiscard]] std::vector<double> numbers_of(const toml::node& node, std::string_view key) const
    {
        if (!node.is_array())
            return {number_of(node, key)};
        std::vector<double> numbers;
        for (const auto& each : *node.as_array())
            numbers.push_back(number_of(each, key));
        return numbers;
    }

    [[nodiscard]] std::vector<double> numbers_of(const toml::node& node, std::string_view key, std::size_t count) const
    {
        auto numbers = numbers_of(node, key);
        if (numbers.size() != count)
            fail(node, key, fmt::format("takes {} numbers, not {}", count, numbers.size()));
        return numbers;
    }

    [[nodiscard]] std::uint32_t index_of(double number, const toml::node& node, std::string_view key) const
    {
        if (number < 0 || number > 1000 || std::floor(number) != number)
            fail(node, key, "is no number of a thing");
        return static_cast<std::uint32_t>(number);
    }

    [[nodiscard]] std::uint32_t member_of(std::span<const scene_name> names, const toml::node& node,
                                          std::string_view key) const
    {
        const auto text = text_of(node, key);
        const auto found = std::ranges::find(names, text, &scene_name::name);
        if (found != names.end())
            return found->value;
        std::string list;
        for (const auto& each : names)
            list += fmt::format("{}{}", list.empty() ? "" : ", ", each.name);
        fail(node, key, fmt::format("{} is none of {}", printable(text), list));
    }

    void accept(QORIN_API_RESULT result, const toml::node& node, std::string_view key) const
    {
        if (result != QORIN_API_RESULT_OK)
            fail(node, key, fmt::format("cannot be so (result {})", static_cast<std::uint32_t>(result)));
    }

    void read_system(const toml::table& table)
    {
        check_keys(table, "system.", {"model", "robots"});
        const auto& model = need(table, "system.", "model");
        const auto& robots = need(table, "system.", "robots");
        const created_system system{static_cast<QORIN_CBOX_MODEL>(member_of(cbox_model_names(), model, "system.model")),
                                    index_of(number_of(robots, "system.robots"), robots, "system.robots")};
        accept(model_.create_system(nobody, system), robots, "system.robots");
    }

    void read_robot(const toml::table& table, const std::string& where)
    {
        std::vector<std::string_view> known{"model", "planes", "tcp_shape"};
        for (const auto& key : robot_keys())
            known.push_back(key.name);
        check_keys(table, where, known);

        const auto& model = need(table, where, "model");
        if (!model_.system())
            fail(table, "robot", "needs a [system]");
        std::uint32_t id = 0;
        accept(model_.create_robot(
                   static_cast<QORIN_ROBOT_MODEL>(member_of(robot_model_names(), model, where + "model")), id),
               model, where + "model");
        auto& robot = *model_.robots().find(id);
        for (const auto& key : robot_keys())
        {
            const auto name = where + std::string(key.name);
            if (const auto* node = table.get(key.name))
                accept(key.set(robot, numbers_of(*node, name, key.count)), *node, name);
        }
        if (const auto* planes = table.get("planes"))
            read_planes(robot, *planes, where + "planes");
        if (const auto* shape = table_at(table, where, "tcp_shape"))
            robot.tcp_shape() = read_shape(*shape, where + "tcp_shape.");
    }

    [[nodiscard]] bounding_shape read_shape(const toml::table& table, const std::string& where) const
    {
        check_keys(table, where, {"shape", "coordinate", "values"});
        const auto& shape = need(table, where, "shape");
        const auto& coordinate = need(table, where, "coordinate");
        const auto& values = need(table, where, "values");
        bounding_shape told;
        told.shape = static_cast<QORIN_BOUNDING_SHAPE>(member_of(bounding_shape_names(), shape, where + "shape"));
        told.coordinate =
            static_cast<QORIN_REF_COORDINATE>(member_of(ref_coordinate_names(), coordinate, where + "coordinate"));
        std::ranges::copy(numbers_of(values, where + "values", value_count(told.shape)), told.values.begin());
        accept(judge(told), values, where + "values");
        return told;
    }

    void read_planes(robot_state& robot, const toml::node& node, const std::string& key) const
    {
        if (!node.is_array())
            fail(node, key, "is no list");
        for (const auto& each : *node.as_array())
        {
            const auto numbers = numbers_of(each, key, 4);
            std::uint32_t id = 0;
            accept(robot.planes().create({numbers[0], numbers[1], numbers[2]}, numbers[3], id), each, key);
        }
    }

    void read_redundant(const toml::table& table, const std::string& where)
    {
        check_keys(table, where, {"terminals", "module", "channels", "function"});
        const auto& terminals = need(table, where, "terminals");
        const auto& function = need(table, where, "function");
        const auto& channels_node = need(table, where, "channels");
        const auto& module_node = need(table, where, "module");
        const auto channels = numbers_of(channels_node, where + "channels", 2);
        const auto channel_1 = index_of(channels[0], channels_node, where + "channels");
        const auto channel_2 = index_of(channels[1], channels_node, where + "channels");
        const auto module = index_of(number_of(module_node, where + "module"), module_node, where + "module");
        const auto member = [&](std::span<const scene_name> names)
        { return member_of(names, function, where + "function"); };

        auto& cbox = model_.cbox();
        const auto kind = text_of(terminals, where + "terminals");
        auto result = QORIN_API_RESULT_OK;
        if (kind == "inputs")
            result = cbox.assign_redundant_input(module, channel_1, channel_2,
                                                 static_cast<QORIN_CBOX_IO_REDUNDANT>(member(redundant_input_names())));
        else if (kind == "outputs")
            result = cbox.assign_redundant_output(
                module, channel_1, channel_2, static_cast<QORIN_CBOX_IO_REDUNDANT>(member(redundant_output_names())));
        else if (kind == "safety_inputs")
            result =
                cbox.assign_safety_input(module, channel_1, channel_2,
                                         static_cast<QORIN_SAFETY_MODULE_IO_REDUNDANT>(member(safety_input_names())));
        else
            fail(terminals, where + "terminals", "is none of inputs, outputs, safety_inputs");
        accept(result, channels_node, where + "channels");
    }

    /// What it is in the file tells its type. A table tells the one that numbers have beside the usual one.
    [[nodiscard]] user_value memory_value(const toml::node& node, const std::string& key) const
    {
        user_value value;
        if (const auto text = node.value_exact<std::string>())
        {
            value.type = QORIN_USER_DATA_TYPE_STRING;
            value.text = *text;
        }
        else if (const auto flag = node.value_exact<bool>())
        {
            value.type = QORIN_USER_DATA_TYPE_BOOL;
            value.character = *flag;
        }
        else if (node.is_integer())
        {
            value.type = QORIN_USER_DATA_TYPE_INT;
            value.integer = integer_of(node, key);
        }
        else if (const auto real = node.value_exact<double>())
        {
            value.type = QORIN_USER_DATA_TYPE_DOUBLE;
            value.real = *real;
        }
        else if (const auto* table = node.as_table())
        {
            check_keys(*table, key + ".", {"long"});
            value.type = QORIN_USER_DATA_TYPE_LONGLONG;
            value.long_integer = integer_of(need(*table, key + ".", "long"), key + ".long");
        }
        else
            fail(node, key, "is no text, number, true or false, or { long = NUMBER }");
        return value;
    }

    [[nodiscard]] std::int32_t integer_of(const toml::node& node, std::string_view key) const
    {
        const auto number = node.value_exact<std::int64_t>();
        if (!number || *number != static_cast<std::int32_t>(*number))
            fail(node, key, "is no whole number of 32 bits");
        return static_cast<std::int32_t>(*number);
    }

    void read_recording(const toml::table& table, const std::string& where)
    {
        check_keys(table, where, {"file", "model", "entries"});
        const auto& model = need(table, where, "model");
        recording_file file{static_cast<QORIN_ROBOT_MODEL>(member_of(robot_model_names(), model, where + "model")), {}};
        const auto name = text_of(need(table, where, "file"), where + "file");
        const auto& entries = need(table, where, "entries");
        const auto* list = entries.as_array();
        if (!list || list->empty() || list->size() > recordings::length_limit)
            fail(entries, where + "entries", fmt::format("is no list of 1 to {} places", recordings::length_limit));
        for (const auto& each : *list)
        {
            const auto angles = numbers_of(each, where + "entries", savrent::kinematics::joint_count);
            std::ranges::copy(angles, file.content.emplace_back().begin());
        }
        if (name.empty() || !model_.files().emplace(name, std::move(file)).second)
            fail(table, where + "file", "is empty, or is there twice");
    }

    /// Whoever comes first takes the control: a scene has none.
    static constexpr client_id nobody = 0;

    box_model& model_;
    std::string path_;
};
} // namespace

void load_scene(box_model& model, const std::string& path)
{
    scene_reader(model, path).read(path);
}
} // namespace cbox_simulator
