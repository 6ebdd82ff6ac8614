/// @file
/// The files that effects refer to: lookup tables, shaders, pictures and motion tracks.
#pragma once

#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// One file that an effect refers to.
struct ResourceUse
{
    /// What became of the file.
    enum class Outcome
    {
        Found,   ///< it is what the effect needs
        Missing, ///< there is none
        Broken   ///< it is something else, or damaged
    };

    std::string pointer;              ///< JSON pointer of the name in the effect's document
    std::string name;                 ///< by which the effect refers to it, UTF-8
    std::string file;                 ///< its path; empty where the name belongs to no file
    Outcome outcome = Outcome::Found; ///< what became of it
    std::string message;              ///< why it is missing or broken, one line; else empty
};

/// "found", "missing" or "broken".
EFFECTS_INSPECT_API char const * toText(ResourceUse::Outcome outcome);

/// The files of an effect and of those that it holds, each of them read. A name belongs to the file that the process
/// has registered for it, else to the file at the effect's `resourcePath`, else to a file among the user's blobs. A
/// motion track is in the user's folder. An effect without any file has none here, even if it needs one to do anything.
/// @param effect   any
/// @param folder   to which a path is relative, UTF-8; that of the process when it is empty
/// @param pointer  JSON pointer of the effect in its document
EFFECTS_INSPECT_API std::vector<ResourceUse> resourcesOf(
    Object const & effect, std::string const & folder = {}, std::string const & pointer = {});

} // namespace Effect::Inspect
