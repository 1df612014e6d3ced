#include "rpc/qorin_rpc_event.h"

#include <algorithm>
#include <chrono>
#include <cstddef>

#include "api/api_call_log_param_to_string.h"
#include "api/api_log_print.h"
#include "savrent/cc/os_util.h"

namespace qorin_api_rpc
{
namespace
{
/// Tested before an event is added, so the queue holds one more.
constexpr std::size_t queue_limit = 512;

constexpr auto poll_pause = std::chrono::milliseconds(1);
} // namespace

void qorin_rpc_event::event_cmd_process(const event_info* event)
{
    std::lock_guard lock(mutex_);
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_EVENT, "sender ID: %d, grp: %s, sub: %s\n", static_cast<int>(event->sender_id),
                        qorin_api::enum_to_string(event->group).c_str(),
                        qorin_api::enum_to_string(event->subgroup).c_str());

    event_handle_process(event->group, event->subgroup, event->sender_id, event->parameter, event->real_parameter);

    if (queue_.size() > queue_limit)
        queue_.pop_front();
    queue_.push_back(*event);
}

void qorin_rpc_event::event_handle_process(unsigned int group, unsigned int subgroup, unsigned int sender_id,
                                           const int* parameters, const double* /*real_parameters*/) const
{
    const auto call_all = [&](const std::vector<qorin_event_callback>& callbacks)
    {
        for (const qorin_event_callback callback : callbacks)
            callback(group, subgroup, sender_id, parameters[0], parameters[1], parameters[2], parameters[3],
                     parameters[4]);
    };
    call_all(callbacks_);
    if (const auto entry = group_callbacks_.find(group); entry != group_callbacks_.end())
        call_all(entry->second);
    if (const auto entry = subgroup_callbacks_.find(subgroup); entry != subgroup_callbacks_.end())
        call_all(entry->second);
}

QORIN_API_RESULT qorin_rpc_event::event_callback_add(qorin_event_callback callback)
{
    std::lock_guard lock(mutex_);
    if (std::find(callbacks_.begin(), callbacks_.end(), callback) == callbacks_.end())
        callbacks_.push_back(callback);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_event::event_callback_remove(qorin_event_callback callback)
{
    std::lock_guard lock(mutex_);
    if (const auto found = std::find(callbacks_.begin(), callbacks_.end(), callback); found != callbacks_.end())
        callbacks_.erase(found);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_event::event_group_callback_add(qorin_event_callback callback, unsigned int group)
{
    return add_to(group_callbacks_, group, callback);
}

QORIN_API_RESULT qorin_rpc_event::event_group_callback_remove(qorin_event_callback /*callback*/, unsigned int group)
{
    return remove_first_of(group_callbacks_, group);
}

QORIN_API_RESULT qorin_rpc_event::event_group_subgroup_callback_add(qorin_event_callback callback,
                                                                    unsigned int subgroup)
{
    return add_to(subgroup_callbacks_, subgroup, callback);
}

QORIN_API_RESULT qorin_rpc_event::event_group_subgroup_callback_remove(qorin_event_callback /*callback*/,
                                                                       unsigned int subgroup)
{
    return remove_first_of(subgroup_callbacks_, subgroup);
}

QORIN_API_RESULT qorin_rpc_event::add_to(callback_table& table, unsigned int key, qorin_event_callback callback)
{
    std::lock_guard lock(mutex_);
    table[key].push_back(callback);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_event::remove_first_of(callback_table& table, unsigned int key)
{
    std::lock_guard lock(mutex_);
    if (const auto entry = table.find(key); entry != table.end() && !entry->second.empty())
        entry->second.erase(entry->second.begin());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_event::wait_event_group(unsigned int group, unsigned int time_out, char remove,
                                                   char* occurred)
{
    return wait([=](const event_info& event) { return event.group == group; }, time_out, remove, occurred);
}

QORIN_API_RESULT qorin_rpc_event::wait_event_group_subgroup(unsigned int group, unsigned int subgroup,
                                                            unsigned int time_out, char remove, char* occurred)
{
    return wait([=](const event_info& event) { return event.group == group && event.subgroup == subgroup; }, time_out,
                remove, occurred);
}

QORIN_API_RESULT qorin_rpc_event::wait_event_group_subgroup_sender_id(unsigned int group, unsigned int subgroup,
                                                                      unsigned int sender_id, unsigned int time_out,
                                                                      char remove, char* occurred)
{
    return wait([=](const event_info& event)
                { return event.group == group && event.subgroup == subgroup && event.sender_id == sender_id; },
                time_out, remove, occurred);
}

QORIN_API_RESULT qorin_rpc_event::event_queue_clear()
{
    std::lock_guard lock(mutex_);
    queue_.clear();
    return QORIN_API_RESULT_OK;
}

// The time is taken before the pause, so that the queue is looked at twice even without a time-out.
template <class Match>
QORIN_API_RESULT qorin_rpc_event::wait(Match&& match, unsigned int time_out, char remove, char* occurred)
{
    using std::chrono::system_clock;
    *occurred = 0;
    const system_clock::time_point begin = system_clock::now();
    std::chrono::milliseconds elapsed{0};
    do
    {
        if (find_event(match, remove != 0))
        {
            *occurred = 1;
            break;
        }
        elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(system_clock::now() - begin);
        savrent::cc::os_util::sleep_for(poll_pause);
    } while (elapsed.count() <= time_out);
    return QORIN_API_RESULT_OK;
}

template <class Match>
bool qorin_rpc_event::find_event(Match&& match, bool remove)
{
    std::lock_guard lock(mutex_);
    const auto found = std::find_if(queue_.begin(), queue_.end(), match);
    if (found == queue_.end())
        return false;
    if (remove)
        queue_.erase(found);
    return true;
}
} // namespace qorin_api_rpc
