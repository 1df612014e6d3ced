#ifndef TESTS_SIMULATOR_COMMANDED_BOX_H
#define TESTS_SIMULATOR_COMMANDED_BOX_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "simulator/commands/command_table.h"
#include "simulator/frame/frame_renderer.h"
#include "tests/simulator/raw_client.h"

/// What one command carries beside its name. Texts and arrays of numbers fill the blocks, points the double blocks.
struct carried
{
    std::vector<std::uint32_t> values{};
    std::vector<double> reals{};
    std::vector<std::string> blocks{};
    std::vector<std::vector<double>> points{};
};

inline protocol::request_record request(const std::string& name, const carried& what = {})
{
    auto record = raw::request("qorin_" + name);
    std::memcpy(record.value, what.values.data(), what.values.size() * sizeof(std::uint32_t));
    std::memcpy(record.real, what.reals.data(), what.reals.size() * sizeof(double));
    for (std::size_t i = 0; i < what.blocks.size(); ++i)
        std::memcpy(record.block[i], what.blocks[i].data(), std::min<std::size_t>(what.blocks[i].size(), 128));
    for (std::size_t i = 0; i < what.points.size(); ++i)
        std::memcpy(record.double_block[i], what.points[i].data(), what.points[i].size() * sizeof(double));
    return record;
}

template <class Element>
std::string block(const std::vector<Element>& elements)
{
    return {reinterpret_cast<const char*>(elements.data()), elements.size() * sizeof(Element)};
}

template <class Value>
std::string bytes_of(Value value)
{
    return block(std::vector{value});
}

/// A box whose commands are called as a link would, with a system for two robots in the control of client 1.
struct commanded_box
{
    explicit commanded_box(std::uint32_t capacity = 2, cbox_simulator::arm_catalogue arms = {})
        : model("version", 1000, std::move(arms))
    {
        model.create_system(1, {QORIN_CBOX_MODEL_3GEN_SIM, capacity});
        model.take_control(1);
    }

    protocol::reply_record call(const protocol::request_record& request, cbox_simulator::client_id client = 1)
    {
        protocol::reply_record reply;
        cbox_simulator::request_reader arguments(request);
        cbox_simulator::reply_writer outputs(reply);
        outputs.result(commands.find(arguments.wire_name())->handler(model, client, arguments, outputs));
        return reply;
    }

    protocol::reply_record ask(const std::string& name, const carried& what = {}) { return call(request(name, what)); }
    std::uint32_t result(const std::string& name, const carried& what = {}) { return ask(name, what).result; }
    std::uint32_t create(std::uint32_t robot_model) { return result("robot_create", {{robot_model}}); }
    std::uint32_t destroy(std::uint32_t id) { return result("robot_destroy", {{id}}); }

    /// Whether an operation leaves all of the frame as it is but these bytes.
    template <class Operation>
    bool changes_only(std::size_t offset, const std::string& bytes, Operation&& operate)
    {
        auto expected = frame();
        std::ranges::copy(bytes, expected.begin() + static_cast<std::ptrdiff_t>(offset));
        operate();
        return frame() == expected;
    }

    std::array<unsigned char, 29728> frame() const { return field<std::array<unsigned char, 29728>>(0); }

    template <class Value>
    Value field(std::size_t offset) const
    {
        protocol::shared_data_t frame;
        cbox_simulator::render_frame(model, frame);
        Value value;
        std::memcpy(&value, reinterpret_cast<const unsigned char*>(&frame) + offset, sizeof value);
        return value;
    }

    cbox_simulator::box_model model;
    cbox_simulator::command_table commands = cbox_simulator::make_command_table();
};

#endif
