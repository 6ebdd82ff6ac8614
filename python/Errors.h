/// @file
/// The exceptions of C++ as those of editoreffects.errors. The interpreter's lock is held in all functions.
#pragma once

#include <string>

#include <pybind11/pybind11.h>

#include <EditorModel/EffectDocument.h>

namespace EffectsPython {

/// Raises the exception of that name.
[[noreturn]] void raise(char const * name, std::string const & message);

/// Raises `UnknownClass` or `ArchiveError` with the place that the finding is about.
/// @param file  what the message begins with; empty for nothing
[[noreturn]] void raise(Effect::Archive::Finding const & finding, std::string const & file = {});

/// Sets Python's error for the exception that is being handled. For functions that the interpreter calls directly.
void setError() noexcept;

/// Has the exceptions that leave functions of pybind11 arrive as those of editoreffects.errors.
void translateErrors();

/// For a class whose objects only this module makes: Python cannot call it.
void refuseCreation(PyHeapTypeObject * type);

} // namespace EffectsPython
