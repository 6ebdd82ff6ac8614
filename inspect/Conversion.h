/// @file
/// Conversions of whole effects, with what holders hold, and what they came to.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <inspect/Export.h>
#include <inspect/RenderHost.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// What a conversion came to.
struct Outcome
{
    /// In one word.
    enum class Result
    {
        Converted,  ///< by itself
        Descriptor, ///< which nothing converts
        Holder,     ///< every effect in it was converted
        Incomplete, ///< converted without something that is missing or broken
        Failed      ///< it, or an effect in it, has no settings
    };

    Result result = Result::Converted; ///< what became of it
    std::size_t held = 0;              ///< effects in a holder
    std::vector<std::string> problems; ///< why it is incomplete or failed
};

/// Registers the files that the effect and the effects in it refer to, as the catalogue does with its items. What is
/// registered already stays.
EFFECTS_INSPECT_API void registerResources(Effect::Object const & effect);

/// The record of an effect, as `RenderHost::convert` describes it. That of a holder has those of the effects inside as
/// well, each converted on its own: `effects`, null for an empty slot. Where `params` ask for it, each has a `report`
/// by `reportOf`.
EFFECTS_INSPECT_API nlohmann::json recordOf(
    RenderHost & host, Effect::Object const & effect, RenderParams const & params);

/// What the conversion of `effect` to that record came to.
EFFECTS_INSPECT_API Outcome outcomeOf(Effect::Object const & effect, nlohmann::json const & record);

/// The name of a result in documents, such as "converted".
EFFECTS_INSPECT_API char const * toText(Outcome::Result result);

} // namespace Effect::Inspect
