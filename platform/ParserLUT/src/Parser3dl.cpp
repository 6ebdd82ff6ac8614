// .3dl, a format of Kodak's that Lustre and Flame write in forms of their own. All numbers are integers:
//
//     3DMESH                        Lustre and Flame only
//     Mesh 1 12                     3 = 2^1 + 1 points an axis, entries of 12 bits
//     0 512 1023                    the inputs of the points, the same for each axis; Lustre may leave it out
//     0 0 0                         the entries, blue fastest
//     0 0 2047
//     ...
//     LUT8                          Lustre and Flame only
//     gamma 1.0
//
// Without a Mesh line nothing states how many bits the entries have, and nothing ever states it of the inputs.
#include "Formats.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <ParserLUT/ParseError.h>

#include "Scanner.h"

namespace Quoril::Proc::LUT {

namespace {

using Row = std::array<int, 3>;
using Mesh = std::vector<int>;

/// 16 bits, with as much again for overshoot.
constexpr int largestCode = 2 * 65536 - 1;

constexpr std::size_t shortestRow = std::string_view("0 0 0\n").size();

constexpr std::size_t Cube(int size)
{
    auto const side = static_cast<std::size_t>(size);
    return side * side * side;
}

/// The root of a cube number; what it gives of another number is no root.
int CubeRoot(std::size_t count)
{
    return static_cast<int>(std::lround(std::cbrt(static_cast<double>(count))));
}

int TakeCode(Scanner & scanner)
{
    return scanner.Integer(0, largestCode, "an integer");
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The white of codes whose largest is @p largest: that of the smallest usual depth which holds it. A table may well
/// overshoot its white, but not to twice as much.
int LikelyWhite(int largest)
{
    for (int const bits : {8, 10, 12, 14})
        if (largest < 2 << bits)
            return (1 << bits) - 1;
    return (1 << 16) - 1;
}

struct Header
{
    std::optional<int> size;
    std::optional<int> white;
};

/// Takes the keywords ahead of the numbers.
Header ReadHeader(Scanner & scanner)
{
    Header header;
    scanner.NextWord();
    if (scanner.Accept("3DMESH")) {
        scanner.NextLine();
        if (!scanner.Accept("Mesh"))
            scanner.Fail("Mesh");
        header.size = (1 << scanner.Integer(0, 7, "a resolution in bits")) + 1;
        header.white = (1 << scanner.Integer(8, 16, "an output depth in bits")) - 1;
        scanner.NextLine();
    }
    return header;
}

/// Takes the rest of the line, which must be a mesh if it is not the three numbers of an entry.
Mesh ReadFirstRow(Scanner & scanner)
{
    Mesh row;
    do {
        if (row.size() == static_cast<std::size_t>(maxSize3D))
            scanner.Fail("at most " + std::to_string(maxSize3D) + " mesh points");
        row.push_back(TakeCode(scanner));
    } while (!scanner.AtLineEnd());
    if (row.size() == 1)
        throw ParseError(scanner.Line(), "at least two mesh points or the three numbers of an entry", "one number");
    return row;
}

/// Takes the entries. Their number is checked later, when the size is known.
void ReadRows(Scanner & scanner, std::vector<Row> & rows)
{
    while (scanner.NextWord() && IsDigit(scanner.Peek())) {
        Row row;
        for (int & code : row)
            code = TakeCode(scanner);
        scanner.EndLine();
        rows.push_back(row);
    }
}

/// Skips the lines that Lustre and Flame write after the entries. They refer to a display table outside of the file.
void ReadFooter(Scanner & scanner)
{
    for (; scanner.NextWord(); scanner.EndLine()) {
        if (scanner.Accept("gamma"))
            scanner.Number();
        else if (!scanner.Accept("LUT8") && !scanner.Accept("LUT10") && !scanner.Accept("LUT12"))
            scanner.Fail("three integers, the lines of an output table or the end of the text");
    }
}

void CheckIncreasing(Mesh const & mesh, std::size_t line)
{
    auto const at = std::adjacent_find(mesh.begin(), mesh.end(), [](int a, int b) { return a >= b; });
    if (at != mesh.end())
        throw ParseError(
            line, "mesh points that increase", std::to_string(at[0]) + " and then " + std::to_string(at[1]));
}

/// The curve from the mesh points to the even points of the grid; empty if they are the same but for rounding.
Curve MakeCurve(Mesh const & mesh)
{
    auto const white = static_cast<float>(LikelyWhite(mesh.back()));
    auto const last = static_cast<float>(mesh.size() - 1);
    Curve curve;
    bool even = true;
    for (std::size_t i = 0; i < mesh.size(); ++i) {
        auto const code = static_cast<float>(mesh[i]);
        auto const output = static_cast<float>(i) / last;
        even = even && std::abs(code - white * output) <= 1;
        curve.push_back({code / white, output});
    }
    return even ? Curve() : curve;
}

/// The entries as colours, from blue fastest to red fastest.
std::vector<Color> MakeEntries(std::vector<Row> const & rows, std::size_t side, int white)
{
    auto const scale = static_cast<float>(white);
    std::vector<Color> entries(rows.size());
    auto row = rows.begin();
    for (std::size_t red = 0; red < side; ++red)
        for (std::size_t green = 0; green < side; ++green)
            for (std::size_t blue = 0; blue < side; ++blue, ++row) {
                auto & entry = entries[red + side * (green + side * blue)];
                for (std::size_t channel = 0; channel < entry.size(); ++channel)
                    entry[channel] = static_cast<float>((*row)[channel]) / scale;
            }
    return entries;
}

/// The white of entries of which nothing states it.
int White(std::vector<Row> const & rows)
{
    int largest = 0;
    for (auto const & row : rows)
        largest = std::max(largest, *std::max_element(row.begin(), row.end()));
    return LikelyWhite(largest);
}

class Parser3dl final : public IParserLUT
{
public:
    std::shared_ptr<LUTTable> Parse(std::string const & text) override
    {
        Scanner scanner(text);
        auto const header = ReadHeader(scanner);
        std::size_t const firstLine = scanner.Line();
        Mesh mesh = ReadFirstRow(scanner);
        std::vector<Row> rows;
        bool const mayBeEntry = mesh.size() == Row().size();
        if (mayBeEntry) {
            rows.push_back({mesh[0], mesh[1], mesh[2]});
            mesh.clear();
        }
        rows.reserve(scanner.Capacity(Cube(header.size.value_or(static_cast<int>(mesh.size()))), shortestRow));
        ReadRows(scanner, rows);
        // Only the number of lines distinguishes a mesh of three points from an entry.
        if (mayBeEntry && rows.size() == 1 + Cube(3)) {
            mesh.assign(rows.front().begin(), rows.front().end());
            rows.erase(rows.begin());
        }
        std::size_t const endLine = scanner.Line();
        ReadFooter(scanner);

        if (header.size && !mesh.empty() && mesh.size() != static_cast<std::size_t>(*header.size))
            throw ParseError(firstLine, std::to_string(*header.size) + " mesh points as Mesh announces",
                std::to_string(mesh.size()));
        CheckIncreasing(mesh, firstLine);
        int const size = header.size     ? *header.size
                         : !mesh.empty() ? static_cast<int>(mesh.size())
                                         : CubeRoot(rows.size());
        if (size < 2 || size > maxSize3D)
            throw ParseError(endLine, "as many entries as a cube has", std::to_string(rows.size()));
        if (rows.size() != Cube(size))
            throw ParseError(endLine, std::to_string(Cube(size)) + " entries", std::to_string(rows.size()));

        auto table = std::make_shared<LUTTable>();
        table->format = FormatName();
        table->size.fill(size);
        if (!mesh.empty())
            table->shaper.fill(MakeCurve(mesh));
        table->entries = MakeEntries(rows, static_cast<std::size_t>(size), header.white ? *header.white : White(rows));
        return table;
    }

    std::string FormatName() const override { return "3dl"; }
};

} // namespace

std::unique_ptr<IParserLUT> Create3dlParser(std::string_view text)
{
    Scanner scanner(text);
    scanner.NextWord();
    if (scanner.Accept("3DMESH"))
        return std::make_unique<Parser3dl>();
    int integers = 0;
    for (auto word = scanner.Word(); !word.empty(); word = scanner.Word(), ++integers)
        if (!std::all_of(word.begin(), word.end(), IsDigit))
            return nullptr;
    // A lone number begins too much else.
    if (integers < 2)
        return nullptr;
    return std::make_unique<Parser3dl>();
}

} // namespace Quoril::Proc::LUT
