#include "simulator/model/redundant_functions.h"

#include <algorithm>

#include "simulator/model/moving_state.h"

namespace cbox_simulator
{
namespace
{
constexpr double longest_difference = 0.1 + 1e-9; // seconds, and what adding up cycles rounds
constexpr std::uint32_t first_safety_input = 8;

struct lines
{
    bool first;
    bool second;

    [[nodiscard]] bool any() const { return first || second; }
    [[nodiscard]] bool both() const { return first && second; }
    [[nodiscard]] bool differ() const { return first != second; }
};

lines lines_of(std::uint32_t word, const redundant_pair& pair)
{
    return {(word >> pair.channel_1 & 1u) == 1, (word >> pair.channel_2 & 1u) == 1};
}

bool is_moving(const robot_state& robot)
{
    return !is_at_rest(robot.moving_state()) && robot.moving_state() != QORIN_MOVING_STATE_PAUSED &&
           robot.moving_state() != QORIN_MOVING_STATE_EMG_STOPPED;
}

bool is_stopping(const robot_state& robot)
{
    return robot.moving_state() == QORIN_MOVING_STATE_STOPPING ||
           robot.moving_state() == QORIN_MOVING_STATE_EMG_STOPPING;
}
} // namespace

/// Calls `use(name, function, lines)`.
template <class Use>
void redundant_functions::for_each_input_pair(const Use& use) const
{
    for (std::uint32_t module = 0; module < io_modules::module_count; ++module)
    {
        const auto word = cbox_.all_io_modules()[module].redundant_digital_input;
        for (const auto& pair : cbox_.redundant_inputs()[module].pairs())
            use(pair_name(false, module, pair.channel_1, pair.channel_2), pair.function, lines_of(word, pair));
    }
    const auto word = cbox_.safety_redundant_word() >> first_safety_input;
    for (std::uint32_t module = 0; module < redundant_io::safety_module_count; ++module)
        for (const auto& pair : cbox_.safety_inputs()[module].pairs())
            use(pair_name(true, module, pair.channel_1, pair.channel_2), pair.function, lines_of(word, pair));
}

redundant_functions::states redundant_functions::wanted() const
{
    states next;
    bool wants_reset = false;
    for_each_input_pair(
        [&](const pair_name&, std::uint32_t function, const lines& of)
        {
            switch (function)
            {
            case QORIN_CBOX_IO_REDUNDANT_IN_EMERGENCY_STOP:
                next.emergency_stop |= of.any();
                break;
            case QORIN_CBOX_IO_REDUNDANT_IN_REDUCED_MODE:
                next.reduced_mode |= of.any();
                break;
            case QORIN_CBOX_IO_REDUNDANT_IN_SAFEGUARD_RESET:
                wants_reset = true;
                next.reset_pressed |= of.both();
                break;
            case QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_PAUSE_RESUME:
                next.safeguard_open |= of.any();
                break;
            case QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_ENABLE_SWITCH:
                next.enable_switch |= of.both();
                break;
            default:
                break;
            }
        });
    // A reset button that somebody has fixed down resets nothing.
    const bool resets = !wants_reset || (next.reset_pressed && !states_.reset_pressed);
    next.safeguard_pause = next.safeguard_open || (states_.safeguard_pause && !resets);
    return next;
}

void redundant_functions::run_cycle(double seconds)
{
    const auto before = states_;
    states_ = wanted();
    if (before.emergency_stop != states_.emergency_stop)
        cbox_.open_emergency_circuit(states_.emergency_stop);
    tell(before.reduced_mode, states_.reduced_mode, QORIN_EVENT_SUBGRP_ROBOT_REDUNDANT_IO_REDUCED_MODE,
         QORIN_EVENT_SUBGRP_ROBOT_REDUNDANT_IO_NORMAL_MODE);
    tell(before.safeguard_pause, states_.safeguard_pause,
         QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_SAFEGUARD_PAUSE,
         QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_SAFEGUARD_RESUME);
    tell(before.enable_switch, states_.enable_switch,
         QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_ENABLE_SWITCH_FUNC_ON,
         QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_ENABLE_SWITCH_FUNC_OFF);
    robots_.for_each([this](std::uint32_t, robot_state& robot)
                     { robot.settings().reduced_mode.in_force = states_.reduced_mode; });
    watch_lines(seconds);
    drive_outputs();
}

bool redundant_functions::is_settled() const
{
    bool settled = wanted() == states_;
    for_each_input_pair(
        [&](const pair_name& name, std::uint32_t, const lines& of)
        {
            const auto since = apart_.find(name);
            settled =
                settled && (since == apart_.end() ? !of.differ() : of.differ() && since->second > longest_difference);
        });
    for (std::size_t module = 0; module < io_modules::module_count; ++module)
    {
        const auto word = cbox_.all_io_modules()[module].redundant_digital_output;
        for (const auto& pair : cbox_.redundant_outputs()[module].pairs())
        {
            const auto now = lines_of(word, pair);
            settled = settled && !now.differ() && output_of(pair.function, now.first) == now.first;
        }
    }
    return settled;
}

void redundant_functions::watch_lines(double seconds)
{
    std::map<pair_name, double> still_apart;
    for_each_input_pair(
        [&](const pair_name& name, std::uint32_t, const lines& of)
        {
            if (!of.differ())
                return;
            const auto known = apart_.find(name);
            const double before = known == apart_.end() ? 0 : known->second;
            const double now = std::min(before + seconds, 2 * longest_difference);
            still_apart[name] = now;
            if (before > longest_difference || now <= longest_difference)
                return;
            const auto& [of_safety_module, module, channel_1, channel_2] = name;
            tell(of_safety_module ? QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MODULE_REDUNDANT_IO_LINE_VALUE_DIFF
                                  : QORIN_EVENT_SUBGRP_ROBOT_REDUNDANT_IO_LINE_VALUE_DIFF,
                 static_cast<std::int32_t>(channel_1), static_cast<std::int32_t>(channel_2));
        });
    apart_ = std::move(still_apart);
}

void redundant_functions::drive_outputs()
{
    for (std::uint32_t module = 0; module < io_modules::module_count; ++module)
    {
        for (const auto& pair : cbox_.redundant_outputs()[module].pairs())
        {
            const auto now = lines_of(cbox_.all_io_modules()[module].redundant_digital_output, pair);
            const std::uint32_t value = output_of(pair.function, now.first) ? 1 : 0;
            cbox_.set_redundant_output(module, pair.channel_1, value);
            cbox_.set_redundant_output(module, pair.channel_2, value);
        }
    }
}

/// What the output of a function is to be; `present` where the box has nothing to tell.
bool redundant_functions::output_of(std::uint32_t function, bool present) const
{
    bool moving = false;
    bool stopping = false;
    bool collided = false;
    robots_.for_each(
        [&](std::uint32_t, const robot_state& robot)
        {
            moving = moving || is_moving(robot);
            stopping = stopping || is_stopping(robot);
            collided = collided || robot.collision() != 0;
        });
    switch (function)
    {
    case QORIN_CBOX_IO_REDUNDANT_OUT_EMERGENCY_STOP:
        return cbox_.emergency_button() == QORIN_BUTTON_STATE_PUSHED;
    case QORIN_CBOX_IO_REDUNDANT_OUT_ROBOT_MOVING:
        return moving;
    case QORIN_CBOX_IO_REDUNDANT_OUT_ROBOT_NOT_STOPPING:
        return !stopping;
    case QORIN_CBOX_IO_REDUNDANT_OUT_COLLISION_DETECTED:
        return collided;
    case QORIN_CBOX_IO_REDUNDANT_OUT_REDUCED_MODE:
        return states_.reduced_mode;
    case QORIN_CBOX_IO_REDUNDANT_OUT_NOT_REDUCED_MODE:
        return !states_.reduced_mode;
    default:
        return present;
    }
}

void redundant_functions::tell(bool from, bool to, QORIN_EVENT_SUBGRP begin, QORIN_EVENT_SUBGRP end)
{
    if (from != to)
        tell(to ? begin : end);
}

void redundant_functions::tell(QORIN_EVENT_SUBGRP subgroup, std::int32_t channel_1, std::int32_t channel_2)
{
    event_info event{};
    event.group = QORIN_EVENT_GRP_ROBOT_REDUNDANT_IO;
    event.subgroup = subgroup;
    event.parameter[0] = channel_1;
    event.parameter[1] = channel_2;
    bool told = false;
    robots_.for_each(
        [&](std::uint32_t id, const robot_state&)
        {
            event.sender_id = id;
            events_.post(event);
            told = true;
        });
    if (!told)
        events_.post(event);
}
} // namespace cbox_simulator
