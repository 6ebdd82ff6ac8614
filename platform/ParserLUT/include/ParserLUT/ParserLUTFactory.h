/// @file
/// The way to a parser of lookup tables.
#pragma once

#include <array>
#include <memory>
#include <string>

#include <ParserLUT/Export.h>
#include <ParserLUT/IParserLUT.h>

namespace Quoril::Proc::LUT {

/// The suffixes of files in the formats of `ParserLUTFactory`. The format itself is recognised by the text.
inline constexpr std::array<char const *, 4> fileSuffixes{".cube", ".3dl", ".spi3d", ".csp"};

/// Finds the parser of a text.
class PARSERLUT_EXPORT ParserLUTFactory
{
public:
    ParserLUTFactory() = delete;

    /// The parser for the format of @p text, which is recognised by its beginning: "cube", "3dl", "spi3d" or "csp".
    /// Blank lines and comments ahead, and a UTF-8 byte order mark, do not matter. That there is a parser does not mean
    /// that the text is a whole table.
    /// @return null if the text begins like none of the formats
    static std::unique_ptr<IParserLUT> GetParser(std::string const & text);

    /// What is wrong with a text that there is no parser for, as the rest of a sentence that names the formats.
    static std::string UnknownFormat();
};

} // namespace Quoril::Proc::LUT
