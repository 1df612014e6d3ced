// Takes control of a control box and computes with a robot: cpp_consumer ADDRESS CONFIG
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

#include <qorin/qorin_api_rpc_client.h>
#include <savrent/cc/math/vector3.h>

namespace
{
const char text[128] = "consumer"; // a command reads 128 bytes from a text

/// Without a path and without SAVRENT_V3 the library throws; the type must be the same on this side.
bool catches_what_the_library_throws()
{
    const std::string installation = std::getenv("SAVRENT_V3");
    unsetenv("SAVRENT_V3");
    unsigned int cbox_id = 0;
    bool caught = false;
    try
    {
        qorin_rpc_system_cbox_connect(nullptr, "127.0.0.1", &cbox_id);
    }
    catch (const std::logic_error&)
    {
        caught = true;
    }
    setenv("SAVRENT_V3", installation.c_str(), 1);
    return caught;
}

/// The stretched arm reaches further than the bent one, which only a kinematics module can tell.
bool computes_poses(unsigned int cbox_id)
{
    unsigned int robot_id[32] = {};
    if (qorin_rpc_robot_create(cbox_id, QORIN_ROBOT_MODEL_ARM_C, text, 0, robot_id) != QORIN_API_RESULT_OK)
        return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a few frames with the robot in them

    const double bent[6] = {0, 20, 120, 0, 40, 0};
    const double stretched[6] = {0, 60, 20, 0, 10, 0};
    savrent::cc::math::vector3 positions[2];
    double orientation[3] = {};
    const bool converted =
        qorin_rpc_robot_util_joint_angle_to_pose_convert(cbox_id, robot_id[0], QORIN_POSE_TYPE_FLANGE, bent,
                                                         &positions[0].x, orientation) == QORIN_API_RESULT_OK &&
        qorin_rpc_robot_util_joint_angle_to_pose_convert(cbox_id, robot_id[0], QORIN_POSE_TYPE_FLANGE, stretched,
                                                         &positions[1].x, orientation) == QORIN_API_RESULT_OK;
    std::printf("%.1f and %.1f mm\n", positions[0].length(), positions[1].length());
    const bool further = positions[1].length() > positions[0].length();
    return qorin_rpc_robot_destroy(cbox_id, robot_id[0]) == QORIN_API_RESULT_OK && converted && further;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 3 || std::getenv("SAVRENT_V3") == nullptr)
        return 2;
    std::signal(SIGPIPE, SIG_IGN);
    if (!catches_what_the_library_throws())
        return 3;

    unsigned int cbox_id = 0;
    if (qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id) != QORIN_API_RESULT_OK)
        return 4;
    std::printf("%s\n", qorin_rpc_system_api_version_get(cbox_id));
    const QORIN_API_RESULT created = qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM);
    if (created != QORIN_API_RESULT_OK && created != QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED)
        return 5;
    if (qorin_rpc_system_control_take(cbox_id) != QORIN_API_RESULT_OK)
        return 6;
    const bool computed = computes_poses(cbox_id);
    return qorin_rpc_system_control_release(cbox_id) == QORIN_API_RESULT_OK && computed ? 0 : 7;
}
