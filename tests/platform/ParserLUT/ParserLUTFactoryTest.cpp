#include <ParserLUT/ParserLUTFactory.h>

#include <cstring>

#include <gtest/gtest.h>

#include <ParserLUT/ParseError.h>

using namespace Quoril::Proc::LUT;

namespace {

std::string FormatOf(std::string const & text)
{
    auto const parser = ParserLUTFactory::GetParser(text);
    return parser ? parser->FormatName() : "none";
}

TEST(ParserLUTFactory, TellsFormatByTheBeginning)
{
    std::pair<std::string, char const *> const texts[] = {
        {"LUT_3D_SIZE 2", "cube"},
        {"TITLE \"x\"", "cube"},
        {"DOMAIN_MIN 0 0 0", "cube"},
        {"domain_max 1 1 1", "cube"},
        {"LUT_1D_INPUT_RANGE 0 1", "cube"},
        {"LUT_IN_VIDEO_RANGE", "cube"},
        {"\n \r\n# comment\n\n\tLUT_1D_SIZE 2", "cube"},
        {"\xEF\xBB\xBFLUT_1D_SIZE 2", "cube"},
        {"\r\n\n\xEF\xBB\xBFLUT_1D_SIZE 2", "cube"},
        {"\xEF\xBB\xBF\n\n0 1023", "3dl"},
        {"3DMESH", "3dl"},
        {"# Generated\n0 64 128", "3dl"},
        {"0 1023", "3dl"},
        {"SPILUT 1.0", "spi3d"},
        {"CSPLUTV100\n3D", "csp"},
        {"csplutv100\r3D", "csp"},
    };
    for (auto const & [text, format] : texts)
        EXPECT_EQ(FormatOf(text), format) << text;
}

TEST(ParserLUTFactory, GivesNullForEverythingElse)
{
    std::string const texts[] = {
        "",
        "\n\n  \n",
        "# only a comment",
        "\xEF\xBB\xBF",
        std::string("\0\0\0", 3),
        std::string("L\0U\0T\0", 6),
        "0",
        "0.0 0.5 1.0",
        "0 64 x",
        "Mesh 4 12",
        "LUT_3D_SIZES 2",
        "#Inventor V2.1 ascii\ngrid_size 2 2 2\ndata\n0 0 0\n",
        "Version 1\nFrom 0.0 1.0\nLength 2\n",
        "<?xml version=\"1.0\"?>\n",
        "LUT: 3 256\n0\n",
    };
    for (auto const & text : texts)
        EXPECT_EQ(FormatOf(text), "none") << text;
}

TEST(ParserLUTFactory, TellsWhichFormatsThereAre)
{
    EXPECT_EQ(
        ParserLUTFactory::UnknownFormat(), "begins like none of the formats that are read: cube, 3dl, spi3d, csp");
}

TEST(ParserLUTFactory, ParsersServeAnyNumberOfTexts)
{
    auto const parser = ParserLUTFactory::GetParser("LUT_1D_SIZE 2");
    ASSERT_TRUE(parser);
    auto const first = parser->Parse("LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    EXPECT_THROW(parser->Parse("LUT_1D_SIZE 2\n0 0 0\n"), std::runtime_error);
    auto const second = parser->Parse("TITLE \"second\"\nLUT_1D_SIZE 2\n0 0 0\n.5 .5 .5\n");
    EXPECT_EQ(first->title, "");
    EXPECT_EQ(first->entries.back(), (Color{1, 1, 1}));
    EXPECT_EQ(second->title, "second");
}

TEST(ParserLUTFactory, ParsersRefuseTextsOfOtherFormats)
{
    std::string const texts[] = {
        "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n", "0 1023\n0 0 0\n", "SPILUT 1.0\n3 3\n", "CSPLUTV100\n1D\n"};
    for (auto const & own : texts)
        for (auto const & other : texts)
            if (own != other) {
                auto const parser = ParserLUTFactory::GetParser(own);
                ASSERT_TRUE(parser);
                EXPECT_THROW(parser->Parse(other), ParseError) << parser->FormatName() << ": " << other;
            }
}

#if defined(__GNUC__) && defined(__x86_64__)
/// Hosts and the engine call Parse by its place in the virtual table.
TEST(IParserLUT, ParseComesRightAfterTheDestructor)
{
    auto const parse = &IParserLUT::Parse;
    std::ptrdiff_t slot = 0; // the Itanium ABI: 1 + the offset in the virtual table
    static_assert(sizeof parse == 2 * sizeof slot);
    std::memcpy(&slot, &parse, sizeof slot);
    std::ptrdiff_t const destructors = 2; // of which one deletes
    EXPECT_EQ(slot, 1 + destructors * static_cast<std::ptrdiff_t>(sizeof(void *)));
}
#endif

} // namespace
