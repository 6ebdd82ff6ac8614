/// @file
/// Archives in their two forms.
#pragma once

#include <string>
#include <string_view>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// How an archive is written.
enum class Form
{
    Json,
    Binary
};

/// The suffix of files in that form: ".json" or ".bin".
EFFECTS_INSPECT_API char const * suffixOf(Form form);

/// Whether a JSON text is an item of the catalogue: an object that holds an effect under `effect` and names no class
/// itself.
EFFECTS_INSPECT_API bool isItem(std::string_view text);

/// An archive or an item in that form. JSON stays the text that it is, with whatever the library does not know. Any
/// thread may call it.
///
/// Throws a `Failure` with the first error in the bytes, and for what the binary form cannot hold: an item, which has
/// categories, and whatever the library does not know.
EFFECTS_INSPECT_API std::string inForm(std::string_view bytes, Form form);

} // namespace Effect::Inspect
