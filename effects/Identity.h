/// @file
/// The vocabulary that saved projects hold: identifiers, tags and groups. The values never change, odd spellings
/// included. The constants are the rows of the families' `.def` files, such as `Effect::Id::Crop` and
/// `Effect::Tags::tagCrop` of effects/Geometry.def.
///
/// Identifiers look like UUIDs, but some of them use letters beyond hexadecimal: compare them as texts, never parse
/// them. A constant is valid once the library's static initialisation has run.
#pragma once

#include <effects/Export.h>

#include <QString>

namespace Effect {

/// What an effect is: `Effect::Object::id`.
namespace Id {
#define ROW_ID(Name, value) EFFECTS_API extern QString const Name;
#define ROWS <effects/ExportedFamilies.def>
#include <effects/Rows.h>
} // namespace Id

/// What a new effect is tagged with: `Effect::Object::tag`.
namespace Tags {
#define ROW_TAG(Name, value) EFFECTS_API extern QString const Name;
#define ROWS <effects/ExportedFamilies.def>
#include <effects/Rows.h>
} // namespace Tags

/// Groups that hold effects of more than one kind: `Effect::Object::groupId`.
namespace Group {
/// @{
/// Identifier of the group of that name.
EFFECTS_API extern QString const GroupAudioNoiseReduction;
EFFECTS_API extern QString const GroupPip;
EFFECTS_API extern QString const GroupZoom;
/// @}
} // namespace Group

} // namespace Effect
