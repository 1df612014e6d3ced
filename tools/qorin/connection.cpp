#include "tools/qorin/connection.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <sstream>

#include <fmt/format.h>
#include <sys/mman.h>
#include <unistd.h>

#include "qorin/catalogue.h"
#include "qorin/system.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
namespace fs = std::filesystem;

/// The directory of the kinematics modules that came with this program: the tree may be moved, and has one name for its
/// libraries where it was built and perhaps another where it is installed. Empty when there is none.
fs::path kinematics_directory()
{
    std::error_code failed;
    const fs::path prefix = fs::read_symlink("/proc/self/exe", failed).parent_path().parent_path();
    for (const char* libraries : {QORIN_LIBRARY_DIRECTORY, "lib"})
        if (fs::path directory = prefix / libraries / "qorin/kinematics"; fs::is_directory(directory, failed))
            return directory;
    return {};
}

/// A directory for the logs of this process alone.
fs::path log_directory()
{
    static const std::string path = []
    {
        std::string pattern = (fs::temp_directory_path() / "qorin.XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw failure(fmt::format("no directory for logs: {}: {}", pattern, std::strerror(errno)));
        return pattern;
    }();
    // A process that was forked off leaves them to this one.
    static const pid_t owner = getpid();
    static const int registered = std::atexit(
        []
        {
            std::error_code ignored;
            if (getpid() == owner)
                fs::remove_all(log_directory(), ignored);
        });
    static_cast<void>(registered);
    return path;
}

std::string reason(QORIN_API_RESULT result)
{
    return fmt::format("{} ({})", qorin_system_api_result_string_get(result), static_cast<int>(result));
}
} // namespace

void connection_options::describe(CLI::App& subcommand)
{
    subcommand.add_option("--address,-a", address, "IPv4 address of the control box")
        ->envname("QORIN_ADDRESS")
        ->required();
    subcommand.add_option("--config", config, "Configuration of the library; without one nothing is kept of its logs");
}

std::string configuration_in_memory()
{
    const std::string text = fmt::format("[client]\nlog_save_path={}\nlog_print_out=off\nkinematics_path={}\n"
                                         "[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n",
                                         log_directory().string(), kinematics_directory().string());
    const int file = memfd_create("qorin_config", MFD_CLOEXEC);
    if (file < 0 || write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw failure(fmt::format("no configuration in memory: {}", std::strerror(errno)));
    return fmt::format("/proc/self/fd/{}", file);
}

unsigned int connect(const connection_options& options)
{
    // A link that the control box closes is a result and no end of the process.
    std::signal(SIGPIPE, SIG_IGN);
    const std::string config = options.config.empty() ? configuration_in_memory() : options.config;
    unsigned int id = 0;
    std::ostringstream words;
    std::streambuf* const errors = std::cerr.rdbuf(words.rdbuf());
    const QORIN_API_RESULT result = qorin_rpc_system_cbox_connect(config.c_str(), options.address.c_str(), &id);
    std::cerr.rdbuf(errors);
    // Of a link that cannot be made the result tells more.
    if (result != QORIN_API_RESULT_ERROR_CBOX_ID_INVALID)
        std::cerr << words.str();
    switch (result)
    {
    case QORIN_API_RESULT_OK:
        return id;
    case QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED:
        if (std::string_view(qorin_rpc_system_control_sw_version_get(id)).empty())
            throw failure(fmt::format("the control box at {} sends no status", options.address));
        fmt::print(stderr, "qorin: {} has another version than the library: {} beside {}\n", options.address,
                   qorin_rpc_system_control_sw_version_get(id), qorin_system_api_version_get());
        return id;
    case QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE:
        throw failure(fmt::format("{}: {}", config, reason(result)));
    default:
        throw failure(fmt::format("no control box at {}: {}", options.address, reason(result)));
    }
}
} // namespace qorin_cli
