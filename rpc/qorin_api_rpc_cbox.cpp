#include "qorin/cbox.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_io_digital_input_get, channel, value);
}
