#include "simulator/commands/command_table.h"

#include <stdexcept>

#include <fmt/format.h>

#include "simulator/commands/families.h"

namespace cbox_simulator
{
void command_table::add(std::span<const command_row> rows)
{
    for (const auto& row : rows)
        if (!rows_.emplace(row.wire_name, row).second)
            throw std::logic_error(fmt::format("command {} stands twice in the table", row.wire_name));
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
    table.add(jog_commands());
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
} // namespace cbox_simulator
