#include "simulator/commands/command_table.h"

#include <iterator>
#include <stdexcept>

#include <fmt/format.h>

#include "simulator/commands/cbox_commands.h"
#include "simulator/commands/cbox_test_commands.h"
#include "simulator/commands/external_motion_commands.h"
#include "simulator/commands/fieldbus_commands.h"
#include "simulator/commands/force_control_commands.h"
#include "simulator/commands/memory_commands.h"
#include "simulator/commands/motion_commands.h"
#include "simulator/commands/recording_commands.h"
#include "simulator/commands/robot_commands.h"
#include "simulator/commands/robot_control_commands.h"
#include "simulator/commands/robot_setup_commands.h"
#include "simulator/commands/robot_test_commands.h"
#include "simulator/commands/safety_limit_commands.h"
#include "simulator/commands/system_commands.h"
#include "simulator/commands/tool_io_commands.h"
#include "simulator/commands/welding_commands.h"

namespace cbox_simulator
{
void command_table::add(std::span<const command_row> rows)
{
    for (const auto& row : rows)
    {
        if (!rows_.emplace(row.wire_name, row).second)
            throw std::logic_error(fmt::format("command {} stands twice in the table", row.wire_name));
    }
}

const command_row* command_table::find(std::string_view wire_name) const
{
    const auto found = rows_.find(wire_name);
    return found == rows_.end() ? nullptr : &found->second;
}

std::vector<command_row> command_table::rows() const
{
    std::vector<command_row> rows;
    for (const auto& [name, row] : rows_)
        rows.push_back(row);
    return rows;
}

command_table make_command_table()
{
    command_table table;
    table.add(system_commands());
    table.add(robot_commands());
    table.add(robot_control_commands());
    table.add(robot_setup_commands());
    table.add(safety_limit_commands());
    table.add(force_control_commands());
    table.add(external_motion_commands());
    table.add(tool_io_commands());
    table.add(cbox_commands());
    table.add(fieldbus_commands());
    table.add(memory_commands());
    table.add(motion_commands());
    table.add(welding_commands());
    table.add(recording_commands());
    table.add(cbox_test_commands());
    table.add(robot_test_commands());
    return table;
}

std::string printable(std::string_view text)
{
    std::string line = "\"";
    for (const char character : text)
    {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte > 0x7E || character == '"' || character == '\\')
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", byte);
        else
            line += character;
    }
    return line + '"';
}
} // namespace cbox_simulator
