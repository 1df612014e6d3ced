#ifndef SIMULATOR_MODEL_WORLD_H
#define SIMULATOR_MODEL_WORLD_H

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/model/world_points.h"

namespace cbox_simulator
{
/**
 * The world outside the box: puts values on inputs, has hands, and wires that carry outputs back to inputs.
 *
 * A point is told as text, by its kind and what tells it from others of the kind ("digital_input 0 3" is channel 3 of
 * module 0), or by a name that the user gave it. What cannot be is refused with std::invalid_argument, whose text is
 * one line, and changes nothing. Owned by the model and used as that is.
 */
class world
{
public:
    world(cbox_state& cbox, fieldbus& fieldbuses, robot_set& robots) : parts_{cbox, fieldbuses, robots} {}

    /// An output is the box's own, and what is wired to one follows it: neither can be set.
    void set(std::string_view point, std::span<const double> values);
    /// Of inputs and outputs; bytes in their full length.
    [[nodiscard]] std::vector<double> get(std::string_view point) const;

    /// One word that starts with a letter and is no kind of point. A name given again is the new point's.
    void name(std::string_view name, std::string_view point);

    /// An output leads to as many inputs as one likes, of the same sort of values; an input has one wire. It follows
    /// one control cycle behind.
    void connect(std::string_view output, std::string_view input);
    void disconnect(std::string_view input);

    /// By name, and by input; both in the words of the table of points.
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& names() const { return names_; }
    [[nodiscard]] std::map<std::string, std::string> wires() const;

    /// Calls `use(point, values, touched)` for each input that has no wire, in the order of the table; `touched` when
    /// its values are not those that a new box has. Robots that are not there have no inputs.
    void for_each_input(const std::function<void(const std::string&, const std::vector<double>&, bool)>& use) const;

    /// Lets the wires carry what the outputs have.
    void run_cycle();
    /// Whether all wired inputs are as their outputs.
    [[nodiscard]] bool is_settled() const;

    /// Points by words, for whoever asks what there is.
    [[nodiscard]] static std::string point_list();

private:
    struct point
    {
        const point_kind* kind;
        point_index index;

        bool operator==(const point&) const = default;
    };

    struct wire
    {
        point output;
        point input;
    };

    [[nodiscard]] point find(std::string_view text) const;
    [[nodiscard]] static std::string text_of(const point& which);
    [[nodiscard]] bool is_there(const point& which) const;
    void require(const point& which) const;
    [[nodiscard]] const wire* wire_to(const point& input) const;
    [[nodiscard]] bool carries_news(const wire& each) const;

    parts_with_terminals parts_;
    std::map<std::string, std::string, std::less<>> names_;
    std::vector<wire> wires_;
    mutable std::vector<double> at_output_; ///< Reused, as wires are looked at in every cycle.
    mutable std::vector<double> at_input_;
};
} // namespace cbox_simulator

#endif
