/// @file
/// Foreign text in messages. Files and their names may contain any bytes; messages of exceptions and log lines are one
/// line of well-formed UTF-8.
#pragma once

#include <string>
#include <string_view>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// The text made fit for a message: invalid UTF-8 and control characters are replaced by U+FFFD, and a text of more
/// than 2000 UTF-16 units is shortened in its middle, since the log would cut it at an arbitrary byte.
EDITORSERIALIZATION_EXPORT std::string messageText(std::string_view bytes);

/// The first 200 UTF-16 units of the text, with an ellipsis behind if there are more; U+FFFD for bytes that are no
/// UTF-8. Line ends and other control characters stay.
EDITORSERIALIZATION_EXPORT std::string shortenedText(std::string_view bytes);

/// The shortened text as a JSON string: in quotes, with control characters, quotes and backslashes escaped.
EDITORSERIALIZATION_EXPORT std::string quotedText(std::string_view bytes);

} // namespace Serialize
