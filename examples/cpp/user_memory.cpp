// Keeps values of several types in the control box's user memory and reads them back.
//
//   cpp_user_memory ADDRESS CONFIG

#include "session.hpp"

namespace
{
void print(const char* name, const qorin::user_value& value)
{
    switch (value.type)
    {
    case QORIN_USER_DATA_TYPE_INT:
        std::printf("%-8s integer %d\n", name, value.integer);
        break;
    case QORIN_USER_DATA_TYPE_BOOL:
        std::printf("%-8s %s\n", name, value.truth ? "true" : "false");
        break;
    case QORIN_USER_DATA_TYPE_DOUBLE:
        std::printf("%-8s number %g\n", name, value.real);
        break;
    default:
        std::printf("%-8s a text, which does not come back\n", name);
    }
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_user_memory ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                const auto control = example::take_control(box);
                                const auto memory = box.memory();
                                memory.set("parts", -12).value();
                                memory.set("recipe", "oak").value();
                                memory.set("ready", true).value();
                                memory.set("scale", 0.125).value();
                                for (const char* name : {"parts", "recipe", "ready", "scale"})
                                    print(name, memory.get(name).value());
                                memory.clear().value();
                                std::printf("after the memory is cleared: %s\n",
                                            memory.get("parts").error().name().c_str());
                            });
}
