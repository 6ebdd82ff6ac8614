/// @file
/// The editor's tools by name.
#pragma once

#include <EditorModel/Tool.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// What people call the tool.
EFFECTS_INSPECT_API char const * toolName(Tool::Type tool);

} // namespace Effect::Inspect
