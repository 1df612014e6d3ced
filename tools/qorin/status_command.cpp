#include <memory>

#include <nlohmann/json.hpp>

#include "qorin/system.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/status/control_state.h"
#include "tools/qorin/status/event_feed.h"
#include "tools/qorin/status/live_links.h"
#include "tools/qorin/status/status_page.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
using nlohmann::ordered_json;

struct status_request
{
    connection_options connection;
    bool json = false;
};

ordered_json json_of(const field_value& value)
{
    if (const auto* const text = std::get_if<std::string>(&value))
        return *text;
    const double number = std::get<double>(value);
    const auto whole = static_cast<std::int64_t>(number);
    return static_cast<double>(whole) == number ? ordered_json(whole) : ordered_json(number);
}

/// The fields as objects in each other, a level for each dot of their names.
ordered_json fields_as_json(const std::vector<status_field>& fields)
{
    ordered_json tree;
    const std::vector<field_value> values = read_fields(fields);
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        if (std::holds_alternative<std::monostate>(values[i]))
            continue;
        std::string place = "/" + fields[i].name;
        std::ranges::replace(place, '.', '/');
        tree[ordered_json::json_pointer(place)] = json_of(values[i]);
    }
    return tree;
}

void print_json(const status_request& request, unsigned int cbox, bool commands)
{
    ordered_json told = {{"address", request.connection.address},
                         {"time", time_stamp(std::chrono::system_clock::now())},
                         {"control_software", qorin_rpc_system_control_sw_version_get(cbox)},
                         {"library", qorin_system_api_version_get()},
                         {"may_command", commands}};
    told.update(fields_as_json(status_fields(cbox)));
    fmt::print("{}\n", told.dump(2, ' ', false, ordered_json::error_handler_t::replace));
}

int show_status(const status_request& request)
{
    const unsigned int cbox = connect(request.connection);
    live_links(request.connection.address).expect_alive();
    robot_watch robots(cbox);
    robots.look();
    const bool commands = may_command(cbox, request.connection.address);
    if (request.json)
    {
        print_json(request, cbox, commands);
        return status_ok;
    }
    const palette colours(STDOUT_FILENO);
    const status_reading now(status_fields(cbox));
    fmt::print("{}\n", page_title(request.connection.address, cbox, now, colours).text);
    fmt::print("{}\n", control_line(commands, colours).text);
    for (const page_line& line : status_page(now, robots, colours))
        fmt::print("{}\n", line.text);
    return status_ok;
}
} // namespace

void add_status(CLI::App& program, action& chosen)
{
    CLI::App* status = program.add_subcommand("status", "Show control box and robots once.");
    const auto request = std::make_shared<status_request>();
    request->connection.describe(*status);
    status->add_flag("--json", request->json, "All fields as JSON; a dot of a field's name is a level");
    status->callback([request, &chosen] { chosen = [request] { return show_status(*request); }; });
}
} // namespace qorin_cli
