#include "Parsing.h"

using namespace Quoril::Proc::LUT;

namespace {

using testing::ValuesIn;

/// Eight entries, blue fastest, each unlike the others: the hundreds count red, the tens green, the ones blue.
std::string const entries2 = "0 0 0\n"
                             "0 0 1\n"
                             "0 10 0\n"
                             "0 10 1\n"
                             "100 0 0\n"
                             "100 0 1\n"
                             "100 10 0\n"
                             "4095 10 1\n";

/// The same, red fastest.
Colors Colors2(float white)
{
    return {{0, 0, 0}, {100 / white, 0, 0}, {0, 10 / white, 0}, {100 / white, 10 / white, 0}, {0, 0, 1 / white},
        {100 / white, 0, 1 / white}, {0, 10 / white, 1 / white}, {4095 / white, 10 / white, 1 / white}};
}

std::string Repeated(std::string const & line, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line;
    return text;
}

void ExpectNoShaper(LUTTable const & table)
{
    for (auto const & curve : table.shaper)
        EXPECT_TRUE(curve.empty());
}

TEST(Parser3dl, ReadsBareMeshAndEntries)
{
    auto const table = Parse("# from a lab\n0 1023\n" + entries2, "3dl");
    EXPECT_EQ(table->title, "");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_EQ(table->entries, Colors2(4095));
    EXPECT_EQ(table->domainMin, (Color{0, 0, 0}));
    EXPECT_EQ(table->domainMax, (Color{1, 1, 1}));
    ExpectNoShaper(*table);
}

TEST(Parser3dl, ReadsFlame)
{
    auto const table =
        Parse("#Tokens required\n\n3DMESH\nMesh 0 16\n0 1023\n\n" + entries2 + "\n#Tokens\n\nLUT8\ngamma 1.0\n", "3dl");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_EQ(table->entries, Colors2(65535)) << "by the depth that Mesh states";
    ExpectNoShaper(*table);
}

TEST(Parser3dl, ReadsLustreWithoutMeshPoints)
{
    auto const table = Parse("3DMESH\n\nMesh 0 12\n\n" + entries2 + "LUT8\ngamma 1.0", "3dl");
    EXPECT_EQ(table->entries, Colors2(4095));
    ExpectNoShaper(*table);
}

TEST(Parser3dl, ReadsEntriesAlone)
{
    auto const table = Parse(entries2, "3dl");
    EXPECT_EQ(table->size, (std::array<int, 3>{2, 2, 2}));
    EXPECT_EQ(table->entries, Colors2(4095));
}

/// A mesh of three looks like an entry.
TEST(Parser3dl, TellsMeshOfThreeByTheNumberOfLines)
{
    auto const row = Repeated("4095 0 0\n", 27);
    auto const with = Parse("0 512 1023\n" + row, "3dl");
    EXPECT_EQ(with->size, (std::array<int, 3>{3, 3, 3}));
    EXPECT_EQ(with->entries.front(), (Color{1, 0, 0}));
    ExpectNoShaper(*with);
    auto const without = Parse("3DMESH\nMesh 1 12\n" + row, "3dl");
    EXPECT_EQ(without->size, (std::array<int, 3>{3, 3, 3}));
    EXPECT_EQ(Parse("3DMESH\nMesh 1 12\n0 512 1023\n" + row, "3dl")->entries, without->entries);
}

TEST(Parser3dl, TurnsUnevenMeshIntoShaper)
{
    auto const table = Parse("0 255 1023\n" + Repeated("0 0 4095\n", 27), "3dl");
    for (auto const & curve : table->shaper) {
        ASSERT_EQ(curve.size(), 3u);
        EXPECT_EQ(curve[0].input, 0);
        EXPECT_EQ(curve[0].output, 0);
        EXPECT_EQ(curve[1].input, 255 / 1023.0f);
        EXPECT_EQ(curve[1].output, 0.5f);
        EXPECT_EQ(curve[2].input, 1);
        EXPECT_EQ(curve[2].output, 1);
    }
}

TEST(Parser3dl, TakesRoundedMeshAsEven)
{
    // 1023 / 4 is 255.75: writers step by 256, and end at 1023 or at 1024.
    auto const rows = Repeated("0 0 4095\n", 125);
    ExpectNoShaper(*Parse("0 256 512 768 1023\n" + rows, "3dl"));
    ExpectNoShaper(*Parse("0 256 512 768 1024\n" + rows, "3dl"));
    EXPECT_EQ(Parse("0 256 514 768 1023\n" + rows, "3dl")->shaper[0].size(), 5u);
    EXPECT_EQ(Parse("0 128 256 384 512\n" + rows, "3dl")->shaper[0].back().input, 512 / 1023.0f);
}

TEST(Parser3dl, GuessesDepthByLargestEntry)
{
    std::pair<int, float> const depths[] = {{200, 255}, {511, 255}, {512, 1023}, {1023, 1023}, {2047, 1023},
        {2048, 4095}, {8191, 4095}, {8192, 16383}, {32767, 16383}, {32768, 65535}, {65535, 65535}, {131071, 65535}};
    for (auto const & [largest, white] : depths) {
        auto const code = std::to_string(largest);
        auto const table = Parse("0 1023\n" + Repeated("0 " + code + " 0\n", 8), "3dl");
        EXPECT_EQ(table->entries[3][1], static_cast<float>(largest) / white) << largest;
    }
}

TEST(Parser3dl, ReadsBlackTable)
{
    EXPECT_EQ(Parse("0 1023\n" + Repeated("0 0 0\n", 8), "3dl")->entries, Colors(8));
}

BadText const bad3dls[] = {
    {"Truncated", "0 1023\n0 0 0\n0 0 1\n0 0 2\n", "line 5: expected 8 entries, found 3"},
    {"TruncatedByMeshLine", "3DMESH\nMesh 4 12\n0 0 0\nLUT8\ngamma 1.0\n", "line 4: expected 4913 entries, found 1"},
    {"NoCube", "0 0 0\n0 0 1\n", "line 3: expected as many entries as a cube has, found 2"},
    {"OneEntry", "0 0 0\n", "line 2: expected as many entries as a cube has, found 1"},
    {"TooMany", "0 1023\n" + Repeated("0 0 0\n", 9), "line 11: expected 8 entries, found 9"},
    {"MeshAlone", "0 1023\n", "line 2: expected 8 entries, found 0"},
    {"MeshOfAnotherSize", "3DMESH\nMesh 0 12\n0 300 600 1023\n" + entries2,
        "line 3: expected 2 mesh points as Mesh announces, found 4"},
    {"FallingMesh", "0 512 512 1023\n" + Repeated("0 0 0\n", 64),
        "line 1: expected mesh points that increase, found 512 and then 512"},
    {"MeshOfOne", "3DMESH\nMesh 0 12\n0\n",
        "line 3: expected at least two mesh points or the three numbers of an entry, found one number"},
    {"LongMesh", Repeated("0 ", 257), "line 1: expected at most 256 mesh points, found \"0\""},
    {"FloatEntry", "0 1023\n0.5 0 0\n", "line 2: expected an integer from 0 to 131071, found \"0.5\""},
    {"NegativeEntry", "0 1023\n0 -1 0\n", "line 2: expected an integer from 0 to 131071, found \"-1\""},
    {"HugeEntry", "0 1023\n0 0 131072\n", "line 2: expected an integer from 0 to 131071, found \"131072\""},
    {"ShortEntry", "0 1023\n0 0\n0 0 0\n", "line 2: expected an integer from 0 to 131071, found the end of the line"},
    {"LongEntry", "0 1023\n0 0 0 0\n", "line 2: expected the end of the line, found \"0\""},
    {"Garbage", "0 1023\n0 0 0\nrubbish\n",
        "line 3: expected three integers, the lines of an output table or the end of the text, found \"rubbish\""},
    {"EntryBehindTheEnd", "0 1023\n" + entries2 + "LUT8\n0 0 0\n",
        "line 11: expected three integers, the lines of an output table or the end of the text, found \"0\""},
    {"GammaOfNothing", "0 1023\n" + entries2 + "gamma\n",
        "line 10: expected a finite number, found the end of the line"},
    {"NoMeshLine", "3DMESH\n0 1023\n", "line 2: expected Mesh, found \"0\""},
    {"OnlyTheKeyword", "3DMESH\n", "line 2: expected Mesh, found the end of the text"},
    {"KeywordWithATail", "3DMESH now\n", "line 1: expected the end of the line, found \"now\""},
    {"HugeMesh", "3DMESH\nMesh 20 12\n", "line 2: expected a resolution in bits from 0 to 7, found \"20\""},
    {"ShallowMesh", "3DMESH\nMesh 4 1\n", "line 2: expected an output depth in bits from 8 to 16, found \"1\""},
    {"NothingBehindMesh", "3DMESH\nMesh 4 12\n",
        "line 3: expected an integer from 0 to 131071, found the end of the text"},
};
INSTANTIATE_TEST_SUITE_P(Parser3dl, BadTexts, ValuesIn(bad3dls), NameOf);

} // namespace
