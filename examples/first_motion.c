/* Turns the first joint of a robot by 10 degrees, in C.
 *
 *   first_motion ADDRESS CONFIG
 *
 * The configuration's `client.kinematics_path` names the directory of the kinematics modules.
 */
#define _POSIX_C_SOURCE 199309L /* for nanosleep() in strict C */

#include <signal.h>
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <qorin/qorin_api_rpc_client.h>

/* Commands read 128 bytes from each text, array and output, so these stand in buffers of that size. */
static const char text[128] = "first motion";
static const unsigned int patience = 30000; /* milliseconds */
static const struct timespec moment = {0, 100000000};

static bool is_ok(const char* step, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        fprintf(stderr, "%s: %u %s\n", step, (unsigned int)result, qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/* A program that was killed leaves its robot on the control box, where there is room for no other: it goes first. */
static bool create_robot(unsigned int cbox_id, unsigned int* robot_id)
{
    unsigned int id[32] = {0};
    QORIN_API_RESULT created = qorin_rpc_robot_create(cbox_id, QORIN_ROBOT_MODEL_ARM_C, text, 0, id);
    if (created == QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE &&
        is_ok("destroy the robot that stands", qorin_rpc_robot_destroy(cbox_id, 0)))
        created = qorin_rpc_robot_create(cbox_id, QORIN_ROBOT_MODEL_ARM_C, text, 0, id);
    *robot_id = id[0];
    return is_ok("create robot", created);
}

/* Queues the motion, runs it and waits until the robot stands. */
static bool turn(unsigned int cbox_id, unsigned int robot_id, unsigned int command, double angle)
{
    char settled = 0;
    if (!is_ok("robot", qorin_rpc_motion_command_robot_robot_id_set(cbox_id, command, robot_id)) ||
        !is_ok("end", qorin_rpc_motion_command_robot_joint_angle_end_set(cbox_id, command, 0, angle)) ||
        !is_ok("empty queue", qorin_rpc_motion_command_queue_clear(cbox_id)) ||
        !is_ok("queue", qorin_rpc_motion_command_queue_add(cbox_id, command)) ||
        !is_ok("run", qorin_rpc_motion_command_queue_flush(cbox_id)))
        return false;
    qorin_rpc_system_wait_event_group_subgroup(cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND,
                                               QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, patience, 1, &settled);
    if (!settled)
        fprintf(stderr, "the motion has not settled within %u ms\n", patience);
    return settled != 0;
}

static bool move(unsigned int cbox_id, unsigned int robot_id)
{
    unsigned int command[32] = {0};
    double from = 0;
    double to = 0;
    bool done = false;
    if (!is_ok("angle", qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, 0, &from)) ||
        !is_ok("servo on", qorin_rpc_robot_servo_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON)) ||
        !is_ok("create motion", qorin_rpc_motion_command_robot_joint_create(cbox_id, command)))
        return false;
    done = turn(cbox_id, robot_id, command[0], from + 10);
    is_ok("destroy motion", qorin_rpc_motion_command_destroy(cbox_id, command[0]));
    nanosleep(&moment, NULL); /* events and status frames come by two links, which two threads read */
    qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, 0, &to);
    printf("joint 0 from %.1f to %.1f degrees\n", from, to);
    return done;
}

int main(int argc, char** argv)
{
    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    bool done = false;
    QORIN_API_RESULT created = QORIN_API_RESULT_OK;
    if (argc == 2 && strcmp(argv[1], "--version") == 0)
        return printf("%s\n", qorin_system_api_version_get()) < 0;
    if (argc == 2 && strcmp(argv[1], "--help") == 0)
        return printf("usage: first_motion ADDRESS CONFIG\n") < 0;
    if (argc != 3)
    {
        fprintf(stderr, "usage: first_motion ADDRESS CONFIG\n");
        return 1;
    }
    signal(SIGPIPE, SIG_IGN); /* a lost link shall be a result, not the end of the program */

    if (!is_ok("connect", qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id)))
        return 1;
    created = qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM);
    if (created != QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED && !is_ok("create system", created))
        return 1;
    if (!is_ok("take control", qorin_rpc_system_control_take(cbox_id)) || !create_robot(cbox_id, &robot_id))
        return 1;

    done = move(cbox_id, robot_id);
    done = is_ok("destroy robot", qorin_rpc_robot_destroy(cbox_id, robot_id)) && done;
    return is_ok("release control", qorin_rpc_system_control_release(cbox_id)) && done ? 0 : 1;
}
