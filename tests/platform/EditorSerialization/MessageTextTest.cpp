#include <EditorSerialization/MessageText.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using Serialize::messageText;
using Serialize::quotedText;
using Serialize::shortenedText;

// U+FFFD, which takes the place of what is no text.
#define REPLACED "\xEF\xBF\xBD"

std::string repeated(std::string const & text, int count)
{
    std::string all;
    while (count-- > 0)
        all += text;
    return all;
}

TEST(MessageText, KeepsText)
{
    EXPECT_EQ(messageText(""), "");
    EXPECT_EQ(messageText("plain \"text\" \\"), "plain \"text\" \\");
    // Two, three and four bytes a character.
    EXPECT_EQ(messageText("\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8E\xA8"), "\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8E\xA8");
}

TEST(MessageText, ReplacesBytesThatAreNoUtf8)
{
    EXPECT_EQ(messageText("a\xFF"
                          "b"),
        "a" REPLACED "b");
    // A character that is cut in its middle, as parsers quote it.
    EXPECT_EQ(messageText("last read: '\xC3"), "last read: '" REPLACED);
    EXPECT_EQ(messageText("\x80"), REPLACED);
}

TEST(MessageText, ReplacesControlCharacters)
{
    EXPECT_EQ(messageText("two\nlines\r\tand\x1B[31m"), "two" REPLACED "lines" REPLACED REPLACED "and" REPLACED "[31m");
    EXPECT_EQ(messageText(std::string("a\0b", 3)), "a" REPLACED "b");
    EXPECT_EQ(messageText("\x7F\xC2\x85"), REPLACED REPLACED);
}

TEST(MessageText, LeavesOutTheMiddleOfALongText)
{
    EXPECT_EQ(messageText(repeated("a", 1000) + repeated("b", 1000)), repeated("a", 1000) + repeated("b", 1000));
    EXPECT_EQ(messageText(repeated("a", 1000) + "middle" + repeated("b", 1000)),
        repeated("a", 1000) + " ... " + repeated("b", 1000));
    // Cut in the middle of characters of two units.
    std::string const halves = messageText("a" + repeated("\xF0\x9F\x8E\xA8", 1500) + "b");
    EXPECT_EQ(messageText(halves), halves);
    EXPECT_LT(halves.size(), 6010U);
}

TEST(MessageText, ShortensBetweenCharacters)
{
    EXPECT_EQ(shortenedText("two\nlines"), "two\nlines");
    EXPECT_EQ(shortenedText(repeated("x", 200)), repeated("x", 200));
    EXPECT_EQ(shortenedText(repeated("x", 201)), repeated("x", 200) + "...");
    EXPECT_EQ(shortenedText(repeated("\xE2\x82\xAC", 200)), repeated("\xE2\x82\xAC", 200));
    EXPECT_EQ(shortenedText(repeated("\xE2\x82\xAC", 100'000)), repeated("\xE2\x82\xAC", 200) + "...");
    // Two units each: a hundred of them fit, and no half of one is left where the limit falls inside one.
    EXPECT_EQ(shortenedText(repeated("\xF0\x9F\x8E\xA8", 101)), repeated("\xF0\x9F\x8E\xA8", 100) + "...");
    EXPECT_EQ(shortenedText("x" + repeated("\xF0\x9F\x8E\xA8", 101)), "x" + repeated("\xF0\x9F\x8E\xA8", 99) + "...");
    EXPECT_EQ(shortenedText(repeated("\xFF", 300)), repeated(REPLACED, 200) + "...");
}

TEST(MessageText, QuotesAsJson)
{
    EXPECT_EQ(quotedText("a \"b\"\n\\"), R"("a \"b\"\n\\")");
    EXPECT_EQ(quotedText("\xC3\xA9\xC3"), "\"\xC3\xA9" REPLACED "\"");
    EXPECT_EQ(quotedText(repeated("x", 1000)), '"' + repeated("x", 200) + "...\"");
}

} // namespace
