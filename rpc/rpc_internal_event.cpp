#include "rpc/rpc_internal_event.h"

QORIN_API_RESULT qorin_internal_wait_event_group(unsigned int /*group*/, unsigned int /*time_out*/, char /*remove*/,
                                                 char* /*occurred*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_wait_event_group_subgroup(unsigned int /*group*/, unsigned int /*subgroup*/,
                                                          unsigned int /*time_out*/, char /*remove*/,
                                                          char* /*occurred*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_wait_event_group_subgroup_sender_id(unsigned int /*group*/, unsigned int /*subgroup*/,
                                                                    unsigned int /*sender_id*/,
                                                                    unsigned int /*time_out*/, char /*remove*/,
                                                                    char* /*occurred*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_event_queue_clear()
{
    return QORIN_API_RESULT_OK;
}
