/// @file
/// The editor's tools by name.
#pragma once

#include <EditorModel/Tool.h>

namespace Host {

/// What people call the tool.
char const * toolName(Tool::Type tool);

} // namespace Host
