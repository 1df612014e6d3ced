#include "rpc/rpc_internal.h"

#include <array>
#include <atomic>
#include <chrono>
#include <utility>

#include "api/api_log_print.h"
#include "api/internal_robot_state.h"
#include "api/qorin_enum_to_string.h"
#include "api/system_control_check.h"
#include "qorin/catalogue.h"
#include "rpc/api_call_recursive_lock.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/qorin_rpc_event.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/tcp_client.h"
#include "savrent/cc/thread_help.h"

namespace qorin_api_rpc
{
savrent::cc::immortal<cbox_map> g_cbox_map;
std::atomic<unsigned int> g_cur_cbox_id = 0;

namespace
{
using namespace std::chrono_literals;
using savrent::cc::tcp_client;

constexpr unsigned int connection_core = 3;
constexpr auto link_pause = 100ms;

std::atomic<unsigned int> g_cbox_id = 0;

/// How long the end of the process waits for a callback to return.
constexpr auto callback_limit = 2s;

/// Made by the first connection, hence destroyed ahead of all that the application made earlier and callbacks may use.
struct reception_end
{
    ~reception_end() { end_reception(); }
};

struct connection_links
{
    std::shared_ptr<tcp_client> command = std::make_shared<tcp_client>();
    std::shared_ptr<tcp_client> data = std::make_shared<tcp_client>();
    std::shared_ptr<tcp_client> event = std::make_shared<tcp_client>();
};

bool connect_link(tcp_client& link, const char* purpose, const char* address, unsigned short port)
{
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "waiting for connection for %s tcp...\n", purpose);
    if (!link.connect_to_server("", address, port))
        return false;
    QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "the connection for %s tcp has been successfully established.\n", purpose);
    return true;
}

/// The control box tells the links apart only by the order in which they arrive.
bool connect_all(const connection_links& links, const char* address, unsigned short port)
{
    if (!connect_link(*links.command, "commanding", address, port))
        return false;
    savrent::cc::os_util::sleep_for(link_pause);
    if (!connect_link(*links.data, "data transfer", address, port))
        return false;
    savrent::cc::os_util::sleep_for(link_pause);
    return connect_link(*links.event, "event uploading", address, port);
}

/**
 * Closes the links when the library leaves the process, be it that the process ends or that the library is unloaded:
 * after all handlers and static objects of a program that links it, so that these may still command.
 *
 * The lock stays taken, and a thread that commands after this waits for the end of the process. Where a command has not
 * come back the links are the operating system's to close.
 */
[[gnu::destructor]] void close_links()
{
    end_reception(); // an unloading comes by here first
    if (!no_mangle_qorin_api_call_recursive_lock::mtx.try_lock())
        return;
    for (const auto& [id, client] : *g_cbox_map)
        if (client->is_of_this_process())
            client->release_links();
}
} // namespace

void system_create() {}

void system_destroy() {}

void end_reception()
{
    const auto deadline = std::chrono::steady_clock::now() + callback_limit;
    for (const auto& [id, client] : *g_cbox_map)
        if (client->is_of_this_process())
            client->stop_receiving();
    for (const auto& [id, client] : *g_cbox_map)
        if (client->is_of_this_process())
            client->join_receivers(deadline);
}

QORIN_API_RESULT qorin_api_internal_rpc_system_create(const char* address, unsigned short port, unsigned int* cbox_id)
{
    savrent::cc::thread_help::set_this_thread_affinity(connection_core);
    savrent::cc::qorin_init_enum_to_string();

    connection_links links;
    const bool is_connected = connect_all(links, address, port);
    savrent::cc::os_util::sleep_for(link_pause);
    const unsigned int id = g_cbox_id.load(std::memory_order_relaxed);
    if (!is_connected || g_cbox_map->contains(id))
    {
        const QORIN_API_RESULT result = QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
        QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "%s(): %s(%d)\n", "qorin_api_internal_rpc_system_create",
                            qorin_system_api_result_string_get(result), static_cast<int>(result));
        return result;
    }

    if (cbox_id != nullptr)
        *cbox_id = id;
    g_cbox_id.store(id + 1, std::memory_order_relaxed);
    static reception_end at_process_end;
    auto event = std::make_shared<qorin_rpc_event>(id);
    auto client = std::make_shared<qorin_rpc_client>(id, std::move(event), std::move(links.command),
                                                     std::move(links.data), std::move(links.event));
    g_cbox_map->emplace(id, std::move(client));
    return QORIN_API_RESULT_OK;
}
} // namespace qorin_api_rpc

QORIN_API_RESULT _qorin_system_control_check_impl()
{
    return QORIN_API_RESULT_OK;
}

bool is_dry_run(unsigned int /*robot_id*/)
{
    return false;
}

QORIN_API_RESULT qorin_internal_robot_recording_angle_start_get(unsigned int /*robot_id*/, unsigned int /*buffer_id*/,
                                                                unsigned int /*joint*/, double* /*angle*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_robot_recording_angle_end_get(unsigned int /*robot_id*/, unsigned int /*buffer_id*/,
                                                              unsigned int /*joint*/, double* /*angle*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_robot_recording_angle_start_from_file_get(unsigned int /*robot_id*/,
                                                                          const char* /*file*/, unsigned int /*joint*/,
                                                                          double* /*angle*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_robot_recording_angle_end_from_file_get(unsigned int /*robot_id*/, const char* /*file*/,
                                                                        unsigned int /*joint*/, double* /*angle*/)
{
    return QORIN_API_RESULT_OK;
}

void* qorin_internal_get_motion_command(int /*command_id*/, QORIN_API_RESULT& /*result*/)
{
    return nullptr;
}

QORIN_API_RESULT qorin_internal_robot_motion_command_pre_check(int /*command_id*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_internal_robot_motion_command_is_runnable(int /*command_id*/)
{
    return QORIN_API_RESULT_OK;
}
