#include "simulator/system_commands.h"

namespace cbox_simulator
{
namespace
{
// A system of one arm is what the plain creation stands for.
constexpr std::uint32_t single_robot = 1;

QORIN_API_RESULT create(box_model& model, client_id client, request_reader& arguments, reply_writer&)
{
    [[maybe_unused]] const auto text = arguments.next_text();
    const auto cbox_model = arguments.next_enum<QORIN_CBOX_MODEL>();
    return model.create_system(client, {cbox_model, single_robot});
}

QORIN_API_RESULT create_for_several_robots(box_model& model, client_id client, request_reader& arguments, reply_writer&)
{
    [[maybe_unused]] const auto text = arguments.next_text();
    const auto cbox_model = arguments.next_enum<QORIN_CBOX_MODEL>();
    const auto robot_capacity = arguments.next_u32();
    return model.create_system(client, {cbox_model, robot_capacity});
}

QORIN_API_RESULT destroy(box_model& model, client_id client, request_reader&, reply_writer&)
{
    return model.destroy_system(client);
}

QORIN_API_RESULT control_take(box_model& model, client_id client, request_reader&, reply_writer&)
{
    return model.take_control(client);
}

QORIN_API_RESULT control_release(box_model& model, client_id client, request_reader&, reply_writer&)
{
    return model.release_control(client);
}

QORIN_API_RESULT controllable_get(box_model& model, client_id client, request_reader&, reply_writer& outputs)
{
    outputs.next_value(model.holds_control(client) ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT reset(box_model& model, client_id client, request_reader&, reply_writer&)
{
    return model.reset_system(client);
}

QORIN_API_RESULT control_sw_exit(box_model& model, client_id client, request_reader&, reply_writer&)
{
    return model.request_exit(client);
}

constexpr command_row rows[] = {
    {"qorin_gen_system_create", create},
    {"qorin_gen_multi_robot_system_create", create_for_several_robots},
    {"qorin_system_destroy", destroy},
    {"qorin_system_control_take", control_take},
    {"qorin_system_control_release", control_release},
    {"qorin_system_controllable_get", controllable_get},
    {"qorin_system_reset", reset},
    {"qorin_system_control_sw_exit", control_sw_exit},
};
} // namespace

std::span<const command_row> system_commands()
{
    return rows;
}
} // namespace cbox_simulator
