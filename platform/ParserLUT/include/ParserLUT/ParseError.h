/// @file
/// What a parser of lookup tables throws.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

#include <ParserLUT/Export.h>

namespace Quoril::Proc::LUT {

/// A text that is no table. The message is one line for people, such as
/// `line 12: expected three numbers, found "0.5 oops"`, and short however long the text is.
class PARSERLUT_EXPORT ParseError : public std::runtime_error
{
public:
    /// @param line counts from 1
    ParseError(std::size_t line, std::string const & expected, std::string const & found);
    ParseError(ParseError const &) = default;
    ParseError & operator=(ParseError const &) = default;
    ~ParseError() override;

    std::size_t Line() const { return m_line; } ///< counts from 1

private:
    std::size_t m_line;
};

} // namespace Quoril::Proc::LUT
