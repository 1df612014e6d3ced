// Creates a robot and prints its joints, poses, limits and tool state as tables.
//
//   robot_status ADDRESS CONFIG [MODEL]
//
// MODEL is the number of an arm model, 401510 to 401518. The configuration's `client.kinematics_path` names the
// directory of the kinematics modules.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <qorin/qorin_api_rpc_client.h>

namespace
{
/// Commands read 128 bytes from each text, array and output, so these stand in buffers of that size.
const char text[128] = "robot status example";

bool is_ok(const char* step, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        std::fprintf(stderr, "%s: %u %s\n", step, static_cast<unsigned int>(result),
                     qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/// Makes whatever stands ahead of a robot: the system and the control.
bool take_control(unsigned int cbox_id)
{
    const QORIN_API_RESULT created = qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM);
    return (created == QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED || is_ok("create system", created)) &&
           is_ok("take control", qorin_rpc_system_control_take(cbox_id));
}

void print_joints(unsigned int cbox_id, unsigned int robot_id)
{
    unsigned int joints = 0;
    qorin_rpc_robot_number_of_joints_get(cbox_id, robot_id, &joints);
    std::printf("\n%-6s %10s %10s %21s %10s %10s %8s\n", "joint", "angle", "speed", "range", "speed max", "acc max",
                "drive");
    std::printf("%-6s %10s %10s %21s %10s %10s %8s\n", "", "deg", "deg/s", "deg", "deg/s", "deg/s^2", "degC");
    for (unsigned int joint = 0; joint < joints; ++joint)
    {
        double angle = 0;
        double speed = 0;
        double low = 0;
        double high = 0;
        double speed_max = 0;
        double acc_max = 0;
        double temperature = 0;
        qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, joint, &angle);
        qorin_rpc_robot_joint_speed_actual_get(cbox_id, robot_id, joint, &speed);
        qorin_rpc_robot_spec_joint_angle_get(cbox_id, robot_id, joint, &low, &high);
        qorin_rpc_robot_spec_joint_speed_max_get(cbox_id, robot_id, joint, &speed_max);
        qorin_rpc_robot_spec_joint_acc_max_get(cbox_id, robot_id, joint, &acc_max);
        qorin_rpc_robot_joint_temperature_get(cbox_id, robot_id, joint, &temperature);
        std::printf("%-6u %10.3f %10.3f %10.1f %10.1f %10.1f %10.1f %8.1f\n", joint, angle, speed, low, high, speed_max,
                    acc_max, temperature);
    }
}

void print_poses(unsigned int cbox_id, unsigned int robot_id)
{
    using pose_getter =
        QORIN_API_RESULT (*)(unsigned int, unsigned int, double*, double*, double*, double*, double*, double*);
    const struct
    {
        const char* name;
        pose_getter get;
    } rows[] = {
        {"TCP", qorin_rpc_robot_tcp_pose_actual_get},
        {"flange", qorin_rpc_robot_flange_pose_actual_get},
        {"TCP from flange", qorin_rpc_robot_tcp_from_flange_get},
    };
    std::printf("\n%-16s %10s %10s %10s %10s %10s %10s\n", "pose", "x", "y", "z", "rx", "ry", "rz");
    for (const auto& row : rows)
    {
        double pose[6] = {};
        row.get(cbox_id, robot_id, &pose[0], &pose[1], &pose[2], &pose[3], &pose[4], &pose[5]);
        std::printf("%-16s %10.3f %10.3f %10.3f %10.3f %10.3f %10.3f\n", row.name, pose[0], pose[1], pose[2], pose[3],
                    pose[4], pose[5]);
    }
    double speed_max = 0;
    double acc_max = 0;
    qorin_rpc_robot_spec_tcp_speed_max_get(cbox_id, robot_id, &speed_max);
    qorin_rpc_robot_spec_tcp_acc_max_get(cbox_id, robot_id, &acc_max);
    std::printf("TCP limits: speed %.1f, acceleration %.1f\n", speed_max, acc_max);
}

void print_tool(unsigned int cbox_id, unsigned int robot_id)
{
    std::printf("\ntool inputs ");
    for (unsigned int channel = 0; channel < 4; ++channel)
    {
        unsigned int value = 0;
        qorin_rpc_robot_tool_io_digital_input_get(cbox_id, robot_id, channel, &value);
        std::printf("%c", value != 0 ? '1' : '.');
    }
    std::printf(", outputs ");
    for (unsigned int channel = 0; channel < 4; ++channel)
    {
        unsigned int value = 0;
        qorin_rpc_robot_tool_io_digital_output_get(cbox_id, robot_id, channel, &value);
        std::printf("%c", value != 0 ? '1' : '.');
    }
    QORIN_SWITCH servo = QORIN_SWITCH_OFF;
    qorin_rpc_robot_servo_switch_get(cbox_id, robot_id, &servo);
    std::printf(", servo %s\n", servo == QORIN_SWITCH_ON ? "on" : "off");
}
} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
    {
        std::fprintf(stderr, "usage: robot_status ADDRESS CONFIG [MODEL]\n");
        return 1;
    }
    std::signal(SIGPIPE, SIG_IGN);
    const auto model =
        argc > 3 ? static_cast<QORIN_ROBOT_MODEL>(std::strtoul(argv[3], nullptr, 10)) : QORIN_ROBOT_MODEL_ARM_C;

    unsigned int cbox_id = 0;
    unsigned int robot_id[32] = {};
    if (!is_ok("connect", qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id)) || !take_control(cbox_id) ||
        !is_ok("create robot", qorin_rpc_robot_create(cbox_id, model, text, 0, robot_id)))
        return 1;

    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a few frames with the robot in them
    std::printf("robot %u, model %u\n", robot_id[0], static_cast<unsigned int>(model));
    print_joints(cbox_id, robot_id[0]);
    print_poses(cbox_id, robot_id[0]);
    print_tool(cbox_id, robot_id[0]);

    const bool ended = is_ok("destroy robot", qorin_rpc_robot_destroy(cbox_id, robot_id[0]));
    return is_ok("release control", qorin_rpc_system_control_release(cbox_id)) && ended ? 0 : 1;
}
