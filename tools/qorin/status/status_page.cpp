#include "tools/qorin/status/status_page.h"

#include <algorithm>
#include <cctype>

#include <fmt/format.h>

#include "qorin/system.h"

namespace qorin_cli
{
namespace
{
std::string in_words(std::string name)
{
    if (name.starts_with("EMG_"))
        name.replace(0, 3, "EMERGENCY");
    for (char& letter : name)
        letter = letter == '_' ? ' ' : static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return name;
}

/// A sign for each channel, the first one at the left.
std::string lamps(double bits, unsigned int channels)
{
    const auto set = static_cast<unsigned int>(bits);
    std::string text;
    for (unsigned int channel = 0; channel < channels; ++channel)
        text.append(channel == 8 ? " " : "").push_back((set >> channel & 1) != 0 ? '1' : '.');
    return text;
}

std::string label(std::string_view text, const palette& colours)
{
    return colours.paint(fmt::format("{:<13}", text), palette::dim);
}

/// A number that rounds to 0 has no sign.
std::string rounded(double number, int digits)
{
    std::string text = fmt::format("{:.{}f}", number, digits);
    if (text.starts_with('-') && text.find_first_of("123456789") == std::string::npos)
        text.erase(0, 1);
    return text;
}

class page_writer
{
public:
    page_writer(const status_reading& now, const palette& colours) : now_(now), colours_(colours) {}

    void write_control_box()
    {
        line("EtherCAT",
             fmt::format("{}, {}; 48 V supply {}", now_.word("cbox.ecat"), now_.word("cbox.operational_mode"),
                         now_.word("cbox.supply_48v")),
             page_line::useful);
        line("buttons", fmt::format("emergency {}, power {}", marked("cbox.emergency_button", "pushed", palette::red),
                                    now_.word("cbox.power_button")));
        line("inputs",
             fmt::format("{}   redundant {}   safety {}", channels("cbox.digital_inputs", 16),
                         channels("cbox.redundant_inputs", 16), channels("cbox.safety_inputs", 8)),
             page_line::useful);
        line("outputs",
             fmt::format("{}   redundant {}", channels("cbox.digital_outputs", 16),
                         channels("cbox.redundant_outputs", 16)),
             page_line::useful);
        line("analog",
             fmt::format("inputs {:.3f} {:.3f}   outputs {:.3f} {:.3f}   V or mA", now_.number("cbox.analog_input0"),
                         now_.number("cbox.analog_input1"), now_.number("cbox.analog_output0"),
                         now_.number("cbox.analog_output1")),
             page_line::extra);
    }

    void write_robot(unsigned int robot)
    {
        prefix_ = fmt::format("robot{}.", robot);
        page.push_back({"", page_line::useful});
        const std::string title = fmt::format("Robot {}  {}", robot, now_.text(prefix_ + "model"));
        page.push_back({fmt::format("{}   servo {}   {}   {}", colours_.paint(title, palette::bold),
                                    marked(prefix_ + "servo", "on", palette::green),
                                    marked(prefix_ + "moving", "moving", palette::cyan),
                                    marked(prefix_ + "safety", "not safe", palette::red))});
        const std::string motion = now_.text(prefix_ + "motion");
        line("motion",
             fmt::format("{}{} mode, speed {:g} %", motion.empty() ? "" : motion + ", ",
                         now_.word(prefix_ + "control_mode"), 100 * now_.number(prefix_ + "speed_factor")),
             page_line::useful);
        line("switched on", what_is_on(), page_line::useful);
        write_joints();
        write_tcp();
        line("tool",
             fmt::format("inputs {}   outputs {}   analog {:.3f} {:.3f}", channels(prefix_ + "tool_inputs", 4),
                         channels(prefix_ + "tool_outputs", 4), now_.number(prefix_ + "tool_analog_input0"),
                         now_.number(prefix_ + "tool_analog_input1")),
             page_line::extra);
    }

    void line(std::string_view name, const std::string& text, decltype(page_line::rank) rank = page_line::needed)
    {
        page.push_back({label(name, colours_) + text, rank});
    }

    std::vector<page_line> page;

private:
    std::string marked(const std::string& name, std::string_view word, palette::colour with) const
    {
        const std::string text = now_.word(name);
        return text == word ? colours_.paint(text, with) : text;
    }

    std::string channels(const std::string& name, unsigned int count) const { return lamps(now_.number(name), count); }

    std::string what_is_on() const
    {
        std::string text;
        for (const char* name : {"safety_limits", "bounding_shape", "collision_detection", "joint_chaser",
                                 "force_control", "external_profiler", "conveyor"})
            if (now_.text(prefix_ + name) == "ON")
                text += (text.empty() ? "" : ", ") + in_words(name);
        return text.empty() ? "nothing beside the motion" : text;
    }

    void write_joints()
    {
        const auto joints = std::min(joint_limit, static_cast<unsigned int>(now_.number(prefix_ + "joints")));
        const auto row = [&](const char* name, decltype(page_line::rank) rank, auto text_of)
        {
            std::string text;
            for (unsigned int joint = 0; joint < joints; ++joint)
                text += fmt::format("{:>11}", text_of(fmt::format("{}joint{}.", prefix_, joint)));
            line(name, text, rank);
        };
        const auto value = [&](const char* name, int digits) {
            return [this, name, digits](const std::string& joint)
            { return rounded(now_.number(joint + name), digits); };
        };
        row("joint", page_line::useful, [&](const std::string& joint) { return joint.substr(joint.size() - 2, 1); });
        row("angle deg", page_line::needed, value("angle", 3));
        row("commanded", page_line::useful, value("angle_command", 3));
        row("speed deg/s", page_line::needed, value("speed", 3));
        row("range deg", page_line::extra,
            [&](const std::string& joint)
            {
                const auto [low, high] =
                    std::minmax({now_.number(joint + "safety_angle_1"), now_.number(joint + "safety_angle_2")});
                return fmt::format("{:.0f}..{:.0f}", low, high);
            });
        row("torque", page_line::extra, value("torque", 2));
        row("drive degC", page_line::extra, value("temperature", 1));
        write_drive_errors(joints);
    }

    void write_drive_errors(unsigned int joints)
    {
        std::string text;
        for (unsigned int joint = 0; joint < joints; ++joint)
            if (const std::string errors = now_.text(fmt::format("{}joint{}.errors", prefix_, joint)); errors != "0")
                text += fmt::format("{}joint {}: {}", text.empty() ? "" : ", ", joint, errors);
        if (!text.empty())
            line("drive errors", colours_.paint(text, palette::red));
    }

    void write_tcp()
    {
        const auto pose = [&](const std::string& name)
        {
            std::string text;
            for (const char* axis : {"x", "y", "z", "rx", "ry", "rz"})
                text += fmt::format("{:>11}", rounded(now_.number(prefix_ + name + axis), 3));
            return text;
        };
        line("", fmt::format("{:>11}{:>11}{:>11}{:>11}{:>11}{:>11}", "x", "y", "z", "rx", "ry", "rz"),
             page_line::extra);
        line("TCP mm, deg", pose("tcp."));
        line("commanded", pose("tcp_command."), page_line::extra);
    }

    const status_reading& now_;
    const palette& colours_;
    std::string prefix_;
};

/// As much of a text as has room, whatever colours it has.
std::string cut(const std::string& text, int columns)
{
    std::string result;
    int used = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool begins_colour = text[i] == '\033';
        const std::size_t length = begins_colour ? text.find('m', i) - i + 1 : 1;
        const bool continues_character = (text[i] & 0xC0) == 0x80;
        if (!begins_colour && !continues_character && ++used > columns)
            return result + "\033[0m";
        result.append(text, i, length);
        i += length - 1;
    }
    return result;
}
} // namespace

status_reading::status_reading(const std::vector<status_field>& fields)
{
    std::vector<field_value> values = read_fields(fields);
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (!std::holds_alternative<std::monostate>(values[i]))
            values_.emplace(fields[i].name, std::move(values[i]));
}

double status_reading::number(const std::string& name) const
{
    const auto found = values_.find(name);
    const double* const value = found == values_.end() ? nullptr : std::get_if<double>(&found->second);
    return value == nullptr ? 0 : *value;
}

std::string status_reading::text(const std::string& name) const
{
    const auto found = values_.find(name);
    const std::string* const value = found == values_.end() ? nullptr : std::get_if<std::string>(&found->second);
    return value == nullptr ? "" : *value;
}

std::string status_reading::word(const std::string& name) const
{
    const std::string value = text(name);
    return value.empty() ? "-" : in_words(value);
}

page_line page_title(const std::string& address, unsigned int cbox_id, const status_reading& now,
                     const palette& colours)
{
    const std::string ours = qorin_system_api_version_get();
    const std::string theirs = qorin_rpc_system_control_sw_version_get(cbox_id);
    const std::string version = theirs == ours ? theirs : fmt::format("{}, library {}", theirs, ours);
    const std::string model = now.text("cbox.model");
    return {fmt::format("{}  {}  {}", colours.paint("Control box " + address, palette::bold),
                        model == "NONE" ? "no system" : model, version)};
}

page_line control_line(bool may_command, const palette& colours)
{
    return {label("control", colours) + (may_command ? "this program may command" : "not with this program"),
            page_line::useful};
}

std::vector<page_line> status_page(const status_reading& now, const robot_watch& robots, const palette& colours)
{
    page_writer writer(now, colours);
    writer.write_control_box();
    bool has_robots = false;
    for (unsigned int robot = 0; robot < robot_limit; ++robot)
    {
        if (robots.is_known(robot))
            writer.write_robot(robot);
        else if (robots.lacks_module(robot))
            writer.line(fmt::format("Robot {}", robot),
                        "stands there, but no kinematics module serves its model (client.kinematics_path)");
        else
            continue;
        has_robots = true;
    }
    if (!has_robots)
        writer.line("robots", "none");
    return std::move(writer.page);
}

std::vector<std::string> fit_page(std::vector<page_line> page, window room)
{
    const auto rows = static_cast<std::size_t>(std::max(room.rows, 1));
    for (const int rank : {page_line::extra, page_line::useful})
        for (std::size_t i = page.size(); i-- > 0 && page.size() > rows;)
            if (page[i].rank == rank)
                page.erase(page.begin() + static_cast<std::ptrdiff_t>(i));
    page.resize(std::min(page.size(), rows));
    std::vector<std::string> lines;
    for (const page_line& line : page)
        lines.push_back(cut(line.text, room.columns));
    return lines;
}

std::string status_line(const status_reading& now, const robot_watch& robots)
{
    std::string text =
        fmt::format("EtherCAT {}, emergency button {}", now.word("cbox.ecat"), now.word("cbox.emergency_button"));
    for (unsigned int robot = 0; robot < robot_limit; ++robot)
    {
        if (!robots.is_known(robot))
            continue;
        const std::string prefix = fmt::format("robot{}.", robot);
        text += fmt::format(" | robot {}: servo {}, {}, {}, joints", robot, now.word(prefix + "servo"),
                            now.word(prefix + "moving"), now.word(prefix + "safety"));
        for (unsigned int joint = 0; joint < joint_limit; ++joint)
            if (const std::string name = fmt::format("{}joint{}.angle", prefix, joint); now.has(name))
                text += fmt::format(" {:.3f}", now.number(name));
        text += ", TCP";
        for (const char* axis : {"x", "y", "z", "rx", "ry", "rz"})
            text += fmt::format(" {:.2f}", now.number(prefix + "tcp." + axis));
    }
    return text;
}
} // namespace qorin_cli
