#ifndef SIMULATOR_COMMANDS_PART_OPERATION_H
#define SIMULATOR_COMMANDS_PART_OPERATION_H

#include <type_traits>

#include "simulator/model/box_model.h"

/// Makes a command's function from an operation of a part of the box, whose parameters are what the command carries.
namespace cbox_simulator
{
template <class Part>
[[nodiscard]] Part& part_of(box_model& model)
{
    if constexpr (std::is_base_of_v<Part, cbox_state>)
        return model.cbox();
    else if constexpr (std::is_same_v<Part, local_modbus_area>)
        return model.fieldbuses().modbus_area;
    else if constexpr (std::is_same_v<Part, modbus_clients>)
        return model.fieldbuses().clients;
    else if constexpr (std::is_same_v<Part, fieldbus_services>)
        return model.fieldbuses().services;
    else if constexpr (std::is_same_v<Part, user_memory>)
        return model.user_memory();
    else
    {
        static_assert(std::is_same_v<Part, service_data>);
        return model.service_data();
    }
}

template <auto operation, class Operation = decltype(operation)>
struct part_operation;

template <auto operation, class Part, class... Parameters>
struct part_operation<operation, QORIN_API_RESULT (Part::*)(Parameters...)>
{
    static QORIN_API_RESULT perform(box_model& model, Parameters... parameters)
    {
        return (part_of<Part>(model).*operation)(parameters...);
    }
};

template <auto operation, class Part, class... Parameters>
struct part_operation<operation, QORIN_API_RESULT (Part::*)(Parameters...) const>
{
    static QORIN_API_RESULT perform(box_model& model, Parameters... parameters)
    {
        return (part_of<Part>(model).*operation)(parameters...);
    }
};

template <auto operation>
inline constexpr auto on_part = &part_operation<operation>::perform;
} // namespace cbox_simulator

#endif
