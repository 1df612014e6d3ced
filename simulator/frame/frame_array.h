#ifndef SIMULATOR_FRAME_FRAME_ARRAY_H
#define SIMULATOR_FRAME_FRAME_ARRAY_H

#include <array>
#include <cstddef>
#include <cstring>

namespace cbox_simulator
{
/// The fields of a frame are not aligned, so that no pointer to their elements may be had. The caller's field has the
/// array's type.
template <class Element, std::size_t count>
void put(void* field, const std::array<Element, count>& values)
{
    std::memcpy(field, values.data(), sizeof values);
}
} // namespace cbox_simulator

#endif
