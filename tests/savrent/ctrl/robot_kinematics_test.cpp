#include "savrent/ctrl/algorithm/robot_kinematics.h"

#include <cstdlib>
#include <set>

#include <gtest/gtest.h>

#include "api/qorin_enum_to_string.h"
#include "savrent/cc/shared_data_manager.h"
#include "savrent/cc/system_config_parser.h"
#include "tests/support/installation.h"
#include "tests/support/module_directory.h"

namespace
{
namespace fs = std::filesystem;
using savrent::cc::math::vector3;
using savrent::ctrl::algorithm::robot_kinematics;
using test_support::installation;
using test_support::module_record;
using test_support::put_module;

/// A module directory that the configuration names, and messages on standard output.
class robot_kinematics_search : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(place.config_path().c_str()));
        savrent::cc::qorin_init_enum_to_string();
        fs::create_directories(directory);
        (void)savrent::cc::get_system_data(); // its one report that there are none is no part of a search
    }

    /// What a search prints, with 1 or 0 in front: whether it found kinematics.
    std::string search(QORIN_ROBOT_MODEL model, const std::string& path = "./kin")
    {
        testing::internal::CaptureStdout();
        const bool loaded = robot_kinematics(model, path).is_loaded();
        return (loaded ? "1 " : "0 ") + testing::internal::GetCapturedStdout();
    }

    const installation place{"on"};
    const fs::path directory = place.directory() / "kin";
    const std::string path_line = "robot kinematics path: " + directory.string() + "\n";
    const std::string found_line = "robot kinematics module loaded successfully\n";
};

TEST_F(robot_kinematics_search, resolves_the_directory)
{
    put_module(QORIN_RECORDING_MODULE, directory, "a.so");
    fs::create_directories(place.directory() / "work");
    fs::current_path(place.directory() / "work");
    const std::string root = place.directory().string();
    const std::string work = root + "/work";
    // The path, what SAVRENT_V3 is (a null pointer: not set), and the directory that is searched.
    const struct
    {
        std::string path;
        const char* installation;
        std::string directory;
    } cases[] = {
        {"./kin", root.c_str(), root + "/kin"},
        {"./kin/", root.c_str(), root + "/kin"},
        {"../kin", work.c_str(), work + "/../kin"},
        {"", directory.c_str(), directory.string()},
        {directory.string(), "/nowhere", directory.string()},
        {directory.string() + "/", root.c_str(), directory.string() + "/"},
        {"../kin", nullptr, work + "/../kin"}, // "/../kin" does not exist
        {"./kin", "/nowhere", work + "/kin"},
        {"", nullptr, work},
        {"kin", root.c_str(), work + "kin"},
    };
    for (const auto& example : cases)
    {
        if (example.installation == nullptr)
            unsetenv("SAVRENT_V3");
        else
            setenv("SAVRENT_V3", example.installation, 1);
        const std::string printed = search(QORIN_ROBOT_MODEL_ARM_A, example.path);
        EXPECT_EQ(2u, printed.find("robot kinematics path: " + example.directory + "\n"))
            << example.path << " gave " << printed;
    }
    fs::current_path(place.directory());
    EXPECT_EQ("1 robot kinematics path: kin\n" + found_line, search(QORIN_ROBOT_MODEL_ARM_A, "kin"))
        << "a relative path that exists is taken as it stands";
    fs::current_path("/");
}

TEST_F(robot_kinematics_search, takes_candidates_by_their_names)
{
    const std::set<std::string> taken = {"a.so", "a.so1", "lib.x.so"};
    for (const char* name : {"a.so", "a.so1", "lib.x.so", "a.so.1", "a.so12", ".so", "a.dll", "so"})
    {
        const fs::path module = put_module(QORIN_RECORDING_MODULE, directory, name);
        EXPECT_EQ(taken.contains(name) ? '1' : '0', search(QORIN_ROBOT_MODEL_ARM_A)[0]) << name;
        fs::remove(module);
    }
}

TEST_F(robot_kinematics_search, asks_each_candidate_and_tells_the_module_the_wanted_model)
{
    module_record first(put_module(QORIN_RECORDING_MODULE, directory, "first.so"));
    module_record second(put_module(QORIN_SECOND_MODEL_MODULE, directory, "second.so"));
    EXPECT_EQ("1 " + path_line + found_line, search(QORIN_ROBOT_MODEL_OHT));
    EXPECT_EQ("", first.calls());
    EXPECT_EQ("create 1;model 1 401506;destroy 1;", second.calls());
    EXPECT_EQ("1 " + path_line + found_line, search(QORIN_ROBOT_MODEL_ARM_A));
    EXPECT_EQ("create 1;model 1 401510;destroy 1;", first.calls());
    EXPECT_EQ("", second.calls());
}

TEST_F(robot_kinematics_search, passes_over_a_module_with_more_joints_than_the_buffers_hold)
{
    module_record module(put_module(QORIN_RECORDING_MODULE, directory, "module.so"));
    setenv("RECORDING_MODULE_PRETENDS_JOINTS", "7", 1);
    EXPECT_EQ("0 " + path_line + "too many joints in kinematics module: " + (directory / "module.so").string() +
                  "\ncannot find robot kinematics module, model: QORIN_ROBOT_MODEL_ARM_A\n",
              search(QORIN_ROBOT_MODEL_ARM_A));
    unsetenv("RECORDING_MODULE_PRETENDS_JOINTS");
    EXPECT_EQ("", module.calls());
}

TEST_F(robot_kinematics_search, falls_back_for_models_that_need_no_module)
{
    EXPECT_EQ("1 " + path_line + "cannot find kinemaitcs module, set default kinematics. robot model: 401506\n",
              search(QORIN_ROBOT_MODEL_OHT));
    EXPECT_EQ("1 " + path_line + "cannot find kinemaitcs module, set default kinematics. robot model: 401508\n",
              search(QORIN_ROBOT_MODEL_AMR_B));
    EXPECT_EQ("0 " + path_line + "cannot find robot kinematics module, model: QORIN_ROBOT_MODEL_DONOT_USE_ARM_BELOW\n",
              search(QORIN_ROBOT_MODEL_DONOT_USE_ARM_BELOW));
    EXPECT_EQ("0 " + path_line + "cannot find robot kinematics module, model: QORIN_ROBOT_MODEL_ARM_B\n",
              search(QORIN_ROBOT_MODEL_ARM_B));
    EXPECT_EQ("0 " + path_line + "cannot find robot kinematics module, model: nullptr\n",
              search(static_cast<QORIN_ROBOT_MODEL>(401599)));
}

TEST_F(robot_kinematics_search, an_error_ends_it_for_every_model)
{
    const std::string failure = "cannot find robot kinematics module, model: ";
    const auto expect_error = [&](const std::string& diagnostic)
    {
        for (const QORIN_ROBOT_MODEL model : {QORIN_ROBOT_MODEL_OHT, QORIN_ROBOT_MODEL_ARM_A})
        {
            const std::string printed = search(model);
            EXPECT_EQ(0u, printed.find("0 ")) << printed;
            EXPECT_NE(std::string::npos, printed.find(diagnostic)) << printed;
            EXPECT_NE(std::string::npos, printed.find(failure)) << printed;
            EXPECT_EQ(std::string::npos, printed.find("kinematics load error")) << printed;
        }
    };
    const fs::path foreign = put_module(QORIN_FOREIGN_LIBRARY, directory, "foreign.so");
    expect_error("savrent_kinematics_get_num_of_models");
    fs::remove(foreign);
    test_support::write_file(directory / "text.so", "no shared object");
    expect_error("text.so");
    fs::remove_all(directory);
    expect_error("directory_iterator");
}

TEST_F(robot_kinematics_search, what_is_not_loaded_does_nothing)
{
    robot_kinematics arm(QORIN_ROBOT_MODEL_ARM_B, "./kin");
    ASSERT_FALSE(arm.is_loaded());
    double joints[6] = {7, 7, 7, 7, 7, 7};
    vector3 position(1, 2, 3);
    vector3 orientation(4, 5, 6);
    bool valid[8] = {true};
    arm.forward(joints, position, orientation);
    arm.inverse_all_solutions(position, orientation, joints, valid);
    arm.set_dh_parameter(joints, joints, joints, joints);
    EXPECT_TRUE(arm.inverse(position, orientation, joints, joints));
    EXPECT_TRUE(arm.inverse_from_posture(position, orientation, QORIN_ROBOT_POSTURE_REAR_ABOVE_FLIP, joints));
    EXPECT_THROW(arm.get_dh_parameter(joints, joints, joints, joints), std::bad_function_call);
    EXPECT_EQ(vector3(1, 2, 3), position);
    EXPECT_EQ(vector3(4, 5, 6), orientation);
    EXPECT_TRUE(valid[0]);
    for (const double joint : joints)
        EXPECT_EQ(7, joint);
}

TEST_F(robot_kinematics_search, hands_everything_to_the_module_in_arrays_of_its_joint_count)
{
    module_record record(put_module(QORIN_SECOND_MODEL_MODULE, directory, "module.so"));
    robot_kinematics arm(QORIN_ROBOT_MODEL_OHT, "./kin");
    ASSERT_TRUE(arm.is_loaded());
    EXPECT_EQ("create 1;model 1 401506;", record.calls());

    const double joints[] = {30, 31, 32};
    vector3 position;
    vector3 orientation;
    arm.forward(joints, position, orientation);
    EXPECT_EQ(vector3(30, 31, 32), position);
    EXPECT_EQ(vector3(300, 301, 302), orientation);
    EXPECT_EQ("forward 1 30,31,32;", record.calls());

    double found[4] = {0, 0, 0, -1};
    EXPECT_TRUE(arm.inverse({5, 6, 7}, {8, 9, 10}, joints, found));
    EXPECT_EQ("inverse 1 5,6,7 8,9,10 30,31,32;", record.calls());
    EXPECT_EQ((std::array{5., 6., 7., -1.}), std::to_array(found));
    EXPECT_FALSE(arm.inverse({-5, 6, 7}, {8, 9, 10}, joints, found)) << "2 is no success";
    EXPECT_EQ((std::array{5., 6., 7., -1.}), std::to_array(found));

    double solutions[25] = {};
    solutions[24] = -1;
    bool valid[8] = {true};
    arm.inverse_all_solutions({1, 2, 3}, {4, 5, 6}, solutions, valid);
    for (int i = 0; i < 24; ++i)
        EXPECT_EQ(i, solutions[i]);
    EXPECT_EQ(-1, solutions[24]);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(i != 0, valid[i]);
    record.calls();

    const double table[4][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}};
    arm.set_dh_parameter(table[0], table[1], table[2], table[3]);
    EXPECT_EQ("set_dh 1 1,2,3 4,5,6 7,8,9 10,11,12;", record.calls());
    double read[4][4] = {};
    arm.get_dh_parameter(read[0], read[1], read[2], read[3]);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ((std::array{table[i][0], table[i][1], table[i][2], 0.}), std::to_array(read[i]));
}

TEST_F(robot_kinematics_search, a_posture_travels_as_three_flags)
{
    module_record record(put_module(QORIN_SECOND_MODEL_MODULE, directory, "module.so"));
    robot_kinematics arm(QORIN_ROBOT_MODEL_ARM_B, "./kin");
    record.calls();
    double found[4] = {0, 0, 0, -1};
    const struct
    {
        QORIN_ROBOT_POSTURE posture;
        const char* flags;
    } cases[] = {{QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP, "000"},
                 {QORIN_ROBOT_POSTURE_FRONT_ABOVE_NONFLIP, "001"},
                 {QORIN_ROBOT_POSTURE_FRONT_BELOW_FLIP, "010"},
                 {QORIN_ROBOT_POSTURE_REAR_ABOVE_FLIP, "100"},
                 {QORIN_ROBOT_POSTURE_REAR_BELOW_NONFLIP, "111"}};
    for (const auto& example : cases)
    {
        EXPECT_TRUE(arm.inverse_from_posture({1, 2, 3}, {4, 5, 6}, example.posture, found));
        EXPECT_EQ(std::string("posture 1 1,2,3 4,5,6 ") + example.flags + ";", record.calls());
    }
    EXPECT_EQ((std::array{1., 2., 3., -1.}), std::to_array(found));

    testing::internal::CaptureStdout();
    EXPECT_FALSE(arm.inverse_from_posture({-1, 2, 3}, {4, 5, 6.5}, QORIN_ROBOT_POSTURE_FRONT_BELOW_NONFLIP, found));
    EXPECT_EQ("inverse from posture kinematics failure, pos(-1.000000, 2.000000, 3.000000), ort(4.000000, 5.000000, "
              "6.500000), posture: 402903\n",
              testing::internal::GetCapturedStdout());
    EXPECT_EQ((std::array{1., 2., 3., -1.}), std::to_array(found));
}

TEST_F(robot_kinematics_search, default_kinematics_are_a_linear_axis_of_the_joints_that_a_file_reported)
{
    put_module(QORIN_SECOND_MODEL_MODULE, directory, "module.so"); // asked in vain, reports three joints
    robot_kinematics axis(QORIN_ROBOT_MODEL_AMR_A, "./kin");
    ASSERT_TRUE(axis.is_loaded());
    double joints[4] = {30, 31, 32, 33};
    vector3 position(1, 1, 1);
    vector3 orientation(1, 1, 1);
    axis.forward(joints, position, orientation);
    EXPECT_EQ(vector3(30, 0, 0), position);
    EXPECT_EQ(vector3(0, 0, 0), orientation);
    EXPECT_TRUE(axis.inverse({40, 1, 1}, orientation, joints, joints));
    EXPECT_EQ(40, joints[0]);
    EXPECT_EQ(33, joints[3]);
    EXPECT_FALSE(axis.inverse_from_posture(position, orientation, QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP, joints));
    double solutions[24] = {};
    bool valid[8] = {true, true, true, true, true, true, true, true};
    axis.inverse_all_solutions(position, orientation, solutions, valid);
    EXPECT_FALSE(valid[0] || valid[7]);

    fs::remove(directory / "module.so");
    robot_kinematics no_joints(QORIN_ROBOT_MODEL_AMR_A, "./kin");
    EXPECT_TRUE(no_joints.inverse({50, 1, 1}, orientation, joints, joints));
    EXPECT_EQ(40, joints[0]) << "no joint is known, none is written";
}
} // namespace
