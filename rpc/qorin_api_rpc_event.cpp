#include "rpc/qorin_api_rpc_event.h"

#include <cstddef>
#include <cstring>

#include "api/api_call_log_param_to_string.h"
#include "api/api_log_print.h"

namespace qorin_api_rpc
{
namespace
{
/// Tested before an event is added, so the queue holds one more.
constexpr std::size_t queue_limit = 512;
} // namespace

void qorin_rpc_event::event_cmd_process(const event_info* event)
{
    std::lock_guard lock(mutex_);
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_EVENT, "sender ID: %d, grp: %s, sub: %s\n", static_cast<int>(event->sender_id),
                        qorin_api::enum_to_string(event->group).c_str(),
                        qorin_api::enum_to_string(event->subgroup).c_str());

    int parameters[5];
    std::memcpy(parameters, event->parameter, sizeof(parameters));
    double real_parameters[32];
    std::memcpy(real_parameters, event->real_parameter, sizeof(real_parameters));
    event_handle_process(event->group, event->subgroup, event->sender_id, parameters, real_parameters);

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
} // namespace qorin_api_rpc
