#include "simulator/links/joint_chaser.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "tests/simulator/raw_client.h"

namespace
{
using cbox_simulator::robot_state;
using joint_array = robot_state::joint_array;

const auto& first_arm = savrent::kinematics::arm_models()[0];

TEST(joint_follow, covers_a_share_of_the_way_each_cycle_within_speed_and_range)
{
    robot_state robot(first_arm);
    const joint_array start = robot.joint_angles();
    joint_array targets = start;
    targets[0] += 1;
    targets[1] -= 100;
    targets[2] += 1000;
    EXPECT_FALSE(robot.chase(targets)) << "the chaser is off";
    robot.run_cycle(0.001);
    EXPECT_EQ(start, robot.joint_angles());

    EXPECT_EQ(QORIN_API_RESULT_OK, robot.set_joint_chaser(QORIN_SWITCH_ON));
    ASSERT_TRUE(robot.chase(targets));
    targets[2] = first_arm.joints[2].angle_max;
    EXPECT_EQ(targets, robot.commanded().joints);
    EXPECT_EQ(start, robot.joint_angles());
    robot.run_cycle(0.001);
    EXPECT_NEAR(robot.joint_angles()[0] - start[0], 1 - std::exp(-0.05), 1e-12);
    EXPECT_NEAR(robot.joint_speeds()[0], 1000 * (1 - std::exp(-0.05)), 1e-9);
    EXPECT_NEAR(robot.joint_angles()[1] - start[1], -first_arm.joints[1].speed_max / 1000, 1e-12);
    EXPECT_EQ(robot.joint_angles()[3], start[3]);

    const joint_array no_number = {0, 0, 0, 0, 0, std::numeric_limits<double>::quiet_NaN()};
    EXPECT_FALSE(robot.chase(no_number));
    for (int cycle = 0; cycle < 2000; ++cycle)
        robot.run_cycle(0.001);
    EXPECT_EQ(targets, robot.joint_angles());
    EXPECT_EQ(joint_array{}, robot.joint_speeds());
    robot_state put_there(first_arm);
    ASSERT_EQ(QORIN_API_RESULT_OK, put_there.set_joint_angles(targets));
    EXPECT_EQ(put_there.tcp_pose(), robot.tcp_pose());
    EXPECT_EQ(put_there.tcp_pose(), robot.commanded().tcp);
}

TEST(joint_follow, a_stop_or_switching_off_leaves_the_arm_where_it_is)
{
    for (const bool by_switch : {false, true})
    {
        robot_state robot(first_arm);
        EXPECT_FALSE(robot.stop_chasing());
        (void)robot.set_joint_chaser(QORIN_SWITCH_ON);
        ASSERT_TRUE(robot.chase({40, 40, 40, 40, 40, 40}));
        robot.run_cycle(0.01);
        const joint_array there = robot.joint_angles();
        if (by_switch)
            EXPECT_EQ(QORIN_API_RESULT_OK, robot.set_joint_chaser(QORIN_SWITCH_OFF));
        else
            EXPECT_TRUE(robot.stop_chasing());
        robot.run_cycle(0.01);
        EXPECT_EQ(there, robot.joint_angles());
        EXPECT_EQ(there, robot.commanded().joints);
        EXPECT_EQ(robot.flange_pose(), robot.commanded().flange);
        EXPECT_EQ(joint_array{}, robot.joint_speeds());
        EXPECT_EQ(!by_switch, robot.chase(there)) << "after a stop the stream may go on";
    }
}

/// A running box with one robot, and a client in control.
class chaser_port : public testing::Test
{
protected:
    chaser_port()
    {
        box.start();
        client.emplace(address);
        auto system = raw::request("qorin_gen_system_create", QORIN_CBOX_MODEL_3GEN_SIM);
        EXPECT_EQ(QORIN_API_RESULT_OK, client->call(system).result);
        EXPECT_EQ(QORIN_API_RESULT_OK, client->result_of("qorin_system_control_take"));
        EXPECT_EQ(QORIN_API_RESULT_OK, client->result_of("qorin_robot_create", first_arm.model));
    }
    ~chaser_port() override { close(socket_); }

    std::uint32_t set_state(std::uint32_t robot, std::uint32_t value)
    {
        auto request = raw::request("qorin_robot_joint_chaser_state_set", robot);
        request.value[1] = value;
        return client->call(request).result;
    }

    void send(std::uint16_t port, std::uint64_t command, const joint_array& targets, std::size_t size = 56)
    {
        unsigned char bytes[64] = {};
        std::memcpy(bytes, &command, sizeof command);
        std::memcpy(bytes + 8, targets.data(), sizeof targets);
        const auto to = raw::endpoint(address, port);
        EXPECT_EQ(static_cast<ssize_t>(size),
                  sendto(socket_, bytes, size, 0, reinterpret_cast<const sockaddr*>(&to), sizeof to));
    }

    /// Whether the frames come to tell a value at a place.
    template <class Value>
    bool frame_tells(std::size_t offset, Value wanted)
    {
        return raw::comes_true(
            [&]
            {
                protocol::shared_data_t frame;
                Value value{};
                if (client->data.receive(frame))
                    std::memcpy(&value, reinterpret_cast<const unsigned char*>(&frame) + offset, sizeof value);
                return value == wanted;
            });
    }

    bool counted(std::uint64_t taken, std::uint64_t ignored)
    {
        return raw::comes_true(
            [&] { return box.counters().chaser_taken == taken && box.counters().chaser_ignored == ignored; });
    }

    static constexpr std::size_t record = 2608;
    static constexpr std::size_t joint_1 = record + 1896;
    std::string address = raw::loopback_address();
    cbox_simulator::control_box box{{address}};
    std::optional<raw::client> client;

private:
    int socket_ = socket(AF_INET, SOCK_DGRAM, 0);
};

TEST_F(chaser_port, the_command_judges_control_robot_switch_and_motion)
{
    raw::client other(address, "127.0.0.2");
    auto request = raw::request("qorin_robot_joint_chaser_state_set", 0);
    request.value[1] = QORIN_SWITCH_ON;
    EXPECT_EQ(100003u, other.call(request).result);
    EXPECT_EQ(102000u, set_state(1, QORIN_SWITCH_ON));
    EXPECT_EQ(102007u, set_state(0, 1));
    const auto move = [&](QORIN_MOVING_STATE state)
    { box.with_model([&](auto& model) { model.robots().find(0)->set_moving_state(state); }); };
    move(QORIN_MOVING_STATE_PAUSED);
    EXPECT_TRUE(frame_tells(record + 76, 400903u));
    EXPECT_EQ(102034u, set_state(0, QORIN_SWITCH_ON));
    EXPECT_TRUE(frame_tells(record + 56, 400101u));
    move(QORIN_MOVING_STATE_STOPPED);
    EXPECT_EQ(100000u, set_state(0, QORIN_SWITCH_ON));
    EXPECT_TRUE(frame_tells(record + 56, 400100u));
    move(QORIN_MOVING_STATE_MOVING);
    EXPECT_EQ(100000u, set_state(0, QORIN_SWITCH_OFF));
    EXPECT_TRUE(frame_tells(record + 56, 400101u));
}

TEST_F(chaser_port, a_robot_that_is_switched_on_follows_its_stream_and_all_else_is_ignored)
{
    const joint_array targets = {10, 0, 90, 0, 90, 0};
    send(50001, 2, targets);
    EXPECT_TRUE(counted(0, 1)) << "the chaser is off";

    ASSERT_EQ(100000u, set_state(0, QORIN_SWITCH_ON));
    send(50002, 2, targets);
    send(50001, 1, targets);
    send(50001, 2, targets, 55);
    send(50001, 2, targets, 57);
    send(50001, 2, {std::numeric_limits<double>::infinity()});
    send(50001, 3, targets, 0);
    EXPECT_TRUE(counted(0, 7));
    EXPECT_TRUE(frame_tells(joint_1 + 16, 0.0)) << "nothing is commanded";

    send(50001, 2, targets);
    EXPECT_TRUE(frame_tells(joint_1 + 16, 10.0));
    EXPECT_TRUE(frame_tells(joint_1 + 56, 10.0));
    EXPECT_TRUE(frame_tells(record + 76, 400900u)) << "following is no motion that ends a stream";
    send(50001, 3, {});
    EXPECT_TRUE(counted(2, 7));
    EXPECT_TRUE(frame_tells(record + 56, 400100u)) << "a stop leaves the chaser on";
}

TEST_F(chaser_port, a_port_that_is_taken_stops_the_start_and_is_free_after_the_end)
{
    box.stop();
    const int taken = socket(AF_INET, SOCK_DGRAM, 0);
    const auto port = raw::endpoint(address, 50002);
    ASSERT_EQ(0, bind(taken, reinterpret_cast<const sockaddr*>(&port), sizeof port));
    EXPECT_THROW(box.start(), std::system_error);
    close(taken);
    EXPECT_NO_THROW(box.start());
}
} // namespace
