// Every command of the library against the simulated control box, which has its own table of what commands carry.
#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <iterator>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "qorin/qorin_api_rpc_client.h"
#include "simulator/commands/command_table.h"
#include "simulator/control_box.h"
#include "tests/support/installation.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::argument_kind;
using cbox_simulator::argument_type;

/// What one parameter of an exported function is on the wire, by the rules of marshalling alone.
template <class Parameter>
argument_type type_of()
{
    if constexpr (!std::is_pointer_v<Parameter>)
    {
        if constexpr (std::is_same_v<Parameter, double>)
            return argument_type::of<double>(argument_kind::real);
        else if constexpr (std::is_same_v<Parameter, long>) // travels by its low half
            return argument_type::of<std::int32_t>(argument_kind::value);
        else
            return argument_type::of<Parameter>(argument_kind::value);
    }
    else
    {
        using Element = std::remove_const_t<std::remove_pointer_t<Parameter>>;
        constexpr bool output = !std::is_const_v<std::remove_pointer_t<Parameter>>;
        if constexpr (std::is_same_v<Element, double>)
            return argument_type::of<double>(output ? argument_kind::real_output : argument_kind::real_block);
        else if constexpr (output && !std::is_enum_v<Element>) // 4 bytes, whatever it points at
            return argument_type::of<std::uint32_t>(argument_kind::value_output);
        else
            return argument_type::of<Element>(output ? argument_kind::value_output : argument_kind::block);
    }
}

std::string name_of(const argument_type& type)
{
    return fmt::format("{} {}", static_cast<int>(type.kind), type.element->name());
}

/// An argument to call with, another for each place of a parameter list, and how the control box is to print it.
template <class Parameter>
struct sample
{
    explicit sample(int place)
    {
        if constexpr (!std::is_pointer_v<Parameter>)
        {
            value = static_cast<Parameter>(std::is_same_v<Parameter, double> ? 0.5 + place
                                           : std::is_unsigned_v<Parameter>   ? 1001 + place
                                                                             : -1001 - place);
            if constexpr (std::is_same_v<Parameter, long>)
                text = fmt::format("{}", static_cast<std::int32_t>(value));
            else if constexpr (std::is_enum_v<Parameter>)
                text = fmt::format("{}", static_cast<unsigned int>(value));
            else
                text = fmt::format("{}", +value);
        }
        else if constexpr (!std::is_const_v<std::remove_pointer_t<Parameter>>)
            text = "&";
        else if constexpr (std::is_same_v<Parameter, const char*>)
        {
            const std::string word = fmt::format("text {}", place);
            std::memcpy(memory, word.c_str(), word.size());
            text = fmt::format("\"{}\"", word);
        }
        else
        {
            auto* elements = reinterpret_cast<std::remove_const_t<std::remove_pointer_t<Parameter>>*>(memory);
            elements[0] = 7;
            elements[2] = static_cast<std::remove_const_t<std::remove_pointer_t<Parameter>>>(place + 1);
            text = fmt::format("[7, 0, {}]", place + 1);
        }
    }

    Parameter get()
    {
        if constexpr (std::is_pointer_v<Parameter>)
            return reinterpret_cast<Parameter>(memory);
        else
            return value;
    }

    std::conditional_t<std::is_pointer_v<Parameter>, char, Parameter> value{};
    alignas(8) unsigned char memory[128] = {};
    std::string text;
};

/// A command of the library. Calling it gives the arguments as the control box is to print them.
struct command_row
{
    template <class... Parameters>
    command_row(const char* name, QORIN_API_RESULT (*function)(unsigned int, Parameters...))
        : wire_name(std::string("qorin_") + name), types{type_of<Parameters>()...},
          call(
              [function](unsigned int cbox_id)
              {
                  int next = 0;
                  [[maybe_unused]] const auto place = [&] { return next++; };
                  std::tuple<sample<Parameters>...> samples{sample<Parameters>(place())...};
                  return std::apply(
                      [&](auto&... each)
                      {
                          function(cbox_id, each.get()...);
                          std::string text;
                          ((text += (text.empty() ? "" : ", ") + each.text), ...);
                          return text;
                      },
                      samples);
              })
    {
    }

    std::string wire_name;
    std::vector<argument_type> types;
    std::function<std::string(unsigned int cbox_id)> call;
};

#define COMMAND(name) command_row(#name, qorin_rpc_##name),

/// Every command that the public headers declare. The exit of the control software comes last: nothing is answered
/// afterwards.
const std::vector<command_row>& commands()
{
    static const auto rows = []
    {
        std::vector<command_row> all = {
#include "commands_of_headers.inc"
        };
        std::stable_partition(all.begin(), all.end(),
                              [](const auto& row) { return row.wire_name != "qorin_system_control_sw_exit"; });
        return all;
    }();
    return rows;
}

#undef COMMAND

TEST(commands, are_known_to_the_simulated_box_with_the_same_arguments)
{
    const auto table = cbox_simulator::make_command_table();
    std::set<std::string> names;
    for (const auto& command : commands())
    {
        names.insert(command.wire_name);
        const auto* row = table.find(command.wire_name);
        if (row == nullptr)
        {
            ADD_FAILURE() << command.wire_name << " is not in the simulated box's table";
            continue;
        }
        std::vector<std::string> ours;
        std::vector<std::string> its;
        std::ranges::transform(command.types, std::back_inserter(ours), name_of);
        std::ranges::transform(row->arguments, std::back_inserter(its), name_of);
        EXPECT_EQ(ours, its) << command.wire_name;
    }
    for (const auto& row : table.rows())
        EXPECT_TRUE(names.contains(std::string(row.wire_name))) << row.wire_name << " is no command of the library";
}

/// The log of a control box, whose last line is there before the reply to its command.
class box_console
{
public:
    cbox_simulator::log_sink sink()
    {
        return [this](cbox_simulator::log_level, std::string_view line)
        {
            const std::lock_guard lock(mutex_);
            lines_.emplace_back(line);
        };
    }

    /// Whether a line with this has come since the last time.
    bool take(const std::string& text)
    {
        const std::lock_guard lock(mutex_);
        const bool found =
            std::ranges::any_of(lines_, [&](const std::string& line) { return line.find(text) != std::string::npos; });
        if (found)
            lines_.clear();
        return found;
    }

    std::string text()
    {
        const std::lock_guard lock(mutex_);
        return fmt::format("{}", fmt::join(lines_, "\n"));
    }

private:
    std::mutex mutex_;
    std::vector<std::string> lines_;
};

TEST(commands, arrive_with_every_argument_in_its_place)
{
    std::signal(SIGPIPE, SIG_IGN);
    box_console console;
    cbox_simulator::control_box_options options;
    options.address = test_support::own_address();
    options.log = console.sink();
    options.level = cbox_simulator::log_level::debug;
    cbox_simulator::control_box box(options);
    box.start();
    const test_support::installation place;
    unsigned int id = 0;
    ASSERT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_system_cbox_connect(place.config_path().c_str(), options.address.c_str(), &id));
    for (const auto& command : commands())
    {
        // Commands that need the control are refused without it, and the arguments are printed all the same; with it,
        // a robot that is not there is.
        const std::string arguments = command.call(id);
        EXPECT_TRUE(console.take(fmt::format(" {}({}): ", command.wire_name, arguments)))
            << command.wire_name << '(' << arguments << ") is not in:\n"
            << console.text();
    }
}
} // namespace
