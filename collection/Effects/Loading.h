/// @file
/// Loading of files for conversions.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace Effect::Factory {

/// The text in the blob of that name, up to the first zero byte; nothing when the file is missing or empty.
/// @param problem  receives why there is nothing, or why the text is empty
std::optional<QByteArray> resourceText(QString const & resourceName, QString & problem);

/// Logs, in one line at severity WARNING, that a file could not be loaded.
/// @param what  such as "LUT"
/// @param name  of the resource or the file
void warnOfMissing(char const * what, QString const & name, QString const & problem);

} // namespace Effect::Factory
