#include "qorin/robot.h"

#include <cstdlib>
#include <cstring>
#include <functional>

#include <gtest/gtest.h>

#include "api/api_call_robot_internal_data.h"
#include "api/internal_robot_common.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"
#include "tests/support/module_directory.h"
#include "tests/support/robot_presence.h"

namespace
{
using qorin_api::api_call_robot_internal_data;
using test_support::connected_box;
using test_support::installation;
using test_support::module_record;
using test_support::put_module;
using test_support::reply_with;
using test_support::scripted_reply;

constexpr auto robot_id_invalid = QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;

/// The mirror of a control box, as its data thread writes it.
protocol::shared_data_t& mirror(const connected_box& box)
{
    return *qorin_api_rpc::get_cbox(box.id)->get_shared_data();
}

/// Robot `id` of a frame with tables that tell array, joint and robot: 100 * array + 10 * joint + offset.
void tell_of_robot(protocol::shared_data_t& frame, unsigned int id, unsigned int joints, int offset = 0)
{
    frame.robot_count = id + 1;
    frame.robots[id].number_of_joints = joints;
    for (int j = 0; j < 6; ++j)
    {
        protocol::joint_data_t& joint = frame.robots[id].joint[j];
        joint.dh_parameter_1 = 100 + 10 * j + offset;
        joint.dh_parameter_2 = 200 + 10 * j + offset;
        joint.dh_parameter_3 = 300 + 10 * j + offset;
        joint.dh_parameter_4 = 400 + 10 * j + offset;
    }
}

/// Logs, a module directory with a recording module, and a control box.
class robot : public testing::Test
{
protected:
    robot() { place.start_logging(); }

    QORIN_API_RESULT create(connected_box& at, std::uint32_t id_of_reply,
                            QORIN_ROBOT_MODEL model = QORIN_ROBOT_MODEL_ARM_A,
                            std::uint32_t result_of_reply = QORIN_API_RESULT_OK, std::function<void()> before = {})
    {
        scripted_reply reply = reply_with(result_of_reply);
        reply.record.value[0] = id_of_reply;
        reply.before = std::move(before);
        at.will_reply(std::move(reply));
        char text[128] = "text";
        unsigned int id[32] = {99};
        const QORIN_API_RESULT result = qorin_rpc_robot_create(at.id, model, text, 7, id);
        created_id = id[0];
        return result;
    }

    const installation place;
    module_record record{put_module(QORIN_RECORDING_MODULE, place.directory() / "kin", "module.so")};
    connected_box box;
    unsigned int created_id = 99;
};

TEST_F(robot, creation_asks_the_box_then_opens_the_module_and_hands_it_the_table_of_the_mirror)
{
    std::string before_reply = "?";
    std::vector<std::string> at_request;
    const auto at_the_request = [&]
    {
        before_reply = record.calls();
        at_request = place.calls();
        tell_of_robot(mirror(box), 1, 7);
    };
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 1, QORIN_ROBOT_MODEL_ARM_A, QORIN_API_RESULT_OK, at_the_request));
    EXPECT_EQ(1u, created_id);
    EXPECT_EQ("", before_reply);
    EXPECT_EQ(std::vector<std::string>{"qorin_rpc_robot_create(0, QORIN_ROBOT_MODEL_ARM_A, text, 7, &uint32_t_var);\n"},
              at_request);
    EXPECT_EQ("create 1;model 1 401510;set_dh 1 100,110,120,130,140,150 200,210,220,230,240,250 "
              "300,310,320,330,340,350 400,410,420,430,440,450;",
              record.calls());

    const protocol::request_record request = box.request(0);
    EXPECT_STREQ("qorin_robot_create", reinterpret_cast<const char*>(request.wire_name));
    EXPECT_EQ(401510u, request.value[0]);
    EXPECT_EQ(7u, request.value[1]);
    EXPECT_STREQ("text", reinterpret_cast<const char*>(request.block[0]));
    EXPECT_EQ(99, request.block[1][0]);
}

TEST_F(robot, creation_gives_a_frame_ten_milliseconds_and_leaves_joints_that_do_not_exist_zero)
{
    const auto begin = std::chrono::steady_clock::now();
    tell_of_robot(mirror(box), 0, 2);
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 0));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(10));
    EXPECT_EQ("create 1;model 1 401510;set_dh 1 100,110,0,0,0,0 200,210,0,0,0,0 300,310,0,0,0,0 400,410,0,0,0,0;",
              record.calls());
}

TEST_F(robot, creation_that_fails_leaves_no_record)
{
    EXPECT_EQ(QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED,
              create(box, 0, QORIN_ROBOT_MODEL_ARM_A, QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED));
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(0, nullptr));

    EXPECT_EQ(QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE, create(box, 0, QORIN_ROBOT_MODEL_ARM_D));
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(0, nullptr));
    EXPECT_EQ(2u, box.request_count()) << "nothing is undone on the control box";

    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
              qorin_rpc_robot_create(5, static_cast<QORIN_ROBOT_MODEL>(1), nullptr, 0, nullptr));
    EXPECT_EQ("qorin_rpc_robot_create(5, nullptr, nullptr, 0, nullptr);\n", place.calls().at(2));
    EXPECT_EQ("", record.calls());
}

TEST_F(robot, the_id_of_the_reply_counts_also_without_a_variable_for_it)
{
    scripted_reply reply = reply_with(QORIN_API_RESULT_OK);
    reply.record.value[0] = 1;
    box.will_reply(reply);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_create(box.id, QORIN_ROBOT_MODEL_ARM_A, nullptr, 0, nullptr));
    EXPECT_NE(nullptr, api_call_robot_internal_data::get_instance()->get(1));
    // An id that no frame has: the record stands, and every check refuses it.
    EXPECT_EQ(QORIN_API_RESULT_OK, create(box, 2));
    EXPECT_NE(nullptr, api_call_robot_internal_data::get_instance()->get(2));
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(2, nullptr));
}

TEST_F(robot, two_boxes_share_a_record_and_each_creation_writes_the_table)
{
    connected_box other(1);
    tell_of_robot(mirror(box), 0, 1, 1);
    tell_of_robot(mirror(other), 0, 1, 2);
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 0));
    const auto* const first = api_call_robot_internal_data::get_instance()->get(0)->kinematics.get();
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 0));
    // No module serves this model, but it is not asked for.
    ASSERT_EQ(QORIN_API_RESULT_OK, create(other, 0, QORIN_ROBOT_MODEL_ARM_D));
    EXPECT_EQ(first, api_call_robot_internal_data::get_instance()->get(0)->kinematics.get());
    const std::string table_1 = "set_dh 1 101,0,0,0,0,0 201,0,0,0,0,0 301,0,0,0,0,0 401,0,0,0,0,0;";
    const std::string table_2 = "set_dh 1 102,0,0,0,0,0 202,0,0,0,0,0 302,0,0,0,0,0 402,0,0,0,0,0;";
    EXPECT_EQ("create 1;model 1 401510;" + table_1 + table_1 + table_2, record.calls());
    EXPECT_EQ(3u, place.calls().size()) << "each call is logged anew";
}

TEST_F(robot, that_another_program_created_is_attached_from_the_mirror_alone)
{
    EXPECT_EQ(robot_id_invalid, qorin_robot_attach(1)) << "none stands there";
    tell_of_robot(mirror(box), 1, 2);
    mirror(box).robots[1].model_name = QORIN_ROBOT_MODEL_ARM_D;
    EXPECT_EQ(QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE, qorin_robot_attach(1));
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(1, nullptr));
    mirror(box).robots[1].model_name = QORIN_ROBOT_MODEL_ARM_A;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_robot_attach(1));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check(1, nullptr));
    EXPECT_EQ("create 1;model 1 401510;set_dh 1 100,110,0,0,0,0 200,210,0,0,0,0 300,310,0,0,0,0 400,410,0,0,0,0;",
              record.calls());
    EXPECT_EQ(robot_id_invalid, qorin_robot_attach(2));
    EXPECT_EQ(0u, box.request_count());
}

TEST_F(robot, destruction_closes_the_module_when_the_box_agrees)
{
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 1));
    record.calls();
    box.will_reply(reply_with(QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL, qorin_rpc_robot_destroy(box.id, 1));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check(1, nullptr));
    EXPECT_EQ("", record.calls());

    for (int i = 0; i < 2; ++i) // the second time without a record
    {
        box.will_reply(reply_with(QORIN_API_RESULT_OK));
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_destroy(box.id, 1));
    }
    EXPECT_EQ("destroy 1;", record.calls());
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(1, nullptr));
    EXPECT_STREQ("qorin_robot_destroy", reinterpret_cast<const char*>(box.request(1).wire_name));
    EXPECT_EQ(1u, box.request(1).value[0]);
    EXPECT_EQ("qorin_rpc_robot_destroy(0, 1);\n", place.calls().at(1));
}

TEST_F(robot, the_end_of_the_process_closes_modules_while_their_static_objects_live)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto end_with_a_robot = [&]
    {
        setenv("RECORDING_MODULE_PRINTS", "1", 1);
        (void)create(box, 0);
        box.end(); // an exit leaves no thread of the test behind
        std::exit(0);
    };
    EXPECT_EXIT(end_with_a_robot(), testing::ExitedWithCode(0), "set_dh 1 .*\ndestroy 1\n");
}

TEST_F(robot, a_table_goes_to_the_box_and_then_to_the_module)
{
    // The last array's first element is the number of a switch, which shows in the call line.
    const double table[4][16] = {{1, 2, 3, 4, 5, 6, 7}, {11}, {21}, {400100.5}};
    const auto set = [&](std::uint32_t result)
    {
        box.will_reply(reply_with(result));
        return qorin_rpc_robot_kinematics_dh_parameter_set(box.id, 0, 6, table[0], table[1], table[2], table[3]);
    };
    EXPECT_EQ(QORIN_API_RESULT_OK, set(QORIN_API_RESULT_OK)) << "without a record the box alone is told";
    ASSERT_EQ(QORIN_API_RESULT_OK, create(box, 0));
    record.calls();
    EXPECT_EQ(robot_id_invalid, set(robot_id_invalid));
    EXPECT_EQ("", record.calls());
    EXPECT_EQ(QORIN_API_RESULT_OK, set(QORIN_API_RESULT_OK));
    EXPECT_EQ("set_dh 1 1,2,3,4,5,6 11,0,0,0,0,0 21,0,0,0,0,0 400100,0,0,0,0,0;", record.calls());

    const protocol::request_record request = box.request(0);
    EXPECT_STREQ("qorin_robot_kinematics_dh_parameter_set", reinterpret_cast<const char*>(request.wire_name));
    EXPECT_EQ(0u, request.value[0]);
    EXPECT_EQ(6u, request.value[1]);
    EXPECT_EQ(0, std::memcmp(request.double_block, table, sizeof(table)));
    EXPECT_EQ("qorin_rpc_robot_kinematics_dh_parameter_set(0, 0, 6, nullptr, nullptr, nullptr, QORIN_SWITCH_ON);\n",
              place.calls().at(0));

    double read[4][6] = {};
    EXPECT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_robot_kinematics_dh_parameter_get(box.id, 0, 0, read[0], read[1], read[2], read[3]));
    EXPECT_EQ((std::array{1., 2., 3., 4., 5., 6.}), std::to_array(read[0]));
    EXPECT_EQ((std::array{400100.5, 0., 0., 0., 0., 0.}), std::to_array(read[3]));
    EXPECT_EQ(robot_id_invalid,
              qorin_rpc_robot_kinematics_dh_parameter_get(box.id, 1, 6, read[0], read[1], read[2], read[3]));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
              qorin_rpc_robot_kinematics_dh_parameter_get(box.id + 1, 0, 6, read[0], read[1], read[2], read[3]));
    EXPECT_EQ(4u, box.request_count());
}

TEST_F(robot, records_move_between_ids_with_their_module)
{
    const auto registry = api_call_robot_internal_data::get_instance();
    ASSERT_EQ(QORIN_API_RESULT_OK, registry->create(3, QORIN_ROBOT_MODEL_ARM_A));
    const auto* const kinematics = registry->get(3)->kinematics.get();
    registry->get(3)->reserved_5[11] = 1.5;
    // New id, old id, and where the record then is.
    const unsigned int moves[][3] = {{5, 3, 5}, {3, 5, 3}, {3, 3, 3}, {4, 6, 3}};
    for (const auto& [new_id, old_id, place_of_record] : moves)
    {
        registry->chage_id(new_id, old_id);
        for (unsigned int id = 3; id < 7; ++id)
            EXPECT_EQ(id == place_of_record, registry->get(id) != nullptr) << new_id << " " << old_id;
        EXPECT_EQ(kinematics, registry->get(place_of_record)->kinematics.get());
        EXPECT_EQ(1.5, registry->get(place_of_record)->reserved_5[11]);
    }
    ASSERT_EQ(QORIN_API_RESULT_OK, registry->create(1, QORIN_ROBOT_MODEL_ARM_A));
    registry->chage_id(1, 3);
    EXPECT_EQ(kinematics, registry->get(3)->kinematics.get()) << "the id is taken";
    EXPECT_EQ("create 1;model 1 401510;create 2;model 2 401510;", record.calls());
    registry->destroy(7);
    registry->destroy_all();
    EXPECT_EQ("destroy 2;destroy 1;", record.calls()) << "in the order of the ids";
}

TEST(robot_check, judges_the_record_before_the_mirror_and_the_joint_last)
{
    connected_box box;
    test_support::make_robot_present(0);
    test_support::make_robot_present(1);
    protocol::shared_data_t& frame = mirror(box);
    frame.robot_count = 5;
    frame.robots[0].number_of_joints = 4;
    frame.robots[1].number_of_joints = 6;
    const protocol::robot_data_t* data = nullptr;

    qorin_api_rpc::set_cur_cbox_id(box.id + 1); // no such box, hence no frame
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check(1, &data));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check_with_joint(1, 9, &data));
    EXPECT_EQ(nullptr, data);
    qorin_api_rpc::set_cur_cbox_id(box.id);

    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(2, &data));
    EXPECT_EQ(nullptr, data);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check(1, &data));
    EXPECT_EQ(&frame.robots[1], data);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check_with_joint(0, 3, &data));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE,
              qorin_internal_robot_common_check_with_joint(0, 4, &data));
    EXPECT_EQ(&frame.robots[0], data) << "already set";
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check_with_joint(2, 9, &data));

    frame.robot_count = 1;
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(1, &data));
    EXPECT_EQ(&frame.robots[0], data);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_internal_robot_common_check(1, nullptr)) << "the mirror is not looked at";
    api_call_robot_internal_data::get_instance()->destroy(0);
    EXPECT_EQ(robot_id_invalid, qorin_internal_robot_common_check(0, &data)) << "reported, but not created here";
}

TEST(robot_client_getters, answer_what_the_record_has)
{
    connected_box box;
    test_support::make_robot_present(1);
    const auto expect = [](QORIN_API_RESULT result, QORIN_SWITCH value, auto getter, unsigned int robot_id)
    {
        auto got = static_cast<QORIN_SWITCH>(0);
        EXPECT_EQ(result, getter(robot_id, &got));
        EXPECT_EQ(result == QORIN_API_RESULT_OK ? value : static_cast<QORIN_SWITCH>(0), got);
    };
    const struct
    {
        QORIN_API_RESULT (*getter)(unsigned int, QORIN_SWITCH*);
        QORIN_SWITCH value;
        QORIN_API_RESULT without_a_frame_of_it; ///< only two of them look at the mirror
    } cases[] = {{qorin_robot_motion_auto_adjust_swith_get, QORIN_SWITCH_OFF, QORIN_API_RESULT_OK},
                 {qorin_robot_ext_move_switch_get, QORIN_SWITCH_OFF, robot_id_invalid},
                 {qorin_robot_ext_move_stop_mode_get, QORIN_SWITCH_ON, robot_id_invalid},
                 {qorin_robot_dynamics_dry_run_state_get, QORIN_SWITCH_OFF, QORIN_API_RESULT_OK}};
    for (const auto& [getter, value, without_a_frame_of_it] : cases)
    {
        mirror(box).robot_count = 1;
        expect(without_a_frame_of_it, value, getter, 1);
        mirror(box).robot_count = 2;
        expect(QORIN_API_RESULT_OK, value, getter, 1);
        expect(robot_id_invalid, value, getter, 0);
    }
    const auto of_box = [&](unsigned int id, QORIN_SWITCH* out)
    { return qorin_rpc_robot_motion_auto_adjust_swith_get(id, 1, out); };
    expect(QORIN_API_RESULT_OK, QORIN_SWITCH_OFF, of_box, box.id);
    expect(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, QORIN_SWITCH_OFF, of_box, 9);

    double angle = 1.5; // recorded angles judge the robot and write nothing
    for (const unsigned int id : {0u, 1u, 2u})
        for (const QORIN_API_RESULT result : {qorin_robot_recording_angle_start_get(id, 3, 9, &angle),
                                              qorin_robot_recording_angle_end_get(id, 3, 9, &angle),
                                              qorin_robot_recording_angle_start_from_file_get(id, "file", 9, &angle),
                                              qorin_robot_recording_angle_end_from_file_get(id, "file", 9, &angle)})
            EXPECT_EQ(id == 1 ? QORIN_API_RESULT_OK : robot_id_invalid, result);
    EXPECT_EQ(1.5, angle);
}

TEST(robot_calls, without_support_or_use)
{
    EXPECT_EQ(QORIN_API_RESULT_ERROR_NO_SUPPORT, qorin_rpc_robot_info_initialze());
    EXPECT_EQ(65u, hashFunc("A"));
    EXPECT_EQ(0u, hashFunc(""));
    EXPECT_EQ(199u, hashFunc("\xC7"));
    EXPECT_EQ(256u, hashFunc("\xC8"));
    EXPECT_EQ(311u, hashFunc("\xFF"));
}
} // namespace
