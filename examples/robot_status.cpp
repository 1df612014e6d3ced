// Creates a robot and prints its joints, poses, limits and tool state as tables.
//
//   robot_status ADDRESS CONFIG [MODEL]
//
// MODEL is the number of an arm model, 401510 to 401518. The configuration's `client.kinematics_path` names the
// directory of the kinematics modules.

#include <cstdio>

#include "session.h"

namespace
{
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
    example::take_arguments(argc, argv, 1, "robot_status ADDRESS CONFIG [MODEL]");
    const QORIN_ROBOT_MODEL model = argc > 3 ? example::robot_model(argv[3]) : QORIN_ROBOT_MODEL_ARM_C;

    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id) || !example::create_robot(cbox_id, model, robot_id))
        return 1;
    std::printf("robot %u, model %u\n", robot_id, static_cast<unsigned int>(model));
    print_joints(cbox_id, robot_id);
    print_poses(cbox_id, robot_id);
    print_tool(cbox_id, robot_id);

    const bool ended = example::destroy_robot(cbox_id, robot_id);
    return example::close_session(cbox_id) && ended ? 0 : 1;
}
