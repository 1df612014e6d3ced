#include "tools/qorin/view/recorded_box.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "tools/qorin/recording/recording.h"
#include "tools/qorin/status/enumeration_names.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/view/robot_fields.h"

namespace qorin_view
{
namespace
{
using namespace qorin_cli;

constexpr std::size_t event_limit = 5000; ///< that are shown of a recording
constexpr double least_duration = 0.01;   ///< seconds, of a recording with a single sample

class recorded_box : public status_source
{
public:
    explicit recorded_box(const std::filesystem::path& file) : file_(file), recording_(open_recording(file))
    {
        if (recording_->sample_times().empty())
            throw failure(fmt::format("{} has no samples", file.string()));
        if (recording_->robots().empty())
            throw failure(fmt::format("{} has no robot: none stood while it was recorded", file.string()));
        expect_angles();
        add_robot_fields(fields_);
        const auto& recorded = recording_->info().fields;
        fields_.insert(fields_.end(), recorded.begin(), recorded.end());
        read_sample(0); // what cannot be read is told before a page is open
    }

    const std::vector<field_info>& fields() const override { return fields_; }
    std::string name() const override { return file_.filename(); }
    std::string control_software() const override { return about("control_software"); }
    std::size_t event_count() const { return recording_->events().size(); }
    double duration() const override { return std::max(recording_->duration(), least_duration); }

    reading read(double time) override
    {
        const std::vector<double>& times = recording_->sample_times();
        const auto later = std::ranges::upper_bound(times, time);
        const auto at = static_cast<std::size_t>(std::max(later - times.begin() - 1, std::ptrdiff_t{0}));
        try
        {
            if (at != shown_)
                read_sample(at);
        }
        catch (const failure& error)
        {
            shown_ = at; // what was read last stays, and the line is told once
            notice_ = error.what();
        }
        return {time, values_};
    }

    std::vector<event_record> take_events() override
    {
        const std::vector<recorded_event>& recorded = recording_->events();
        const std::size_t count = std::exchange(are_events_told_, true) ? 0 : std::min(recorded.size(), event_limit);
        std::vector<event_record> told;
        for (const recorded_event& happened : std::span(recorded).first(count))
            told.push_back({told.size() + 1,
                            happened.time,
                            {{},
                             member_value(happened.group, "QORIN_EVENT_GRP_"),
                             member_value(happened.name, "QORIN_EVENT_SUBGRP_"),
                             happened.sender,
                             happened.parameters}});
        return told;
    }

    std::string take_notice() override { return std::exchange(notice_, {}); }

private:
    [[nodiscard]] std::string about(const std::string& key) const
    {
        const auto& known = recording_->info().about;
        const auto found = known.find(key);
        return found == known.end() ? "" : found->second;
    }

    /// Without its angles no arm can be drawn.
    void expect_angles() const
    {
        for (const recorded_robot& robot : recording_->robots())
            for (unsigned int joint = 0; joint < std::min(robot.description.joints, joint_limit); ++joint)
            {
                const std::string name = fmt::format("robot{}.joint{}.angle", robot.robot, joint);
                const auto& all = recording_->info().fields;
                if (std::ranges::find(all, name, &field_info::name) == all.end())
                    throw failure(
                        fmt::format("{} has no {}, without which the robot cannot be drawn; record it without "
                                    "--fields",
                                    file_.string(), name));
            }
    }

    void read_sample(std::size_t at)
    {
        recording_->seek(recording_->sample_times()[at]);
        recording_reader::row row;
        do
            if (!recording_->next(row))
                throw failure(fmt::format("{} has become shorter", file_.string()));
        while (!std::holds_alternative<recorded_sample>(row));
        recorded_sample& sample = std::get<recorded_sample>(row);
        values_.clear();
        add_robot_values(robots_at(sample.time), values_);
        std::ranges::move(sample.values, std::back_inserter(values_));
        shown_ = at;
    }

    [[nodiscard]] standing_robots robots_at(double time) const
    {
        standing_robots robots;
        for (const recorded_robot& told : recording_->robots())
            if (told.time <= time && told.robot < robots.size())
                robots[told.robot] = {standing::known, told.description};
        return robots;
    }

    std::filesystem::path file_;
    std::unique_ptr<recording_reader> recording_;
    std::vector<field_info> fields_;
    std::vector<field_value> values_;
    std::optional<std::size_t> shown_; ///< the sample in `values_`
    bool are_events_told_ = false;
    std::string notice_;
};
} // namespace

std::unique_ptr<status_source> make_recorded_box(const std::filesystem::path& file)
{
    auto box = std::make_unique<recorded_box>(file);
    if (const std::size_t count = box->event_count(); count > event_limit)
        fmt::print(stderr, "qorin: {} has {} events, of which the first {} are shown\n", file.string(), count,
                   event_limit);
    return box;
}
} // namespace qorin_view
