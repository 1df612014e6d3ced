#include "simulator/links/fault_plan.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "simulator/printable.h"

namespace cbox_simulator
{
namespace
{
/// The parts of a fault's text, taken one after the other.
class fault_text
{
public:
    explicit fault_text(std::string_view text) : whole_(text), rest_(text) {}

    [[noreturn]] void refuse(std::string_view reason) const
    {
        throw std::invalid_argument(fmt::format("the fault {} {}", printable(whole_), reason));
    }

    [[nodiscard]] bool has_more() const { return rest_.data() != nullptr; }

    std::string_view next(std::string_view what)
    {
        if (!has_more())
            refuse(fmt::format("wants {}", what));
        const auto end = rest_.find(':');
        const auto part = rest_.substr(0, end);
        rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
        return part;
    }

    /// All that is left, colons included.
    std::string_view rest(std::string_view what)
    {
        if (!has_more())
            refuse(fmt::format("wants {}", what));
        return std::exchange(rest_, {});
    }

    template <class Number>
    Number number(std::string_view what, Number least, Number greatest)
    {
        const auto part = next(what);
        Number value{};
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
        if (error != std::errc() || end != part.data() + part.size() || !(value >= least && value <= greatest))
            refuse(fmt::format("wants {}, {} to {}, in place of {}", what, least, greatest, printable(part)));
        return value;
    }

    std::chrono::milliseconds milliseconds()
    {
        return std::chrono::milliseconds(number<std::uint32_t>("milliseconds", 0, 3'600'000));
    }

    std::uint64_t bytes() { return number<std::uint64_t>("a number of bytes", 0, 1'000'000'000'000); }

    link_index link()
    {
        const auto name = next("a link");
        if (name == "command")
            return command_link;
        if (name == "data")
            return data_link;
        if (name != "event")
            refuse("wants a link: command, data or event");
        return event_link;
    }

    /// A wire name; the name of the exported function will do.
    std::string command()
    {
        constexpr std::string_view exported = "qorin_rpc_";
        const auto name = next("a command");
        if (name.empty())
            refuse("wants a command");
        return name.starts_with(exported) ? "qorin_" + std::string(name.substr(exported.size())) : std::string(name);
    }

private:
    std::string_view whole_;
    std::string_view rest_;
};

void add_refusal(fault_plan& plan, fault_text& text)
{
    const auto link = text.link();
    plan.refusals[link] =
        text.has_more() ? text.number<std::uint32_t>("how many times", 1, fault_plan::always) : fault_plan::always;
}

void add_delay(fault_plan& plan, fault_text& text)
{
    const auto delay = text.milliseconds();
    if (text.has_more())
        plan.reply_delays[text.command()] = delay;
    else
        plan.reply_delay = delay;
}

void add_answer(fault_plan& plan, fault_text& text)
{
    auto command = text.command();
    plan.answers[std::move(command)] =
        static_cast<QORIN_API_RESULT>(text.number<std::uint32_t>("a result", 0, 4'294'967'295));
}

struct fault_kind
{
    std::string_view name;
    void (*add)(fault_plan& plan, fault_text& text);
};

constexpr fault_kind kinds[] = {
    {"refuse", add_refusal},
    {"close",
     [](fault_plan& plan, fault_text& text)
     {
         const auto link = text.link();
         plan.links[link].close_after = text.bytes();
     }},
    {"stall",
     [](fault_plan& plan, fault_text& text)
     {
         const auto link = text.link();
         plan.links[link].stall_after = text.bytes();
     }},
    {"split", [](fault_plan& plan, fault_text& text) { plan.links[text.link()].split = true; }},
    {"delay", add_delay},
    {"answer", add_answer},
    {"version", [](fault_plan& plan, fault_text& text) { plan.version_text = text.rest("a text"); }},
    {"late", [](fault_plan& plan, fault_text& text) { plan.frame_delay = text.milliseconds(); }},
    {"lose", [](fault_plan& plan, fault_text& text) { plan.lost_frames = text.number<double>("a share", 0, 1); }},
};
} // namespace

std::uint64_t link_faults::room(std::uint64_t sent) const
{
    const auto limit = std::min(close_after.value_or(std::numeric_limits<std::uint64_t>::max()),
                                stall_after.value_or(std::numeric_limits<std::uint64_t>::max()));
    return limit > sent ? limit - sent : 0;
}

void fault_plan::add(std::string_view fault)
{
    fault_text text(fault);
    const auto name = text.next("a kind");
    const auto kind = std::ranges::find(kinds, name, &fault_kind::name);
    if (kind == std::end(kinds))
        text.refuse("is none: refuse, close, stall, split, delay, answer, version, late and lose are");
    kind->add(*this, text);
    if (text.has_more())
        text.refuse("has more than it should");
}

bool fault_plan::take_refusal(link_index link)
{
    auto& left = refusals[link];
    if (left == 0)
        return false;
    if (left != always)
        --left;
    return true;
}

std::chrono::milliseconds fault_plan::delay_of(std::string_view wire_name) const
{
    const auto found = reply_delays.find(wire_name);
    return found == reply_delays.end() ? reply_delay : found->second;
}

std::optional<QORIN_API_RESULT> fault_plan::answer_to(std::string_view wire_name) const
{
    const auto found = answers.find(wire_name);
    return found == answers.end() ? std::nullopt : std::optional(found->second);
}
} // namespace cbox_simulator
