// Connects to a control box, creates its system, takes control and gives it back.
//
//   cpp_connect ADDRESS CONFIG [HOLD_SECONDS]
//
// With HOLD_SECONDS the program keeps the control for that long, so that a second one can be seen to be refused.

#include "session.hpp"

int main(int argc, char** argv)
{
    return example::program(
        argc, argv, 1, "cpp_connect ADDRESS CONFIG [HOLD_SECONDS]",
        [&](const qorin::cbox& box)
        {
            std::printf("connected as control box %u of this process\n", box.id().number);
            box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).value(); // that it stands already is no error
            auto control = box.take_control();
            if (!control) // one way with a result; value() is the other
                throw std::runtime_error("no control: " + control.error().text() + " " + control.error().advice());
            std::printf("this program %s\n", box.in_control().value() ? "commands" : "may not command");
            std::fflush(stdout);
            std::this_thread::sleep_for(std::chrono::duration<double>(argc > 3 ? example::number(argv[3]) : 0));
            control->give_back().value(); // the end of the object would do as well, without telling how it went
            std::printf("control given back\n");
        });
}
