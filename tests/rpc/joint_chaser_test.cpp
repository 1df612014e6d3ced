#include "qorin/robot_joint_chaser.h"

#include <chrono>
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "qorin/robot_status.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/datagram_receiver.h"
#include "tests/support/installation.h"
#include "tests/support/robot_presence.h"

namespace
{
using test_support::connected_box;
using test_support::datagram_receiver;
using test_support::own_address;
using test_support::reply_with;
using bytes = std::vector<unsigned char>;
using namespace std::chrono_literals;

constexpr double targets[6] = {1, -2, 3.5, 0, 0.25, 100};

bytes datagram(unsigned char command, const double (&joints)[6])
{
    bytes result(56);
    result[0] = command;
    std::memcpy(&result[8], joints, sizeof joints);
    return result;
}
const bytes move = datagram(2, targets);
const bytes stop = datagram(3, {0, 0, 0, 0, 0, 0});

/// Robots 0 and 1 at 0 degrees and at rest, with their streams led to this process.
class joint_chaser : public testing::Test
{
protected:
    joint_chaser()
    {
        test_support::make_robot_present(0);
        test_support::make_robot_present(1);
        place.start_logging();
        for (unsigned int id = 0; id < 2; ++id)
        {
            frame.robots[id].number_of_joints = 6;
            show(id, QORIN_SWITCH_ON, QORIN_MOVING_STATE_IDLE);
            EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_chaser_ip_set(box.id, id, own_address().c_str()));
        }
        frame.robot_count = 2;
    }

    void show(unsigned int id, QORIN_SWITCH chaser, QORIN_MOVING_STATE moving)
    {
        frame.robots[id].joint_chaser_state = chaser;
        frame.robots[id].state_moving = moving;
    }

    const test_support::installation place;
    connected_box box;
    protocol::shared_data_t& frame = *qorin_api_rpc::get_cbox(box.id)->get_shared_data();
    datagram_receiver port_0{own_address(), 50001};
    datagram_receiver port_1{own_address(), 50002};
};

TEST_F(joint_chaser, a_move_is_one_datagram_at_the_port_of_the_robot_and_nothing_else)
{
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_chaser_move(box.id, 0, 6, targets));
    EXPECT_EQ((std::vector<bytes>{move}), port_0.take());
    EXPECT_TRUE(port_1.take().empty());
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_internal_robot_joint_chaser_move(box.id, 1, 1, targets));
    EXPECT_EQ((std::vector<bytes>{move}), port_1.take()) << "six targets, whatever the count is";
    EXPECT_EQ(0u, box.request_count());
    const std::string line = "qorin_rpc_robot_joint_chaser_ip_set(0, ";
    EXPECT_EQ((std::vector<std::string>{line + "0, " + own_address() + ");\n", line + "1, " + own_address() + ");\n"}),
              place.calls())
        << "a move writes no line";
}

TEST_F(joint_chaser, the_address_counts_at_the_first_use_only)
{
    datagram_receiver elsewhere(own_address(1), 50001);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_chaser_ip_set(box.id, 0, own_address(1).c_str()));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_chaser_move(box.id, 0, 6, targets));
    EXPECT_TRUE(elsewhere.take().empty());
    EXPECT_EQ(1u, port_0.take().size());

    // A stream is that of a control box and a robot, whether or not the control box is known, and its port wraps.
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_internal_robot_joint_chaser_ip_set(7, 65536, own_address(1).c_str()));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
              qorin_rpc_internal_robot_joint_chaser_switch_set(7, 65536, QORIN_SWITCH_OFF));
    EXPECT_EQ((std::vector<bytes>{stop}), elsewhere.take());
}

TEST_F(joint_chaser, a_move_is_judged_by_joints_then_switch_then_motion)
{
    const double nan = std::nan("");
    struct row
    {
        const char* what;
        unsigned int robot;
        unsigned int count;
        double last_target;
        QORIN_SWITCH chaser;
        QORIN_MOVING_STATE moving;
        unsigned int result;
        bool ends_the_stream;
    };
    const auto on = QORIN_SWITCH_ON;
    const auto off = QORIN_SWITCH_OFF;
    const row rows[] = {
        {"exactly 100 degrees away", 0, 6, -100.0, on, QORIN_MOVING_STATE_STOPPED, 100000, false},
        {"no number passes", 0, 6, nan, on, QORIN_MOVING_STATE_IDLE, 100000, false},
        {"a jump", 0, 6, 100.5, on, QORIN_MOVING_STATE_IDLE, 103002, true},
        {"a jump, more joints than there are", 0, 4000000000u, 100.5, off, QORIN_MOVING_STATE_IDLE, 103002, false},
        {"more joints than there are", 0, 4000000000u, 1, on, QORIN_MOVING_STATE_IDLE, 100000, false},
        {"a jump of a joint that is not counted", 0, 5, 100.5, on, QORIN_MOVING_STATE_IDLE, 100000, false},
        {"off", 0, 6, 1, off, QORIN_MOVING_STATE_MOVING, 104008, false},
        {"off, and no joints", 0, 0, 101, off, QORIN_MOVING_STATE_IDLE, 104008, false},
        {"another motion", 0, 0, 101, on, QORIN_MOVING_STATE_PAUSED, 102034, true},
        {"no such robot", 2, 1, 1, on, QORIN_MOVING_STATE_IDLE, 102000, false},
        {"no such robot, and no joints", 2, 0, 1, on, QORIN_MOVING_STATE_IDLE, 104008, false},
    };
    for (const row& r : rows)
    {
        SCOPED_TRACE(r.what);
        show(0, r.chaser, r.moving);
        const double joints[6] = {0, 0, 0, 0, 0, r.last_target};
        const std::size_t requests = box.request_count();
        if (r.ends_the_stream)
            box.will_reply(reply_with(QORIN_API_RESULT_OK));
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(r.result, qorin_rpc_robot_joint_chaser_move(box.id, r.robot, r.count, joints));

        std::vector<bytes> expected;
        if (r.ends_the_stream)
            expected = {stop};
        else if (r.result == QORIN_API_RESULT_OK)
            expected = {datagram(2, joints)};
        EXPECT_EQ(expected, port_0.take());
        ASSERT_EQ(requests + (r.ends_the_stream ? 1 : 0), box.request_count());
        if (r.ends_the_stream)
        {
            EXPECT_GE(std::chrono::steady_clock::now() - begin, 1100ms);
            EXPECT_EQ("qorin_rpc_robot_joint_chaser_state_set(0, 0, QORIN_SWITCH_OFF);\n", place.calls().back());
        }
    }
    EXPECT_EQ(103002u, qorin_rpc_robot_joint_chaser_move(box.id, 0, 6, nullptr));
    EXPECT_EQ(101000u, qorin_rpc_robot_joint_chaser_move(9, 0, 6, targets));
}

TEST_F(joint_chaser, switching_on_needs_a_robot_at_rest_and_switching_off_does_not)
{
    struct row
    {
        unsigned int robot;
        QORIN_SWITCH value;
        QORIN_MOVING_STATE moving;
        unsigned int answer; ///< of the control box; 0 when it is not asked
        unsigned int result;
        std::chrono::milliseconds least_time;
    };
    const row rows[] = {
        {1, QORIN_SWITCH_ON, QORIN_MOVING_STATE_IDLE, 100000, 100000, 100ms},
        {1, QORIN_SWITCH_ON, QORIN_MOVING_STATE_STOPPED, 102034, 102034, 100ms},
        {1, QORIN_SWITCH_ON, QORIN_MOVING_STATE_PAUSING, 0, 102034, 0ms},
        {2, QORIN_SWITCH_ON, QORIN_MOVING_STATE_IDLE, 0, 102034, 0ms},
        {1, QORIN_SWITCH_OFF, QORIN_MOVING_STATE_MOVING, 100003, 100003, 1100ms},
    };
    (void)qorin_rpc_robot_joint_chaser_ip_set(box.id, 2, own_address().c_str());
    for (const row& r : rows)
    {
        SCOPED_TRACE(&r - rows);
        show(1, QORIN_SWITCH_OFF, r.moving);
        if (r.answer != 0)
            box.will_reply(reply_with(r.answer));
        const std::size_t requests = box.request_count();
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(r.result, qorin_rpc_robot_joint_chaser_switch_set(box.id, r.robot, r.value));
        EXPECT_GE(std::chrono::steady_clock::now() - begin, r.least_time);
        EXPECT_EQ(r.value == QORIN_SWITCH_OFF ? std::vector<bytes>{stop} : std::vector<bytes>{}, port_1.take());
        ASSERT_EQ(requests + (r.answer != 0 ? 1 : 0), box.request_count());
        if (r.answer == 0)
            continue;
        const protocol::request_record request = box.request(requests);
        EXPECT_STREQ("qorin_robot_joint_chaser_state_set", request.wire_name);
        EXPECT_EQ(1u, request.value[0]);
        EXPECT_EQ(static_cast<unsigned int>(r.value), request.value[1]);
    }
    QORIN_SWITCH state = QORIN_SWITCH_ON;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_chaser_switch_get(box.id, 1, &state));
    EXPECT_EQ(QORIN_SWITCH_OFF, state);
}
} // namespace
