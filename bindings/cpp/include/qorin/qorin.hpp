/**
 * @file qorin.hpp
 * The interface in C++20: values in place of outputs, objects in place of ids, handlers with state, over the C headers
 * and nothing else.
 *
 * Every call returns a qorin::result: a value, or a qorin::error. Its value() throws qorin::failure in place of the
 * latter. All functions, also the few that have no place here, are in qorin/functions.hpp, under their names in C.
 *
 * Headers alone, without a thread and without an object of their own, but for handlers of events: what calls these
 * stays until the process ends, and dispatch::own_thread and co_await start a thread for their control box.
 */
#ifndef QORIN_QORIN_HPP
#define QORIN_QORIN_HPP

#include "qorin/cpp/cbox.hpp"
#include "qorin/cpp/events.hpp"
#include "qorin/cpp/motion.hpp"
#include "qorin/cpp/options.hpp"
#include "qorin/cpp/result.hpp"
#include "qorin/cpp/robot.hpp"
#include "qorin/cpp/values.hpp"

#endif
