/// @file
/// What a conversion made of each parameter and of each file.
#pragma once

#include <EditorModel/EffectObject.h>
#include <inspect/Export.h>
#include <inspect/RenderHost.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// The report on the conversion of one effect; what a holder holds has reports of its own.
///
/// `parameters` is an array with an object for each parameter that the effect has, those in records and lists included,
/// with its `pointer` in the effect's document, the value that is `given`, the value that is `used`, and an `outcome`:
///
/// - `exact`: the engine gets it.
/// - `narrowed`: the engine has a coarser type, such as a single-precision number, so that digits are lost.
/// - `clamped`, `nearest`, `fallback`: it is beyond its bounds or no choice, and another value counts. A bound may
/// follow
///   from `params`, such as half of the sample rate.
/// - `ignored`: no settings depend on it, or not while the other parameters and the files are what they are; `used` is
///   null.
///
/// `resources` is an array with an object for each file: `name`, `file` (null where the name belongs to none),
/// `outcome`
/// ("found", "missing" or "broken") and `message` (null for a file that was found).
///
/// How a number is used is found out by converting the effect with others as well.
/// @param host    converts the effect
/// @param effect  whose conversion is reported
/// @param params  with which it is converted
EFFECTS_INSPECT_API nlohmann::json reportOf(RenderHost & host, Object const & effect, RenderParams const & params);

} // namespace Effect::Inspect
