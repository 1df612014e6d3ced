#include "qorin/system.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <functional>
#include <mutex>
#include <string>

#include "api/api_call_line.h"
#include "api/api_call_log_param_to_string.h"
#include "api/api_call_logger.h"
#include "api/api_log_print.h"
#include "protocol/rpc_record.h"
#include "rpc/api_call_recursive_lock.h"
#include "rpc/rpc_internal.h"
#include "savrent/cc/diagnostics.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/system_config_parser.h"

namespace
{
using namespace std::chrono_literals;
using savrent::cc::system_config_parser;

std::atomic<bool> g_b_init = false;

/// The time in which the first status frame arrives; its first bytes are the control software's version.
constexpr auto first_frame_wait = 2s;

/// The connection's own entry opens the log, so it goes ahead of the logger.
void log_connect_call(const char* config_path, const char* address)
{
    using qorin_api::logger_internal_write_line_before_taking_control;
    std::string stamp = qorin_api::call_stamp_record();
    logger_internal_write_line_before_taking_control(qorin_api::call_time_record());
    logger_internal_write_line_before_taking_control(std::move(stamp));
    logger_internal_write_line_before_taking_control(qorin_api::call_record_begin("qorin_rpc_system_cbox_connect") +
                                                     qorin_api::param_to_string(config_path) + ", " +
                                                     qorin_api::param_to_string(address) + ", &cbox_id);\n");
}

void print_configuration(const system_config_parser& configuration)
{
    configuration.print(
        [](const char* section, const char* key, const char* value)
        { QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_INFO, "[system config ini: %s] %s: %s\n", section, key, value); });
}

/**
 * Closes the log files when the library leaves a process that goes on.
 *
 * When the process ends instead, late handlers may still command: their lines open the files again, and a call that
 * another thread is in keeps them open.
 */
struct logger_end
{
    ~logger_end()
    {
        const std::unique_lock lock(no_mangle_qorin_api_call_recursive_lock::mtx, std::try_to_lock);
        if (lock)
            qorin_api::logger_rest();
    }
};

/// Loads the configuration and starts the logger, once in a process and whatever comes of it.
QORIN_API_RESULT initialise_process(const char* config_path)
{
    qorin_api_rpc::system_create();
    savrent::cc::start_diagnostics();
    const auto configuration = system_config_parser::get_instance();
    if (!configuration->load_file(config_path))
    {
        g_b_init.store(true, std::memory_order_relaxed);
        return QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE;
    }
    print_configuration(*configuration);
    qorin_api::logger_initialize();
    qorin_api::logger_take_control();
    static const logger_end at_end; // ahead of the first connection, hence after the end of all of them
    g_b_init.store(true, std::memory_order_relaxed);
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT qorin_rpc_system_cbox_connect(const char* config_path, const char* address, unsigned int* cbox_id)
{
    log_connect_call(config_path, address);

    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    if (!g_b_init.load(std::memory_order_relaxed))
        result = initialise_process(config_path);
    if (result != QORIN_API_RESULT_OK)
        return result;

    // The application's variable has the id before the receive threads start, also when one cannot be started.
    unsigned int unasked = 0;
    unsigned int* const id_out = cbox_id != nullptr ? cbox_id : &unasked;
    result = qorin_api_rpc::qorin_api_internal_rpc_system_create(address, protocol::control_box_port, id_out);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const unsigned int id = *id_out;

    savrent::cc::os_util::sleep_for(first_frame_wait);
    const bool versions_match =
        std::strcmp(qorin_rpc_system_api_version_get(id), qorin_rpc_system_control_sw_version_get(id)) == 0;
    return versions_match ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED;
}
