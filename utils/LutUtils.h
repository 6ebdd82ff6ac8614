/// @file
/// Lookup tables in files that a user brings.
#pragma once

#include <memory>

#include <effects/Export.h>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QByteArray;
class QString;
QT_END_NAMESPACE

namespace Quoril::Proc::LUT {
struct LUTTable; // <ParserLUT/LUTTable.h>
} // namespace Quoril::Proc::LUT

namespace Effect::Utils {

/// Reads a lookup table out of the text of a file, in any format that there is a parser for, with the parser that the
/// conversion of an `Effect::Lut` uses. All of `data` is text, but white space at its ends plays no part. Any thread
/// may call it.
/// @param error  if not null, receives what is wrong with the table, with the line of `data` it is in; left alone when
///               the text begins like none of the formats
/// @return null for what is no table
EFFECTS_API std::shared_ptr<Quoril::Proc::LUT::LUTTable> parseLutEffect(QByteArray const & data, QString * error);

/// Whether `parseLutEffect` gives a table.
/// @param error  as for `parseLutEffect`
EFFECTS_API bool validateLutEffect(QByteArray const & data, QString * error);

} // namespace Effect::Utils
