#include "simulator/commands/families.h"

#include <string_view>

#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
// A system of one arm is what the plain creation stands for.
constexpr std::uint32_t single_robot = 1;

QORIN_API_RESULT create(box_model& model, client_id client, std::string_view, QORIN_CBOX_MODEL cbox_model)
{
    return model.create_system(client, {cbox_model, single_robot});
}

QORIN_API_RESULT create_for_several_robots(box_model& model, client_id client, std::string_view,
                                           QORIN_CBOX_MODEL cbox_model, std::uint32_t robot_capacity)
{
    return model.create_system(client, {cbox_model, robot_capacity});
}

QORIN_API_RESULT controllable_get(box_model& model, client_id client, QORIN_SWITCH& controllable)
{
    controllable = model.holds_control(client) ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
    return QORIN_API_RESULT_OK;
}

/// An operation of the model that needs to know nothing but who asks.
template <auto operation>
QORIN_API_RESULT ask(box_model& model, client_id client)
{
    return (model.*operation)(client);
}

constexpr command_row rows[] = {
    open_to_all<create>("qorin_gen_system_create"),
    open_to_all<create_for_several_robots>("qorin_gen_multi_robot_system_create"),
    open_to_all<ask<&box_model::destroy_system>>("qorin_system_destroy"),
    open_to_all<ask<&box_model::take_control>>("qorin_system_control_take"),
    open_to_all<ask<&box_model::release_control>>("qorin_system_control_release"),
    open_to_all<controllable_get>("qorin_system_controllable_get"),
    open_to_all<ask<&box_model::reset_system>>("qorin_system_reset"),
    open_to_all<ask<&box_model::request_exit>>("qorin_system_control_sw_exit"),
};
} // namespace

std::span<const command_row> system_commands()
{
    return rows;
}
} // namespace cbox_simulator
