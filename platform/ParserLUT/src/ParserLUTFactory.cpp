#include <ParserLUT/ParserLUTFactory.h>

#include "Formats.h"

namespace Quoril::Proc::LUT {

std::unique_ptr<IParserLUT> ParserLUTFactory::GetParser(std::string const & text)
{
    // No text begins like two of the formats, so the order is free.
    for (auto const create : {&CreateCubeParser, &Create3dlParser, &CreateSpi3dParser, &CreateCspParser})
        if (auto parser = create(text))
            return parser;
    return nullptr;
}

} // namespace Quoril::Proc::LUT
