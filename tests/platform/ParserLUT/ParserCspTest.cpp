#include "Parsing.h"

using namespace Quoril::Proc::LUT;

namespace {

using testing::ValuesIn;

std::string const identity = "2\n0.0 1.0\n0.0 1.0\n";
std::string const identities = identity + identity + identity;

TEST(ParserCsp, Reads3D)
{
    auto const table = Parse("CSPLUTV100\n3D\n\n" + identities +
                                 "\n2 3 2\n"
                                 "0 0 0\n1 0 0\n0 .5 0\n1 .5 0\n0 1 0\n1 1 0\n"
                                 "0 0 1\n1 0 1\n0 .5 1\n1 .5 1\n0 1 1\n1 1 1\n",
        "csp");
    EXPECT_EQ(table->title, "");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 3, 2}));
    for (int red = 0; red < 2; ++red)
        for (int green = 0; green < 3; ++green)
            for (int blue = 0; blue < 2; ++blue)
                EXPECT_EQ(table->entries[table->Index(red, green, blue)],
                    (Color{static_cast<float>(red), static_cast<float>(green) / 2, static_cast<float>(blue)}));
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{1, 1, 1}));
    for (auto const & curve : table->shaper)
        EXPECT_TRUE(curve.empty()) << "it changes nothing";
}

TEST(ParserCsp, Reads1D)
{
    auto const table = Parse("CSPLUTV100\n1D\n" + identities + "3\n0 .1 .2\n.5 .6 .7\n1 1.1 1.2\n", "csp");
    EXPECT_EQ(table->size, (std::array<int, 3>{3, 1, 1}));
    EXPECT_EQ(table->entries, (Colors{{0, .1f, .2f}, {.5f, .6f, .7f}, {1, 1.1f, 1.2f}}));
}

TEST(ParserCsp, ReadsCurvesOfDifferentLength)
{
    auto const table = Parse("CSPLUTV100\n1D\n"
                             "2\n0 4\n0 1\n"
                             "3\n-1 0.5 1\n0 0.25 1\n"
                             "3\n-1 0.5 2\n-1 0.5 2\n"
                             "2\n0 0 0\n1 1 1\n",
        "csp");
    auto const & [red, green, blue] = table->shaper;
    ASSERT_EQ(red.size(), 2u);
    EXPECT_EQ(red[1].input, 4);
    EXPECT_EQ(red[1].output, 1);
    ASSERT_EQ(green.size(), 3u);
    EXPECT_EQ(green[0].input, -1);
    EXPECT_EQ(green[0].output, 0);
    EXPECT_EQ(green[1].input, .5f);
    EXPECT_EQ(green[1].output, .25f);
    EXPECT_TRUE(blue.empty()) << "what is outside the domain is clamped in any case";
}

TEST(ParserCsp, KeepsCurveThatClampsWithinTheDomain)
{
    auto const table = Parse("CSPLUTV100\n1D\n2\n0 0.5\n0 0.5\n" + identity + identity + "2\n0 0 0\n1 1 1\n", "csp");
    EXPECT_EQ(table->shaper[0].size(), 2u);
}

TEST(ParserCsp, TakesFirstLineOfMetadataAsTitle)
{
    auto const text = [](std::string const & metadata) {
        return "CSPLUTV100\n1D\n\nBEGIN METADATA\n" + metadata + "END METADATA\n\n" + identities + "2\n0 0 0\n1 1 1\n";
    };
    EXPECT_EQ(Parse(text("  Warm #1  \n\n3 of 4\nLUT_3D_SIZE 7\n"), "csp")->title, "Warm #1");
    EXPECT_EQ(Parse(text(""), "csp")->title, "");
}

BadText const badCsps[] = {
    {"OnlyTheKeyword", "CSPLUTV100", "line 1: expected 1D or 3D, found the end of the text"},
    {"OtherKind", "CSPLUTV100\n2D\n", "line 2: expected 1D or 3D, found \"2D\""},
    {"OpenMetadata", "CSPLUTV100\n3D\nBEGIN METADATA\nforever\n",
        "line 5: expected END METADATA, found the end of the text"},
    {"BeginOfSomethingElse", "CSPLUTV100\n3D\nBEGIN HERE\n", "line 3: expected METADATA, found \"HERE\""},
    {"NoCurves", "CSPLUTV100\n3D\n", "line 3: expected a number of knots from 2 to 65536, found the end of the text"},
    {"OneKnot", "CSPLUTV100\n3D\n1\n0\n0\n", "line 3: expected a number of knots from 2 to 65536, found \"1\""},
    {"HugeCurve", "CSPLUTV100\n3D\n1000000\n0 1\n",
        "line 3: expected a number of knots from 2 to 65536, found \"1000000\""},
    {"TooFewInputs", "CSPLUTV100\n3D\n3\n0 1\n0 1\n", "line 4: expected a finite number, found the end of the line"},
    {"TooManyInputs", "CSPLUTV100\n3D\n2\n0 .5 1\n0 1\n", "line 4: expected the end of the line, found \"1\""},
    {"FallingInputs", "CSPLUTV100\n3D\n2\n1 0\n0 1\n", "line 4: expected inputs that increase, found 1 and then 0"},
    {"EqualInputs", "CSPLUTV100\n3D\n2\n1 1\n0 1\n", "line 4: expected inputs that increase, found 1 and then 1"},
    {"TooFewOutputs", "CSPLUTV100\n3D\n2\n0 1\n0\n", "line 5: expected a finite number, found the end of the line"},
    {"NoOutputs", "CSPLUTV100\n3D\n2\n0 1\n", "line 5: expected a finite number, found the end of the text"},
    {"InfiniteOutput", "CSPLUTV100\n3D\n2\n0 1\n0 inf\n", "line 5: expected a finite number, found \"inf\""},
    {"TwoCurves", "CSPLUTV100\n3D\n" + identity + identity,
        "line 9: expected a number of knots from 2 to 65536, found the end of the text"},
    {"OneSizeFor3D", "CSPLUTV100\n3D\n" + identities + "2\n",
        "line 12: expected a size from 2 to 256, found the end of the line"},
    {"ThreeSizesFor1D", "CSPLUTV100\n1D\n" + identities + "2 2 2\n",
        "line 12: expected the end of the line, found \"2\""},
    {"HugeSize", "CSPLUTV100\n3D\n" + identities + "1000000 1000000 1000000\n",
        "line 12: expected a size from 2 to 256, found \"1000000\""},
    {"Truncated", "CSPLUTV100\n3D\n" + identities + "2 2 2\n0 0 0\n", "line 14: expected 8 entries, found 1"},
    {"TooManyEntries", "CSPLUTV100\n1D\n" + identities + "2\n0 0 0\n1 1 1\n2 2 2\n",
        "line 15: expected the end of the text after 2 entries, found \"2\""},
    {"Garbage", "CSPLUTV100\n1D\n" + identities + "2\n0 0 zero\n",
        "line 13: expected three finite numbers, found \"zero\""},
};
INSTANTIATE_TEST_SUITE_P(ParserCsp, BadTexts, ValuesIn(badCsps), NameOf);

} // namespace
