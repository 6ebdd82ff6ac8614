/// @file
/// What is wrong with files of effects.
#pragma once

#include <exception>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <EditorModel/EffectDocument.h>
#include <inspect/Export.h>
#include <inspect/RenderHost.h>

namespace Effect::Inspect {

/// Looks through files of effects for mistakes, each file after those before it: a tag or a resource that two of them
/// claim is a finding of the later one.
///
/// ```cpp
/// Effect::Inspect::RenderHost host;
/// Effect::Inspect::Checker checker(host);
/// for (auto const & finding : checker.check("blur.effect.json"))
///     std::cout << Effect::Inspect::toLine("blur.effect.json", finding) << '\n';
/// ```
///
/// Besides the findings of `Effect::Archive::Document` there are these codes: `unreadable`, `out-of-range`,
/// `unknown-choice`, `class-identifier`, `duplicate-tag`, `duplicate-resource`, `unknown-category`, `missing-resource`,
/// `broken-resource`, `no-effect`.
class EFFECTS_INSPECT_API Checker
{
public:
    /// @param host  converts the effects; kept alive by the caller
    explicit Checker(RenderHost & host);

    /// Everything that is wrong with an archive in either form, or an item, in the order of the file. Throws nothing
    /// for what the file holds, or where it cannot be read.
    /// @param file  its path, or "-" for standard input
    std::vector<Archive::Finding> check(std::string const & file);

    /// The same for bytes that have been read.
    /// @param file   where they come from: the paths in an item are relative to its folder
    /// @param bytes  of the file
    std::vector<Archive::Finding> check(std::string const & file, std::string_view bytes);

private:
    class Task;

    /// The first file under a name.
    struct Named
    {
        std::string user; ///< file of the effect that refers to it
        std::string path;
    };

    RenderHost & m_host;
    std::map<std::pair<std::string, std::string>, std::string> m_tags; // files by collection folder and tag
    std::map<std::pair<std::string, int>, Named> m_resources;          // by name and type
};

/// The finding of a file that cannot be read.
/// @param file   its path, with which the error may begin
/// @param error  why
EFFECTS_INSPECT_API Archive::Finding unreadable(std::string const & file, std::exception const & error);

} // namespace Effect::Inspect
