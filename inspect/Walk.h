/// @file
/// Every parameter of an object, wherever it is.
#pragma once

#include <functional>
#include <string>

#include <EditorSerialization/ISerializable.h>
#include <effects/Schema.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// Receives an object, one of its parameters, and the JSON pointer of that in the document in which the walk began.
using VisitParameter =
    std::function<void(Serialize::ISerializable const &, Schema::Parameter const &, std::string const &)>;

/// Visits the parameters of an object in the order of its class, each before those of the records and the elements that
/// it holds. Objects of classes that are not of this library are passed over.
/// @param object   an effect, or a record in one
/// @param pointer  of the object in its document; empty where it is the document
/// @param visit    called for each parameter
EFFECTS_INSPECT_API void walk(
    Serialize::ISerializable const & object, std::string const & pointer, VisitParameter const & visit);

/// Receives an effect and its JSON pointer.
using VisitEffect = std::function<void(Object const &, std::string const &)>;

/// Visits an effect and, behind it, those that it holds, which may hold others.
EFFECTS_INSPECT_API void walkEffects(Object const & effect, std::string const & pointer, VisitEffect const & visit);

} // namespace Effect::Inspect
