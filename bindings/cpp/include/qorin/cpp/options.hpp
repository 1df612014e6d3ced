#ifndef QORIN_CPP_OPTIONS_HPP
#define QORIN_CPP_OPTIONS_HPP

#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>

#include <dlfcn.h>
#include <sched.h>
#include <unistd.h>

#include "qorin/cpp/result.hpp"

namespace qorin::inline QORIN_LAYER
{
/**
 * How this process talks to its control boxes.
 *
 * There is one configuration for the process: that of the first connection, also of one that failed later than at its
 * configuration. Later connections do not look at theirs.
 */
struct options
{
    /// A configuration to read in place of what follows.
    std::optional<std::filesystem::path> config_file{};

    /// Each run makes directories of its own below it.
    std::filesystem::path log_directory = std::filesystem::temp_directory_path();
    bool print_log = false; ///< On standard output, too.
    /// Of modules and of nothing else. Empty: the modules that came with the library.
    std::filesystem::path kinematics_directory{};

    /// A write to a link that was closed raises SIGPIPE, which ends a program that has not decided otherwise. It is
    /// ignored from the connection on, unless the program has a handler of its own.
    bool ignore_sigpipe = true;

    /// Goes on although headers, library and control box are not of one version.
    bool accept_other_versions = false;

    /// The text of the configuration that is taken without a file.
    [[nodiscard]] std::string configuration() const
    {
        const std::filesystem::path modules = kinematics_directory.empty() ? shipped_modules() : kinematics_directory;
        return "[client]\nlog_save_path=" + absolute(log_directory).string() +
               "\nlog_print_out=" + (print_log ? "on" : "off") + "\nkinematics_path=" + absolute(modules).string() +
               "\n[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n";
    }

private:
    static std::filesystem::path shipped_modules()
    {
        Dl_info library{};
        dladdr(reinterpret_cast<const void*>(&qorin_system_api_version_get), &library);
        return std::filesystem::path(library.dli_fname).parent_path() / "qorin" / "kinematics";
    }
};

namespace detail
{
inline void ignore_sigpipe()
{
    struct sigaction present
    {
    };
    if (sigaction(SIGPIPE, nullptr, &present) == 0 && present.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, SIG_IGN);
}

/// A connection pins the thread that makes it to one core. It is the receive threads that shall be there.
class kept_affinity
{
public:
    kept_affinity() : known_(sched_getaffinity(0, sizeof cores_, &cores_) == 0) {}
    kept_affinity(const kept_affinity&) = delete;
    kept_affinity& operator=(const kept_affinity&) = delete;
    ~kept_affinity()
    {
        if (known_)
            sched_setaffinity(0, sizeof cores_, &cores_);
    }

private:
    cpu_set_t cores_{};
    bool known_;
};

/// The connection itself, with exceptions as results: what the library throws is about its configuration.
inline QORIN_API_RESULT connect(const std::string& address, const options& how, unsigned int* id)
try
{
    if (how.config_file)
    {
        // The library would go on without a configuration at the next attempt: a file that is not there shall not
        // count.
        if (access(how.config_file->c_str(), R_OK) == 0)
            return qorin_rpc_system_cbox_connect(how.config_file->c_str(), address.c_str(), id);
        std::fprintf(stderr, "qorin: cannot read %s\n", how.config_file->c_str());
        return QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE;
    }
    const memory_file configuration(how.configuration());
    return qorin_rpc_system_cbox_connect(configuration.path().c_str(), address.c_str(), id);
}
catch (const std::exception& failed)
{
    std::fprintf(stderr, "qorin: no connection to %s: %s\n", address.c_str(), failed.what());
    return QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE;
}
} // namespace detail
} // namespace qorin::inline QORIN_LAYER

#endif
