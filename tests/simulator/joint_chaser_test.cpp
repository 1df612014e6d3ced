#include "simulator/links/joint_chaser.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "simulator/model/stream_sources.h"
#include "tests/simulator/raw_client.h"
#include "tests/simulator/robot_commander.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::robot_state;
using joint_array = robot_state::joint_array;

const auto& first_arm = savrent::kinematics::arm_models()[0];

TEST(joint_follow, comes_to_its_targets_within_speed_acceleration_and_range)
{
    robot_state robot(first_arm);
    joint_array targets = robot.joint_angles();
    targets[0] -= 170;
    targets[1] -= 1;
    targets[2] += 1000;
    cbox_simulator::chaser_source chaser(targets);
    double fastest = 0;
    for (int cycle = 0; cycle < 3000; ++cycle)
    {
        robot.command(*chaser.advance({0.001, 0.001}, robot), 0.001);
        for (std::size_t joint = 0; joint < targets.size(); ++joint)
        {
            ASSERT_LE(std::abs(robot.commanded().speeds[joint]), first_arm.joints[joint].speed_max + 1e-6);
            ASSERT_LE(std::abs(robot.commanded().accelerations[joint]), first_arm.joints[joint].acceleration_max * 1.1);
        }
        fastest = std::max(fastest, -robot.commanded().speeds[0]);
    }
    EXPECT_NEAR(fastest, first_arm.joints[0].speed_max, 1e-6) << "as fast as it can";
    targets[2] = first_arm.joints[2].angle_max;
    EXPECT_EQ(targets, robot.joint_angles());
    EXPECT_TRUE(robot.rests());
    robot_state put_there(first_arm);
    ASSERT_EQ(QORIN_API_RESULT_OK, put_there.set_joint_angles(targets));
    EXPECT_EQ(put_there.tcp_pose(), robot.tcp_pose());
}

using chasing_arms = robot_commander;

TEST_F(chasing_arms, come_to_rest_where_they_are_by_a_stop_or_by_switching_off)
{
    const joint_array targets = {40, 40, 40, 40, 40, 40};
    for (const std::uint32_t id : {0u, 1u})
    {
        const bool by_switch = id == 0;
        const auto& robot = *model.robots().find(id);
        EXPECT_FALSE(model.chase(id, targets)) << "the chaser is off";
        EXPECT_EQ(result("robot_joint_chaser_state_set", {{id, 400100}}), 100000u);
        EXPECT_FALSE(model.chase(id, {0, 0, 0, 0, 0, std::numeric_limits<double>::quiet_NaN()}));
        ASSERT_TRUE(model.chase(id, targets));
        pass(0.02);
        const joint_array there = robot.joint_angles();
        if (by_switch)
            EXPECT_EQ(result("robot_joint_chaser_state_set", {{id, 400101}}), 100000u);
        else
            EXPECT_TRUE(model.motion_of(robot).stop_chasing());
        pass(1);
        EXPECT_TRUE(robot.rests());
        EXPECT_GT(robot.joint_angles()[0], there[0]) << "not in an instant";
        EXPECT_LT(robot.joint_angles()[0], 39);
        EXPECT_EQ(robot.moving_state(), QORIN_MOVING_STATE_IDLE);
        EXPECT_EQ(!by_switch, model.chase(id, there)) << "after a stop the stream may go on";
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
        EXPECT_EQ(QORIN_API_RESULT_OK, client->result_of("qorin_gen_system_create", QORIN_CBOX_MODEL_3GEN_SIM));
        EXPECT_EQ(QORIN_API_RESULT_OK, client->result_of("qorin_system_control_take"));
        EXPECT_EQ(QORIN_API_RESULT_OK, client->result_of("qorin_robot_create", first_arm.model));
        box.with_model([](auto& model) { model.robots().set_servo(0, QORIN_SWITCH_ON); });
    }
    ~chaser_port() override { close(socket_); }

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
    std::string address = test_support::own_address();
    cbox_simulator::control_box box{{address}};
    std::optional<raw::client> client;

private:
    int socket_ = socket(AF_INET, SOCK_DGRAM, 0);
};

TEST_F(chaser_port, a_robot_that_is_switched_on_follows_its_stream_and_all_else_is_ignored)
{
    const joint_array targets = {10, 0, 90, 0, 90, 0};
    send(50001, 2, targets);
    EXPECT_TRUE(counted(0, 1)) << "the chaser is off";

    ASSERT_EQ(100000u, client->call(request("robot_joint_chaser_state_set", {{0, QORIN_SWITCH_ON}})).result);
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
