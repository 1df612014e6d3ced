#include "tools/qorin/recording/plot_data.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include <fmt/format.h>

namespace qorin_cli
{
namespace
{
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t point_limit = 4000;

/// Where a curve comes from: a field, or a channel of it.
struct source
{
    std::size_t field;
    std::optional<unsigned int> channel;
    std::size_t panel;
};

/// Lowest and highest point of each stretch, in their order.
void thin_out(curve& drawn)
{
    const auto& all = drawn.points;
    if (all.size() <= point_limit)
        return;
    std::vector<std::pair<double, double>> kept;
    const std::size_t stretch = 2 * (all.size() / point_limit + 1);
    for (std::size_t i = 0; i < all.size(); i += stretch)
    {
        const auto begin = all.begin() + static_cast<std::ptrdiff_t>(i);
        const auto end = begin + static_cast<std::ptrdiff_t>(std::min(stretch, all.size() - i));
        const auto below = [](const auto& a, const auto& b) { return a.second < b.second; };
        auto [low, high] = std::minmax_element(begin, end, below);
        if (low > high)
            std::swap(low, high);
        kept.push_back(*low);
        if (low != high)
            kept.push_back(*high);
    }
    drawn.points = std::move(kept);
}

/// Gives each channel a lane of its own. Those that are never set are left out where others are.
void stack_channels(panel& channels)
{
    const auto is_set = [](const auto& point) { return point.second == 1; };
    const auto is_used = [&](const curve& one) { return std::ranges::any_of(one.points, is_set); };
    if (std::ranges::any_of(channels.curves, is_used))
        std::erase_if(channels.curves, [&](const curve& one) { return !is_used(one); });
    for (curve& one : channels.curves)
    {
        const auto lane = static_cast<double>(channels.steps.size());
        for (auto& [time, value] : one.points)
            value = lane + 0.7 * value;
        channels.steps.push_back(one.name);
    }
}

class collector
{
public:
    collector(const recording_info& info, const std::vector<std::string>& patterns) : info_(info)
    {
        std::vector<std::string> names;
        for (std::size_t i = 0; i < info.fields.size(); ++i)
        {
            const field_info& field = info.fields[i];
            names.push_back(field.name);
            const bool matches = matches_any(field.name, patterns);
            if (field.unit != field_info::bits)
            {
                if (matches)
                    add(i, {});
                continue;
            }
            for (unsigned int channel = 0; channel < 16; ++channel)
            {
                names.push_back(fmt::format("{}.{}", field.name, channel));
                if (matches || matches_any(names.back(), patterns))
                    add(i, channel);
            }
        }
        expect_matches(names, patterns);
    }

    void take(const recorded_sample& sample)
    {
        for (std::size_t i = 0; i < sources_.size(); ++i)
            curves_[i].points.emplace_back(sample.time, value_of(sources_[i], sample.values[sources_[i].field]));
    }

    /// The panels whose curves have a value.
    std::vector<panel> panels()
    {
        for (std::size_t i = 0; i < sources_.size(); ++i)
        {
            const auto has_value = [](const auto& point) { return !std::isnan(point.second); };
            if (std::ranges::none_of(curves_[i].points, has_value))
                continue;
            thin_out(curves_[i]);
            panels_[sources_[i].panel].curves.push_back(std::move(curves_[i]));
        }
        std::erase_if(panels_, [](const panel& one) { return one.curves.empty(); });
        for (panel& one : panels_)
            if (one.unit == field_info::bits)
                stack_channels(one);
        return std::move(panels_);
    }

private:
    void add(std::size_t field, std::optional<unsigned int> channel)
    {
        const field_info& info = info_.fields[field];
        const bool is_alone = info.unit == field_info::word;
        auto place = std::ranges::find_if(panels_, [&](const panel& one) { return one.unit == info.unit; });
        if (is_alone || place == panels_.end())
            place = panels_.insert(panels_.end(), panel{info.unit, {}, {}});
        sources_.push_back({field, channel, static_cast<std::size_t>(place - panels_.begin())});
        curves_.push_back({channel ? fmt::format("{}.{}", info.name, *channel) : info.name, {}});
    }

    double value_of(const source& from, const field_value& value)
    {
        if (const auto* const word = std::get_if<std::string>(&value))
        {
            std::vector<std::string>& steps = panels_[from.panel].steps;
            const auto found = std::ranges::find(steps, *word);
            const auto step = found - steps.begin();
            if (found == steps.end())
                steps.push_back(*word);
            return static_cast<double>(step);
        }
        const auto* const number = std::get_if<double>(&value);
        if (number == nullptr)
            return nothing;
        if (!from.channel)
            return *number;
        return static_cast<double>(whole<unsigned int>(*number) >> *from.channel & 1);
    }

    const recording_info& info_;
    std::vector<source> sources_;
    std::vector<curve> curves_; ///< one a source
    std::vector<panel> panels_;
};
} // namespace

plot_data read_plot_data(recording_reader& recording, const std::vector<std::string>& patterns, plot_range range)
{
    collector curves(recording.info(), patterns);
    plot_data data;
    data.begin = range.begin;
    data.end = range.end == 0 ? recording.duration() : std::min(range.end, recording.duration());
    recording.seek(range.begin);
    for (recording_reader::row row; recording.next(row);)
        if (const auto* const sample = std::get_if<recorded_sample>(&row);
            sample != nullptr && sample->time <= data.end)
            curves.take(*sample);
        else if (const auto* const happened = std::get_if<recorded_event>(&row);
                 happened != nullptr && happened->time <= data.end)
            data.events.push_back(*happened);
        else
            break;
    data.panels = curves.panels();
    return data;
}
} // namespace qorin_cli
