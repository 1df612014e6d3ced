/**
 * @file qorin_api_rpc_client.h
 * The whole interface of the client library.
 */
#ifndef QORIN_API_RPC_CLIENT_H
#define QORIN_API_RPC_CLIENT_H

#include "qorin/catalogue.h"
#include "qorin/cbox.h"
#include "qorin/cbox_fieldbus.h"
#include "qorin/cbox_io.h"
#include "qorin/enumerations.h"
#include "qorin/event.h"
#include "qorin/event_codes.h"
#include "qorin/log.h"
#include "qorin/motion_command.h"
#include "qorin/result.h"
#include "qorin/robot.h"
#include "qorin/robot_control.h"
#include "qorin/robot_conversion.h"
#include "qorin/robot_external_motion.h"
#include "qorin/robot_external_move_status.h"
#include "qorin/robot_force_control.h"
#include "qorin/robot_force_status.h"
#include "qorin/robot_joint_chaser.h"
#include "qorin/robot_path.h"
#include "qorin/robot_recording.h"
#include "qorin/robot_safety_limit.h"
#include "qorin/robot_safety_status.h"
#include "qorin/robot_status.h"
#include "qorin/robot_tool_io.h"
#include "qorin/robot_tool_status.h"
#include "qorin/system.h"
#include "qorin/test_support.h"
#include "qorin/user_memory.h"

#endif
