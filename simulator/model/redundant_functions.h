#ifndef SIMULATOR_MODEL_REDUNDANT_FUNCTIONS_H
#define SIMULATOR_MODEL_REDUNDANT_FUNCTIONS_H

#include <cstdint>
#include <map>
#include <tuple>

#include "simulator/model/cbox_state.h"
#include "simulator/model/event_outbox.h"
#include "simulator/model/robot_set.h"

namespace cbox_simulator
{
/**
 * Makes the redundant channels do what they are assigned to.
 *
 * A line is active at 1. What makes the cell safer, emergency stop, reduced mode and safeguard pause, begins with
 * either line of a pair and ends when both are 0; what gives leave, safeguard reset and enable switch, wants both.
 * Lines that differ for more than 100 ms are told of. The box's state is told for each robot, with its id as sender, or
 * with sender 0 while there is none. Owned by the model.
 */
class redundant_functions
{
public:
    redundant_functions(cbox_state& cbox, robot_set& robots, event_outbox& events)
        : cbox_(cbox), robots_(robots), events_(events)
    {
    }

    void run_cycle(double seconds);
    /// Whether a cycle would change nothing.
    [[nodiscard]] bool is_settled() const;

    [[nodiscard]] bool reduced_mode() const { return states_.reduced_mode; }
    /// From the moment that the safeguard opens until it is closed. Where a pair is assigned to safeguard reset, it
    /// ends when that is pressed afterwards.
    [[nodiscard]] bool safeguard_pause() const { return states_.safeguard_pause; }
    [[nodiscard]] bool enable_switch() const { return states_.enable_switch; }

private:
    struct states
    {
        bool emergency_stop = false;
        bool reduced_mode = false;
        bool safeguard_open = false;
        bool safeguard_pause = false;
        bool reset_pressed = false;
        bool enable_switch = false;

        bool operator==(const states&) const = default;
    };

    /// Whether it is of the safety module, module, and channels.
    using pair_name = std::tuple<bool, std::uint32_t, std::uint32_t, std::uint32_t>;

    [[nodiscard]] states wanted() const;
    template <class Use>
    void for_each_input_pair(const Use& use) const;
    void watch_lines(double seconds);
    void drive_outputs();
    [[nodiscard]] bool output_of(std::uint32_t function, bool present) const;
    void tell(bool from, bool to, QORIN_EVENT_SUBGRP begin, QORIN_EVENT_SUBGRP end);
    void tell(QORIN_EVENT_SUBGRP subgroup, std::int32_t channel_1 = 0, std::int32_t channel_2 = 0);

    cbox_state& cbox_;
    robot_set& robots_;
    event_outbox& events_;
    states states_;
    std::map<pair_name, double> apart_; ///< Seconds for which lines have differed; those that do not are not here.
};
} // namespace cbox_simulator

#endif
