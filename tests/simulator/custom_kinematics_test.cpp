// The gantry of the guide's page on kinematics modules, built from that page and driven by the simulated box.
#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/simulator/robot_commander.h"

namespace
{
using cbox_simulator::arm_catalogue;

/// A directory with files in it, away at the end.
struct module_directory
{
    explicit module_directory(const std::vector<std::filesystem::path>& files)
    {
        std::filesystem::create_directory(path);
        for (const auto& file : files)
            std::filesystem::copy_file(file, path / file.filename());
    }
    ~module_directory() { std::filesystem::remove_all(path); }

    std::filesystem::path path = std::filesystem::temp_directory_path() / ("modules_" + std::to_string(getpid()));
};

arm_catalogue with_gantry()
{
    const module_directory directory({GANTRY_MODULE});
    arm_catalogue catalogue;
    catalogue.add_modules(directory.path);
    return catalogue;
}

struct gantry_box : robot_commander
{
    gantry_box() : robot_commander(with_gantry()) {}
};

TEST_F(gantry_box, moves_a_robot_of_its_users_own)
{
    destroy(0);
    EXPECT_EQ(create(401501), 100000u);
    model.robots().set_servo(0, QORIN_SWITCH_ON);
    EXPECT_EQ(field<std::uint32_t>(2608 + 12), 401501u);
    EXPECT_EQ(field<std::uint32_t>(2608 + 4), 3u) << "joints";
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {1}}), 103000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 3}, {500}, {}, {{250, -20, 30}}}), 100000u);
    come_to_rest();
    EXPECT_EQ(pose(), (std::array<double, 6>{250, -20, 30, 0, 0, 0}));
    EXPECT_EQ(result("just_robot_tcp_move", {{0}, {500, 100, 200, 300, 0, 0, 0}}), 100000u);
    come_to_rest();
    for (std::size_t joint = 0; joint < 3; ++joint)
        EXPECT_EQ(angle(joint), 100.0 * static_cast<double>(joint + 1));
    EXPECT_EQ(result("just_robot_tcp_move", {{0}, {1, 100, 200, 300, 10, 0, 0}}), 104010u) << "it cannot turn";
    EXPECT_EQ(result("robot_jog_joint", {{0, 3, 400400}, {1, 1}}), 103001u);
    EXPECT_EQ(result("just_robot_joint_move", {{1, 6}, {1}, {}, {{5, 0, 90, 0, 90, 0}}}), 100000u)
        << "the arms of the box are still there";
}

TEST(arm_catalogue, refuses_a_directory_that_holds_anything_else_with_one_line)
{
    const auto line_for = [](const std::filesystem::path& path)
    {
        try
        {
            arm_catalogue().add_modules(path);
        }
        catch (const std::invalid_argument& error)
        {
            return std::string(error.what());
        }
        return std::string();
    };
    EXPECT_NE(line_for("/no/such/directory").find("/no/such/directory: No such file"), std::string::npos);
    {
        const module_directory empty({});
        EXPECT_NE(line_for(empty.path).find("there is no kinematics module"), std::string::npos);
        std::ofstream(empty.path / "text.so") << "text";
        EXPECT_NE(line_for(empty.path).find("text.so is no kinematics module: "), std::string::npos);
    }
    const module_directory foreign({FOREIGN_LIBRARY});
    EXPECT_NE(line_for(foreign.path).find("it has no function savrent_kinematics_"), std::string::npos);
}
} // namespace
