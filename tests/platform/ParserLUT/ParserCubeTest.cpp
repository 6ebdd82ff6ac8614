#include "Parsing.h"

#include <clocale>
#include <locale>

using namespace Quoril::Proc::LUT;

namespace {

using testing::ValuesIn;

/// Red is twice the red index, green the green index, and blue minus a quarter of the blue index.
std::string const entries2 = "0 0 0\n"
                             "2 0 0\n"
                             "0 1 0\n"
                             "2 1 0\n"
                             "0 0 -.25\n"
                             "2 0 -.25\n"
                             "0 1 -.25\n"
                             "2 1 -.25\n";

Colors const colors2 = {
    {0, 0, 0}, {2, 0, 0}, {0, 1, 0}, {2, 1, 0}, {0, 0, -.25f}, {2, 0, -.25f}, {0, 1, -.25f}, {2, 1, -.25f}};

std::string Replaced(std::string text, std::string const & from, std::string const & to)
{
    for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

TEST(ParserCube, Reads3D)
{
    auto const table = Parse("TITLE \"Two points\"\nLUT_3D_SIZE 2\n" + entries2, "cube");
    EXPECT_EQ(table->title, "Two points");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_FALSE(table->Is1D());
    EXPECT_EQ(table->entries, colors2);
    EXPECT_EQ(table->entries[table->Index(1, 0, 1)], (Color{2, 0, -.25f}));
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{1, 1, 1}));
    for (auto const & curve : table->shaper)
        EXPECT_TRUE(curve.empty());
    EXPECT_FALSE(table->videoRangeInput);
    EXPECT_FALSE(table->videoRangeOutput);
}

TEST(ParserCube, Reads1D)
{
    auto const table = Parse("LUT_1D_SIZE 3\n0 .1 .2\n.5 .6 .7\n1 1.1 1.2\n", "cube");
    EXPECT_EQ(table->title, "");
    EXPECT_EQ(table->size, (std::array<int, 3>{3, 1, 1}));
    EXPECT_TRUE(table->Is1D());
    EXPECT_EQ(table->entries, (Colors{{0, .1f, .2f}, {.5f, .6f, .7f}, {1, 1.1f, 1.2f}}));
    for (auto const & curve : table->shaper)
        EXPECT_TRUE(curve.empty());
}

TEST(ParserCube, ReadsDomainPerChannel)
{
    auto const table = Parse("LUT_3D_SIZE 2\nDOMAIN_MAX 1 2 3\nDOMAIN_MIN -1 -.5 0\n" + entries2, "cube");
    EXPECT_EQ(table->domainMin, (Color{-1, -.5f, 0}));
    EXPECT_EQ(table->domainMax, (Color{1, 2, 3}));
}

TEST(ParserCube, ReadsHalfADomain)
{
    auto const table = Parse("DOMAIN_MAX 4 4 4\nLUT_1D_SIZE 2\n0 0 0\n1 1 1\n", "cube");
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{4, 4, 4}));
}

TEST(ParserCube, ReadsInputRanges)
{
    auto const cube = Parse("LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE -0.5 4.0\n" + entries2, "cube");
    EXPECT_EQ(cube->domainMin, (Color{-.5f, -.5f, -.5f}));
    EXPECT_EQ(cube->domainMax, (Color{4, 4, 4}));

    auto const curve = Parse("LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE -1 2\n0 0 0\n1 1 1\n", "cube");
    EXPECT_EQ(curve->domainMin, (Color{-1, -1, -1}));
    EXPECT_EQ(curve->domainMax, (Color{2, 2, 2}));
}

TEST(ParserCube, PassesOverTheRangeOfAnAbsentTable)
{
    auto const table = Parse("LUT_3D_SIZE 2\nLUT_1D_INPUT_RANGE 0 7\n" + entries2, "cube");
    EXPECT_EQ(table->domainMax, (Color{1, 1, 1}));
}

TEST(ParserCube, ReadsShaperAheadOfCube)
{
    auto const table = Parse("LUT_1D_SIZE 3\n"
                             "LUT_1D_INPUT_RANGE -1 3\n"
                             "LUT_3D_SIZE 2\n"
                             "LUT_3D_INPUT_RANGE 0 4\n"
                             "0 .1 .2\n"
                             "1 1.1 1.2\n"
                             "4 4.1 4.2\n" +
                                 entries2,
        "cube");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_EQ(table->entries, colors2);
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{4, 4, 4}));
    float const outputs[3][3] = {{0, 1, 4}, {.1f, 1.1f, 4.1f}, {.2f, 1.2f, 4.2f}};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        Curve const & curve = table->shaper[channel];
        ASSERT_EQ(curve.size(), 3u);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(curve[i].input, static_cast<float>(i) * 2 - 1);
            EXPECT_EQ(curve[i].output, outputs[channel][i]);
        }
    }
}

TEST(ParserCube, ReadsVideoRange)
{
    auto const in = Parse("LUT_3D_SIZE 2\nLUT_IN_VIDEO_RANGE\n" + entries2, "cube");
    EXPECT_TRUE(in->videoRangeInput);
    EXPECT_FALSE(in->videoRangeOutput);
    auto const out = Parse("LUT_3D_SIZE 2\nLUT_OUT_VIDEO_RANGE\n" + entries2, "cube");
    EXPECT_FALSE(out->videoRangeInput);
    EXPECT_TRUE(out->videoRangeOutput);
}

TEST(ParserCube, ReadsTitlesOfEveryKind)
{
    std::pair<char const *, char const *> const titles[] = {
        {"TITLE \"\"", ""},
        {"TITLE", ""},
        {"TITLE \" in blanks \"", " in blanks "},
        {"TITLE \"Look #3\" # comment", "Look #3"},
        {"TITLE without quotes  ", "without quotes"},
        {"title\t\"lower case\"", "lower case"},
        {"TITLE \"Gr\xC3\xBCn\"", "Gr\xC3\xBCn"},
    };
    for (auto const & [line, title] : titles)
        EXPECT_EQ(Parse(std::string(line) + "\nLUT_3D_SIZE 2\n" + entries2, "cube")->title, title) << line;
}

/// The same table in the clothes that files of different origin wear.
TEST(ParserCube, ReadsEveryFormOfLine)
{
    std::string const text = "# made by hand\n\nLUT_3D_SIZE 2\n\n" + entries2;
    std::pair<char const *, std::string> const forms[] = {
        {"as it is", text},
        {"carriage return and line feed", Replaced(text, "\n", "\r\n")},
        {"carriage return", Replaced(text, "\n", "\r")},
        {"no end of the last line", text.substr(0, text.size() - 1)},
        {"blank lines behind", text + "\n  \n\t\n"},
        {"byte order mark", "\xEF\xBB\xBF" + text},
        {"tabs", Replaced(text, " ", "\t")},
        {"blanks around", Replaced(Replaced(text, "\n", " \n "), " ", "   ")},
        {"comment behind every line", Replaced(text, "\n", " # why\n")},
        {"comments among the entries", Replaced(text, "0 1 0\n", "#\n0 1 0\n# half\n")},
        {"plus signs", Replaced(text, "2 ", "+2. ")},
        {"exponents", Replaced(text, "2 1", "200e-2 1E+0")},
    };
    for (auto const & [name, form] : forms) {
        SCOPED_TRACE(name);
        auto const table = Parse(form, "cube");
        EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
        EXPECT_EQ(table->entries, colors2);
    }
}

TEST(ParserCube, CountsEveryFormOfLineEnd)
{
    for (auto const end : {"\n", "\r\n", "\r"})
        EXPECT_EQ(ErrorOf(Replaced("# one\n\nLUT_1D_SIZE 2\n0 0 0\n0 oops 0\n", "\n", end)),
            "line 5: expected three finite numbers, found \"oops\"");
}

TEST(ParserCube, RoundsTinyNumbersToZero)
{
    auto const table = Parse("LUT_1D_SIZE 2\n1e-60 -1e-60 0\n1 1 1\n", "cube");
    EXPECT_EQ(table->entries[0], (Color{0, 0, 0}));
}

TEST(ParserCube, DoesNotMindTheLocale)
{
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
    };
    std::string const earlier = std::setlocale(LC_ALL, nullptr);
    auto const before = std::locale::global(std::locale(std::locale(), new Comma));
    for (auto const name : {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"})
        if (std::setlocale(LC_NUMERIC, name))
            break;
    auto const table = Parse("LUT_1D_SIZE 2\n0.25 0.5 0.75\n1.5 1 1\n", "cube");
    auto const error = ErrorOf("LUT_1D_SIZE 2\n0,25 0,5 0,75\n");
    std::locale::global(before);
    std::setlocale(LC_ALL, earlier.c_str());
    EXPECT_EQ(table->entries, (Colors{{.25f, .5f, .75f}, {1.5f, 1, 1}}));
    EXPECT_EQ(error, "line 2: expected three finite numbers, found \"0,25\"");
}

BadText const badCubes[] = {
    {"NoSize", "TITLE \"x\"\n0 0 0\n", "line 2: expected LUT_1D_SIZE or LUT_3D_SIZE ahead of the entries, found \"0\""},
    {"OnlyATitle", "TITLE \"x\"",
        "line 1: expected LUT_1D_SIZE or LUT_3D_SIZE ahead of the entries, found the end of the text"},
    {"NoEntries", "LUT_3D_SIZE 2\n", "line 2: expected 8 entries, found 0"},
    {"TooFewEntries", "LUT_1D_SIZE 3\n0 0 0\n1 1 1\n", "line 4: expected 3 entries, found 2"},
    {"TooFewWithoutLineEnd", "LUT_1D_SIZE 3\n0 0 0\n1 1 1", "line 3: expected 3 entries, found 2"},
    {"TooManyEntries", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n2 2 2\n",
        "line 4: expected the end of the text after 2 entries, found \"2\""},
    {"TooFewShaperEntries", "LUT_1D_SIZE 2\nLUT_3D_SIZE 2\n0 0 0\n", "line 4: expected 2 entries, found 1"},
    {"TooFewEntriesBehindTheShaper", "LUT_1D_SIZE 2\nLUT_3D_SIZE 2\n0 0 0\n1 1 1\n0 0 0\n",
        "line 6: expected 8 entries, found 1"},
    {"CutInAnEntry", "LUT_1D_SIZE 2\n0 0 0\n1 1", "line 3: expected three finite numbers, found the end of the text"},
    {"TwoNumbersOnALine", "LUT_1D_SIZE 2\n0 0\n1 1 1\n",
        "line 2: expected three finite numbers, found the end of the line"},
    {"FourNumbersOnALine", "LUT_1D_SIZE 2\n0 0 0 0\n1 1 1\n", "line 2: expected the end of the line, found \"0\""},
    {"Garbage", "LUT_1D_SIZE 2\n0 0 0\ngarbage\n", "line 3: expected three finite numbers, found \"garbage\""},
    {"NumberWithATail", "LUT_1D_SIZE 2\n0 0 0.5f\n", "line 2: expected three finite numbers, found \"0.5f\""},
    {"HexNumber", "LUT_1D_SIZE 2\n0 0 0x1p3\n", "line 2: expected three finite numbers, found \"0x1p3\""},
    {"TwoSigns", "LUT_1D_SIZE 2\n0 0 +-1\n", "line 2: expected three finite numbers, found \"+-1\""},
    {"NotANumber", "LUT_1D_SIZE 2\n0 nan 0\n", "line 2: expected three finite numbers, found \"nan\""},
    {"Infinity", "LUT_1D_SIZE 2\n0 0 -inf\n", "line 2: expected three finite numbers, found \"-inf\""},
    {"TooLargeForAFloat", "LUT_1D_SIZE 2\n0 0 1e39\n", "line 2: expected three finite numbers, found \"1e39\""},
    {"TooLargeForADouble", "LUT_1D_SIZE 2\n0 0 1e999\n", "line 2: expected three finite numbers, found \"1e999\""},
    {"ZeroByte", std::string("LUT_1D_SIZE 2\n0 0 \0 0\n", 21), "line 2: expected three finite numbers, found \"?\""},
    {"LongWord", "LUT_1D_SIZE 2\n" + std::string(100, 'x'),
        "line 2: expected a keyword of the format or three finite numbers, found \"" + std::string(40, 'x') + "...\""},
    {"UnknownKeyword", "LUT_3D_SIZE 2\nLUT_4D_SIZE 2\n",
        "line 2: expected a keyword of the format or three finite numbers, found \"LUT_4D_SIZE\""},
    {"KeywordBehindEntries", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\nTITLE \"late\"\n",
        "line 4: expected the end of the text after 2 entries, found \"TITLE\""},
    {"SizeTwice", "LUT_3D_SIZE 2\n\nlut_3d_size 2\n",
        "line 3: expected LUT_3D_SIZE only once, found it again after that of line 1"},
    {"TitleTwice", "TITLE a\nTITLE b\n", "line 2: expected TITLE only once, found it again after that of line 1"},
    {"SizeWithoutANumber", "LUT_3D_SIZE\n0 0 0\n",
        "line 1: expected LUT_3D_SIZE from 2 to 256, found the end of the line"},
    {"SizeOfOne", "LUT_3D_SIZE 1\n0 0 0\n", "line 1: expected LUT_3D_SIZE from 2 to 256, found \"1\""},
    {"NegativeSize", "LUT_1D_SIZE -2\n", "line 1: expected LUT_1D_SIZE from 2 to 65536, found \"-2\""},
    {"FractionalSize", "LUT_3D_SIZE 2.5\n", "line 1: expected LUT_3D_SIZE from 2 to 256, found \"2.5\""},
    {"HugeSize3D", "LUT_3D_SIZE 1000000\n0 0 0\n", "line 1: expected LUT_3D_SIZE from 2 to 256, found \"1000000\""},
    {"HugeSize1D", "LUT_1D_SIZE 65537\n0 0 0\n", "line 1: expected LUT_1D_SIZE from 2 to 65536, found \"65537\""},
    {"SizeBeyondAnInt", "LUT_1D_SIZE 99999999999999999999\n",
        "line 1: expected LUT_1D_SIZE from 2 to 65536, found \"99999999999999999999\""},
    {"SizeWithATail", "LUT_1D_SIZE 2 2\n", "line 1: expected the end of the line, found \"2\""},
    {"OpenTitle", "TITLE \"open\nLUT_3D_SIZE 2\n",
        "line 1: expected a quote that closes the title, found the end of the line"},
    {"ReversedRange", "LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 1 0\n",
        "line 2: expected a range that begins below its end, found 1 to 0"},
    {"HalfARange", "LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 1\n",
        "line 2: expected a finite number, found the end of the line"},
    {"EmptyDomain", "LUT_3D_SIZE 2\nDOMAIN_MIN 0 1 0\nDOMAIN_MAX 1 1 1\n",
        "line 3: expected DOMAIN_MIN below DOMAIN_MAX in every channel, found 1 and 1"},
    {"DomainOfNotANumber", "LUT_3D_SIZE 2\nDOMAIN_MIN 0 nan 0\n",
        "line 2: expected three finite numbers, found \"nan\""},
    {"DomainBesideARange", "DOMAIN_MAX 1 1 1\nLUT_3D_INPUT_RANGE 0 1\nLUT_3D_SIZE 2\n",
        "line 1: expected either LUT_3D_INPUT_RANGE or a domain, found DOMAIN_MIN or DOMAIN_MAX beside it"},
    {"DomainBesideAShaper", "LUT_1D_SIZE 2\nLUT_3D_SIZE 2\nDOMAIN_MIN 0 0 0\n",
        "line 3: expected LUT_1D_INPUT_RANGE or LUT_3D_INPUT_RANGE beside a shaper, found DOMAIN_MIN or DOMAIN_MAX"},
    {"ShaperTooFineForItsRange",
        "LUT_1D_SIZE 3\nLUT_1D_INPUT_RANGE 16777214 16777215\nLUT_3D_SIZE 2\n"
        "0 0 0\n0 0 0\n0 0 0\n",
        "line 2: expected a range wide enough for LUT_1D_SIZE, found inputs that coincide"},
};
INSTANTIATE_TEST_SUITE_P(ParserCube, BadTexts, ValuesIn(badCubes), NameOf);

} // namespace
