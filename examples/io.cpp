// Sets outputs of a control box, and shows how its inputs and outputs stand afterwards.
//
//   io ADDRESS CONFIG
//
// A light runs over the digital outputs, and the first analog output goes to 2.5. What stands at the inputs is whatever
// is wired to them.

#include <cstdio>

#include "session.h"

namespace
{
using example::is_ok;

constexpr unsigned int channel_count = 16;

using digital_getter = QORIN_API_RESULT (*)(unsigned int cbox_id, unsigned int channel, unsigned int* value);

void print_channels(const char* name, unsigned int cbox_id, digital_getter get)
{
    std::printf("%-16s", name);
    for (unsigned int channel = 0; channel < channel_count; ++channel)
    {
        unsigned int value = 0;
        get(cbox_id, channel, &value);
        std::printf("%c", value != 0 ? '1' : '.');
    }
    std::printf("\n");
}

/// One request for each output would do as well: several at once change in the same control cycle.
bool set_outputs(unsigned int cbox_id, unsigned int lit_channel)
{
    unsigned int channels[32] = {}; // 32 numbers are read, whatever the count says
    unsigned int values[32] = {};
    for (unsigned int channel = 0; channel < channel_count; ++channel)
    {
        channels[channel] = channel;
        values[channel] = channel == lit_channel ? 1 : 0;
    }
    return is_ok("digital outputs",
                 qorin_rpc_cbox_io_digital_output_multiple_set(cbox_id, channel_count, channels, values));
}

bool run_light(unsigned int cbox_id)
{
    for (unsigned int channel = 0; channel < channel_count; channel += 5)
    {
        if (!set_outputs(cbox_id, channel))
            return false;
        example::wait_for_frames();
        print_channels("digital outputs", cbox_id, qorin_rpc_cbox_io_digital_output_get);
    }
    return true;
}

bool set_analog_output(unsigned int cbox_id)
{
    if (!is_ok("analog mode",
               qorin_rpc_cbox_io_analog_output_mode_set(cbox_id, 0, QORIN_ANALOG_IO_MODE_VOLTAGE, 0, 0.0)) ||
        !is_ok("analog output", qorin_rpc_cbox_io_analog_output_set(cbox_id, 0, 2.5)))
        return false;
    example::wait_for_frames();
    double output = 0;
    double input = 0;
    qorin_rpc_cbox_io_analog_output_get(cbox_id, 0, &output);
    qorin_rpc_cbox_io_analog_input_get(cbox_id, 0, &input);
    std::printf("analog 0         output %.3f, input %.3f\n", output, input);
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "io ADDRESS CONFIG");
    unsigned int cbox_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id))
        return 1;
    const bool done = run_light(cbox_id) && set_analog_output(cbox_id);
    print_channels("digital inputs", cbox_id, qorin_rpc_cbox_io_digital_input_get);
    return example::close_session(cbox_id) && done ? 0 : 1;
}
