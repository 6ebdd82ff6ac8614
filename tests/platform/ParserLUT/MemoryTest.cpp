/// How much memory a parser asks for.
#include "Parsing.h"

#include <ParserLUT/ParserLUTFactory.h>

#include <support/Allocations.h>

namespace {

using namespace Quoril::Proc::LUT;

/// For the table itself, the message and the like.
constexpr std::size_t allowance = 4096;

TEST(ParserLUTMemory, ClaimsCostNothing)
{
    std::string const texts[] = {
        "LUT_3D_SIZE 1000000\n0 0 0\n",
        "LUT_3D_SIZE 256\n0 0 0\n",
        "LUT_1D_SIZE 65536\n0 0 0\n",
        "LUT_1D_SIZE 65536\nLUT_3D_SIZE 256\n0 0 0\n",
        "3DMESH\nMesh 7 16\n0 0 0\n",
        "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20\n0 0 0\n",
        "SPILUT 1.0\n3 3\n256 256 256\n0 0 0 0 0 0\n",
        "SPILUT 1.0\n3 3\n1000000 1000000 1000000\n",
        "CSPLUTV100\n1D\n65536\n0 1\n0 1\n",
        "CSPLUTV100\n3D\n2\n0 1\n0 1\n2\n0 1\n0 1\n2\n0 1\n0 1\n256 256 256\n0 0 0\n",
    };
    for (auto const & text : texts) {
        auto const parser = ParserLUTFactory::GetParser(text);
        ASSERT_TRUE(parser);
        auto const before = Testing::allocatedBytes();
        std::size_t after = 0;
        try {
            parser->Parse(text);
            ADD_FAILURE() << text;
        } catch (std::exception const &) {
            after = Testing::allocatedBytes();
        }
        EXPECT_LT(after - before, allowance) << text;
    }
}

TEST(ParserLUTMemory, CubeTakesItsEntriesAndNothingElse)
{
    constexpr int size = 33;
    constexpr std::size_t count = size * size * size;
    std::string text = "LUT_3D_SIZE 33\n";
    for (std::size_t i = 0; i < count; ++i)
        text += "0.123456 0.234567 0.345678\n";
    auto const parser = ParserLUTFactory::GetParser(text);
    ASSERT_TRUE(parser);
    auto const before = Testing::allocatedBytes();
    auto const table = parser->Parse(text);
    auto const after = Testing::allocatedBytes();
    EXPECT_EQ(table->entries.size(), count);
    EXPECT_GE(after - before, count * sizeof(Color));
    EXPECT_LT(after - before, count * sizeof(Color) + allowance);
}

} // namespace
