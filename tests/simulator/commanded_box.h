#ifndef TESTS_SIMULATOR_COMMANDED_BOX_H
#define TESTS_SIMULATOR_COMMANDED_BOX_H

#include <cstdint>
#include <cstring>

#include "simulator/commands/command_table.h"
#include "simulator/frame/frame_renderer.h"
#include "tests/simulator/raw_client.h"

/// A box whose commands are called as a link would, with a system for two robots in the control of client 1.
struct commanded_box
{
    explicit commanded_box(std::uint32_t capacity = 2)
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

    std::uint32_t create(std::uint32_t robot_model)
    {
        return call(raw::request("qorin_robot_create", robot_model)).result;
    }
    std::uint32_t destroy(std::uint32_t id) { return call(raw::request("qorin_robot_destroy", id)).result; }

    template <class Value>
    Value field(std::size_t offset) const
    {
        protocol::shared_data_t frame;
        cbox_simulator::render_frame(model, frame);
        Value value;
        std::memcpy(&value, reinterpret_cast<const unsigned char*>(&frame) + offset, sizeof value);
        return value;
    }

    cbox_simulator::box_model model{"version", 1000};
    cbox_simulator::command_table commands = cbox_simulator::make_command_table();
};

#endif
