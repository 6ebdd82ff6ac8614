// UTF-8, as far as archives need it.
#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace Serialize {

/// The bytes of the sequence at the beginning; 0 if it is not well-formed: no overlong forms, no surrogates, nothing
/// past U+10FFFF (table 3-7 of the Unicode standard).
int utf8Length(char const * begin, char const * end);

bool isUtf8(std::string_view bytes);

/// Whether every surrogate is part of a pair.
bool isUtf16(QString const & text);

/// @param code  a character, no surrogate
void appendUtf8(std::string & bytes, unsigned code);

/// The text of well-formed UTF-8; not null. U+FEFF at its beginning is part of the text, which Qt takes for a mark.
QString fromUtf8(std::string_view bytes);

} // namespace Serialize
