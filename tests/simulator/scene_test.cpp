#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "simulator/frame/frame_renderer.h"
#include "simulator/frame/measurement_noise.h"
#include "simulator/scene/control_line.h"
#include "simulator/scene/scene.h"
#include "tests/support/loopback.h"

namespace
{
using boost::asio::ip::tcp;
using cbox_simulator::answer_control_line;
using cbox_simulator::box_model;

const std::string example = EXAMPLE_SCENES "/welding_cell.toml";

class scene_test : public testing::Test
{
protected:
    void TearDown() override { std::filesystem::remove_all(directory); }

    static std::string made_directory()
    {
        const auto path = std::filesystem::temp_directory_path() / ("scene_test_" + std::to_string(getpid()));
        std::filesystem::create_directories(path);
        return path.string();
    }

    std::string written(const std::string& text) const
    {
        std::ofstream(file) << text;
        return file;
    }

    std::string directory = made_directory();
    std::string file = directory + "/cell.toml";
};

std::string frame_of(const box_model& model)
{
    protocol::shared_data_t frame;
    cbox_simulator::render_frame(model, frame);
    return {reinterpret_cast<const char*>(&frame), sizeof frame};
}

TEST_F(scene_test, the_example_makes_a_cell_that_is_the_same_after_saving_and_loading)
{
    box_model first("version", 1000);
    load_scene(first, example);
    ASSERT_TRUE(first.robots().exists(1));
    EXPECT_EQ(first.robots().find(0)->tcp_from_flange()[2], 145);
    EXPECT_EQ(first.robots().find(0)->planes().find(0)->constant, -20);
    EXPECT_EQ(first.robots().find(1)->settings().reduced_mode.joint_speed, 20);
    EXPECT_EQ(first.world().get("part_present").front(), 1);
    EXPECT_EQ(first.cbox().safety_inputs()[0].pairs().size(), 1);
    first.cbox().set_digital_output(0, 2, 1);
    first.run_cycle();
    EXPECT_EQ(first.world().get("gripper_closed").front(), 1);
    first.cbox().set_digital_output(0, 2, 0);
    first.run_cycle();

    // What else can differ from a new box, and numbers that are not short.
    first.world().set("force_torque 1", std::vector{0.1, -1.0 / 3, 1e-9, 0.0, 0.0, 12345.678});
    first.world().set("drive_temperature 0 3", std::vector{0.0});
    first.world().set("input_integer 63", std::vector{4294967295.0});
    auto& robot = *first.robots().find(1);
    first.robots().find(0)->settings().safety_joints[2].angle_max = 100.1;
    robot.tcp_shape() = {QORIN_BOUNDING_SHAPE_CONE, QORIN_REF_COORDINATE_TCP, {0.1, 0, 0, 0, 0, 1, 20, 1.0 / 3}};
    robot.settings().switches.bounding_shape = QORIN_SWITCH_ON;
    robot.settings().switches.collision_mitigation = QORIN_SWITCH_ON;
    robot.settings().collision.tcp_force[4] = 7.5;
    robot.settings().reduced_mode.collision_joint_torque[5] = 3;
    auto& memory = first.user_memory();
    const auto keep = [&](const std::string& name, auto member, auto value, QORIN_USER_DATA_TYPE type)
    {
        cbox_simulator::user_value kept;
        kept.type = type;
        kept.*member = value;
        memory.set(name, kept);
    };
    keep("whole", &cbox_simulator::user_value::real, -3.0, QORIN_USER_DATA_TYPE_DOUBLE);
    keep("a \"name\"\n", &cbox_simulator::user_value::text, "text \\ \x01", QORIN_USER_DATA_TYPE_STRING);
    keep("count", &cbox_simulator::user_value::integer, -7, QORIN_USER_DATA_TYPE_INT);
    keep("long", &cbox_simulator::user_value::long_integer, 8, QORIN_USER_DATA_TYPE_LONGLONG);
    keep("flag", &cbox_simulator::user_value::character, char{1}, QORIN_USER_DATA_TYPE_BOOL);
    first.files()["weld.rec"] = {QORIN_ROBOT_MODEL_ARM_B, {{1, 2, 3, 4, 5, 1.0 / 3}, {}}};
    save_scene(first, file);
    box_model second("version", 1000);
    load_scene(second, file);
    EXPECT_EQ(scene_of(second), scene_of(first));
    EXPECT_EQ(frame_of(second), frame_of(first));
    EXPECT_EQ(second.world().get("drive_temperature 0 3").front(), 0);
    EXPECT_EQ(second.robots().find(1)->tcp_shape()->values, robot.tcp_shape()->values);
    EXPECT_EQ(second.user_memory().find("a \"name\"\n")->text, "text \\ \x01");
    EXPECT_EQ(second.user_memory().find("whole")->type, QORIN_USER_DATA_TYPE_DOUBLE);
    EXPECT_EQ(second.user_memory().find("long")->long_integer, 8);
    EXPECT_EQ(second.files().at("weld.rec").content, first.files().at("weld.rec").content);
    keep("bad", &cbox_simulator::user_value::text, "\xff", QORIN_USER_DATA_TYPE_STRING);
    EXPECT_THROW(save_scene(first, file), std::invalid_argument);
}

TEST_F(scene_test, a_bad_file_is_told_of_with_line_and_key)
{
    const std::string system = "[system]\nmodel = \"3GEN_SIM\"\nrobots = 1\n";
    const std::string robot = system + "[[robot]]\nmodel = \"ARM_A\"\n";
    const struct
    {
        std::string text;
        std::string where;
        std::string why;
    } cases[] = {
        {"[system\n", ":1: ", ""},
        {"\n\nsystems = 1\n", ":3: systems: ", "is none of system, robot"},
        {"system = 3\n", ":1: system: ", "no table"},
        {"[system]\nmodel = \"4GEN\"\nrobots = 1\n", ":2: system.model: ", "none of EMPTY, EMPTY_SIM, 3GEN"},
        {"[system]\nmodel = \"3GEN\"\n", ":1: system.robots: ", "missing"},
        {"[system]\nmodel = \"3GEN\"\nrobots = 3\n", ":3: system.robots: ", "cannot be"},
        {"[system]\nmodel = \"3GEN\"\nrobots = 1.5\n", ":3: system.robots: ", "is no number"},
        {"[[robot]]\nmodel = \"ARM_A\"\n", ":1: robot: ", "needs a [system]"},
        {"[robot]\nmodel = \"ARM_A\"\n", ":1: robot: ", "[[robot]]"},
        {robot + "[[robot]]\nmodel = \"ARM_A\"\n", ":7: robot.model: ", "cannot be"},
        {robot + "jionts = [1]\n", ":6: robot.jionts: ", "none of model"},
        {robot + "joints = [1, 2]\n", ":6: robot.joints: ", "takes 6 numbers, not 2"},
        {robot + "joints = [1, 2, 3, 4, 5, \"6\"]\n", ":6: robot.joints: ", "no finite number"},
        {robot + "joints = [1, 2, 3, 4, 5, nan]\n", ":6: robot.joints: ", "no finite number"},
        {robot + "joints = [0, 0, 9999, 0, 0, 0]\n", ":6: robot.joints: ", "cannot be"},
        {robot + "payload = [-1, 0, 0, 0]\n", ":6: robot.payload: ", "cannot be"},
        {robot + "planes = [[0, 0, 0, 20]]\n", ":6: robot.planes: ", "cannot be"},
        {robot + "collision_torques = [1, 2, 3, 4, 5, -6]\n", ":6: robot.collision_torques: ", "cannot be"},
        {robot + "tcp_shape = { shape = \"BOX\", coordinate = \"BASE\", values = [1, 2] }\n",
         ":6: robot.tcp_shape.values: ", "takes 24 numbers"},
        {robot + "tcp_shape = { shape = \"SPHERE\", coordinate = \"TCP\", values = [1, 2, 3, 0] }\n",
         ":6: robot.tcp_shape.values: ", "cannot be"},
        {"[[redundant]]\nterminals = \"inputs\"\nmodule = 0\nchannels = [1, 1]\nfunction = \"REDUCED_MODE\"\n",
         ":4: redundant.channels: ", "cannot be"},
        {"[[redundant]]\nterminals = \"inputs\"\nmodule = 0\nchannels = [1, 2]\nfunction = \"LAUGH\"\n",
         ":5: redundant.function: ", "none of EMERGENCY_STOP"},
        {"[inputs]\n\"digital_input 0 3\" = 1\n\"digital_input 0 16\" = 1\n", ":3: inputs.", "is no point"},
        {"[inputs]\n\"digital_input 0 3\" = \"on\"\n", ":2: inputs.", "no finite number"},
        {"[names]\nx = \"nothing 1\"\n", ":2: names.", "no kind of point"},
        {"[memory]\nx = 3000000000\n", ":2: memory.", "32 bits"},
        {"[memory]\nx = { short = 3 }\n", ":2: memory.", "none of long"},
        {"[[recording]]\nfile = \"a\"\nmodel = \"ARM_A\"\nentries = [[1, 2]]\n",
         ":4: recording.entries: ", "takes 6 numbers"},
        {"[[recording]]\nfile = \"\"\nmodel = \"ARM_A\"\nentries = [[1, 2, 3, 4, 5, 6]]\n",
         ":1: recording.file: ", "is empty"},
        {"[wires]\n\"digital_input 0 1\" = \"analog_output 0 1\"\n", ":2: wires.", "does not carry"},
    };
    for (const auto& [text, where, why] : cases)
    {
        box_model model("version", 1000);
        try
        {
            load_scene(model, written(text));
            ADD_FAILURE() << "taken: " << text;
        }
        catch (const std::invalid_argument& error)
        {
            const std::string line = error.what();
            EXPECT_TRUE(line.starts_with(file + where)) << line << "\ninstead of " << where;
            EXPECT_NE(line.find(why), std::string::npos) << line;
            EXPECT_EQ(line.find('\n'), std::string::npos) << line;
        }
    }
    box_model model("version", 1000);
    EXPECT_THROW(load_scene(model, directory + "/none.toml"), std::invalid_argument);
    EXPECT_THROW(load_scene(model, directory), std::invalid_argument);
    EXPECT_THROW(save_scene(model, directory + "/none/cell.toml"), std::invalid_argument);
}

TEST_F(scene_test, control_lines)
{
    box_model model("version", 1000);
    load_scene(model, example);
    const struct
    {
        std::string line;
        std::string answer;
    } cases[] = {
        {"set digital_input 0 4 = 1", "ok"},
        {"  set  digital_input 0 7=1\r", "ok"},
        {"get digital_input 0 4", "ok 1"},
        {"set part_present = 0", "ok"},
        {"get digital_input 0 3", "ok 0"},
        {"set rs485_rx = 0x02 255 0", "ok"},
        {"set force_torque 0 = 1 -2.5 3e1 0 0 0", "ok"},
        {"get force_torque 0", "ok 1 -2.5 30 0 0 0"},
        {"name door = safety_input 2", "ok"},
        {"set door = 1", "ok"},
        {"wire digital_input 1 0 = digital_output 1 0", "ok"},
        {"unwire digital_input 1 0", "ok"},
        {"save " + file, "ok"},
        {"set digital_input 0 4 1", "error: a = is missing"},
        {"set digital_input 0 4 =", "error: digital_input 0 4 takes 0 or 1"},
        {"set digital_input 0 4 = one", "error: \"one\" is no number"},
        {"set digital_input 0 4 = 0x", "error: \"0x\" is no number"},
        {"set analog_input 0 1 = inf", "error: analog_input 0 1 takes a finite number"},
        {"get", "error: a point is missing"},
        {"save", "error: the name of a file is missing"},
        {"", "error: \"\" is none of set, get, name, wire, unwire, save, points"},
        {"explode \x01", "error: \"explode\" is none of set, get, name, wire, unwire, save, points"},
    };
    for (const auto& [line, answer] : cases)
        EXPECT_EQ(answer_control_line(model, line), answer) << line;
    EXPECT_NE(answer_control_line(model, "points").find("encoder_rate number(0-1)"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(file));
}

/// Talks to the channel of a box.
struct channel
{
    explicit channel(const std::string& address) { socket.connect({boost::asio::ip::make_address(address), 7701}); }

    std::string ask(const std::string& text)
    {
        boost::asio::write(socket, boost::asio::buffer(text));
        return answer();
    }

    std::string answer()
    {
        boost::system::error_code ended;
        const auto size = boost::asio::read_until(socket, boost::asio::dynamic_buffer(received), '\n', ended);
        const auto line = ended ? "the end" : received.substr(0, size - 1);
        received.erase(0, size);
        return line;
    }

    boost::asio::io_context io;
    tcp::socket socket{io};
    std::string received;
};

TEST(control_channel, answers_lines_in_their_order_and_ends_what_goes_too_far)
{
    const auto address = test_support::own_address();
    cbox_simulator::control_box box({.address = address, .scene = example, .control_port = std::uint16_t{7701}});
    box.start();
    channel first(address);
    EXPECT_EQ(first.ask("set digital_input 0 4 = 1\nget digital_input 0 4\nnonsense\n"), "ok");
    EXPECT_EQ(first.answer(), "ok 1");
    EXPECT_TRUE(first.answer().starts_with("error: "));
    box.with_model([](box_model& model) { EXPECT_EQ(model.cbox().all_io_modules()[0].digital_input >> 4 & 1u, 1u); });

    // A wire carries without anybody asking further.
    EXPECT_EQ(first.ask("get gripper_closed\n"), "ok 0");
    box.with_model([](box_model& model) { model.cbox().set_digital_output(0, 2, 1); });
    std::string seen;
    for (int i = 0; i < 1000 && seen != "ok 1"; ++i)
        seen = first.ask("get gripper_closed\n");
    EXPECT_EQ(seen, "ok 1");

    channel long_winded(address);
    EXPECT_TRUE(long_winded.ask(std::string(2000, 'x')).starts_with("error: a line has at most"));
    EXPECT_EQ(long_winded.answer(), "the end");
    std::vector<std::unique_ptr<channel>> others;
    while (others.size() < 7)
    {
        others.push_back(std::make_unique<channel>(address));
        ASSERT_EQ(others.back()->ask("get part_present\n"), "ok 1");
    }
    channel one_too_many(address);
    EXPECT_TRUE(one_too_many.answer().starts_with("error: there are 8"));
    box.stop();
    EXPECT_EQ(first.answer(), "the end");
}

TEST(measurement_noise, is_the_same_with_the_same_seed_and_none_at_level_0)
{
    box_model model("version", 1000);
    load_scene(model, example);
    const auto exact = frame_of(model);
    const auto noisy = [&](double level, std::uint64_t seed)
    {
        cbox_simulator::measurement_noise noise(level, seed);
        protocol::shared_data_t frame;
        std::string frames;
        for (int i = 0; i < 2; ++i)
        {
            cbox_simulator::render_frame(model, frame);
            noise.put_on(frame);
            EXPECT_NEAR(frame.robots[0].joint[2].angle_actual, 90, 0.0005 * level);
            frames.append(reinterpret_cast<const char*>(&frame), sizeof frame);
        }
        return frames;
    };
    EXPECT_EQ(noisy(0, 1), exact + exact);
    EXPECT_EQ(noisy(1, 7), noisy(1, 7));
    EXPECT_NE(noisy(1, 7), noisy(1, 8));
    const auto two = noisy(1, 7);
    EXPECT_NE(two.substr(0, exact.size()), two.substr(exact.size())) << "no two frames are alike";
}
} // namespace
