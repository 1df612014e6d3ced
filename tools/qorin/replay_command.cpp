#include <map>
#include <memory>

#include <fmt/format.h>

#include "qorin/catalogue.h"
#include "qorin/result.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/interruption.h"
#include "tools/qorin/replay/arguments.h"
#include "tools/qorin/replay/call_log.h"
#include "tools/qorin/replay/motion_events.h"
#include "tools/qorin/replay/plan.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/within.h"

namespace qorin_cli
{
namespace
{
using namespace replay;
using clock = std::chrono::steady_clock;

struct request
{
    std::string log;
    std::vector<std::string> addresses; ///< by control box ids of the log; empty: those of the log
    std::string config;
    double speed = 1;
    bool is_dry_run = false;
    std::size_t from_line = 1;
    bool waits_for_motions = false;
    bool ends_on_error = false;
    double time_out = 60; ///< seconds, for a reply and for the event of a motion
};

/// Ends the repetition with a line of its own.
class ended : public failure
{
public:
    ended(const planned_call& call, const std::string& why)
        : failure(fmt::format("line {}: {}: {}", call.logged->line, call.logged->name, why))
    {
    }
};

/// A call under way. Shared with the thread that makes it, which may be left behind in it.
struct running_call
{
    running_call(const function_row& function, const std::vector<std::string>& texts) : values(function, texts) {}
    arguments values;
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
};

class repetition
{
public:
    repetition(const request& asked, const call_log& log, const replay_plan& plan)
        : asked_(asked), log_(log), plan_(plan)
    {
    }

    int run()
    {
        tell_left_out();
        if (asked_.waits_for_motions)
            motions_ = recorded_motions(log_.directory);
        connect_all();
        catch_interruption();
        motions_.start_at(plan_.calls[plan_.first].logged->local_time);
        due_ = clock::now();
        for (std::size_t i = plan_.first; i < plan_.calls.size(); ++i)
        {
            const planned_call& call = plan_.calls[i];
            wait_for(i);
            if (call.left_out.empty())
                repeat(i);
            if (asked_.ends_on_error && (failed_ > 0 || call.is_missed))
                throw ended(call, "ended here, as asked");
        }
        fmt::print("{} calls repeated, {} left out, {} answered other than OK\n", repeated_, missed_, failed_);
        return missed_ == 0 && failed_ == 0 ? status_ok : status_failed;
    }

private:
    void tell_left_out()
    {
        for (std::size_t i = plan_.first; i < plan_.calls.size(); ++i)
            if (const planned_call& call = plan_.calls[i]; !call.left_out.empty())
                report_left_out(call, call.left_out, call.is_missed);
    }

    void report_left_out(const planned_call& call, const std::string& why, bool is_missed = true)
    {
        missed_ += is_missed ? 1 : 0;
        fmt::print("line {}: left out: {}: {}\n", call.logged->line, call.logged->name, why);
        std::fflush(stdout);
    }

    void connect_all()
    {
        for (std::size_t i = plan_.first; i < plan_.calls.size(); ++i)
            if (const planned_call& call = plan_.calls[i]; call.left_out.empty())
                if (!connections_.contains(call.cbox_id))
                    connections_[call.cbox_id] = connect({address_of(call.cbox_id), asked_.config});
        if (asked_.waits_for_motions)
            for (const auto& [logged, id] : connections_)
                count_motions(id);
    }

    [[nodiscard]] std::string address_of(unsigned int cbox_id) const
    {
        const bool is_one_box = std::ranges::all_of(plan_.addresses, [&](const std::string& address)
                                                    { return address == plan_.addresses.front(); });
        if (asked_.addresses.size() == 1 && (is_one_box || plan_.addresses.size() == 1))
            return asked_.addresses.front();
        const auto& addresses = asked_.addresses.empty() ? plan_.addresses : asked_.addresses;
        if (addresses.size() < plan_.addresses.size() || addresses[cbox_id].empty())
            throw failure(fmt::format("the log has {} connections: give --address for each, in their order",
                                      plan_.addresses.size()),
                          status_usage);
        return addresses[cbox_id];
    }

    /// Keeps the time between calls, and waits for the motions that were through when this one was made.
    void wait_for(std::size_t index)
    {
        const planned_call& call = plan_.calls[index];
        if (index > plan_.first)
            due_ += slowed(call.logged->stamp - plan_.calls[index - 1].logged->stamp);
        if (asked_.waits_for_motions)
            wait_for_motions(call);
        if (!sleep_unless_interrupted(std::max<clock::duration>(due_ - clock::now(), clock::duration::zero())))
            throw ended(call, "interrupted ahead of it; what moves goes on");
        due_ = std::max(due_, clock::now());
    }

    void wait_for_motions(const planned_call& call)
    {
        const motion_counts& wanted = motions_.until(call.logged->local_time);
        const auto end = clock::now() + std::chrono::duration<double>(asked_.time_out);
        bool waited = false;
        for (; !have_come(wanted); waited = true)
            if (clock::now() > end)
                throw ended(call, fmt::format("the motions that were through when it was made are not after {} seconds",
                                              asked_.time_out));
            else if (!sleep_unless_interrupted(std::chrono::milliseconds(1)))
                throw ended(call, "interrupted ahead of it; what moves goes on");
        if (waited)
            due_ = std::max(due_, clock::now() + slowed(call.logged->local_time - motions_.last()));
    }

    [[nodiscard]] clock::duration slowed(std::chrono::milliseconds time) const
    {
        const std::chrono::duration<double> seconds = std::max(time, std::chrono::milliseconds(0));
        return std::chrono::duration_cast<clock::duration>(seconds / asked_.speed);
    }

    void repeat(std::size_t index)
    {
        const planned_call& call = plan_.calls[index];
        const auto running = std::make_shared<running_call>(*call.function, call.texts);
        running->values.set_number(0, connections_.at(call.cbox_id));
        for (const id_argument& id : call.ids)
            if (const auto made = made_.find(id.maker); made != made_.end())
                running->values.set_number(id.parameter, made->second);
            else if (call.function->parameters[id.parameter].name != "robot_id") // which may stand all the same
            {
                report_left_out(call, fmt::format("line {} made nothing", plan_.calls[id.maker].logged->line));
                return;
            }
        const auto done = within(std::chrono::duration<double>(asked_.time_out),
                                 [running, invoke = call.function->invoke]
                                 {
                                     invoke(running->values.addresses().data(), &running->result);
                                     return true;
                                 });
        ++repeated_;
        if (!done)
            throw ended(call, fmt::format("no reply within {} seconds", asked_.time_out));
        if (running->result == 0)
            throw ended(call, "the command link is lost");
        if (running->result == QORIN_API_RESULT_OK && call.made_id)
            made_[index] = running->values.output(*call.made_id);
        if (running->result != QORIN_API_RESULT_OK)
        {
            ++failed_;
            fmt::print("line {}: {}({}): {} ({})\n", call.logged->line, call.logged->name, call.logged->arguments,
                       qorin_system_api_result_string_get(running->result), static_cast<int>(running->result));
            std::fflush(stdout);
        }
    }

    const request& asked_;
    const call_log& log_;
    const replay_plan& plan_;
    recorded_motions motions_;
    std::map<unsigned int, unsigned int> connections_;
    std::map<std::size_t, unsigned int> made_; ///< what the control box gave, by the calls that made it
    clock::time_point due_;                    ///< of the call at hand
    std::size_t repeated_ = 0;
    std::size_t missed_ = 0;
    std::size_t failed_ = 0;
};

int show(const replay_plan& plan)
{
    const auto begin = plan.calls[plan.first].logged->stamp;
    bool misses = false;
    for (std::size_t i = plan.first; i < plan.calls.size(); ++i)
    {
        const planned_call& call = plan.calls[i];
        misses |= call.is_missed;
        const std::chrono::duration<double> time = call.logged->stamp - begin;
        const std::string what = call.left_out.empty() ? call.logged->arguments : "left out: " + call.left_out;
        fmt::print("line {}: {:.3f} s  {}  {}\n", call.logged->line, time.count(), call.logged->name, what);
    }
    return misses ? status_failed : status_ok;
}

int replay_log(const request& asked)
{
    const call_log log = read_call_log(asked.log);
    const replay_plan plan = plan_of(log, asked.from_line);
    if (plan.first == plan.calls.size())
        throw failure(fmt::format("--from {}: the last call stands in line {}", asked.from_line, log.calls.back().line),
                      status_usage);
    return asked.is_dry_run ? show(plan) : repetition(asked, log, plan).run();
}
} // namespace

void add_replay(CLI::App& program, action& chosen)
{
    const auto asked = std::make_shared<request>();
    CLI::App* command = program.add_subcommand("replay", "Repeat the calls of a call log. Robots move as they did.");
    command->add_option("log", asked->log, "The call log of one run: its directory, one of its files, or its text")
        ->required();
    command
        ->add_option("--address,-a", asked->addresses,
                     "IPv4 address of the control box, as often as the log has connections; without one, as in the log")
        ->allow_extra_args(false)
        ->envname("QORIN_ADDRESS");
    command->add_option("--config", asked->config,
                        "Configuration of the library; without one nothing is kept of its logs");
    command->add_option("--speed", asked->speed, "How many times faster the calls follow each other; motions do not")
        ->check(CLI::Range(0.001, 1000.0))
        ->capture_default_str();
    command->add_flag("--dry-run", asked->is_dry_run, "Print what would be repeated and what not; connect to nothing");
    command->add_option("--from", asked->from_line, "Begin at this line of the log, as `qorin log cat` prints it");
    command->add_flag("--wait-motions", asked->waits_for_motions,
                      "Make each call only when the motions are through that were when it was made");
    command->add_flag("--stop-on-error", asked->ends_on_error,
                      "End at the first call that is left out or answered other than OK");
    command->add_option("--timeout", asked->time_out, "Seconds to wait for a reply, or for a motion")
        ->check(CLI::Range(0.1, 1e6))
        ->capture_default_str();
    command->footer("Ends with status 0 when all calls were repeated and answered OK.");
    command->callback([asked, &chosen] { chosen = [asked] { return replay_log(*asked); }; });
}
} // namespace qorin_cli
