#include "simulator/model/conveyor_encoders.h"

#include <cmath>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
double conveyor_encoders::belt_speed() const
{
    const auto& encoder = encoders_[index_];
    return switch_ == QORIN_SWITCH_ON ? encoder.rate * encoder.scale_factor / encoder.scale_divisor : 0;
}

QORIN_API_RESULT conveyor_encoders::select_conveyor_encoder(std::uint32_t encoder)
{
    if (encoder >= encoder_count)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    index_ = encoder;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT conveyor_encoders::set_conveyor_encoder_switch(QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    switch_ = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT conveyor_encoders::calibrate_conveyor_encoder(std::uint32_t encoder, double scale_divisor,
                                                               double scale_factor)
{
    if (encoder >= encoder_count)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (!std::isfinite(scale_divisor) || scale_divisor == 0 || !std::isfinite(scale_factor))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    encoders_[encoder].scale_divisor = scale_divisor;
    encoders_[encoder].scale_factor = scale_factor;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT conveyor_encoders::set_up_conveyor_encoder(std::uint32_t encoder, QORIN_CONVEYOR_ENCODER_TYPE type,
                                                            double scale_divisor, double scale_factor)
{
    if (!is_possible(type))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto result = calibrate_conveyor_encoder(encoder, scale_divisor, scale_factor);
    if (result != QORIN_API_RESULT_OK)
        return result;
    encoders_[encoder].type = type;
    index_ = encoder;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT conveyor_encoders::set_conveyor_encoder_rate(std::uint32_t encoder, double rate)
{
    if (encoder >= encoder_count)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (!std::isfinite(rate))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    encoders_[encoder].rate = rate;
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator
