#ifndef SIMULATOR_MODEL_CONVEYOR_ENCODERS_H
#define SIMULATOR_MODEL_CONVEYOR_ENCODERS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// A conveyor moves at rate * scale_factor / scale_divisor.
struct conveyor_encoder
{
    double rate = 0; ///< as the I/O module counts it
    double scale_divisor = 1;
    double scale_factor = 1;
    QORIN_CONVEYOR_ENCODER_TYPE type = QORIN_CONVEYOR_ENCODER_TYPE_QUADRATURE; ///< no frame shows it
};

/// The two encoder inputs for conveyors, of which one at a time can be in use. An encoder that is not there is
/// QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER, a value that cannot be is
/// QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE.
class conveyor_encoders
{
public:
    static constexpr std::size_t encoder_count = 2;

    [[nodiscard]] const std::array<conveyor_encoder, encoder_count>& all_conveyor_encoders() const { return encoders_; }
    [[nodiscard]] std::uint32_t conveyor_encoder_index() const { return index_; }
    [[nodiscard]] QORIN_SWITCH conveyor_encoder_switch() const { return switch_; }
    /// As the encoder in use tells it, in millimetres per second; 0 while none is.
    [[nodiscard]] double belt_speed() const;

    QORIN_API_RESULT select_conveyor_encoder(std::uint32_t encoder);
    QORIN_API_RESULT set_conveyor_encoder_switch(QORIN_SWITCH value);

    /// A divisor of 0 would make every speed infinite and is refused, as is what is not finite.
    QORIN_API_RESULT calibrate_conveyor_encoder(std::uint32_t encoder, double scale_divisor, double scale_factor);
    /// The same, of the encoder that is in use from then on.
    QORIN_API_RESULT set_up_conveyor_encoder(std::uint32_t encoder, QORIN_CONVEYOR_ENCODER_TYPE type,
                                             double scale_divisor, double scale_factor);
    QORIN_API_RESULT set_conveyor_encoder_rate(std::uint32_t encoder, double rate);

private:
    std::array<conveyor_encoder, encoder_count> encoders_;
    std::uint32_t index_ = 0;
    QORIN_SWITCH switch_ = QORIN_SWITCH_OFF;
};
} // namespace cbox_simulator

#endif
