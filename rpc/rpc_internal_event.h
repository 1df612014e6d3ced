#ifndef RPC_RPC_INTERNAL_EVENT_H
#define RPC_RPC_INTERNAL_EVENT_H

#include "qorin/result.h"

/// The local forms of the wait calls: in a client events come from a control box's dispatcher, so these do nothing.
QORIN_API_RESULT qorin_internal_wait_event_group(unsigned int group, unsigned int time_out, char remove,
                                                 char* occurred);
QORIN_API_RESULT qorin_internal_wait_event_group_subgroup(unsigned int group, unsigned int subgroup,
                                                          unsigned int time_out, char remove, char* occurred);
QORIN_API_RESULT qorin_internal_wait_event_group_subgroup_sender_id(unsigned int group, unsigned int subgroup,
                                                                    unsigned int sender_id, unsigned int time_out,
                                                                    char remove, char* occurred);
QORIN_API_RESULT qorin_internal_event_queue_clear();

#endif
