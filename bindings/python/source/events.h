#ifndef BINDINGS_PYTHON_EVENTS_H
#define BINDINGS_PYTHON_EVENTS_H

#include <pybind11/pybind11.h>

namespace qorin_python
{
/// Past events of each control box, waits for them, and the way of events to the thread of Python's handlers.
void define_events(pybind11::module_& module);
} // namespace qorin_python

#endif
