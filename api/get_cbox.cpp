#include "qorin/cbox.h"

#include "api/internal_shared_data.h"

namespace
{
constexpr unsigned int digital_channels = 16;
} // namespace

QORIN_API_RESULT qorin_cbox_io_digital_input_get(unsigned int channel, unsigned int* value)
{
    if (channel >= digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    if (frame == nullptr)
        return QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    *value = protocol::record_at<protocol::io_module_data_t>(*frame, 0).digital_input >> channel & 1;
    return QORIN_API_RESULT_OK;
}
