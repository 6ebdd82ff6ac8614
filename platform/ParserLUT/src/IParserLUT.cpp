#include <ParserLUT/IParserLUT.h>

namespace Quoril::Proc::LUT {

// Here, so that the class has one virtual table and one type in the process.
IParserLUT::~IParserLUT() = default;

} // namespace Quoril::Proc::LUT
