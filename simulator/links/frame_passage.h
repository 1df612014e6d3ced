#ifndef SIMULATOR_LINKS_FRAME_PASSAGE_H
#define SIMULATOR_LINKS_FRAME_PASSAGE_H

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <random>
#include <span>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

#include "simulator/links/fault_plan.h"

namespace cbox_simulator
{
/**
 * Where frames pass from the box to its clients, and can come late or get lost on request.
 *
 * The same seed loses the same frames. Lives on the io thread of the box that owns it.
 */
class frame_passage
{
public:
    using deliver_frame = std::function<void(std::span<const std::byte>)>;

    frame_passage(boost::asio::io_context& io, const fault_plan& faults, std::uint64_t seed, deliver_frame deliver)
        : faults_(faults), chance_(seed), deliver_(std::move(deliver)), timer_(io)
    {
    }

    void pass(std::span<const std::byte> frame);
    void close();

private:
    using clock = std::chrono::steady_clock;

    struct late_frame
    {
        clock::time_point due;
        std::vector<std::byte> bytes;
    };

    [[nodiscard]] bool loses_one();
    void wait_for_next();

    const fault_plan& faults_;
    std::mt19937_64 chance_;
    deliver_frame deliver_;
    boost::asio::steady_timer timer_;
    std::deque<late_frame> late_;
};
} // namespace cbox_simulator

#endif
