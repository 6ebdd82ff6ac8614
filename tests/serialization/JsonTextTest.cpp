// JSON texts without a tree: the same texts and the same objects as the archives', or a refusal.

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Error.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>
#include <effects/Composition.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <support/Variations.h>

#include "Chain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using Serialize::Json::readObject;
using Serialize::Json::writeObject;
using Testing::created;
using Testing::documentOf;
using Testing::objectOf;
using Testing::varied;

std::vector<std::string> classNames()
{
    std::vector<std::string> names;
    for (std::string const & name : Serialize::Registry::names())
        if (created(name)->GetLayout())
            names.push_back(name);
    return names;
}

class EveryClassAsText : public testing::TestWithParam<std::string>
{
protected:
    /// A default object and two with every field off its default.
    std::vector<std::unique_ptr<Serialize::ISerializable>> objects()
    {
        std::vector<std::unique_ptr<Serialize::ISerializable>> objects;
        json document = documentOf(*created(GetParam()));
        for (int count = 0; count < 3; ++count) {
            objects.push_back(objectOf(document));
            document = varied(document);
        }
        return objects;
    }
};

/// The document with the keys of every object in descending order, but for the meta object, which stays first.
ordered_json reversed(json const & document)
{
    if (document.is_array()) {
        ordered_json result = ordered_json::array();
        for (json const & element : document)
            result.push_back(reversed(element));
        return result;
    }
    if (!document.is_object())
        return document;
    ordered_json result = ordered_json::object();
    if (document.contains("$meta"))
        result["$meta"] = document["$meta"];
    for (auto item = document.rbegin(); item != document.rend(); ++item)
        if (item.key() != "$meta")
            result[item.key()] = reversed(item.value());
    return result;
}

TEST_P(EveryClassAsText, IsTheTextOfItsTree)
{
    for (auto const & object : objects())
        EXPECT_EQ(writeObject(*object), documentOf(*object).dump());
}

TEST_P(EveryClassAsText, IsReadWithoutATree)
{
    for (auto const & object : objects()) {
        json const document = documentOf(*object);
        for (std::string const & text : {document.dump(), document.dump(2), reversed(document).dump()}) {
            auto const read = readObject(text);
            ASSERT_NE(read, nullptr) << text;
            EXPECT_EQ(documentOf(*read), document);
        }
    }
}

TEST_P(EveryClassAsText, KeepsDefaultsForKeysThatAreAbsent)
{
    json const document = documentOf(*created(GetParam()));
    auto const read = readObject(json{{"$meta", document["$meta"]}}.dump());
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(documentOf(*read), document);
}

INSTANTIATE_TEST_SUITE_P(All, EveryClassAsText, testing::ValuesIn(classNames()), [](auto const & row) {
    std::string name = row.param;
    for (char & letter : name)
        letter = letter == ':' ? '_' : letter;
    return name;
});

/// An opacity effect whose own part is this text, such as `"opacity": 0.5`.
std::string opacity(std::string const & own)
{
    return R"({"$meta":{"class":"Effect::Opacity"},)" + own + "}";
}

/// One with this in its `Effect::Object`.
std::string object(std::string const & own)
{
    return opacity(R"("Effect::VideoEffect":{"$meta":{"class":"Effect::VideoEffect"},"Effect::Object":{)"
                   R"("$meta":{"class":"Effect::Object"},)" +
                   own + "}}");
}

std::string arrays(int depth)
{
    auto const count = static_cast<std::size_t>(depth);
    return std::string(count, '[') + std::string(count, ']');
}

/// The effect by way of the tree; null where that throws.
std::unique_ptr<Effect::Object> treeRead(std::string const & text)
{
    try {
        json const document = Serialize::Json::parse(text);
        Serialize::Json::iarchive archive(document);
        std::unique_ptr<Effect::Object> effect;
        archive >> effect;
        return effect;
    } catch (std::exception const &) {
        return nullptr;
    }
}

TEST(JsonText, ReadsWhatTheTreeReads)
{
    for (std::string const & text : std::vector<std::string>{
             opacity(R"("opacity":0.25)"),
             opacity(R"( "opacity" : -0 )"),
             opacity(R"("opacity":-0.0)"),
             opacity(R"("opacity":-0e3)"),
             opacity(R"("opacity":"Infinity")"),
             opacity(R"("opacity":"-Infinity")"),
             opacity(R"("opacity":"NaN")"),
             opacity(R"("opacity":"N\u0061N")"),
             opacity(R"("opacity":12345678901234567890)"),
             opacity(R"("opacity":-9223372036854775809)"),
             opacity(R"("opacity":0.1234567890123456789)"),
             opacity(R"("opacity":9007199254740993)"),
             opacity(R"("opacity":90071992547409.925)"),
             opacity(R"("opacity":1.7976931348623157e308)"),
             opacity(R"("opacity":2.2250738585072011e-308)"),
             opacity(R"("opacity":1E+2)"),
             opacity(R"("\u006fpacity":0.5)"),
             opacity(
                 R"("unknown":[{"a":[],"b":{}},{"c":null,"c":null},"\ud83d\ude00",1e5,-1,true,false],"opacity":0.5)"),
             opacity(R"("unknown":)" + arrays(Serialize::Json::maxDocumentDepth - 1)),
             "\n\t\r " + opacity("\n\t\r \"opacity\"\n\t\r :\n\t\r 0.5\n\t\r ") + " \n",
             R"({ "$meta" : { "class" : "Effect::Opacity" } , "opacity" : 0.5 })",
             R"({"$meta":{"class":"Effect::Opacity"}})",
             object(R"("tag":"a\"b\\c\/d\b\f\n\r\t\u00e9\u20ac\ud83d\ude00")"),
             object("\"tag\":\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\""),
             object("\"tag\":\"\xEF\xBB\xBFmarked\""),
             object(R"("tag":"\ufeff\ufeff")"),
             object("\"tag\":\"\x7F\""),
             object(R"("tag":"")"),
             object(R"("tag":"a\u0000b\u0000")"),
             object(R"("tag":null)"),
             object(R"("tag":"effect_opacity")"),
             object(R"("range":{"start":-5,"length":7})"),
             object(R"("range":{"length":999999999999999999})"),
             object(R"("range":{})"),
             object(R"("range":null)"),
             object(R"("resource":{"type":-2147483648,"name":"n"})"),
             object(R"("resource":{})"),
         }) {
        auto const expected = treeRead(text);
        auto const read = readObject(text);
        ASSERT_NE(expected, nullptr) << text;
        ASSERT_NE(read, nullptr) << text;
        auto const & effect = dynamic_cast<Effect::Object const &>(*read);
        EXPECT_EQ(Effect::Archive::toBinary(effect), Effect::Archive::toBinary(*expected)) << text;
        EXPECT_EQ(writeObject(effect), documentOf(effect).dump());
    }
}

/// What is right, but left to the tree.
TEST(JsonText, RefusesWhatOnlyTheTreeReads)
{
    for (std::string const & text : std::vector<std::string>{
             opacity(R"("opacity":0.5,"opacity":0.75)"),
             opacity(R"("opacity":0.5,"other":1,"opacity":0.75)"),
             object(R"("groupId":"a","groupId":"b")"),
             object(R"("id":"a","groupId":"b","id":"c")"),
             opacity(R"("opacity":1e-400)"),
             opacity(R"("$meta":{"class":"Effect::Opacity"})"),
             std::string(R"({"opacity":0.5,"$meta":{"class":"Effect::Opacity"}})"),
             std::string(R"({"$meta":{"class":"Effect::Opacity","id":1}})"),
             std::string(R"({"$meta":{"class":"Effect::Opacity","more":1}})"),
             opacity(R"("Effect::VideoEffect":{"$meta":{"class":"Effect::VideoEffect","id":7}})"),
             opacity(R"("Effect::VideoEffect":{"$meta":null})"),
             object(R"("tag":{"$utf16":[55357]})"),
             object(R"("resource":{"$meta":{}})"),
             object(R"("range":{"start":1000000000000000000})"),
             "\xEF\xBB\xBF" + opacity(R"("opacity":0.5)"),
         }) {
        EXPECT_NE(treeRead(text), nullptr) << text;
        EXPECT_EQ(readObject(text), nullptr) << text;
        EXPECT_EQ(
            Effect::Archive::toBinary(*Effect::Archive::fromJson(text)), Effect::Archive::toBinary(*treeRead(text)))
            << text;
    }
}

TEST(JsonText, RefusesWhatIsWrong)
{
    using namespace std::string_literals;
    for (std::string const & text : std::vector<std::string>{
             ""s,
             "{"s,
             "null x"s,
             "[]"s,
             "{}"s,
             R"({"$meta":{"class":"Effect::Nothing"}})"s,
             R"({"$meta":{"class":7}})"s,
             opacity(R"("opacity":0.5)") + "}",
             opacity(R"("opacity":0.5)") + '\0',
             opacity(R"("opacity":0.5,)"),
             opacity(R"("opacity" 0.5)"),
             opacity(R"("opacity":)"),
             opacity(R"("opacity":true)"),
             opacity(R"("opacity":null)"),
             opacity(R"("opacity":"Inf")"),
             opacity(R"("opacity":01)"),
             opacity(R"("opacity":-)"),
             opacity(R"("opacity":.5)"),
             opacity(R"("opacity":1.)"),
             opacity(R"("opacity":1e)"),
             opacity(R"("opacity":+1)"),
             opacity(R"("opacity":1e400)"),
             opacity(R"("opacity":0x10)"),
             opacity(R"("other":1e400)"),
             opacity(R"("other":tru)"),
             opacity(R"("other":[1,])"),
             opacity(R"("other":[1}})"),
             opacity(R"("other":{"a":1,})"),
             opacity(R"("other":{1:2})"),
             opacity(R"("other":"\ud800")"),
             opacity(R"("other":"\udc00\ud800")"),
             opacity(R"("other":"\x41")"),
             opacity(R"("other":"\u00g0")"),
             opacity(R"("other":"\u+0a0")"),
             opacity("\"other\":\"\x1F\""),
             opacity("\"other\":\"\xC3\""),
             opacity("\"other\":\"\xC0\x80\""),
             opacity("\"other\":\"\xED\xA0\x80\""),
             opacity("\"other\":\"\xF4\x90\x80\x80\""),
             opacity("\"other\":\"a\0b\""s),
             opacity(R"("other":)" + arrays(Serialize::Json::maxDocumentDepth)),
             opacity(R"("Effect::VideoEffect":{"$meta":{"class":"Effect::AudioEffect"}})"),
             opacity(R"("Effect::VideoEffect":[])"),
             object(R"("tag":7)"),
             object(R"("range":[])"),
             object(R"("range":{"start":0.5})"),
             object(R"("resource":{"type":2147483648})"),
             object(R"("resource":{"type":-2147483649})"),
             object(R"("resource":{"type":1.0})"),
             object(R"("resource":null)"),
         }) {
        EXPECT_EQ(treeRead(text), nullptr) << text;
        EXPECT_EQ(readObject(text), nullptr) << text;
        EXPECT_ANY_THROW(Effect::Archive::fromJson(text)) << text;
    }
}

/// Records can be made by name as well, but are no effects.
TEST(JsonText, OnlyEffectsAreEffects)
{
    constexpr char const * text = R"({"$meta":{"class":"Effect::FrameHighlight"}})";
    EXPECT_NE(readObject(text), nullptr);
    EXPECT_THROW(Effect::Archive::fromJson(text), Serialize::ArchiveError);
}

TEST(JsonText, HoldersNestAsDeepAsInTheTree)
{
    auto const deepest = Testing::chain(Serialize::maxObjectDepth);
    std::string const text = writeObject(*deepest);
    EXPECT_EQ(text, documentOf(*deepest).dump());
    EXPECT_NE(readObject(text), nullptr);

    auto const tooDeep = Testing::chain(Serialize::maxObjectDepth + 1);
    EXPECT_EQ(writeObject(*tooDeep), "");
    EXPECT_THROW(Effect::Archive::toJson(*tooDeep), Serialize::ArchiveError);
    std::string const inner = R"({"$meta":{"class":"Effect::EffectsHolder"},"effects":[)";
    EXPECT_EQ(readObject(inner + text + "]}"), nullptr);
}

TEST(JsonText, HoldersKeepEmptySlotsAndRefuseRecords)
{
    Effect::EffectsHolder holder;
    holder.addEffect(nullptr)->addEffect(std::make_unique<Effect::Opacity>())->addEffect(nullptr);
    std::string const text = writeObject(holder);
    EXPECT_EQ(text, documentOf(holder).dump());
    auto const read = readObject(text);
    ASSERT_NE(read, nullptr);
    auto const & effects = dynamic_cast<Effect::EffectsHolder const &>(*read).effects;
    ASSERT_EQ(effects.size(), 3U);
    EXPECT_EQ(effects[0], nullptr);
    EXPECT_NE(dynamic_cast<Effect::Opacity const *>(effects[1].get()), nullptr);
    EXPECT_EQ(effects[2], nullptr);

    EXPECT_EQ(readObject(R"({"$meta":{"class":"Effect::EffectsHolder"},)"
                         R"("effects":[{"$meta":{"class":"Effect::FrameHighlight"}}]})"),
        nullptr);
}

/// Longer than the writer's buffer, with what has to be escaped around the ends of its parts.
TEST(JsonText, WritesLongTexts)
{
    Effect::Opacity effect;
    for (int const length : {8190, 8191, 8192, 8193, 16384, 40000})
        for (QString const & unusual : {QString(), QStringLiteral("\""), QStringLiteral("\n\x01"),
                 QStringLiteral("\u20ac"), QString::fromUtf8("\xF0\x9F\x98\x80")}) {
            effect.tag = QString(length, QLatin1Char('x')) + unusual + QStringLiteral("end");
            std::string const text = writeObject(effect);
            ASSERT_EQ(text, documentOf(effect).dump()) << length << ' ' << unusual.toStdString();
            auto const read = readObject(text);
            ASSERT_NE(read, nullptr);
            EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*read).tag, effect.tag);
        }
}

TEST(JsonText, WritesEveryCharacter)
{
    Effect::Opacity effect;
    for (unsigned code = 0; code < 0x11000; ++code) {
        uint const character = code;
        effect.tag = code < 0x10000 ? QString(QChar(static_cast<ushort>(code))) : QString::fromUcs4(&character, 1);
        ASSERT_EQ(writeObject(effect), documentOf(effect).dump()) << code;
    }
    for (QString const & text : {QString(), QStringLiteral(""), QString(QChar(0xD800)) + QLatin1Char('x'),
             QLatin1Char('x') + QString(QChar(0xDC00)), QString(5000, QChar(0xDBFF))}) {
        effect.tag = text;
        EXPECT_EQ(writeObject(effect), documentOf(effect).dump());
    }
}

/// The text grows by guesses about the rest of a list.
TEST(JsonText, WritesLongLists)
{
    for (std::size_t const longest : {std::size_t(0), std::size_t(500)}) {
        Effect::EffectsHolder holder;
        for (std::size_t index = 0; index < 1000; ++index) {
            auto effect = std::make_unique<Effect::Opacity>();
            effect->opacity = 1.0 / static_cast<double>(index + 1);
            if (index == longest)
                effect->tag = QString(100'000, QLatin1Char('x'));
            holder.addEffect(std::move(effect));
        }
        EXPECT_EQ(writeObject(holder), documentOf(holder).dump());
    }
}

struct Heir : Effect::Opacity
{
    int more = 0;
};

TEST(JsonText, RefusesAClassThatOnlyInheritsALayout)
{
    EXPECT_EQ(writeObject(Heir()), "");
}

TEST(JsonText, NumbersAreThoseOfTheTree)
{
    Effect::SideBySide effect;
    std::mt19937_64 random(7);
    using Limits = std::numeric_limits<double>;
    std::vector<double> numbers{0.0, -0.0, 1.0, -1.0, 0.1, 100.0, 123456789.0, 1e15, 1e16, 9007199254740993.0, 1e-4,
        1e-5, 5e-324, Limits::min(), Limits::max(), -Limits::max(), Limits::epsilon(), Limits::infinity(),
        -Limits::infinity(), Limits::quiet_NaN(), 4.35, 0.3, 2.0 / 3, 123456.7890625};
    for (int exponent = -320; exponent <= 308; ++exponent)
        numbers.push_back(std::strtod(("1.2345678901234567e" + std::to_string(exponent)).c_str(), nullptr));
    for (int exponent = -1074; exponent <= 1023; ++exponent) // below which the doubles are closer than above
        numbers.push_back(std::ldexp(1.0, exponent));
    while (numbers.size() < 200'000) {
        std::uint64_t const bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        numbers.push_back(number);
        numbers.push_back(static_cast<double>(bits) / 18446744073709551616.0 * 2 - 1);
        numbers.push_back(static_cast<double>(bits % 100'000'000) / 10'000);
        numbers.push_back(static_cast<double>(bits % 1'000'000));
    }
    for (std::size_t start = 0; start + 9 <= numbers.size(); start += 9) {
        for (std::size_t index = 0; index < 9; ++index)
            effect.transformSrc[index] = numbers[start + index];
        std::string const text = writeObject(effect);
        ASSERT_EQ(text, documentOf(effect).dump());
        auto const read = readObject(text);
        ASSERT_NE(read, nullptr);
        auto const & copy = dynamic_cast<Effect::SideBySide const &>(*read);
        for (std::size_t index = 0; index < 9; ++index) {
            double const written = numbers[start + index];
            if (written == written) {
                ASSERT_EQ(copy.transformSrc[index], written);
            } else {
                ASSERT_NE(copy.transformSrc[index], copy.transformSrc[index]);
            }
        }
    }
}

TEST(JsonText, DecimalsAreReadAsTheNearestDoubles)
{
    std::vector<std::string> texts{
        // half way between two doubles, so that the even one is nearest: 2^53 + 1, 2^52 + 1.5, 2^52 + 0.5, 2^54 + 2
        "9007199254740993", "9007199254740993.0", "4503599627370497.5", "4503599627370496.5", "18014398509481986.00",
        // a unit of the last place beside it
        "9007199254740993.1", "9007199254740992.9", "4503599627370497.51", "4503599627370497.49",
        // by less than a two thousandth of a unit above the middle, below it, and below the next double
        "8249778.652729566675", "8721.512005252233394", "8.004519385977377333", "78191.40735761775432",
        "22678897522851.79883", "3.062797953636671844", "839870045.4507562518", "8.673409999914794887",
        "64106.81062061470220", "463.1661249545361727", "58171851941.71638870", "9010490.218901810236",
        "8125.191203982675688", "3147833050794.402832", "489.6204060377982614", "497782.3289026939310",
        // up to the last mantissa, and over it into the next exponent
        "9007199254740991.4", "9007199254740991.5", "9007199254740991.6", "0.99999999999999995", "0.99999999999999994",
        "1.9999999999999999", "1.99999999999999988", "1.99999999999999989",
        // as many digits as 64 bits hold, and one more
        "9.999999999999999999", "99.99999999999999999", "9.9999999999999999999", "18446744073709551615",
        "18446744073709551616.5", "1844674407370955161.5",
        // many places
        "0.000000000000000000000000001", "0.0000000000012345678901234567", "0.00000000012345678901234567",
        "0.000000000000000000000000000123456789", "0.1234567890123456789012345678901234567890",
        "0.00000000000000000000009007199254740993",
        // the exact decimals of short binary fractions
        "0.5000000000000000000", "0.0009765625000000000", "3.1415926535897931", "0.1000000000000000055511151231257827"};
    std::mt19937_64 random(16);
    while (texts.size() < 90'000) {
        // Each number of digits at each place of the point.
        std::string digits =
            std::to_string(random() | std::uint64_t(1) << 63).substr(0, 20 - random() % (random() % 19 + 1));
        std::size_t const whole = random() % (digits.size() + 1);
        std::string fraction = std::string(random() % 3 == 0 ? random() % 12 : 0, '0') + digits.substr(whole);
        if (fraction.empty())
            fraction = '0';
        digits.resize(whole);
        texts.push_back((random() % 2 ? "-" : "") + (digits.empty() ? "0" : digits) + '.' + fraction);
    }
    while (texts.size() % 9 != 0)
        texts.emplace_back("0");
    for (std::size_t start = 0; start < texts.size(); start += 9) {
        std::string list;
        for (std::size_t index = 0; index < 9; ++index)
            list += (index > 0 ? "," : "") + texts[start + index];
        auto const read = readObject(R"({"$meta":{"class":"Effect::SideBySide"},"transformSrc":{"m":[)" + list + "]}}");
        ASSERT_NE(read, nullptr) << list;
        auto const & effect = dynamic_cast<Effect::SideBySide const &>(*read);
        for (std::size_t index = 0; index < 9; ++index)
            ASSERT_EQ(effect.transformSrc[index], std::strtod(texts[start + index].c_str(), nullptr))
                << texts[start + index];
    }
}

TEST(JsonText, NumbersEndWhereTheTextOrTheDigitsEnd)
{
    // Eight bytes are read at once where there are as many.
    for (std::string const digits : {"1", "1234567", "12345678", "123456789", "1234567890123456", "12345678901234567"})
        for (std::string const behind : {"", "/", ":", "\xFF", "x234567", "\x01", "/////////"}) {
            std::string const text = opacity("\"opacity\":0." + digits + behind);
            EXPECT_EQ(readObject(text) != nullptr, behind.empty()) << text;
            std::string const cut = text.substr(0, text.size() - 1);
            EXPECT_EQ(readObject(cut), nullptr) << cut;
        }
}

TEST(JsonText, TextsOfEveryLength)
{
    // Eight characters are compared, copied and written at once; the last eight may overlap those before.
    std::string const letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJ";
    for (std::size_t size = 0; size <= letters.size(); ++size)
        for (std::size_t place = 0; place <= size; ++place) {
            QString tag = QString::fromLatin1(letters.data(), static_cast<int>(size));
            for (QChar const other : {QChar('"'), QChar(0x7F), QChar(0xFF), QChar(0x161), QChar('a')}) {
                if (place < size)
                    tag[static_cast<int>(place)] = other;
                Effect::Opacity effect;
                effect.tag = tag;
                std::string const text = writeObject(effect);
                ASSERT_EQ(text, documentOf(effect).dump());
                auto const read = readObject(text);
                ASSERT_NE(read, nullptr);
                ASSERT_EQ(dynamic_cast<Effect::Opacity const &>(*read).tag, tag);
            }
        }
}

TEST(JsonText, ReplacesATextThatDiffersInOnePlace)
{
    // The default identifier, of 36 characters, stays where the text is the same.
    std::string const id = Effect::Id::Opacity.toStdString();
    for (std::size_t place = 0; place < id.size(); ++place) {
        std::string other = id;
        other[place] = '~';
        auto const read = readObject(object(R"("id":")" + other + '"'));
        ASSERT_NE(read, nullptr);
        EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*read).id.toStdString(), other);
    }
    auto const shorter = readObject(object(R"("id":")" + id.substr(0, 35) + '"'));
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*shorter).id.toStdString(), id.substr(0, 35));
    auto const empty = readObject(object(R"("id":"")"));
    EXPECT_TRUE(dynamic_cast<Effect::Opacity const &>(*empty).id.isEmpty());
    EXPECT_FALSE(dynamic_cast<Effect::Opacity const &>(*empty).id.isNull());
}

void expectStaticTexts(Serialize::ISerializable & object, Serialize::Layout const & layout)
{
    if (layout.base)
        expectStaticTexts(object, *layout.base);
    for (std::size_t index = 0; index < layout.fieldCount; ++index) {
        Serialize::FieldLayout const & field = layout.fields[index];
        void * const address = field.address(object);
        if (field.form == Serialize::Form::Text) {
            EXPECT_TRUE(static_cast<QString *>(address)->data_ptr()->ref.isStatic()) << field.key;
        } else if (field.form == Serialize::Form::Record) {
            expectStaticTexts(*static_cast<Serialize::ISerializable *>(address), *field.record);
        }
    }
}

/// Creating, copying and destroying an effect counts no references of its identifiers, groups, tags and empty texts,
/// nor does an effect that was read with the same ones.
TEST_P(EveryClassAsText, DefaultTextsAreStatic)
{
    auto const object = created(GetParam());
    expectStaticTexts(*object, *object->GetLayout());
    auto const read = readObject(writeObject(*object));
    ASSERT_NE(read, nullptr);
    expectStaticTexts(*read, *read->GetLayout());
}

TEST(JsonText, ReaderOfAText)
{
    using Serialize::Json::TextReader;
    TextReader reader(R"( {"names": ["a", "\u00e9", ""], "skipped": {"x": [1, 2]}, "object": null, "last": []} )");
    std::string_view key;
    ASSERT_TRUE(reader.enterObject());
    ASSERT_TRUE(reader.nextKey(key));
    EXPECT_EQ(key, "names");
    ASSERT_TRUE(reader.enterArray());
    QStringList names;
    while (reader.nextElement()) {
        QString name = QStringLiteral("before");
        ASSERT_TRUE(reader.read(name));
        names << name;
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("a"), QStringLiteral("\u00e9"), QString()}));
    ASSERT_TRUE(reader.nextKey(key));
    EXPECT_EQ(key, "skipped");
    ASSERT_TRUE(reader.skip());
    ASSERT_TRUE(reader.nextKey(key));
    std::unique_ptr<Serialize::ISerializable> object = std::make_unique<Effect::Opacity>();
    ASSERT_TRUE(reader.read(object));
    EXPECT_EQ(object, nullptr);
    ASSERT_TRUE(reader.nextKey(key));
    EXPECT_EQ(key, "last");
    EXPECT_FALSE(reader.isWhole());
    ASSERT_TRUE(reader.enterArray());
    EXPECT_FALSE(reader.nextElement());
    EXPECT_FALSE(reader.nextKey(key));
    EXPECT_TRUE(reader.isWhole());
}

TEST(JsonText, ReaderRefusesForGood)
{
    using Serialize::Json::TextReader;
    for (char const * const text : {"{\"a\":1 \"b\":2}", "{\"a\":1,}", "{,\"a\":1}", "{\"a\":1,\"b\":2", "{\"a\":1]",
             "[]", "{\"a\":1,\"b\":2}}", ""}) {
        TextReader reader(text);
        std::string_view key;
        for (reader.enterObject(); reader.nextKey(key);)
            reader.skip();
        EXPECT_FALSE(reader.isWhole()) << text;
    }
    TextReader reader("{\"a\":7,\"b\":\"text\"}");
    std::string_view key;
    QString text;
    EXPECT_TRUE(reader.enterObject() && reader.nextKey(key));
    EXPECT_FALSE(reader.read(text));
    EXPECT_FALSE(reader.nextKey(key) || reader.skip() || reader.enterArray() || reader.nextElement());
    EXPECT_FALSE(reader.isWhole());
}

} // namespace
