#ifndef SIMULATOR_MODEL_BLOCK_H
#define SIMULATOR_MODEL_BLOCK_H

#include <array>

#include "protocol/rpc_record.h"

namespace cbox_simulator
{
/// A block of a request, which is full of elements however many the command uses.
template <class Element>
using block_of = std::array<Element, protocol::block_size / sizeof(Element)>;
} // namespace cbox_simulator

#endif
