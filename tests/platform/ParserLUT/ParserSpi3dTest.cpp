#include "Parsing.h"

using namespace Quoril::Proc::LUT;

namespace {

using testing::ValuesIn;

std::string const head = "SPILUT 1.0\n3 3\n2 2 2\n";

std::string const entries2 = "0 0 0 .000 0 0\n"
                             "0 0 1 .001 0 0\n"
                             "0 1 0 .010 0 0\n"
                             "0 1 1 .011 0 0\n"
                             "1 0 0 .100 0 0\n"
                             "1 0 1 .101 0 0\n"
                             "1 1 0 .110 0 0\n"
                             "1 1 1 .111 0 0\n";

Colors const colors2 = {{.000f, 0, 0}, {.100f, 0, 0}, {.010f, 0, 0}, {.110f, 0, 0}, {.001f, 0, 0}, {.101f, 0, 0},
    {.011f, 0, 0}, {.111f, 0, 0}};

TEST(ParserSpi3d, PutsEntriesWhereTheirIndicesSay)
{
    auto const table = Parse(head + entries2, "spi3d");
    EXPECT_EQ(table->title, "");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_EQ(table->entries, colors2);
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{1, 1, 1}));
    for (auto const & curve : table->shaper)
        EXPECT_TRUE(curve.empty());
}

TEST(ParserSpi3d, ReadsEntriesInAnyOrder)
{
    std::string const line = entries2.substr(0, entries2.find('\n') + 1);
    EXPECT_EQ(Parse(head + entries2.substr(line.size()) + line, "spi3d")->entries, colors2);
}

TEST(ParserSpi3d, ReadsAxesOfDifferentLength)
{
    auto const table = Parse("SPILUT 1.0\n3 3\n2 3 2\n"
                             "0 0 0 0 0 0\n0 0 1 0 0 1\n0 1 0 0 .5 0\n0 1 1 0 .5 1\n0 2 0 0 1 0\n0 2 1 0 1 1\n"
                             "1 0 0 1 0 0\n1 0 1 1 0 1\n1 1 0 1 .5 0\n1 1 1 1 .5 1\n1 2 0 1 1 0\n1 2 1 1 1 1\n",
        "spi3d");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 3, 2}));
    for (int red = 0; red < 2; ++red)
        for (int green = 0; green < 3; ++green)
            for (int blue = 0; blue < 2; ++blue)
                EXPECT_EQ(table->entries[table->Index(red, green, blue)],
                    (Color{static_cast<float>(red), static_cast<float>(green) / 2, static_cast<float>(blue)}));
}

BadText const badSpi3ds[] = {
    {"OnlyTheKeyword", "SPILUT", "line 1: expected the version 1.0, found the end of the text"},
    {"OtherVersion", "SPILUT 2.0\n3 3\n", "line 1: expected the version 1.0, found \"2.0\""},
    {"OtherChannelsIn", "SPILUT 1.0\n1 3\n", "line 2: expected the number of channels in from 3 to 3, found \"1\""},
    {"OtherChannelsOut", "SPILUT 1.0\n3 4\n", "line 2: expected the number of channels out from 3 to 3, found \"4\""},
    {"TwoSizes", "SPILUT 1.0\n3 3\n2 2\n", "line 3: expected a size from 2 to 256, found the end of the line"},
    {"FourSizes", "SPILUT 1.0\n3 3\n2 2 2 2\n", "line 3: expected the end of the line, found \"2\""},
    {"SizeOfOne", "SPILUT 1.0\n3 3\n2 1 2\n", "line 3: expected a size from 2 to 256, found \"1\""},
    {"HugeSize", "SPILUT 1.0\n3 3\n1000000 2 2\n", "line 3: expected a size from 2 to 256, found \"1000000\""},
    {"NoEntries", head, "line 3: expected 8 entries after this line, found a text too short for them"},
    {"LargeSizeInAShortText", "SPILUT 1.0\n3 3\n256 256 256\n" + entries2,
        "line 3: expected 16777216 entries after this line, found a text too short for them"},
    {"MissingEntry", head + entries2.substr(0, entries2.rfind("1 1 1 ")),
        "line 11: expected 8 entries, found none for 1 1 1"},
    {"MissingEntryInTheMiddle",
        head + "0 0 0 0.1 0.2 0.3\n0 0 1 0.1 0.2 0.3\n0 1 1 0.1 0.2 0.3\n1 0 0 0.1 0.2 0.3\n"
               "1 0 1 0.1 0.2 0.3\n1 1 0 0.1 0.2 0.3\n1 1 1 0.1 0.2 0.3\n",
        "line 11: expected 8 entries, found none for 0 1 0"},
    {"EntryTwice", head + entries2 + "1 0 1 0 0 0\n", "line 12: expected each entry once, found the entry 1 0 1 again"},
    {"IndexOutside", head + "0 0 2 0 0 0\n" + entries2, "line 4: expected an index from 0 to 1, found \"2\""},
    {"NegativeIndex", head + "0 -1 0 0 0 0\n" + entries2, "line 4: expected an index from 0 to 1, found \"-1\""},
    {"ShortEntry", head + "0 0 0 0 0\n" + entries2, "line 4: expected three finite numbers, found the end of the line"},
    {"LongEntry", head + "0 0 0 0 0 0 0\n" + entries2, "line 4: expected the end of the line, found \"0\""},
    {"NotANumber", head + "0 0 0 nan 0 0\n" + entries2, "line 4: expected three finite numbers, found \"nan\""},
    {"Garbage", head + entries2 + "the end\n", "line 12: expected an index from 0 to 1, found \"the\""},
};
INSTANTIATE_TEST_SUITE_P(ParserSpi3d, BadTexts, ValuesIn(badSpi3ds), NameOf);

} // namespace
