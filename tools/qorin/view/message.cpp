#include "tools/qorin/view/message.h"

#include <cstring>

#include <nlohmann/json.hpp>

#include "qorin/system.h"

namespace qorin_view
{
namespace
{
using nlohmann::json;

std::string dump(const json& value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace); // a text of a control box may be anything
}

const char* name_of(field_type type)
{
    switch (type)
    {
    case field_type::number:
        return "number";
    case field_type::integer:
        return "integer";
    case field_type::text:
        return "text";
    }
    return "";
}
} // namespace

std::string hello_text(const status_source& source, double rate)
{
    json fields = json::array();
    for (const status_field& field : source.fields())
        fields.push_back({{"name", field.name}, {"type", name_of(field.type)}, {"count", field.count}});
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
                 {"group", event.group},
                 {"subgroup", event.subgroup},
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

void write_changes(double time, std::span<const std::uint32_t> now, words then, std::string& message)
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
