// .cube, as Iridas devised it and Adobe published it ("Cube LUT Specification", 1.0), with the ranges, the shaper and
// the video range keywords of Resolve:
//
//     # A comment
//     TITLE "Two points an axis"
//     LUT_1D_SIZE 3                 a table of one dimension, or with LUT_3D_SIZE a shaper in front of the cube
//     LUT_1D_INPUT_RANGE 0.0 1.0
//     LUT_3D_SIZE 2
//     LUT_3D_INPUT_RANGE 0.0 1.0    or, for a table alone, DOMAIN_MIN 0 0 0 and DOMAIN_MAX 1 1 1
//     0.0 0.0 0.0                   the entries of LUT_1D_SIZE
//     0.4 0.5 0.6
//     1.0 1.0 1.0
//     0.0 0.0 0.0                   the entries of LUT_3D_SIZE, red fastest
//     1.0 0.0 0.0
//     ...
#include "Formats.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <ParserLUT/ParseError.h>

#include "Scanner.h"

namespace Quoril::Proc::LUT {

namespace {

struct Range
{
    float min = 0;
    float max = 1;
};

struct Header
{
    std::string title;
    int size1D = 0; ///< 0 if there is none
    int size3D = 0;
    Range range1D;
    Range range3D;
    Color domainMin{0, 0, 0};
    Color domainMax{1, 1, 1};
    std::size_t range1DLine = 0; ///< line of the keyword, 0 if absent
    std::size_t range3DLine = 0;
    std::size_t domainLine = 0; ///< line of the later of the two
    bool videoRangeInput = false;
    bool videoRangeOutput = false;
};

std::string ReadTitle(Scanner & scanner)
{
    std::string_view const text = scanner.RestOfLine();
    if (text.empty() || text.front() != '"')
        return std::string(text); // some writers leave the quotes out
    auto const end = text.find('"', 1);
    if (end == std::string_view::npos)
        scanner.Fail("a quote that closes the title");
    return std::string(text.substr(1, end - 1));
}

Range ReadRange(Scanner & scanner)
{
    Range range;
    range.min = scanner.Number();
    range.max = scanner.Number();
    if (!(range.min < range.max))
        throw ParseError(
            scanner.Line(), "a range that begins below its end", Shown(range.min) + " to " + Shown(range.max));
    return range;
}

struct Keyword
{
    std::string_view name;
    void (*read)(Scanner & scanner, Header & header);
};

constexpr Keyword keywords[] = {
    {"TITLE", [](Scanner & scanner, Header & header) { header.title = ReadTitle(scanner); }},
    {"LUT_1D_SIZE",
        [](Scanner & scanner, Header & header) { header.size1D = scanner.Integer(2, maxSize1D, "LUT_1D_SIZE"); }},
    {"LUT_3D_SIZE",
        [](Scanner & scanner, Header & header) { header.size3D = scanner.Integer(2, maxSize3D, "LUT_3D_SIZE"); }},
    {"LUT_1D_INPUT_RANGE",
        [](Scanner & scanner, Header & header) {
            header.range1D = ReadRange(scanner);
            header.range1DLine = scanner.Line();
        }},
    {"LUT_3D_INPUT_RANGE",
        [](Scanner & scanner, Header & header) {
            header.range3D = ReadRange(scanner);
            header.range3DLine = scanner.Line();
        }},
    {"DOMAIN_MIN",
        [](Scanner & scanner, Header & header) {
            header.domainMin = scanner.Numbers3();
            header.domainLine = scanner.Line();
        }},
    {"DOMAIN_MAX",
        [](Scanner & scanner, Header & header) {
            header.domainMax = scanner.Numbers3();
            header.domainLine = scanner.Line();
        }},
    {"LUT_IN_VIDEO_RANGE", [](Scanner &, Header & header) { header.videoRangeInput = true; }},
    {"LUT_OUT_VIDEO_RANGE", [](Scanner &, Header & header) { header.videoRangeOutput = true; }},
};

/// The keyword at the cursor, taken; keywords' end if there is none.
Keyword const * AcceptKeyword(Scanner & scanner)
{
    return std::find_if(std::begin(keywords), std::end(keywords),
        [&](Keyword const & keyword) { return scanner.Accept(keyword.name); });
}

bool IsNumberStart(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.';
}

/// Takes the keywords, up to the first entry.
Header ReadHeader(Scanner & scanner)
{
    Header header;
    std::array<std::size_t, std::size(keywords)> lines{};
    while (scanner.NextWord() && !IsNumberStart(scanner.Peek())) {
        auto const keyword = AcceptKeyword(scanner);
        if (keyword == std::end(keywords))
            scanner.Fail("a keyword of the format or three finite numbers");
        auto & line = lines[static_cast<std::size_t>(keyword - std::begin(keywords))];
        std::string const name(keyword->name);
        if (line != 0)
            throw ParseError(
                scanner.Line(), name + " only once", "it again after that of line " + std::to_string(line));
        line = scanner.Line();
        keyword->read(scanner, header);
        scanner.EndLine();
    }
    if (header.size1D == 0 && header.size3D == 0)
        scanner.Fail("LUT_1D_SIZE or LUT_3D_SIZE ahead of the entries");
    return header;
}

void SetDomain(LUTTable & table, Header const & header)
{
    bool const is3D = header.size3D != 0;
    auto const rangeLine = is3D ? header.range3DLine : header.range1DLine;
    if (header.domainLine != 0) {
        if (rangeLine != 0)
            throw ParseError(header.domainLine,
                std::string("either ") + (is3D ? "LUT_3D_INPUT_RANGE" : "LUT_1D_INPUT_RANGE") + " or a domain",
                "DOMAIN_MIN or DOMAIN_MAX beside it");
        // With a shaper there would be two inputs for it to speak of.
        if (is3D && header.size1D != 0)
            throw ParseError(header.domainLine, "LUT_1D_INPUT_RANGE or LUT_3D_INPUT_RANGE beside a shaper",
                "DOMAIN_MIN or DOMAIN_MAX");
        for (std::size_t channel = 0; channel < header.domainMin.size(); ++channel)
            if (!(header.domainMin[channel] < header.domainMax[channel]))
                throw ParseError(header.domainLine, "DOMAIN_MIN below DOMAIN_MAX in every channel",
                    Shown(header.domainMin[channel]) + " and " + Shown(header.domainMax[channel]));
        table.domainMin = header.domainMin;
        table.domainMax = header.domainMax;
        return;
    }
    Range const range = is3D ? header.range3D : header.range1D;
    table.domainMin.fill(range.min);
    table.domainMax.fill(range.max);
}

/// Turns evenly spaced outputs into one curve a channel.
std::array<Curve, 3> MakeShaper(std::vector<Color> const & outputs, Header const & header)
{
    std::array<Curve, 3> shaper;
    for (auto & curve : shaper)
        curve.reserve(outputs.size());
    double const step =
        (static_cast<double>(header.range1D.max) - header.range1D.min) / static_cast<double>(outputs.size() - 1);
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        bool const last = i + 1 == outputs.size();
        auto const input =
            last ? header.range1D.max : static_cast<float>(header.range1D.min + step * static_cast<double>(i));
        if (i != 0 && !(shaper[0].back().input < input))
            throw ParseError(header.range1DLine, "a range wide enough for LUT_1D_SIZE", "inputs that coincide");
        for (std::size_t channel = 0; channel < shaper.size(); ++channel)
            shaper[channel].push_back({input, outputs[i][channel]});
    }
    return shaper;
}

class ParserCube final : public IParserLUT
{
public:
    std::shared_ptr<LUTTable> Parse(std::string const & text) override
    {
        Scanner scanner(text);
        auto table = std::make_shared<LUTTable>();
        auto header = ReadHeader(scanner);
        SetDomain(*table, header);
        auto const length = static_cast<std::size_t>(header.size1D);
        if (header.size3D == 0)
            table->size = {header.size1D, 1, 1};
        else {
            if (header.size1D != 0)
                table->shaper = MakeShaper(scanner.Colors(length), header);
            table->size.fill(header.size3D);
        }
        table->entries = scanner.Colors(table->Count());
        scanner.EndText(std::to_string(table->Count()) + " entries");

        table->format = FormatName();
        table->title = std::move(header.title);
        table->videoRangeInput = header.videoRangeInput;
        table->videoRangeOutput = header.videoRangeOutput;
        return table;
    }

    std::string FormatName() const override { return "cube"; }
};

} // namespace

std::unique_ptr<IParserLUT> CreateCubeParser(std::string_view text)
{
    Scanner scanner(text);
    if (!scanner.NextWord() || AcceptKeyword(scanner) == std::end(keywords))
        return nullptr;
    return std::make_unique<ParserCube>();
}

} // namespace Quoril::Proc::LUT
