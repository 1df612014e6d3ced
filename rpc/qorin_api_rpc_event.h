#ifndef RPC_QORIN_API_RPC_EVENT_H
#define RPC_QORIN_API_RPC_EVENT_H

#include <list>
#include <map>
#include <mutex>
#include <vector>

#include "protocol/event_record.h"
#include "qorin/event.h"
#include "qorin/result.h"

namespace qorin_api_rpc
{
/**
 * The event dispatcher of one control box: logs each event, calls the registered callbacks and keeps the latest events.
 *
 * Callbacks run on the event thread with the mutex held, before the event enters the queue: a callback that comes back
 * to its own dispatcher blocks for ever. The mutex comes ahead of the event log's.
 */
class qorin_rpc_event
{
public:
    using event_info = savrent::cc::val_obj::event_info;

    explicit qorin_rpc_event(unsigned int cbox_id) : cbox_id_(cbox_id) {}

    /// The whole way of an event, on the event thread.
    void event_cmd_process(const event_info* event);

private:
    void event_handle_process(unsigned int group, unsigned int subgroup, unsigned int sender_id, const int* parameters,
                              const double* real_parameters) const;

    std::vector<qorin_event_callback> callbacks_; ///< in order of registration
    std::map<unsigned int, std::vector<qorin_event_callback>> group_callbacks_;
    std::map<unsigned int, std::vector<qorin_event_callback>> subgroup_callbacks_;
    std::list<event_info> queue_; ///< oldest first
    std::mutex mutex_;
    [[maybe_unused]] unsigned int cbox_id_;
};
} // namespace qorin_api_rpc

#endif
