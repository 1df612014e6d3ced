#include "tools/qorin/view/message.h"

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <numeric>

#include <nlohmann/json.hpp>

#include "qorin/system.h"
#include "tools/qorin/recording/recording.h"

namespace qorin_view
{
namespace
{
using nlohmann::json;

std::string dump(const json& value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace); // a text of a control box may be anything
}

constexpr std::size_t text_words = 8; // enough for what the mirror has: 32 characters

/// How a field is sent.
struct encoding
{
    const char* type;
    std::size_t count; ///< words
};

encoding encoding_of(const field_info& field)
{
    if (field.unit == field_info::word)
        return {"text", text_words};
    return {field.unit == field_info::bits ? "integer" : "number", 1};
}

std::uint32_t word_of(const field_info& field, const field_value& value)
{
    const auto* const number = std::get_if<double>(&value);
    if (field.unit == field_info::bits)
        return number == nullptr ? 0 : qorin_cli::whole<std::uint32_t>(*number);
    constexpr float nothing = std::numeric_limits<float>::quiet_NaN();
    return std::bit_cast<std::uint32_t>(number == nullptr ? nothing : static_cast<float>(*number));
}
} // namespace

std::size_t word_count(const std::vector<field_info>& fields)
{
    return std::accumulate(fields.begin(), fields.end(), std::size_t{0},
                           [](std::size_t sum, const field_info& field) { return sum + encoding_of(field).count; });
}

void write_words(const std::vector<field_info>& fields, std::span<const field_value> values, words& state)
{
    auto into = state.begin();
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        if (fields[i].unit != field_info::word)
        {
            *into++ = word_of(fields[i], values[i]);
            continue;
        }
        std::array<char, text_words * sizeof(std::uint32_t)> letters{};
        if (const auto* const text = std::get_if<std::string>(&values[i]))
            text->copy(letters.data(), letters.size() - 1);
        std::memcpy(&*into, letters.data(), letters.size());
        into += text_words;
    }
}

std::string hello_text(const status_source& source, double rate)
{
    json fields = json::array();
    for (const field_info& field : source.fields())
    {
        const auto [type, count] = encoding_of(field);
        const bool has_unit = field.unit != field_info::bits && field.unit != field_info::word;
        fields.push_back(
            {{"name", field.name}, {"unit", has_unit ? field.unit : ""}, {"type", type}, {"count", count}});
    }
    return dump({{"kind", "hello"},
                 {"format", 1},
                 {"name", source.name()},
                 {"library", qorin_system_api_version_get()},
                 {"control_software", source.control_software()},
                 {"rate", rate},
                 {"duration", source.duration()},
                 {"fields", fields}});
}

std::string event_text(const event_record& record)
{
    const qorin_cli::event& event = record.event;
    const qorin_cli::event_explanation known = qorin_cli::explain_event(event.subgroup);
    return dump({{"kind", "event"},
                 {"number", record.number},
                 {"time", record.time},
                 {"group", event.group_name()},
                 {"event", event.name()},
                 {"code", event.subgroup},
                 {"sender", event.sender},
                 {"values", event.parameters},
                 {"description", known.description},
                 {"carries", known.values},
                 {"advice", known.advice}});
}

std::string notice_text(const std::string& line)
{
    return dump({{"kind", "notice"}, {"text", line}});
}

void write_changes(double time, const words& now, words& then, std::string& message)
{
    const std::size_t bits = sizeof time;
    message.assign(bits + (now.size() + 7) / 8, '\0');
    std::memcpy(message.data(), &time, sizeof time);
    for (std::size_t word = 0; word < now.size(); ++word)
    {
        if (now[word] == then[word])
            continue;
        then[word] = now[word];
        message[bits + word / 8] = static_cast<char>(message[bits + word / 8] | 1 << word % 8);
        message.append(reinterpret_cast<const char*>(&now[word]), sizeof now[word]);
    }
}
} // namespace qorin_view
