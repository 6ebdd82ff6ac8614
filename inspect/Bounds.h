/// @file
/// Values against the bounds and the choices of their parameters.
#pragma once

#include <optional>

#include <effects/Schema.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// The number in an archive document, "NaN" and the like included; nothing for a value of another kind.
EFFECTS_INSPECT_API std::optional<double> numberIn(nlohmann::json const & value);

/// Whether the number is one of the parameter's choices. Any is where it has none.
EFFECTS_INSPECT_API bool isChoice(double number, Schema::Parameter const & parameter);

/// The choice that is nearest to the number, of two the first one. The parameter has choices.
EFFECTS_INSPECT_API double nearestChoice(double number, Schema::Parameter const & parameter);

/// The hard bound that the number is beyond; the number itself where it is none, as NaN is beyond any bound. Nothing
/// for a number within the bounds, or without bounds.
EFFECTS_INSPECT_API std::optional<double> boundBefore(double number, Schema::Parameter const & parameter);

/// Whether the number is beyond the bounds or, of an enumeration, no choice.
EFFECTS_INSPECT_API bool isBeyond(double number, Schema::Parameter const & parameter);

} // namespace Effect::Inspect
