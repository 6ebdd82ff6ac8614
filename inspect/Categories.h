/// @file
/// The categories of the catalogue, as people read them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// The English text of a category: "Colour filters" for "category_color_filters". Empty for a category that the editor
/// has no text for.
EFFECTS_INSPECT_API std::string categoryText(std::string_view category);

/// The categories that have a text, sorted.
EFFECTS_INSPECT_API std::vector<std::string> categories();

} // namespace Effect::Inspect
