#ifndef TOOLS_QORIN_STATUS_STATUS_FIELDS_H
#define TOOLS_QORIN_STATUS_STATUS_FIELDS_H

#include <array>
#include <chrono>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace qorin_cli
{
/// What a field holds. Nothing where there is none, as of a robot that does not stand.
using field_value = std::variant<std::monostate, double, std::string>;

/// What is to be known of a value of the status, live or recorded.
struct field_info
{
    /// Instead of a unit: a whole number of which bit n is channel n.
    static constexpr const char* bits = "bits";
    /// Instead of a unit: a member of an enumeration without its beginning, or a text.
    static constexpr const char* word = "word";

    std::string name; ///< "robot0.joint2.angle"
    std::string unit; ///< "deg"; empty where it has none
};

struct status_field : field_info
{
    std::function<field_value()> read; ///< from the status mirror
    bool is_setting = false;           ///< changes seldom: recorded on request alone
};

constexpr unsigned int robot_limit = 2;
constexpr unsigned int joint_limit = 6;
constexpr unsigned int plane_limit = 10;

/// All values of the status that people look at, with those of robots and joints that may come later.
[[nodiscard]] std::vector<status_field> status_fields(unsigned int cbox_id);

/**
 * All values; where the robots are, as far as can be, from one frame: the mirror changes while it is read. So joints
 * and TCPs are read again until they stay the same, a few times at most.
 */
[[nodiscard]] std::vector<field_value> read_fields(const std::vector<status_field>& fields);

/// Whether a name matches one of the patterns, which have * and ? as those of files do.
[[nodiscard]] bool matches_any(const std::string& name, const std::vector<std::string>& patterns);

/// @throws failure with the first pattern that matches no name.
void expect_matches(const std::vector<std::string>& names, const std::vector<std::string>& patterns);

/// What the client knows of a robot as such.
struct robot_description
{
    std::string model;
    unsigned int joints = 0;
    std::array<std::array<double, joint_limit>, 4> dh{}; ///< in the order of the kinematics module

    bool operator==(const robot_description&) const = default;
};

/// Makes the robots of a control box known to this process as they come; the programs that have them notice nothing.
class robot_watch
{
public:
    explicit robot_watch(unsigned int cbox_id) : cbox_id_(cbox_id) {}

    /// Has a look at the mirror, ten times a second at most. To be called often.
    void look();

    /// Whether a robot stands that cannot be looked at, since no kinematics module serves its model.
    [[nodiscard]] bool lacks_module(unsigned int robot) const { return lacks_module_[robot]; }

    [[nodiscard]] bool is_known(unsigned int robot) const;
    [[nodiscard]] robot_description describe(unsigned int robot) const;

private:
    using clock = std::chrono::steady_clock;

    unsigned int cbox_id_;
    std::array<bool, robot_limit> lacks_module_{};
    clock::time_point next_look_{};
    clock::time_point next_search_{};
};
} // namespace qorin_cli

#endif
