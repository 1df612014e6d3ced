#ifndef SIMULATOR_FRAME_MEASUREMENT_NOISE_H
#define SIMULATOR_FRAME_MEASUREMENT_NOISE_H

#include <cstdint>
#include <random>

#include "protocol/status_frame.h"

namespace cbox_simulator
{
/**
 * What measuring adds to the values in a frame: no two frames of a live box are alike then. The model knows nothing of
 * it, so that what the box does is the same with and without. The same seed puts the same noise on the same frames.
 */
class measurement_noise
{
public:
    /// A level of 1 is the noise of usual devices, 0 is none.
    measurement_noise(double level, std::uint64_t seed) : level_(level), chance_(seed) {}

    void put_on(protocol::shared_data_t& frame);

private:
    /// Even from -amplitude to amplitude times the level.
    [[nodiscard]] double around(double value, double amplitude);
    void put_on_robot(protocol::shared_data_t& frame, std::uint32_t id);

    double level_;
    std::mt19937_64 chance_;
};
} // namespace cbox_simulator

#endif
