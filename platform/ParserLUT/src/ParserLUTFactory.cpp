#include <ParserLUT/ParserLUTFactory.h>

#include "Formats.h"

namespace Quoril::Proc::LUT {

namespace {

struct Format
{
    char const * name;
    std::unique_ptr<IParserLUT> (*create)(std::string_view text);
};

// No text begins like two of the formats, so the order is free.
constexpr Format formats[] = {
    {"cube", CreateCubeParser},
    {"3dl", Create3dlParser},
    {"spi3d", CreateSpi3dParser},
    {"csp", CreateCspParser},
};

} // namespace

std::unique_ptr<IParserLUT> ParserLUTFactory::GetParser(std::string const & text)
{
    for (Format const & format : formats)
        if (auto parser = format.create(text))
            return parser;
    return nullptr;
}

std::string ParserLUTFactory::UnknownFormat()
{
    std::string names;
    for (Format const & format : formats)
        names += (names.empty() ? "" : ", ") + std::string(format.name);
    return "begins like none of the formats that are read: " + names;
}

} // namespace Quoril::Proc::LUT
