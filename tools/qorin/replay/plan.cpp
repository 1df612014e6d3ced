#include "tools/qorin/replay/plan.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

#include <fmt/format.h>

#include "tools/qorin/replay/arguments.h"

namespace qorin_cli::replay
{
namespace
{
constexpr const char* connect_name = "qorin_rpc_system_cbox_connect";

/// What the control box gives numbers to.
constexpr std::string_view robot = "robot";
constexpr std::string_view motion_command = "motion command";
constexpr std::string_view recording = "recording";
constexpr std::string_view plane = "plane";

struct id_name
{
    std::string_view parameter;
    std::string_view kind;
};
constexpr id_name id_names[] = {{"robot_id", robot},
                                {"command_id", motion_command},
                                {"copy_id", motion_command},
                                {"buffer_id", recording},
                                {"plane_id", plane}};

std::string_view kind_of(const parameter_row& parameter)
{
    const auto found = std::ranges::find(id_names, parameter.name, &id_name::parameter);
    return found == std::end(id_names) ? std::string_view() : found->kind;
}

std::optional<unsigned int> number_in(std::string_view text)
{
    unsigned int number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// Making or naming a numbered thing, in the order of the log.
struct id_event
{
    std::size_t call;
    std::size_t parameter;
    bool is_made;
    unsigned int id = 0; ///< when it is named
    bool is_end = false; ///< the number may be given again from here on
};

/// Finds which call made what another one names, for one kind of things on one control box.
class id_matcher
{
public:
    id_matcher(std::vector<planned_call>& calls, std::string_view kind) : calls_(calls), kind_(kind) {}

    void add(const id_event& event) { events_.push_back(event); }

    void match()
    {
        for (next_ = 0; next_ < events_.size(); ++next_)
        {
            const id_event& event = events_[next_];
            if (!event.is_made)
                use(event);
            else if (matched_makers_.erase(event.call) == 0)
                waiting_.push_back(event.call);
        }
    }

private:
    [[nodiscard]] bool is_known(unsigned int id) const
    {
        return makers_.contains(id) && (!ended_.contains(id) || waiting_.empty());
    }

    void use(const id_event& event)
    {
        const bool is_clear = is_known(event.id) || waiting_.empty() || match_alike() || match_ahead();
        if (const auto maker = makers_.find(event.id); is_clear && maker != makers_.end())
            calls_[event.call].ids.push_back({event.parameter, maker->second});
        else if (kind_ != robot) // robots go by the same two numbers for ever
            miss(event, is_clear ? fmt::format("{} {} was made ahead of this log", kind_, event.id)
                                 : fmt::format("the log does not tell which {} is {}", kind_, event.id));
        if (event.is_end)
            ended_.insert(event.id);
    }

    void miss(const id_event& event, const std::string& why) const
    {
        planned_call& call = calls_[event.call];
        call.is_missed = true;
        if (call.left_out.empty())
            call.left_out = why;
    }

    /// New numbers from here on, with the call that names each first.
    using new_numbers = std::map<unsigned int, std::size_t>;

    void note_new(const id_event& event, new_numbers& numbers) const
    {
        if (!is_known(event.id))
            numbers.try_emplace(event.id, event.call);
    }

    /// Things that were made alike and not named yet are as good as each other. Not so robots, which stand in different
    /// places, and copies of what may have changed in between.
    bool match_alike()
    {
        const planned_call& first = calls_[waiting_.front()];
        const auto is_like_first = [&](std::size_t maker)
        {
            const planned_call& other = calls_[maker];
            return other.function == first.function && other.logged->arguments == first.logged->arguments;
        };
        if (kind_ == robot || first.function->name.ends_with("_copy") || !std::ranges::all_of(waiting_, is_like_first))
            return false;
        new_numbers numbers;
        for (std::size_t i = next_; i < events_.size() && !events_[i].is_made; ++i)
            note_new(events_[i], numbers);
        if (numbers.size() > waiting_.size())
            return false;
        bind(numbers, waiting_);
        waiting_.erase(waiting_.begin(), waiting_.begin() + std::ssize(numbers));
        return true;
    }

    /// Looks ahead until there are as many new numbers as things that were made, and lays them side by side.
    bool match_ahead()
    {
        std::vector<std::size_t> makers = waiting_;
        new_numbers numbers;
        for (std::size_t i = next_; i < events_.size(); ++i)
            if (!events_[i].is_made)
                note_new(events_[i], numbers);
            else if (numbers.size() == makers.size())
                break;
            else
                makers.push_back(events_[i].call);
        if (numbers.size() != makers.size())
            return false;
        auto maker = makers.begin();
        for (const auto& [id, first_use] : numbers)
            if (*maker++ > first_use)
                return false;
        bind(numbers, makers);
        matched_makers_.insert(makers.begin() + std::ssize(waiting_), makers.end());
        waiting_.clear();
        return true;
    }

    void bind(const new_numbers& numbers, const std::vector<std::size_t>& makers)
    {
        auto maker = makers.begin();
        for (const auto& [id, first_use] : numbers)
        {
            ended_.erase(id);
            makers_[id] = *maker++;
        }
    }

    std::vector<planned_call>& calls_;
    std::string_view kind_;
    std::vector<id_event> events_;
    std::size_t next_ = 0;
    std::vector<std::size_t> waiting_;     ///< that made what nothing has named yet
    std::set<std::size_t> matched_makers_; ///< ahead, matched already
    std::map<unsigned int, std::size_t> makers_;
    std::set<unsigned int> ended_;
};

/// One for each kind on each control box; planes are numbered for each robot.
class id_matchers
{
public:
    explicit id_matchers(std::vector<planned_call>& calls) : calls_(calls) {}

    void add(std::size_t index)
    {
        const planned_call& call = calls_[index];
        if (call.function == nullptr)
            return;
        const auto& parameters = call.function->parameters;
        const bool is_end = call.function->name.ends_with("_destroy") || call.function->name.ends_with("_remove") ||
                            call.function->name.ends_with("_delete");
        for (std::size_t i = 0; i < parameters.size(); ++i)
        {
            const std::string_view kind = kind_of(parameters[i]);
            if (kind.empty())
                continue;
            // What ends is the last thing that is named: the plane of a robot, not the robot.
            if (call.made_id == i)
                matcher(call, kind).add({index, i, true});
            else if (const auto id = call.texts.empty() ? std::nullopt : number_in(call.texts[i]))
                matcher(call, kind).add({index, i, false, *id, is_end && i + 1 == parameters.size()});
        }
    }

    void match()
    {
        for (auto& [key, matcher] : matchers_)
            matcher.match();
    }

private:
    id_matcher& matcher(const planned_call& call, std::string_view kind)
    {
        const std::string owner = kind == plane && !call.texts.empty() ? call.texts[1] : "";
        return matchers_.try_emplace({call.cbox_id, std::string(kind), owner}, calls_, kind).first->second;
    }

    std::vector<planned_call>& calls_;
    std::map<std::tuple<unsigned int, std::string, std::string>, id_matcher> matchers_;
};

/// Local functions that write a line: what they do is the application's alone, but for a stream of targets.
void leave_out_local(planned_call& call)
{
    call.is_missed = call.function->family == "robot_joint_chaser";
    if (call.is_missed)
        call.left_out = "joint targets leave no line, and a stream without them is none";
    else if (call.function->name == connect_name)
        call.left_out = "connections are made ahead of the first call";
    else
        call.left_out = "is for the application, and does nothing on the control box";
}

void leave_out(planned_call& call, const std::string& why)
{
    call.left_out = why;
    call.is_missed = true;
}

planned_call planned(const logged_call& logged)
{
    planned_call call;
    call.logged = &logged;
    if (logged.name.empty())
    {
        leave_out(call, "is no call");
        return call;
    }
    call.function = find_function(logged.name);
    if (call.function == nullptr || call.function->name != logged.name)
    {
        call.function = nullptr;
        leave_out(call, "is no function of this library");
        return call;
    }
    const auto& parameters = call.function->parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (parameters[i].is_output && !kind_of(parameters[i]).empty() && !call.function->name.ends_with("_get"))
            call.made_id = i;
    call.cbox_id = number_in(logged.arguments.substr(0, logged.arguments.find(','))).value_or(0);
    try
    {
        call.texts = split_arguments(*call.function, logged.arguments);
        if (call.function->kind == function_kind::local)
            leave_out_local(call);
        else
            static_cast<void>(arguments(*call.function, call.texts));
    }
    catch (const not_repeatable& error)
    {
        leave_out(call, error.what());
    }
    return call;
}

/// The addresses by ids. A connection that failed leaves the same line and has no id.
std::vector<std::string> addresses_of(const std::vector<planned_call>& calls)
{
    std::vector<std::string> connected;
    std::size_t ids = 0;
    for (const planned_call& call : calls)
        if (call.function == nullptr || call.texts.empty())
            continue;
        else if (call.function->name == connect_name)
            connected.push_back(call.texts[1]);
        else if (call.left_out.empty())
            ids = std::max<std::size_t>(ids, call.cbox_id + 1);
    if (!connected.empty() && std::ranges::count(connected, connected.front()) == std::ssize(connected))
        return std::vector(ids, connected.front());
    if (connected.size() == ids)
        return connected;
    return std::vector<std::string>(ids);
}
} // namespace

replay_plan plan_of(const call_log& log, std::size_t from_line)
{
    replay_plan plan;
    plan.calls.reserve(log.calls.size());
    for (const logged_call& logged : log.calls)
        plan.calls.push_back(planned(logged));
    plan.addresses = addresses_of(plan.calls);
    while (plan.first < plan.calls.size() && plan.calls[plan.first].logged->line < from_line)
        ++plan.first;

    id_matchers matchers(plan.calls);
    for (std::size_t i = 0; i < plan.calls.size(); ++i)
        matchers.add(i);
    matchers.match();
    for (std::size_t i = plan.first; i < plan.calls.size(); ++i)
    {
        planned_call& call = plan.calls[i];
        const auto is_ahead = [&](const id_argument& id) { return id.maker < plan.first; };
        for (const id_argument& id : call.ids)
            if (is_ahead(id) && kind_of(call.function->parameters[id.parameter]) != robot && call.left_out.empty())
                leave_out(call, fmt::format("what it names was made in line {}, ahead of the first one repeated",
                                            plan.calls[id.maker].logged->line));
        std::erase_if(call.ids, is_ahead);
    }
    return plan;
}
} // namespace qorin_cli::replay
