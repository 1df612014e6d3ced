#include "simulator/links/frame_passage.h"

namespace cbox_simulator
{
void frame_passage::pass(std::span<const std::byte> frame)
{
    if (loses_one())
        return;
    if (faults_.frame_delay == std::chrono::milliseconds::zero() && late_.empty())
    {
        deliver_(frame);
        return;
    }
    late_.push_back({clock::now() + faults_.frame_delay, {frame.begin(), frame.end()}});
    if (late_.size() == 1)
        wait_for_next();
}

void frame_passage::close()
{
    late_.clear();
    timer_.cancel();
}

bool frame_passage::loses_one()
{
    // Made out of the bits by hand, as each library's distribution draws its own numbers.
    return faults_.lost_frames > 0 && static_cast<double>(chance_() >> 11) * 0x1p-53 < faults_.lost_frames;
}

void frame_passage::wait_for_next()
{
    timer_.expires_at(late_.front().due);
    timer_.async_wait(
        [this](const boost::system::error_code&)
        {
            if (late_.empty())
                return;
            const auto bytes = std::move(late_.front().bytes);
            late_.pop_front();
            deliver_(bytes);
            if (!late_.empty())
                wait_for_next();
        });
}
} // namespace cbox_simulator
