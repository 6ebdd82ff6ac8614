// .csp, of cineSpace:
//
//     CSPLUTV100
//     3D                            or 1D
//
//     BEGIN METADATA                may be absent
//     A line or more of anything
//     END METADATA
//
//     2                             what red passes through first: the number of knots, their inputs, their outputs
//     0.0 4.0
//     0.0 1.0
//     2                             the same for green
//     ...
//     2                             and for blue
//     ...
//
//     2 2 2                         points along the red, the green and the blue axis; in 1D one length
//     0.0 0.0 0.0                   the entries over the range 0 to 1, red fastest
//     1.0 0.0 0.0
//     ...
#include "Formats.h"

#include <algorithm>

#include <ParserLUT/ParseError.h>

#include "Scanner.h"

namespace Quoril::Proc::LUT {

namespace {

/// Takes the metadata if there is any, and goes to the line behind it.
/// @return its first line, which is where writers put a name
std::string ReadMetadata(Scanner & scanner)
{
    std::string title;
    if (!scanner.Accept("BEGIN"))
        return title;
    if (!scanner.Accept("METADATA"))
        scanner.Fail("METADATA");
    scanner.NextLine();
    for (std::string_view line = scanner.RestOfLine(); !SameWord(line, "END METADATA"); line = scanner.RestOfLine()) {
        if (title.empty())
            title = line;
        if (!scanner.NextWord())
            scanner.Fail("END METADATA");
    }
    scanner.NextLine();
    return title;
}

bool IsIdentity(Curve const & curve)
{
    // Clamping to the range 0 to 1 comes next in any case, so it matters only that the curve covers that.
    return curve.front().input <= 0 && curve.back().input >= 1 &&
           std::all_of(curve.begin(), curve.end(), [](Knot const & knot) { return knot.input == knot.output; });
}

/// Takes the three lines of a channel and goes to the line behind them.
/// @return an empty curve for one that changes nothing
Curve ReadCurve(Scanner & scanner)
{
    auto const count = static_cast<std::size_t>(scanner.Integer(2, maxSize1D, "a number of knots"));
    scanner.NextLine();
    Curve curve;
    curve.reserve(scanner.Capacity(count, std::string_view("0 0 ").size()));
    while (curve.size() < count) {
        float const input = scanner.Number();
        if (!curve.empty() && !(curve.back().input < input))
            throw ParseError(
                scanner.Line(), "inputs that increase", Shown(curve.back().input) + " and then " + Shown(input));
        curve.push_back({input, 0});
    }
    scanner.NextLine();
    for (Knot & knot : curve)
        knot.output = scanner.Number();
    scanner.NextLine();
    return IsIdentity(curve) ? Curve() : curve;
}

class ParserCsp final : public IParserLUT
{
public:
    std::shared_ptr<LUTTable> Parse(std::string const & text) override
    {
        Scanner scanner(text);
        scanner.NextWord();
        if (!scanner.Accept("CSPLUTV100"))
            scanner.Fail("CSPLUTV100");
        scanner.NextLine();
        bool const is3D = scanner.Accept("3D");
        if (!is3D && !scanner.Accept("1D"))
            scanner.Fail("1D or 3D");
        scanner.NextLine();

        auto table = std::make_shared<LUTTable>();
        table->format = FormatName();
        table->title = ReadMetadata(scanner);
        for (Curve & curve : table->shaper)
            curve = ReadCurve(scanner);
        if (is3D)
            for (int & size : table->size)
                size = scanner.Integer(2, maxSize3D, "a size");
        else
            table->size = {scanner.Integer(2, maxSize1D, "a size"), 1, 1};
        scanner.EndLine();
        table->entries = scanner.Colors(table->Count());
        scanner.EndText(std::to_string(table->Count()) + " entries");
        return table;
    }

    std::string FormatName() const override { return "csp"; }
};

} // namespace

std::unique_ptr<IParserLUT> CreateCspParser(std::string_view text)
{
    Scanner scanner(text);
    if (!scanner.NextWord() || !scanner.Accept("CSPLUTV100"))
        return nullptr;
    return std::make_unique<ParserCsp>();
}

} // namespace Quoril::Proc::LUT
