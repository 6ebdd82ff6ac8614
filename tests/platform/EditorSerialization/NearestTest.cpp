#include <EditorSerialization/Nearest.h>

#include <gtest/gtest.h>

namespace {

using Serialize::didYouMean;
using Serialize::nearest;

struct Case
{
    char const * word;
    std::vector<std::string> candidates;
    char const * expected;
};

TEST(Nearest, IsTheCandidateWithTheFewestMistakes)
{
    Case const cases[] = {
        {"gain", {"gain", "gains"}, "gain"},
        {"gian", {"gin", "gain"}, "gin"},   // swapping and leaving out are one mistake each, and the first one wins
        {"gian", {"gwxn", "gain"}, "gain"}, // one swap rather than two changes
        {"abcd", {"badc", "axyd"}, "badc"}, // two swaps
        {"ain", {"gain"}, "gain"},
        {"ggain", {"gain"}, "gain"},
        {"gaim", {"gain"}, "gain"},
        {"GAIN", {"gaim", "gain"}, "gain"}, // case is no mistake
        {"gain", {"Gain"}, "Gain"},
        {"abcd", {"abxy"}, "abxy"}, // half of the letters are right
        {"abcd", {"axyz"}, ""},
        {"ab", {"abcd"}, "abcd"}, // half of the longer word
        {"ab", {"abcde"}, ""},
        {"x", {}, ""},
        {"", {"x"}, ""},
        {"x", {""}, ""},
    };
    for (Case const & one : cases)
        EXPECT_EQ(nearest(one.word, one.candidates), one.expected) << one.word;
}

TEST(Nearest, GivesUpOnWordsThatAreNoNames)
{
    EXPECT_EQ(nearest(std::string(200, 'a'), {std::string(200, 'a')}), std::string(200, 'a'));
    EXPECT_EQ(nearest(std::string(201, 'a'), {std::string(201, 'a')}), "");
}

TEST(Nearest, IsAskedAtTheEndOfAMessage)
{
    EXPECT_EQ(didYouMean("gian", {"gain"}), "; did you mean \"gain\"?");
    EXPECT_EQ(didYouMean("gian", {"width"}), "");
}

} // namespace
