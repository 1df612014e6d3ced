#ifndef RPC_QORIN_RPC_EVENT_H
#define RPC_QORIN_RPC_EVENT_H

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

    /// Adds a callback for all events, once. @return QORIN_API_RESULT_OK, as all operations here
    QORIN_API_RESULT event_callback_add(qorin_event_callback callback);
    QORIN_API_RESULT event_callback_remove(qorin_event_callback callback);

    /// Adds a callback for a key, also a second time. Removing takes the first of the key, whichever that is.
    QORIN_API_RESULT event_group_callback_add(qorin_event_callback callback, unsigned int group);
    QORIN_API_RESULT event_group_callback_remove(qorin_event_callback callback, unsigned int group);
    QORIN_API_RESULT event_group_subgroup_callback_add(qorin_event_callback callback, unsigned int subgroup);
    QORIN_API_RESULT event_group_subgroup_callback_remove(qorin_event_callback callback, unsigned int subgroup);

    /// Poll the queue, oldest event first, until one matches or `time_out` milliseconds are over.
    QORIN_API_RESULT wait_event_group(unsigned int group, unsigned int time_out, char remove, char* occurred);
    QORIN_API_RESULT wait_event_group_subgroup(unsigned int group, unsigned int subgroup, unsigned int time_out,
                                               char remove, char* occurred);
    QORIN_API_RESULT wait_event_group_subgroup_sender_id(unsigned int group, unsigned int subgroup,
                                                         unsigned int sender_id, unsigned int time_out, char remove,
                                                         char* occurred);

    QORIN_API_RESULT event_queue_clear();

private:
    using callback_table = std::map<unsigned int, std::vector<qorin_event_callback>>;

    QORIN_API_RESULT add_to(callback_table& table, unsigned int key, qorin_event_callback callback);
    QORIN_API_RESULT remove_first_of(callback_table& table, unsigned int key);

    template <class Match>
    QORIN_API_RESULT wait(Match&& match, unsigned int time_out, char remove, char* occurred);

    /// Whether an event in the queue matches; takes it out if told to.
    template <class Match>
    bool find_event(Match&& match, bool remove);

    void event_handle_process(unsigned int group, unsigned int subgroup, unsigned int sender_id, const int* parameters,
                              const double* real_parameters) const;

    std::vector<qorin_event_callback> callbacks_; ///< in order of registration
    callback_table group_callbacks_;
    callback_table subgroup_callbacks_;
    std::list<event_info> queue_; ///< oldest first
    std::mutex mutex_;
    [[maybe_unused]] unsigned int cbox_id_;
};
} // namespace qorin_api_rpc

#endif
