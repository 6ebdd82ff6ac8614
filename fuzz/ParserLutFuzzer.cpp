/// @file
/// Any text gives a table that keeps its promises, an error that says where, or no parser; and the same again.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <ParserLUT/ParseError.h>
#include <ParserLUT/ParserLUTFactory.h>

namespace {

using namespace Quoril::Proc::LUT;

void Check(bool good, char const * promise)
{
    if (good)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

void CheckFinite(Color const & color)
{
    for (float const channel : color)
        Check(std::isfinite(channel), "colours are finite");
}

void CheckTable(LUTTable const & table, std::size_t textLength)
{
    for (std::size_t axis = 0; axis < table.size.size(); ++axis)
        Check(table.size[axis] >= 2 || (axis != 0 && table.Is1D()), "an axis has at least two entries");
    Check(table.entries.size() == table.Count(), "there are as many entries as the size says");
    // The shortest entry is "0 0 0" and a line end.
    Check(table.entries.capacity() <= textLength / 2 + 1, "memory follows the text");
    for (Color const & entry : table.entries)
        CheckFinite(entry);
    CheckFinite(table.domainMin);
    CheckFinite(table.domainMax);
    for (std::size_t channel = 0; channel < table.domainMin.size(); ++channel)
        Check(table.domainMin[channel] < table.domainMax[channel], "the domain is not empty");
    for (Curve const & curve : table.shaper) {
        Check(curve.size() != 1, "a curve has no knot or at least two");
        Check(curve.capacity() <= textLength, "memory follows the text");
        for (std::size_t i = 0; i < curve.size(); ++i) {
            Check(std::isfinite(curve[i].input) && std::isfinite(curve[i].output), "curves are finite");
            Check(i == 0 || curve[i - 1].input < curve[i].input, "the inputs of a curve increase");
        }
    }
}

/// The message of the error, or empty after a table.
std::string Parse(IParserLUT & parser, std::string const & text)
{
    try {
        auto const table = parser.Parse(text);
        Check(table != nullptr, "there is a table or an error");
        Check(table->format == parser.FormatName(), "the table names its format");
        CheckTable(*table, text.size());
        return {};
    } catch (ParseError const & error) {
        std::string message = error.what();
        Check(error.Line() >= 1 && error.Line() <= text.size() + 1, "the line is one of the text's");
        Check(message.size() < 300, "a message is short");
        for (char const c : message)
            Check(c >= ' ' && c <= '~', "a message is printable");
        return message;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const *>(data), size);
    auto const parser = ParserLUTFactory::GetParser(text);
    if (!parser)
        return 0;
    auto const first = Parse(*parser, text);
    auto const second = Parse(*parser, text);
    Check(first == second, "parsers have no state");
    return 0;
}
