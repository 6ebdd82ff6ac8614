#include "Printing.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace {

using Quoril::Proc::Value;

TEST(Value, IsNullUnlessGivenSomething)
{
    EXPECT_EQ(Value(), Value(nullptr));
    EXPECT_NE(Value().as<std::nullptr_t>(), nullptr);
    EXPECT_NE(Value(), Value(0));
}

TEST(Value, IntegersOfAllWidthsAreOneKind)
{
    EXPECT_EQ(Value(static_cast<unsigned char>(200)), Value(std::int64_t{200}));
    EXPECT_EQ(Value(static_cast<signed char>(-1)), Value(std::int64_t{-1}));
    EXPECT_EQ(*Value(std::uint32_t{4294967295}).as<std::int64_t>(), 4294967295);
    EXPECT_EQ(
        *Value(std::numeric_limits<std::int64_t>::min()).as<std::int64_t>(), std::numeric_limits<std::int64_t>::min());
}

TEST(Value, UnsignedIntegersTooLargeBecomeNumbers)
{
    EXPECT_EQ(*Value(std::uint64_t{9223372036854775807u}).as<std::int64_t>(), 9223372036854775807);
    EXPECT_EQ(*Value(std::uint64_t{9223372036854775808u}).as<double>(), 9223372036854775808.0);
}

TEST(Value, BooleansAndTextsAreNotNumbers)
{
    EXPECT_EQ(Value(true).as<std::int64_t>(), nullptr);
    EXPECT_TRUE(*Value(true).as<bool>());
    EXPECT_EQ(*Value("text").as<std::string>(), "text");
    EXPECT_NE(Value(1), Value(1.0));
}

TEST(Value, FindsTheEntriesOfAnObject)
{
    Value const object = Value::Object{{"size", 3}, {"name", "x"}};
    ASSERT_NE(object.find("name"), nullptr);
    EXPECT_EQ(*object.find("name"), Value("x"));
    EXPECT_EQ(object.find("none"), nullptr);
    EXPECT_EQ(Value(1).find("size"), nullptr);
}

TEST(Value, PrintsInTheMannerOfJson)
{
    struct Row
    {
        Value value;
        char const * text;
    };
    Row const rows[] = {
        {nullptr, "null"},
        {true, "true"},
        {-5, "-5"},
        {0.1, "0.1"},
        {-std::numeric_limits<double>::infinity(), "-inf"},
        {"a b", "\"a b\""},
        {Value::List{}, "[]"},
        {Value::List{1, Value::List{2, 3}}, "[1, [2, 3]]"},
        {Value::Object{{"a", 1}, {"b", nullptr}}, "{\"a\": 1, \"b\": null}"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(row.value.toString(), row.text);
    }
}

} // namespace
