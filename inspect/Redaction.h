/// @file
/// Files without what is private in them, for reports of faults.
#pragma once

#include <string>
#include <string_view>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// An archive or an item in its own form with every text replaced that the library itself has not put there: paths,
/// names, tags, categories, keys and classes that it does not know, and in what it does not know the numbers too, as
/// they may be text as well. Known classes and keys, the identifiers and tags of new effects, and the values of
/// parameters stay, so that the effect converts as before, but for its resources.
///
/// The same text becomes the same replacement, "text-1" and so on, with its suffix if that is a usual one such as
/// ".cube".
///
/// Throws a `Failure` where not all of the bytes can be read.
EFFECTS_INSPECT_API std::string redacted(std::string_view bytes);

} // namespace Effect::Inspect
