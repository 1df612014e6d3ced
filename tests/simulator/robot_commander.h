#ifndef TESTS_SIMULATOR_ROBOT_COMMANDER_H
#define TESTS_SIMULATOR_ROBOT_COMMANDER_H

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/commanded_box.h"

/// What one command carries beside its name. The points fill the double blocks.
struct carried
{
    std::vector<std::uint32_t> values{};
    std::vector<double> reals{};
    std::string text{};
    std::vector<std::vector<double>> points{};
};

/// A box with two robots of the smallest arm that are ready to move: wrist at x 253, z 459, flange 76 below it.
struct robot_commander : testing::Test, commanded_box
{
    robot_commander()
    {
        for (std::uint32_t id = 0; id < 2; ++id)
        {
            create(401510);
            model.robots().set_servo(id, QORIN_SWITCH_ON);
        }
        static_cast<void>(model.events().take());
    }

    protocol::reply_record ask(const std::string& name, const carried& what = {})
    {
        auto request = raw::request("qorin_" + name);
        std::memcpy(request.value, what.values.data(), what.values.size() * sizeof(std::uint32_t));
        std::memcpy(request.real, what.reals.data(), what.reals.size() * sizeof(double));
        std::memcpy(request.block[0], what.text.data(), what.text.size());
        for (std::size_t i = 0; i < what.points.size(); ++i)
            std::memcpy(request.double_block[i], what.points[i].data(), what.points[i].size() * sizeof(double));
        return call(request);
    }

    std::uint32_t result(const std::string& name, const carried& what = {}) { return ask(name, what).result; }

    std::array<double, 6> pose() const { return field<std::array<double, 6>>(2608 + 320); }
    double angle(std::size_t joint) const { return field<double>(2608 + 1896 + 472 * joint + 56); }
};

#endif
