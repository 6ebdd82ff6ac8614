#include <ParserLUT/ParseError.h>

namespace Quoril::Proc::LUT {

ParseError::ParseError(std::size_t line, std::string const & expected, std::string const & found)
    : std::runtime_error("line " + std::to_string(line) + ": expected " + expected + ", found " + found)
    , m_line(line)
{}

// Here, so that a handler in another library recognises the class.
ParseError::~ParseError() = default;

} // namespace Quoril::Proc::LUT
