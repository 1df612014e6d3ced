#ifndef TOOLS_QORIN_WITHIN_H
#define TOOLS_QORIN_WITHIN_H

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>

namespace qorin_cli
{
/**
 * Waits for work that may block for ever, on a thread of its own, up to a limit: a command has no time-out.
 *
 * Work that is not done by then is left behind and goes on, so that it must own all that it uses.
 *
 * @param show  called now and then while it waits.
 * @return nothing when the limit is over.
 */
template <class Work>
auto within(std::chrono::duration<double> limit, Work work, const std::function<void()>& show = {})
    -> std::optional<decltype(work())>
{
    const auto task = std::make_shared<std::packaged_task<decltype(work())()>>(std::move(work));
    auto result = task->get_future();
    std::thread([task] { (*task)(); }).detach();
    const auto end = std::chrono::steady_clock::now() + limit;
    while (result.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready)
    {
        if (std::chrono::steady_clock::now() >= end)
            return std::nullopt;
        if (show)
            show();
    }
    return result.get();
}
} // namespace qorin_cli

#endif
