#ifndef EXAMPLES_CPP_SESSION_HPP
#define EXAMPLES_CPP_SESSION_HPP

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include <qorin/qorin.hpp>

/// What the examples have in common. They use value() alone: the first failure ends a program with its line.
namespace example
{
using namespace std::chrono_literals;

constexpr auto patience = 30s; ///< for a motion

/// Where the arm is bent enough to go on along straight lines, its tool downwards.
constexpr qorin::joints ready{0, 20, 60, 0, 100, 0};

inline double number(const char* argument, double least = 0)
{
    char* end = nullptr;
    const double value = std::strtod(argument, &end);
    if (end == argument || *end != '\0' || !(value >= least && value < 1e9))
        throw std::invalid_argument(std::string("not a number: ") + argument);
    return value;
}

/// Lets a few status frames arrive, so that getters tell what the last command has set.
inline void wait_for_frames()
{
    std::this_thread::sleep_for(100ms);
}

/// Looks for something once a millisecond.
template <class Condition>
void await(const char* what, Condition condition)
{
    for (const auto end = std::chrono::steady_clock::now() + patience; !condition();)
    {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error(std::string("waited in vain for ") + what);
        std::this_thread::sleep_for(1ms);
    }
}

inline void run(const qorin::motion& motion)
{
    if (!motion.run(patience).value())
        throw std::runtime_error("a motion has not settled in time");
}

/// The control of a box with a system.
inline qorin::scoped<qorin::control> take_control(const qorin::cbox& box)
{
    box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).value();
    return box.take_control().value();
}

/// A robot of this program's, also where one that was killed has left its own.
inline qorin::scoped<qorin::robot> create_robot(const qorin::cbox& box,
                                                QORIN_ROBOT_MODEL model = QORIN_ROBOT_MODEL_ARM_C)
{
    return box.create_robot(model, qorin::left_over::destroy).value();
}

/// One under power, without motions ahead of it.
inline qorin::scoped<qorin::robot> robot_under_power(const qorin::cbox& box)
{
    auto robot = create_robot(box);
    box.clear_queue().value();
    box.forget_events();
    robot.servo_on().value();
    return robot;
}

/// A program: connects to ADDRESS with CONFIG and does its work; a failure is a line on standard error.
template <class Work>
int program(int argc, char** argv, int further, const char* usage, Work&& work)
{
    const std::string_view first = argc == 2 ? argv[1] : "";
    if (first == "--version" || first == "--help")
        return std::printf("%s%s\n", first == "--help" ? "usage: " : "",
                           first == "--help" ? usage : qorin_system_api_version_get()) < 0;
    if (argc < 3 || argc > 3 + further)
        return std::fprintf(stderr, "usage: %s\n", usage), 1;
    try
    {
        work(qorin::cbox::connect(argv[1], {.config_file = argv[2]}).value());
        return 0;
    }
    catch (const std::exception& failed)
    {
        std::fprintf(stderr, "%s\n", failed.what());
        return 1;
    }
}
} // namespace example

#endif
