#ifndef SIMULATOR_LOG_H
#define SIMULATOR_LOG_H

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace cbox_simulator
{
/// From the gravest to the most talkative.
enum class log_level : std::uint8_t
{
    error,
    warning,
    info,
    debug
};

/// Receives one line, without its line end. Called on the box's io thread.
using log_sink = std::function<void(log_level level, std::string_view line)>;

/// Where the parts of a box report to. A line above the level costs nothing but a comparison.
class console_log
{
public:
    console_log(log_sink sink, log_level level) : sink_(std::move(sink)), level_(level) {}

    /// Whether lines of the level are wanted: asked where a line is dear to make.
    [[nodiscard]] bool wants(log_level level) const { return sink_ && level <= level_; }

    template <class... Args>
    void write(log_level level, fmt::format_string<Args...> format, Args&&... args) const
    {
        if (wants(level))
            sink_(level, fmt::format(format, std::forward<Args>(args)...));
    }

private:
    log_sink sink_;
    log_level level_;
};
} // namespace cbox_simulator

#endif
