// .spi3d, of Sony Pictures Imageworks:
//
//     SPILUT 1.0
//     3 3                           channels in and out
//     2 2 2                         points along the red, the green and the blue axis
//     0 0 0 0.0 0.0 0.0             where on the three axes, counted from 0, and the entry; in any order
//     0 0 1 0.0 0.0 0.9
//     ...
#include "Formats.h"

#include <algorithm>

#include <ParserLUT/ParseError.h>

#include "Scanner.h"

namespace Quoril::Proc::LUT {

namespace {

constexpr std::size_t shortestRow = std::string_view("0 0 0 0 0 0\n").size();

std::string Position(std::array<int, 3> const & at)
{
    return std::to_string(at[0]) + ' ' + std::to_string(at[1]) + ' ' + std::to_string(at[2]);
}

/// The position of an entry; the reverse of LUTTable::Index.
std::array<int, 3> PositionOf(std::size_t index, LUTTable const & table)
{
    auto const red = static_cast<std::size_t>(table.size[0]);
    auto const green = static_cast<std::size_t>(table.size[1]);
    return {
        static_cast<int>(index % red), static_cast<int>(index / red % green), static_cast<int>(index / red / green)};
}

void ReadHeader(Scanner & scanner, LUTTable & table)
{
    scanner.NextWord();
    if (!scanner.Accept("SPILUT"))
        scanner.Fail("SPILUT");
    if (!scanner.Accept("1.0"))
        scanner.Fail("the version 1.0");
    scanner.NextLine();
    for (auto const name : {"the number of channels in", "the number of channels out"})
        scanner.Integer(3, 3, name);
    scanner.NextLine();
    for (int & size : table.size)
        size = scanner.Integer(2, maxSize3D, "a size");
    scanner.EndLine();
}

void ReadEntries(Scanner & scanner, LUTTable & table)
{
    auto const count = table.Count();
    // Entries come in any order, so all the room is needed at once: not before the text is long enough for them.
    if (scanner.Capacity(count, shortestRow) < count)
        throw ParseError(
            scanner.Line(), std::to_string(count) + " entries after this line", "a text too short for them");
    table.entries.resize(count);
    std::vector<bool> filled(count);
    while (scanner.NextWord()) {
        std::array<int, 3> at;
        for (std::size_t axis = 0; axis < at.size(); ++axis)
            at[axis] = scanner.Integer(0, table.size[axis] - 1, "an index");
        auto const index = table.Index(at[0], at[1], at[2]);
        if (filled[index])
            throw ParseError(scanner.Line(), "each entry once", "the entry " + Position(at) + " again");
        filled[index] = true;
        table.entries[index] = scanner.Numbers3();
        scanner.EndLine();
    }
    auto const missing = std::find(filled.begin(), filled.end(), false);
    if (missing != filled.end())
        throw ParseError(scanner.Line(), std::to_string(count) + " entries",
            "none for " + Position(PositionOf(static_cast<std::size_t>(missing - filled.begin()), table)));
}

class ParserSpi3d final : public IParserLUT
{
public:
    std::shared_ptr<LUTTable> Parse(std::string const & text) override
    {
        Scanner scanner(text);
        auto table = std::make_shared<LUTTable>();
        ReadHeader(scanner, *table);
        ReadEntries(scanner, *table);
        table->format = FormatName();
        return table;
    }

    std::string FormatName() const override { return "spi3d"; }
};

} // namespace

std::unique_ptr<IParserLUT> CreateSpi3dParser(std::string_view text)
{
    Scanner scanner(text);
    if (!scanner.NextWord() || !scanner.Accept("SPILUT"))
        return nullptr;
    return std::make_unique<ParserSpi3d>();
}

} // namespace Quoril::Proc::LUT
