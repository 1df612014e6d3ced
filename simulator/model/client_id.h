#ifndef SIMULATOR_MODEL_CLIENT_ID_H
#define SIMULATOR_MODEL_CLIENT_ID_H

#include <cstdint>

namespace cbox_simulator
{
/// Numbers clients from 1 in the order of their first link. Never reused within a box's life.
using client_id = std::uint64_t;
} // namespace cbox_simulator

#endif
