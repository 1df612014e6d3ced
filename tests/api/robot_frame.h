#ifndef TESTS_API_ROBOT_FRAME_H
#define TESTS_API_ROBOT_FRAME_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "api/internal_shared_data.h"
#include "qorin/qorin_api_rpc_client.h"
#include "rpc/cbox_registry.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/robot_presence.h"

/// What the tests of robot getters share: a frame whose places are known by number, and calls of any signature.
namespace robot_frame
{
using bytes = std::vector<unsigned char>;

// Distances of the frame, counted by hand and not taken from its structs.
inline constexpr std::size_t frame_size = 29728;
inline constexpr std::size_t robot_count_at = 36;
inline constexpr std::size_t control_cycle_at = 336;
inline constexpr std::size_t number_of_joints_at = 4; // in the robot
inline constexpr std::size_t tool_module_at = 8;

inline std::size_t robot_at(unsigned int robot)
{
    return 2608 + 4728 * robot;
}

inline std::size_t joint_at(unsigned int robot, std::size_t joint)
{
    return robot_at(robot) + 1896 + 472 * joint;
}

/// Drives and tools are dealt out so that none has the number of its joint or robot.
inline unsigned int drive_of(unsigned int robot, unsigned int joint)
{
    return (5 * (6 * robot + joint) + 3) % 12;
}

inline unsigned char* mirror()
{
    return reinterpret_cast<unsigned char*>(qorin_internal_get_shared_data_for_write());
}

/// What stands in the mirror; beyond its end there are zeroes.
inline bytes bytes_at(std::size_t offset, std::size_t count)
{
    bytes got(count);
    if (offset < frame_size && count > 0)
        std::memcpy(got.data(), mirror() + offset, std::min(count, frame_size - offset));
    return got;
}

template <class Value>
void put(std::size_t offset, Value value)
{
    std::memcpy(mirror() + offset, &value, sizeof value);
}

template <class Value>
Value get(std::size_t offset)
{
    Value value;
    std::memcpy(&value, bytes_at(offset, sizeof value).data(), sizeof value);
    return value;
}

inline std::size_t drive_at(unsigned int robot, unsigned int joint)
{
    return 16492 + std::size_t{376} * get<std::uint32_t>(joint_at(robot, joint));
}

inline std::size_t tool_at(unsigned int robot)
{
    return 20940 + std::size_t{216} * get<std::uint32_t>(robot_at(robot) + tool_module_at);
}

/// A connected control box whose mirror is full of words that all differ, and of which each pair is a proper double.
class robot_getters : public testing::Test
{
protected:
    robot_getters()
    {
        qorin_api_rpc::set_cur_cbox_id(box.id);
        for (unsigned int offset = 0; offset < frame_size; offset += 4)
            put(offset, 0x40000000U | ((offset / 4 + 1) * 0x9E3779U & 0xFFFFFFU));
        put(robot_count_at, 2U);
        for (unsigned int robot = 0; robot < 2; ++robot)
        {
            put(robot_at(robot) + number_of_joints_at, 6U);
            put(robot_at(robot) + tool_module_at, 1 - robot);
            for (unsigned int joint = 0; joint < 6; ++joint)
                put(joint_at(robot, joint), drive_of(robot, joint));
        }
    }

    static void make_robots_present()
    {
        test_support::make_robot_present(0);
        test_support::make_robot_present(1);
    }

    test_support::connected_box box;
};

struct answer
{
    QORIN_API_RESULT result;
    std::vector<bytes> outputs; ///< each as wide as its type, in order
    bool touched;               ///< an output has changed
};

/// Calls a getter of any signature; the parameters that are not outputs come from `inputs`.
template <class... Params>
answer call(QORIN_API_RESULT (*getter)(Params...), const std::vector<unsigned int>& inputs)
{
    std::array<std::array<unsigned char, 8>, sizeof...(Params)> slots;
    std::array<std::size_t, sizeof...(Params)> widths = {};
    for (auto& slot : slots)
        slot.fill(0xA5);
    const auto untouched = slots;

    std::size_t position = 0;
    std::size_t input = 0;
    const auto argument = [&]<class Param>(Param*) -> Param
    {
        const std::size_t at = position++;
        if constexpr (std::is_pointer_v<Param>)
        {
            widths[at] = sizeof(std::remove_pointer_t<Param>);
            return reinterpret_cast<Param>(slots[at].data());
        }
        else
            return static_cast<Param>(inputs.at(input++));
    };
    std::tuple<Params...> arguments{argument(static_cast<Params*>(nullptr))...};
    answer got = {std::apply(getter, arguments), {}, slots != untouched};
    for (std::size_t i = 0; i < sizeof...(Params); ++i)
        if (widths[i] != 0)
            got.outputs.emplace_back(slots[i].begin(), slots[i].begin() + static_cast<std::ptrdiff_t>(widths[i]));
    return got;
}

/// An output of a call that answered OK.
template <class Value>
Value value_of(const answer& got, std::size_t output = 0)
{
    EXPECT_EQ(QORIN_API_RESULT_OK, got.result);
    EXPECT_EQ(sizeof(Value), got.outputs.at(output).size());
    Value value;
    std::memcpy(&value, got.outputs[output].data(), sizeof value);
    return value;
}

inline void expect_refused(QORIN_API_RESULT result, const answer& got, const std::string& name)
{
    EXPECT_EQ(result, got.result) << name;
    EXPECT_FALSE(got.touched) << name;
}
} // namespace robot_frame

#endif
