#include "qorin/functions.hpp"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "qorin/qorin.hpp"
#include "simulator/control_box.h"
#include "tests/support/loopback.h"

namespace
{
struct answer
{
    QORIN_API_RESULT code = QORIN_API_RESULT_OK;
    std::string_view function;
};

template <class Value>
answer outcome(const qorin::result<Value>& result)
{
    return result ? answer{} : answer{result.error().code(), result.error().function()};
}

void callback(unsigned int, unsigned int, unsigned int, int, int, int, int, int) {}

struct row
{
    std::string_view function;
    std::string_view kind;
    answer (*call)(); ///< for a control box that is not connected
};
const row rows[] = {
#include "calls_of_all_functions.inc"
};

TEST(functions, all_of_the_table_are_there_and_reach_their_own)
{
    std::ifstream file(FUNCTION_TABLE);
    const std::string table{std::istreambuf_iterator<char>(file), {}};
    std::set<std::string_view> missing;
    const std::string_view mark = "\"name\": \"qorin_rpc_";
    for (std::size_t at = 0; (at = table.find(mark, at)) != std::string::npos; ++at)
        missing.insert(std::string_view(table).substr(at + 9, table.find('"', at + 9) - at - 9));
    std::erase_if(missing, [](std::string_view name) { return name.starts_with("qorin_rpc_internal_"); });
    EXPECT_EQ(missing.size(), 546u);
    for (const row& one : rows)
    {
        SCOPED_TRACE(one.function);
        EXPECT_EQ(missing.erase(one.function), 1u);
        const answer given = one.call();
        if (one.kind != "local" && given.code != QORIN_API_RESULT_ERROR_NO_SUPPORT)
        {
            EXPECT_EQ(given.code, QORIN_API_RESULT_ERROR_CBOX_ID_INVALID);
        }
        if (given.code != QORIN_API_RESULT_OK)
        {
            EXPECT_EQ(given.function, one.function);
        }
    }
    EXPECT_TRUE(missing.empty()) << *missing.begin();
}

TEST(functions, arrays_texts_and_several_values_come_as_they_are)
{
    const std::string address = test_support::own_address();
    cbox_simulator::control_box_options how;
    how.address = address;
    cbox_simulator::control_box simulated(how);
    simulated.start();
    qorin::options options;
    options.log_directory = std::filesystem::temp_directory_path() / ("qorin_functions_" + address);
    const auto box = qorin::cbox::connect(address, options).value();
    box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).value();
    const auto control = box.take_control().value();
    const auto robot = box.create_robot(QORIN_ROBOT_MODEL_ARM_C).value();

    const std::array<unsigned int, 3> channels{1, 4, 5};
    qorin::raw::cbox_io_digital_output_multiple_set(box.id(), channels, std::array{1u, 0u, 1u}).value();
    const auto refused = qorin::raw::cbox_io_digital_output_multiple_set(box.id(), channels, std::array{1u});
    EXPECT_EQ(refused.error().code(), QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE);
    const std::vector<unsigned int> many(33);
    EXPECT_FALSE(qorin::raw::cbox_io_digital_output_multiple_set(box.id(), many, many));

    const std::array<double, 6> at{0, 20, 60, 0, 100, 0};
    const auto pose =
        qorin::raw::robot_util_joint_angle_to_pose_convert(box.id(), robot.id(), QORIN_POSE_TYPE_FLANGE, at).value();
    const auto same = robot.pose_at({at}, QORIN_POSE_TYPE_FLANGE).value();
    EXPECT_EQ(pose.position, (std::array{same.x_mm, same.y_mm, same.z_mm}));
    EXPECT_EQ(pose.orientation, (std::array{same.rx_deg, same.ry_deg, same.rz_deg}));
    std::array<double, 5> x{}, y{}, z{};
    const std::array<double, 6> end{10, 20, 60, 0, 100, 0};
    qorin::raw::robot_util_position_trajectory_get(box.id(), robot.id(), 6, at, end, QORIN_POSE_TYPE_FLANGE, x, y, z)
        .value();
    EXPECT_NEAR(x[0], same.x_mm, 1e-9);
    EXPECT_NEAR(z[4], same.z_mm, 1e-6);
    EXPECT_FALSE(qorin::raw::robot_util_position_trajectory_get(box.id(), robot.id(), 6, at, end,
                                                                QORIN_POSE_TYPE_FLANGE, x, y, std::span(z).first(4)));

    const auto motion = robot.make(qorin::tcp_motion{.end = {{1, 2, 3}}}).value();
    motion.set_name("seam").value();
    EXPECT_EQ(qorin::raw::motion_command_name_get(box.id(), motion.id()).value(), "seam");
    const auto position = qorin::raw::motion_command_robot_tcp_position_end_get(box.id(), motion.id()).value();
    EXPECT_EQ(position.y, 2);
    EXPECT_EQ(position.z, 3);
    EXPECT_EQ(qorin::raw::system_api_version_get(box.id()).value(), qorin::header_version);
    std::filesystem::remove_all(options.log_directory);
}
} // namespace
