/// @file
/// The class `Effect` of Python.
#pragma once

#include <memory>
#include <string>

#include <pybind11/pybind11.h>

#include "EffectHandle.h"

namespace EffectsPython {

/// Adds the class to the module.
void addEffectType(pybind11::module_ & module);

/// A new effect of a class. Raises `UnknownClass` for a name that is no effect's.
std::shared_ptr<EffectHandle> create(std::string const & className);

/// The effect in a file's content. Raises `UnknownClass` or `ArchiveError`.
/// @param file  its name, in the bytes of the file system; empty for none
std::shared_ptr<EffectHandle> read(pybind11::bytes const & content, std::string const & file);

/// The same for content that must be of one form.
std::shared_ptr<EffectHandle> readForm(pybind11::bytes const & content, bool isBinary);

} // namespace EffectsPython
