#include "tools/qorin/call/call_arguments.h"

#include <algorithm>
#include <cstring>

#include "tools/qorin/call/value_text.h"
#include "tools/qorin/nearest_name.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
constexpr std::size_t most_elements = 100'000; // more are no mistake of a type, but one of a number

/// `name` of `name=value`, else nothing.
std::string_view name_in(std::string_view word)
{
    const std::string_view name = word.substr(0, word.find('='));
    const auto is_of_name = [](char c) { return c == '_' || std::isalnum(c) != 0; };
    return name.size() < word.size() && std::ranges::all_of(name, is_of_name) ? name : std::string_view();
}

std::vector<std::string> told_names(const function_row& function)
{
    std::vector<std::string> names;
    for (const parameter_row& parameter : function.parameters)
        if (is_told(parameter))
            names.emplace_back(parameter.name);
    return names;
}

std::vector<std::string_view> split(std::string_view text)
{
    std::vector<std::string_view> parts;
    for (;;)
    {
        const std::size_t comma = text.find(',');
        parts.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return parts;
        text.remove_prefix(comma + 1);
    }
}

[[noreturn]] void refuse(const parameter_row& parameter, const std::string& why)
{
    throw failure(fmt::format("{}: {}", parameter.name, why), status_usage);
}
} // namespace

bool is_told(const parameter_row& parameter)
{
    return !parameter.is_output && parameter.name != "cbox_id";
}

call_arguments::call_arguments(const function_row& function, const std::vector<std::string>& words)
    : function_(function), arguments_(function.parameters.size())
{
    assign(words);
    const auto for_each = [&](auto wanted, auto read)
    {
        for (std::size_t i = 0; i < arguments_.size(); ++i)
            if (wanted(function_.parameters[i], arguments_[i]))
                (this->*read)(i);
    };
    const auto is_scalar = [](const parameter_row& row, const argument& given)
    { return !row.is_pointer && given.text; };
    const auto is_text = [](const parameter_row& row, const argument&) { return !row.is_output && row.is_text; };
    const auto is_array = [](const parameter_row& row, const argument&)
    { return !row.is_output && row.is_pointer && !row.is_text; };
    const auto is_missing = [](const parameter_row& row, const argument& given)
    { return !row.is_pointer && is_told(row) && !row.is_unused && !given.text; };
    const auto is_output = [](const parameter_row& row, const argument&) { return row.is_output; };

    // Scalars first, since they tell how long arrays are; and where they do not, arrays tell them.
    for_each(is_scalar, &call_arguments::read_scalar);
    for_each(is_text, &call_arguments::read_text);
    for_each(is_array, &call_arguments::read_array);
    for_each(is_missing, &call_arguments::read_scalar);
    for_each(is_output, &call_arguments::make_room);
}

/// What is told by name first, the rest in what places are left.
void call_arguments::assign(const std::vector<std::string>& words)
{
    std::vector<std::string> rest;
    for (const std::string& word : words)
        if (!assign_by_name(word))
            rest.push_back(word);
    std::size_t place = 0;
    for (const std::string& word : rest)
    {
        while (place < arguments_.size() && (!is_told(function_.parameters[place]) || arguments_[place].text))
            ++place;
        const std::string_view name = name_in(word);
        const bool takes_text = place < arguments_.size() && function_.parameters[place].is_text;
        if (!takes_text && (place == arguments_.size() || !name.empty()))
            throw failure(fmt::format("{} has no {} {}; it takes: {}", function_.name,
                                      name.empty() ? "place for" : "input", name.empty() ? word : name,
                                      fmt::join(told_names(function_), ", ")),
                          status_usage);
        arguments_[place].text = word;
    }
}

/// False when the word is no `name=value` of an input.
bool call_arguments::assign_by_name(const std::string& word)
{
    const std::string_view name = name_in(word);
    const std::size_t index = name.empty() ? arguments_.size() : index_of(name);
    if (index == arguments_.size())
        return false;
    if (arguments_[index].text)
        refuse(function_.parameters[index], "is told twice");
    arguments_[index].text = word.substr(name.size() + 1);
    return true;
}

/// Where the input of that name is; behind the last one when there is none.
std::size_t call_arguments::index_of(std::string_view name) const
{
    const auto& rows = function_.parameters;
    const auto found =
        std::ranges::find_if(rows, [name](const parameter_row& row) { return !row.is_output && row.name == name; });
    return static_cast<std::size_t>(found - rows.begin());
}

void call_arguments::read_scalar(std::size_t index)
{
    if (!arguments_[index].text)
        refuse(function_.parameters[index], fmt::format("is missing: {}", function_.parameters[index].doc));
    store_value(function_.parameters[index], *arguments_[index].text, &arguments_[index].value);
}

void call_arguments::read_text(std::size_t index)
{
    const parameter_row& parameter = function_.parameters[index];
    argument& given = arguments_[index];
    if (!given.text && parameter.is_unused)
        given.text.emplace();
    if (!given.text)
        refuse(parameter, fmt::format("is missing: {}", parameter.doc));
    if (parameter.room > 0 && given.text->size() >= parameter.room)
        refuse(parameter, fmt::format("{} bytes are too many, {} travel", given.text->size(), parameter.room - 1));
    given.memory.resize(std::max<std::size_t>(parameter.room, given.text->size() + 1));
    std::memcpy(given.memory.data(), given.text->data(), given.text->size());
}

void call_arguments::read_array(std::size_t index)
{
    const parameter_row& parameter = function_.parameters[index];
    argument& given = arguments_[index];
    if (!given.text)
        refuse(parameter, fmt::format("is missing, as 1,2,3: {}", parameter.doc));
    const std::vector<std::string_view> elements = split(*given.text);
    check_count(parameter, elements);
    const std::size_t size = size_of(parameter.element);
    given.memory.resize(std::max<std::size_t>(parameter.room, elements.size() * size));
    for (std::size_t i = 0; i < elements.size(); ++i)
        store_value(parameter, elements[i], given.memory.data() + i * size);
}

/// Refuses too few and too many elements. Where a parameter that the user did not tell says how many there are, they
/// tell it.
void call_arguments::check_count(const parameter_row& parameter, const std::vector<std::string_view>& elements)
{
    const std::size_t count = elements.size();
    const std::size_t room = parameter.room / size_of(parameter.element);
    if (parameter.room > 0 && count > room)
        refuse(parameter, fmt::format("takes {} elements at most, not {}", room, count));
    const dimension_row& dimension = parameter.shape[0];
    if (!dimension.parameter.empty())
        if (argument& number = arguments_[index_of(dimension.parameter)]; !number.text)
        {
            number.text = std::to_string(count);
            read_scalar(index_of(dimension.parameter));
        }
    // A command sends all of a block, whatever is told of it; joints may be fewer.
    const bool may_be_fewer = dimension.of_joints || (dimension.number > 0 && function_.kind == function_kind::command);
    const std::size_t wanted = element_count(parameter);
    if (count > wanted || (count < wanted && !may_be_fewer))
        refuse(parameter, fmt::format("takes {} elements{}, not {}", wanted, may_be_fewer ? " at most" : "", count));
}

void call_arguments::make_room(std::size_t index)
{
    const parameter_row& parameter = function_.parameters[index];
    const std::size_t count = element_count(parameter);
    if (count > most_elements)
        refuse(parameter, fmt::format("{} elements are too many", count));
    arguments_[index].memory.resize(
        std::max<std::size_t>({parameter.room, count * size_of(parameter.element), sizeof(double)}));
}

std::size_t call_arguments::size_of_dimension(const dimension_row& dimension) const
{
    if (dimension.parameter.empty())
        return dimension.number;
    const std::uint64_t number = arguments_[index_of(dimension.parameter)].value;
    return number > dimension.less ? number - dimension.less : 0;
}

std::size_t call_arguments::element_count(const parameter_row& parameter) const
{
    std::size_t count = 1;
    for (const dimension_row& dimension : parameter.shape)
        count *= size_of_dimension(dimension);
    return count;
}

void call_arguments::set_cbox_id(unsigned int cbox_id)
{
    const std::size_t index = index_of("cbox_id");
    if (index < arguments_.size() && !arguments_[index].text)
        arguments_[index].value = cbox_id;
}

std::vector<void*> call_arguments::addresses()
{
    std::vector<void*> addresses;
    for (argument& given : arguments_)
    {
        if (!given.memory.empty())
            given.value = reinterpret_cast<std::uintptr_t>(given.memory.data());
        addresses.push_back(&given.value);
    }
    return addresses;
}

nlohmann::ordered_json call_arguments::load(const parameter_row& parameter, const std::byte* memory,
                                            std::size_t dimension) const
{
    if (parameter.is_text)
    {
        const auto* text = reinterpret_cast<const char*>(memory);
        return std::string(text, strnlen(text, element_count(parameter)));
    }
    if (dimension == parameter.shape.size())
    {
        parameter_row carried = parameter;
        if (function_.kind == function_kind::command && parameter.element == value_type::wide)
            carried.element = value_type::integer; // a reply carries the lower half alone
        return load_value(carried, memory);
    }
    std::size_t stride = size_of(parameter.element);
    for (const dimension_row& inner : parameter.shape.subspan(dimension + 1))
        stride *= size_of_dimension(inner);
    auto list = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < size_of_dimension(parameter.shape[dimension]); ++i)
        list.push_back(load(parameter, memory + i * stride, dimension + 1));
    return list;
}

nlohmann::ordered_json call_arguments::outputs() const
{
    auto outputs = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < arguments_.size(); ++i)
        if (const parameter_row& parameter = function_.parameters[i]; parameter.is_output && !parameter.is_unused)
            outputs[std::string(parameter.name)] = load(parameter, arguments_[i].memory.data(), 0);
    return outputs;
}
} // namespace qorin_cli
