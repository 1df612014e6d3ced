// Sets outputs of a control box, and shows how its inputs and outputs stand afterwards.
//
//   cpp_io ADDRESS CONFIG
//
// A light runs over the digital outputs, and the first analog output goes to 2.5. What stands at the inputs is whatever
// is wired to them.

#include <array>

#include <qorin/functions.hpp>

#include "session.hpp"

namespace
{
constexpr unsigned int channel_count = 16;

void print(const char* name, const auto& is_on)
{
    std::printf("%-16s", name);
    for (unsigned int channel = 0; channel < channel_count; ++channel)
        std::printf("%c", is_on(channel).value() ? '1' : '.');
    std::printf("\n");
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(
        argc, argv, 0, "cpp_io ADDRESS CONFIG",
        [](const qorin::cbox& box)
        {
            const auto control = example::take_control(box);
            std::array<unsigned int, channel_count> channels{};
            for (unsigned int channel = 0; channel < channel_count; ++channel)
                channels[channel] = channel;
            for (std::size_t lit = 0; lit < channel_count; lit += 5)
            {
                std::array<unsigned int, channel_count> values{}; // several at once change in the same control cycle
                values[lit] = 1;
                qorin::raw::cbox_io_digital_output_multiple_set(box.id(), channels, values).value();
                example::wait_for_frames();
                print("digital outputs", [&](unsigned int channel) { return box.digital_output(channel); });
            }
            qorin::raw::cbox_io_analog_output_mode_set(box.id(), 0, QORIN_ANALOG_IO_MODE_VOLTAGE, 0, 0).value();
            box.set_analog_output(0, 2.5).value();
            example::wait_for_frames();
            std::printf("analog 0         output %.3f, input %.3f\n", box.analog_output(0).value(),
                        box.analog_input(0).value());
            print("digital inputs", [&](unsigned int channel) { return box.digital_input(channel); });
        });
}
