/// @file
/// Foreign text in messages. Files and their names may be made of any bytes, while the text of an exception and a line
/// of the log are one line of well-formed UTF-8.
#pragma once

#include <string>
#include <string_view>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// The text as a message can bear it: U+FFFD takes the place of bytes that are no UTF-8 and of control characters. Of
/// more than 2000 UTF-16 units the middle is left out, since the log cuts off long lines wherever that falls.
EDITORSERIALIZATION_EXPORT std::string messageText(std::string_view bytes);

/// The first 200 UTF-16 units of the text, with an ellipsis behind if there are more; U+FFFD for bytes that are no
/// UTF-8. Line ends and other control characters stay.
EDITORSERIALIZATION_EXPORT std::string shortenedText(std::string_view bytes);

/// The shortened text as a JSON string: in quotes, with control characters, quotes and backslashes escaped.
EDITORSERIALIZATION_EXPORT std::string quotedText(std::string_view bytes);

} // namespace Serialize
