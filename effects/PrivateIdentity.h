/// @file
/// Identifiers and tags of the effects that the library keeps to itself.
#pragma once

#include <effects/Identity.h>

namespace Effect {

namespace Id {
#define ROW_ID(Name, value) extern QString const Name;
#define ROWS <effects/HiddenFamilies.def>
#include <effects/Rows.h>
} // namespace Id

namespace Tags {
#define ROW_TAG(Name, value) extern QString const Name;
#define ROWS <effects/HiddenFamilies.def>
#include <effects/Rows.h>
} // namespace Tags

} // namespace Effect
