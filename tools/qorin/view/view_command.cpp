#include <chrono>
#include <memory>
#include <optional>
#include <random>

#include <fmt/format.h>

#include "tools/qorin/interruption.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/view/live_box.h"
#include "tools/qorin/view/recorded_box.h"
#include "tools/qorin/view/view_server.h"

namespace qorin_cli
{
namespace
{
using namespace qorin_view;

struct view_request
{
    connection_options box;
    server_options server;
    std::string recording;
    bool wants_token = false;
};

std::string new_token()
{
    std::random_device random;
    return fmt::format("{:08x}{:08x}{:08x}{:08x}", random(), random(), random(), random());
}

int view(view_request request)
{
    catch_interruption();
    if (request.wants_token || !request.server.address.starts_with("127."))
        request.server.token = new_token();
    std::optional<view_server> server;
    try
    {
        server.emplace(request.server,
                       request.recording.empty() ? make_live_box(request.box) : make_recorded_box(request.recording));
    }
    catch (const std::system_error& error)
    {
        throw failure(fmt::format("{}:{}: {}", request.server.address, request.server.port, error.code().message()));
    }
    fmt::print("http://{}:{}/{}\n", request.server.address, server->port(),
               request.server.token.empty() ? "" : "?token=" + request.server.token);
    std::fflush(stdout);
    while (sleep_unless_interrupted(std::chrono::hours(1)))
        continue;
    return status_ok;
}
} // namespace

void add_view(CLI::App& program, action& chosen)
{
    CLI::App* view_app = program.add_subcommand(
        "view", "Show the robots of a control box live, or of a recording, on a page for browsers.");
    const auto request = std::make_shared<view_request>();
    request->box.describe(*view_app);
    view_app->get_option("--address")->required(false);
    view_app->add_option("--play", request->recording, "A recording of `qorin record` instead of a control box");
    view_app
        ->add_option("--listen", request->server.address,
                     "IPv4 address to serve on; others than 127.x.x.x need a token")
        ->check(CLI::ValidIPV4)
        ->capture_default_str();
    view_app->add_option("--port,-p", request->server.port, "Port to serve on, 0 for one that is free")
        ->capture_default_str();
    view_app->add_option("--rate,-r", request->server.rate, "Status messages a second to each viewer")
        ->check(CLI::Range(0.1, 1000.0))
        ->capture_default_str();
    view_app->add_flag("--token", request->wants_token, "Ask viewers for a token also on 127.x.x.x");
    view_app->callback(
        [request, &chosen]
        {
            if (request->box.address.empty() && request->recording.empty())
                throw CLI::RequiredError("--address or --play");
            chosen = [request] { return view(*request); };
        });
}
} // namespace qorin_cli
