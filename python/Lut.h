/// @file
/// The classes `Lut` and `Curve` of Python.
#pragma once

#include <pybind11/pybind11.h>

namespace EffectsPython {

/// Adds the classes, and the function that reads a table, to the module.
void addLut(pybind11::module_ & module);

} // namespace EffectsPython
