#ifndef SIMULATOR_MODEL_FIELDBUS_H
#define SIMULATOR_MODEL_FIELDBUS_H

#include "simulator/model/external_registers.h"
#include "simulator/model/fieldbus_services.h"
#include "simulator/model/local_modbus_area.h"
#include "simulator/model/modbus_clients.h"

namespace cbox_simulator
{
/// How the box speaks with others beside its own network. Belongs to the box: no system need stand, and clients that
/// leave take nothing of it with them. Owned by the model.
struct fieldbus
{
    local_modbus_area modbus_area;
    modbus_clients clients;
    fieldbus_services services;
    external_registers registers;
};
} // namespace cbox_simulator

#endif
