/// @file
/// What parsers of lookup tables have in common.
#pragma once

#include <memory>
#include <string>

#include <ParserLUT/Export.h>
#include <ParserLUT/LUTTable.h>

namespace Quoril::Proc::LUT {

/// A parser of one text format of lookup tables. Parsers have no state: one may be used for any number of texts, from
/// several threads at once.
///
/// The order of the virtual operations is part of the binary interface: new ones go to the end.
class PARSERLUT_EXPORT IParserLUT
{
public:
    virtual ~IParserLUT();

    /// Reads the whole text.
    /// @return never null
    /// @throws ParseError if the text is not a complete table of this format
    virtual std::shared_ptr<LUTTable> Parse(std::string const & text) = 0;

    /// The format's short name, such as "cube".
    virtual std::string FormatName() const = 0;

protected:
    IParserLUT() = default;
    IParserLUT(IParserLUT const &) = default;
    IParserLUT & operator=(IParserLUT const &) = default;
};

} // namespace Quoril::Proc::LUT
