#include <inspect/Text.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;

TEST(Text, BytesThatAreNoUtf8AreReplaced)
{
    EXPECT_EQ(asText("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(asText("caf\xE9"), "caf\xEF\xBF\xBD");
    EXPECT_EQ(toText(json("\xE9")), "\"\xEF\xBF\xBD\"");
}

TEST(Text, OnlyControlCharactersAreQuoted)
{
    EXPECT_EQ(quoted("a \"b\" \xC3\xA9"), "a \"b\" \xC3\xA9");
    EXPECT_EQ(quoted("a\tb"), "\"a\\tb\"");
    EXPECT_EQ(quoted("a\x7F"), "\"a\x7F\"");
}

TEST(Text, WordsAreJoinedAndCounted)
{
    EXPECT_EQ(joined({}, ", "), "");
    EXPECT_EQ(joined({"a", "b", "c"}, ", "), "a, b, c");
    EXPECT_EQ(counted(0, "item"), "0 items");
    EXPECT_EQ(counted(1, "item"), "1 item");
    EXPECT_EQ(counted(2, "item"), "2 items");
}

} // namespace
