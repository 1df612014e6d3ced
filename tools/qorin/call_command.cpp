#include <algorithm>
#include <chrono>
#include <cstdint>
#include <future>
#include <memory>
#include <optional>
#include <thread>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "qorin/catalogue.h"
#include "qorin/robot.h"
#include "qorin/system.h"
#include "tools/function_table/function_rows.h"
#include "tools/qorin/call/call_arguments.h"
#include "tools/qorin/call/docstring.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/nearest_name.h"
#include "tools/qorin/result_texts.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
struct call_request
{
    connection_options connection;
    std::string name;
    std::vector<std::string> words;
    bool control = false;
    double time_out = 30;
    bool json = false;
    bool help = false;
};

/// The names that a misspelt one may stand for, or else those that it is a part of.
std::vector<std::string> names_near(std::string_view name)
{
    std::vector<std::string> names;
    constexpr std::size_t prefix = std::string_view("qorin_rpc_").size();
    for (const function_row& row : function_rows())
        names.emplace_back(row.name.substr(name.starts_with("qorin_rpc_") ? 0 : prefix));
    constexpr std::size_t most = 3;
    std::vector<std::string> near = nearest_names(name, names, most);
    for (const std::string& candidate : names)
        if (near.size() < most && candidate.find(name) != std::string::npos)
            near.push_back(candidate);
    return near;
}

const function_row& function_of(const std::string& name)
{
    if (const function_row* function = find_function(name))
        return *function;
    const std::vector<std::string> near = names_near(name);
    throw failure(fmt::format("no function is called {}{}{}", name,
                              near.empty() ? "; `qorin functions` lists them" : "; perhaps ", fmt::join(near, ", ")),
                  status_usage);
}

bool takes_cbox_id(const function_row& function)
{
    return std::ranges::any_of(function.parameters,
                               [](const parameter_row& row) { return row.name == "cbox_id" && !row.is_output; });
}

/// The function that computes the same without a connection, if there is one that neither asks a robot nor does
/// nothing.
const function_row* without_connection(const function_row& function)
{
    constexpr std::string_view prefix = "qorin_rpc_";
    if (function.kind != function_kind::local || !function.name.starts_with(prefix))
        return nullptr;
    const function_row* twin = find_function("qorin_" + std::string(function.name.substr(prefix.size())));
    const auto asks_robot = [](const parameter_row& row) { return row.name == "robot_id"; };
    const bool computes =
        twin && !twin->brief.starts_with("Does nothing") && std::ranges::none_of(twin->parameters, asks_robot);
    return computes ? twin : nullptr;
}

void refuse_callback(const function_row& function)
{
    if (std::ranges::any_of(function.parameters,
                            [](const parameter_row& row) { return row.element == value_type::callback; }))
        throw failure(fmt::format("{} takes a function of a program, which a command line has none of; `qorin events` "
                                  "shows events",
                                  function.name),
                      status_usage);
}

unsigned int connect_for_calls(const connection_options& options)
{
    if (options.address.empty())
        throw failure("call: --address or QORIN_ADDRESS shall tell the control box", status_usage);
    const unsigned int cbox_id = connect(options);
    // Getters and conversions answer for robots that this process knows; one that is not there stays unknown.
    for (const unsigned int robot_id : {0u, 1u})
        qorin_robot_attach(robot_id);
    return cbox_id;
}

void expect_ok(QORIN_API_RESULT result, std::string_view function)
{
    if (result != QORIN_API_RESULT_OK)
        throw failure(fmt::format("{}: {}", function, result_line(result)));
}

/// Control over the box, until the end of its scope.
class control_of_box
{
public:
    explicit control_of_box(unsigned int cbox_id) : cbox_id_(cbox_id)
    {
        expect_ok(qorin_rpc_system_control_take(cbox_id), "system_control_take");
    }
    ~control_of_box() { qorin_rpc_system_control_release(cbox_id_); }
    control_of_box(const control_of_box&) = delete;
    control_of_box& operator=(const control_of_box&) = delete;

private:
    unsigned int cbox_id_;
};

/// What a function returned, by its type.
struct returned_value
{
    bool is_result;
    unsigned int code;
    const char* text;
    [[nodiscard]] bool is_ok() const { return !is_result || code == QORIN_API_RESULT_OK; }
};

returned_value invoke(const function_row& function, call_arguments& arguments)
{
    std::uint64_t value = 0;
    function.invoke(arguments.addresses().data(), &value);
    return {.is_result = function.returns == value_type::result,
            .code = static_cast<unsigned int>(value),
            .text = function.returns == value_type::text ? reinterpret_cast<const char*>(value) : nullptr};
}

std::string plain(const nlohmann::ordered_json& value)
{
    if (value.is_string())
        return value.get<std::string>();
    if (!value.is_array())
        return value.is_number_float() ? fmt::format("{}", value.get<double>()) : value.dump();
    std::vector<std::string> parts;
    for (const auto& part : value)
        parts.push_back(plain(part));
    const bool has_rows = !value.empty() && value[0].is_array();
    return fmt::format("{}", fmt::join(parts, has_rows ? "; " : ", "));
}

void print_plain(const returned_value& returned, const nlohmann::ordered_json& outputs)
{
    if (returned.text)
        fmt::print("{}\n", returned.text);
    else if (outputs.empty() && returned.is_result && returned.is_ok())
        fmt::print("{}\n", qorin_system_api_result_string_get(QORIN_API_RESULT_OK));
    std::size_t width = 0;
    for (const auto& [name, value] : outputs.items())
        width = std::max(width, name.size());
    for (const auto& [name, value] : outputs.items())
        fmt::print("{:<{}}  {}\n", name, width, plain(value));
}

void print_json(const function_row& function, const returned_value& returned, const nlohmann::ordered_json& outputs)
{
    nlohmann::ordered_json report = {{"function", function.name}};
    if (returned.is_result)
    {
        const auto code = static_cast<QORIN_API_RESULT>(returned.code);
        report["result"] = {{"code", returned.code},
                            {"name", qorin_system_api_result_string_get(code)},
                            {"description", qorin_system_api_result_description_get(code)},
                            {"ok", returned.is_ok()}};
    }
    if (function.returns == value_type::text)
        report["text"] = returned.text ? nlohmann::ordered_json(returned.text) : nullptr;
    report["outputs"] = outputs;
    fmt::print("{}\n", report.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
}

void report_failure(const function_row& function, const returned_value& returned, bool has_control)
{
    const bool lacks_control = returned.code == QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL && !has_control;
    std::fflush(stdout);
    fmt::print(stderr, "qorin: {}: {}{}\n", function.name, result_line(returned.code),
               lacks_control ? " `--control` takes it for the call." : "");
}

struct prepared_call
{
    const function_row& function;
    call_arguments arguments;
    std::optional<unsigned int> cbox_id; ///< of a connection
    bool takes_control;
};

std::shared_ptr<prepared_call> prepare(const call_request& request)
{
    const function_row* function = &function_of(request.name);
    refuse_callback(*function);
    if (request.connection.address.empty())
        if (const function_row* twin = without_connection(*function))
            function = twin;
    auto prepared = std::make_shared<prepared_call>(
        prepared_call{*function, call_arguments(*function, request.words), std::nullopt, request.control});
    if (takes_cbox_id(*function) || !request.connection.address.empty())
    {
        prepared->cbox_id = connect_for_calls(request.connection);
        prepared->arguments.set_cbox_id(*prepared->cbox_id);
    }
    return prepared;
}

/// Calls on a thread of its own, which is left behind when the time is over: the library waits for a control box that
/// answers nothing for as long as that is so.
returned_value call_within(std::chrono::duration<double> limit, const std::shared_ptr<prepared_call>& prepared)
{
    std::packaged_task<returned_value()> task(
        [prepared]
        {
            std::optional<control_of_box> control;
            if (prepared->takes_control && prepared->cbox_id)
                control.emplace(*prepared->cbox_id);
            return invoke(prepared->function, prepared->arguments);
        });
    std::future<returned_value> returned = task.get_future();
    std::thread(std::move(task)).detach();
    if (returned.wait_for(limit) != std::future_status::ready)
        throw failure(fmt::format("{}: no answer within {} seconds", prepared->function.name, limit.count()));
    return returned.get();
}

int call(const call_request& request)
{
    const std::shared_ptr<prepared_call> prepared = prepare(request);
    const function_row& function = prepared->function;
    const returned_value returned = call_within(std::chrono::duration<double>(request.time_out), prepared);
    // A command writes its outputs whatever the result, a lost link makes zeroes of them; all else writes them when OK.
    const bool has_outputs = returned.is_ok() || (function.kind == function_kind::command && returned.code != 0);
    const auto outputs = has_outputs ? prepared->arguments.outputs() : nlohmann::ordered_json::object();
    if (request.json)
        print_json(function, returned, outputs);
    else
        print_plain(returned, outputs);
    if (returned.is_ok() && (function.returns != value_type::text || returned.text))
        return status_ok;
    if (returned.is_result)
        report_failure(function, returned, request.control);
    else
        fmt::print(stderr, "qorin: {}: nothing\n", function.name);
    return status_failed;
}

int call_or_help(const CLI::App& subcommand, const call_request& request)
{
    if (!request.help && request.name.empty())
        throw failure("call: which function? `qorin functions` lists them", status_usage);
    if (!request.help)
        return call(request);
    fmt::print("{}", request.name.empty() ? subcommand.help() : docstring_of(function_of(request.name)));
    return status_ok;
}
} // namespace

void add_call(CLI::App& program, action& chosen)
{
    CLI::App* call = program.add_subcommand("call", "Call a function of the library by its name.");
    const auto request = std::make_shared<call_request>();
    call->set_help_flag();
    call->add_flag("--help,-h", request->help, "Print this, or what the header says of the function");
    call->add_option("function", request->name, "Name of the function, with or without `qorin_rpc_`");
    call->add_option("arguments", request->words,
                     "Inputs by place or by name: `joint=2`, `position=1,2,3`, `state=ON`");
    request->connection.describe(*call);
    call->get_option("--address")->required(false);
    call->add_flag("--control,-c", request->control, "Take the control for the call");
    call->add_option("--timeout", request->time_out, "Seconds after which it is given up, 30 unless told")
        ->check(CLI::Range(0.001, 1e6));
    call->add_flag("--json", request->json, "Print result and outputs as JSON");
    call->callback([call, request, &chosen] { chosen = [call, request] { return call_or_help(*call, *request); }; });
}
} // namespace qorin_cli
