/// @file
/// Findings of documents, for programs and for people.
#pragma once

#include <string>
#include <vector>

#include <EditorModel/EffectDocument.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// "note", "warning" or "error".
EFFECTS_INSPECT_API char const * toText(Effect::Archive::Severity severity);

/// An object with a key for each member; null for what a finding does not have.
EFFECTS_INSPECT_API nlohmann::json toJson(Effect::Archive::Finding const & finding);

/// An array of such.
EFFECTS_INSPECT_API nlohmann::json toJson(std::vector<Effect::Archive::Finding> const & findings);

/// "an object is expected, found null, at /effects/0".
EFFECTS_INSPECT_API std::string toText(Effect::Archive::Finding const & finding);

/// "part.json:3:7", or the file alone.
EFFECTS_INSPECT_API std::string placeIn(std::string const & file, Effect::Archive::Finding const & finding);

/// "part.json:3:7: error: ..., at /effects/0", as compilers write it.
EFFECTS_INSPECT_API std::string toLine(std::string const & file, Effect::Archive::Finding const & finding);

} // namespace Effect::Inspect
