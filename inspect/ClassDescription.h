/// @file
/// What the library says about its classes, for programs and for people.
#pragma once

#include <string>

#include <effects/Schema.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// What a class is: its names, its base and what a new effect of it returns. What only effects have is null for other
/// classes.
EFFECTS_INSPECT_API nlohmann::json factsOf(Effect::Schema::Class const & info);

/// What is known of a parameter, with those of the elements that it has.
EFFECTS_INSPECT_API nlohmann::json describe(Effect::Schema::Parameter const & parameter);

/// The facts of a class, what it does, and its parameters.
EFFECTS_INSPECT_API nlohmann::json describe(Effect::Schema::Class const & info);

/// A value as a person reads it: a choice by name with its number behind, a colour as "#rrggbb" or, where it is not
/// opaque, "#aarrggbb", a number with its unit, a transform as its numbers, and of a list of objects how many there
/// are. Anything else is JSON.
/// @param value  as in the archive document
EFFECTS_INSPECT_API std::string valueText(Effect::Schema::Parameter const & parameter, nlohmann::json const & value);

/// The hard bounds with what is made of numbers beyond, such as "0 to 1, clamped beyond"; empty where there is neither.
EFFECTS_INSPECT_API std::string boundsText(Effect::Schema::Parameter const & parameter);

/// A number without decimals where it has none, such as "1" and "0.5".
EFFECTS_INSPECT_API std::string numberText(double number);

/// The bounds for a slider, such as "0 to 1"; empty where there are none.
EFFECTS_INSPECT_API std::string suggestionText(Effect::Schema::Parameter const & parameter);

} // namespace Effect::Inspect
