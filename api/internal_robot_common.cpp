#include "api/internal_robot_common.h"

#include "api/api_call_robot_internal_data.h"
#include "api/internal_shared_data.h"

QORIN_API_RESULT qorin_internal_robot_common_check(unsigned int robot_id, const protocol::robot_data_t** robot_data)
{
    if (robot_id >= protocol::robot_limit ||
        qorin_api::api_call_robot_internal_data::get_instance()->get(robot_id) == nullptr)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (robot_data == nullptr)
        return QORIN_API_RESULT_OK;

    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    if (frame == nullptr)
        return QORIN_API_RESULT_OK;
    if (robot_id >= frame->robot_count)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    *robot_data = &frame->robots[robot_id];
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_robot_common_check_with_joint(unsigned int robot_id, unsigned int joint,
                                                              const protocol::robot_data_t** robot_data)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, robot_data);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const bool has_robot = robot_data != nullptr && *robot_data != nullptr;
    if (has_robot && joint >= (*robot_data)->number_of_joints)
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    return QORIN_API_RESULT_OK;
}
