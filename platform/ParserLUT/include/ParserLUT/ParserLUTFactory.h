/// @file
/// The way to a parser of lookup tables.
#pragma once

#include <array>
#include <memory>
#include <string>

#include <ParserLUT/Export.h>
#include <ParserLUT/IParserLUT.h>

namespace Quoril::Proc::LUT {

/// What the names of files in the formats of `ParserLUTFactory` end with. The format itself is told by the text.
inline constexpr std::array<char const *, 4> fileSuffixes{".cube", ".3dl", ".spi3d", ".csp"};

/// Finds the parser of a text.
class PARSERLUT_EXPORT ParserLUTFactory
{
public:
    ParserLUTFactory() = delete;

    /// The parser of the format that @p text is in, told by how the text begins: "cube", "3dl", "spi3d" or "csp".
    /// Blank lines and comments ahead, and a UTF-8 byte order mark, do not matter. That there is a parser does not mean
    /// that the text is a whole table.
    /// @return null if the text begins like none of the formats
    static std::unique_ptr<IParserLUT> GetParser(std::string const & text);

    /// What is wrong with a text that there is no parser for, as the rest of a sentence that names the formats.
    static std::string UnknownFormat();
};

} // namespace Quoril::Proc::LUT
