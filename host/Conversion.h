/// @file
/// Conversions of whole effects, with what holders hold, and what they came to.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>

#include <nlohmann/json.hpp>

#include "RenderHost.h"

namespace Host {

/// What a conversion came to.
struct Outcome
{
    enum class Result
    {
        Converted,
        Descriptor, ///< which nothing converts
        Holder,     ///< every effect in it was converted
        Incomplete, ///< converted without something that is missing or broken
        Failed      ///< it, or an effect in it, has no settings
    };

    Result result = Result::Converted;
    std::size_t held = 0;              ///< effects in a holder
    std::vector<std::string> problems; ///< why it is incomplete or failed
};

/// The record of an effect, as `RenderHost::convert` describes it. That of a holder has those of the effects inside as
/// well, each converted on its own: `effects`, null for an empty slot.
nlohmann::json recordOf(RenderHost & host, Effect::Object const & effect, RenderParams const & params);

/// What the conversion of `effect` to that record came to.
Outcome outcomeOf(Effect::Object const & effect, nlohmann::json const & record);

/// The name of a result in documents, such as "converted".
char const * toText(Outcome::Result result);

} // namespace Host
