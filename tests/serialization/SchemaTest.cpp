// What the library says about its classes, and setting any parameter by its description.

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/Registry.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/HiddenFamilies.h>
#include <effects/Holder.h>
#include <effects/Mask.h>
#include <effects/Schema.h>
#include <effects/Shaders.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using nlohmann::json;
using Schema::Class;
using Schema::Kind;
using Schema::Parameter;
using Serialize::ISerializable;
using testing::AllOf;
using Testing::created;
using Testing::documentOf;
using testing::HasSubstr;
using Testing::objectOf;
using Testing::varied;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A class of the host, under a name of its own or not.
struct HostCrop : Crop
{
    std::string GetNameInArchive() const override { return "Host::Crop"; }
};

Parameter const & parameterOf(char const * className, char const * key)
{
    Class const * const info = Schema::find(className);
    Parameter const * const parameter = info ? info->find(key) : nullptr;
    if (!parameter)
        throw std::logic_error(std::string(className) + " has no " + key);
    return *parameter;
}

std::string binaryOf(ISerializable const & object)
{
    std::stringstream stream;
    Serialize::BinaryOArchive archive(stream);
    ISerializable const * const pointer = &object;
    archive << pointer;
    return stream.str();
}

/// What the refusal says; empty for none.
std::string refusal(ISerializable & object, Parameter const & parameter, json const & value)
{
    try {
        setValue(object, parameter, value);
        return {};
    } catch (std::invalid_argument const & error) {
        return error.what();
    }
}

class EveryClass : public testing::TestWithParam<Class const *>
{
protected:
    Class const & info = *GetParam();
    std::unique_ptr<ISerializable> object = info.create();
    json const defaults = documentOf(*object);
    json const others = varied(defaults);
};

INSTANTIATE_TEST_SUITE_P(
    Schema, EveryClass, testing::ValuesIn(Schema::classes()), [](testing::TestParamInfo<Class const *> const & test) {
        std::string name = test.param->name;
        for (char & letter : name)
            letter = letter == ':' ? '_' : letter;
        return name;
    });

// --- What is described -----------------------------------------------------------------------------------------------

TEST(Classes, AreThoseOfTheRegistryInOrder)
{
    std::vector<std::string> names;
    for (Class const * info : Schema::classes())
        names.push_back(info->name);
    EXPECT_GE(names.size(), 89U);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    // The test program has classes of its own besides.
    std::vector<std::string> registered;
    for (std::string const & name : Serialize::Registry::names())
        if (name.rfind("Effect::", 0) == 0)
            registered.push_back(name);
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(registered));
}

TEST(Classes, AreFoundByNameAndByObject)
{
    EXPECT_EQ(Schema::find("Effect::Nothing"), nullptr);
    EXPECT_EQ(Schema::find(""), nullptr);
    EXPECT_EQ(Schema::find("Effect::Object"), nullptr);
    EXPECT_EQ(Schema::of(static_cast<Object const &>(HostCrop())), nullptr);
    EXPECT_EQ(Schema::of(static_cast<ISerializable const &>(HostCrop())), nullptr);
    EXPECT_EQ(Schema::of(AudioEcho::Echo()), Schema::find("Effect::AudioEcho::Echo"));
    EXPECT_EQ(Schema::of(FrameConceal()), Schema::find("Effect::FrameConceal"));
}

TEST(Classes, SayWhatTheirObjectsSay)
{
    Class const & lut = *Schema::find("Effect::Lut");
    EXPECT_EQ(lut.base, "Effect::VideoEffect");
    EXPECT_EQ(lut.family, "Shaders");
    EXPECT_TRUE(lut.isExported);
    EXPECT_TRUE(lut.isEffect);
    EXPECT_TRUE(lut.isConverted);
    EXPECT_TRUE(lut.hasIntensity);
    EXPECT_FALSE(lut.isTwoInput);
    EXPECT_EQ(lut.type, Type::Video);
    EXPECT_EQ(lut.impl, Impl::Effect);
    EXPECT_EQ(lut.id, "296139e9-c085-4e73-aacd-df41093c132a");
    EXPECT_EQ(lut.defaultTag, "effect_lut");
    EXPECT_EQ(lut.intensity, 1);

    Class const & phone = *Schema::find("Effect::AudioPhone");
    EXPECT_EQ(phone.base, "Effect::AudioFilter");
    EXPECT_FALSE(phone.isExported);
    EXPECT_EQ(phone.type, Type::Audio);
    EXPECT_EQ(phone.impl, Impl::Filter);

    Class const & echo = *Schema::find("Effect::AudioEcho::Echo");
    EXPECT_EQ(echo.base, "");
    EXPECT_FALSE(echo.isEffect);
    EXPECT_TRUE(echo.isConverted);
    EXPECT_EQ(echo.id, "");

    for (char const * const name : {"Effect::VideoEffect", "Effect::AudioNormalize", "Effect::AudioEnhance"})
        EXPECT_FALSE(Schema::find(name)->isConverted) << name;
}

TEST_P(EveryClass, IsFound)
{
    EXPECT_EQ(Schema::find(info.name), &info);
    EXPECT_EQ(object->GetNameInArchive(), info.name);
    EXPECT_EQ(Schema::of(*object), &info);
    if (auto const * const effect = dynamic_cast<Object const *>(object.get())) {
        EXPECT_EQ(Schema::of(*effect), &info);
        EXPECT_TRUE(info.isEffect);
        EXPECT_EQ(info.id, effect->id);
        EXPECT_EQ(info.groupId, effect->groupId);
        EXPECT_EQ(info.tag, effect->tag);
        EXPECT_EQ(info.type, effect->type());
        EXPECT_EQ(info.impl, effect->impl());
    } else {
        EXPECT_FALSE(info.isEffect);
    }
}

TEST_P(EveryClass, HasTexts)
{
    QString const text = info.description();
    EXPECT_TRUE(text.endsWith('.')) << text.toStdString();
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        QString const label = parameter.label();
        QString const description = parameter.description();
        ASSERT_FALSE(label.isEmpty());
        ASSERT_FALSE(description.isEmpty());
        EXPECT_TRUE(label[0].isUpper()) << label.toStdString();
        EXPECT_FALSE(description.endsWith('.')) << description.toStdString();
        EXPECT_NE(label, description);
    }
}

TEST_P(EveryClass, HasChoicesWithOneNameEach)
{
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        EXPECT_EQ(parameter.kind == Kind::Enumeration, !parameter.choices.empty());
        std::set<std::string> names;
        std::int64_t last = std::numeric_limits<std::int64_t>::min();
        for (Choice const & choice : parameter.choices) {
            std::string const name = choice.name;
            EXPECT_TRUE(names.insert(name).second) << name;
            EXPECT_TRUE(!name.empty() && std::isupper(static_cast<unsigned char>(name[0])) &&
                        std::all_of(name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c); }))
                << name;
            EXPECT_GT(choice.value, last) << name;
            last = choice.value;
            EXPECT_FALSE(parameter.label(choice).isEmpty()) << name;
        }
    }
}

TEST_P(EveryClass, HasBoundsThatFitTheirParameter)
{
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        bool const isNumber =
            parameter.kind == Kind::Integer || parameter.kind == Kind::Real || parameter.kind == Kind::Time;
        bool const isBounded = parameter.minimum || parameter.maximum;
        EXPECT_TRUE(!isBounded || isNumber || parameter.kind == Kind::Enumeration);
        EXPECT_EQ(parameter.beyond.has_value(), isBounded || !parameter.choices.empty());
        EXPECT_EQ(parameter.fallback.has_value(), parameter.beyond == Beyond::Fallback);
        EXPECT_LT(parameter.minimum.value_or(-infinity), parameter.maximum.value_or(infinity));
        EXPECT_EQ(parameter.suggestedMinimum.has_value(), parameter.suggestedMaximum.has_value());
        if (parameter.suggestedMinimum) {
            EXPECT_TRUE(isNumber);
            EXPECT_LT(*parameter.suggestedMinimum, *parameter.suggestedMaximum);
            EXPECT_GE(*parameter.suggestedMinimum, parameter.minimum.value_or(-infinity));
            EXPECT_LE(*parameter.suggestedMaximum, parameter.maximum.value_or(infinity));
        }
        EXPECT_EQ(parameter.isEffective.has_value(), info.isConverted);
    }
}

TEST_P(EveryClass, PointsIntoItsDocument)
{
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        json::json_pointer const pointer(parameter.pointer);
        EXPECT_EQ(pointer.back(), parameter.key);
        EXPECT_TRUE(others.contains(pointer));
        json const inDocument = defaults.contains(pointer) ? defaults.at(pointer) : json();
        EXPECT_EQ(parameter.defaultValue(), inDocument);
        EXPECT_EQ(value(*object, parameter), inDocument);
        EXPECT_EQ(value(*objectOf(others), parameter), others.at(pointer));
        EXPECT_EQ(info.find(parameter.pointer), &parameter);
        EXPECT_EQ(info.find(parameter.key)->key, parameter.key);
    }
    EXPECT_EQ(info.find("no such key"), nullptr);
}

// No key of a document is without a description.
TEST_P(EveryClass, DescribesAllOfItsDocument)
{
    json rest = others;
    for (Parameter const & parameter : info.parameters) {
        json::json_pointer const pointer(parameter.pointer);
        rest.at(pointer.parent_pointer()).erase(parameter.key);
    }
    for (json const * level = &rest; level;) {
        json const * next = nullptr;
        for (auto const & [key, item] : level->items())
            if (key != "$meta") {
                EXPECT_EQ(key.rfind("Effect::", 0), 0U) << key;
                next = &item;
            }
        level = next;
    }
}

TEST_P(EveryClass, HasItsParametersInTheOrderOfTheBinaryArchive)
{
    std::string const bytes = binaryOf(*object);
    std::ptrdiff_t last = -1;
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        auto const changed = info.create();
        setValue(*changed, parameter, others.at(json::json_pointer(parameter.pointer)));
        std::string const changedBytes = binaryOf(*changed);
        auto const differs = std::mismatch(bytes.begin(), bytes.end(), changedBytes.begin(), changedBytes.end()).first;
        EXPECT_GT(differs - bytes.begin(), last);
        last = differs - bytes.begin();
    }
}

// --- Setting ---------------------------------------------------------------------------------------------------------

TEST_P(EveryClass, ChangesOneValueOnly)
{
    for (Parameter const & parameter : info.parameters) {
        SCOPED_TRACE(parameter.pointer);
        json::json_pointer const pointer(parameter.pointer);
        json expected = defaults;
        expected[pointer] = others.at(pointer);
        auto const changed = info.create();
        setValue(*changed, parameter, others.at(pointer));
        EXPECT_EQ(value(*changed, parameter), others.at(pointer));
        EXPECT_EQ(documentOf(*changed), expected);
        setValue(*changed, parameter, parameter.defaultValue());
        EXPECT_EQ(documentOf(*changed), defaults);
    }
}

TEST_P(EveryClass, ChangesAnElementByItsOwnParameters)
{
    for (Parameter const & list : info.parameters) {
        if (!list.elements)
            continue;
        json::json_pointer const pointer(list.pointer);
        auto const full = objectOf(others);
        json const & values = others.at(pointer);
        std::size_t const count = list.kind == Kind::List ? values.size() : 1;
        ASSERT_EQ(elementCount(*full, list), count);
        for (std::size_t index = 0; index < count; ++index) {
            ISerializable & element = *Schema::element(*full, list, index);
            json::json_pointer const place = list.kind == Kind::List ? pointer / index : pointer;
            json const elementOthers = varied(others.at(place));
            Class const & elementClass = Schema::of(element) ? *Schema::of(element) : *list.elements;
            for (Parameter const & parameter : elementClass.parameters) {
                SCOPED_TRACE(list.pointer + "/" + std::to_string(index) + parameter.pointer);
                json::json_pointer const own(parameter.pointer);
                json expected = others;
                expected[place / own] = elementOthers.at(own);
                setValue(element, parameter, elementOthers.at(own));
                EXPECT_EQ(value(element, parameter), elementOthers.at(own));
                EXPECT_EQ(documentOf(*full), expected);
                setValue(element, parameter, others.at(place / own));
                EXPECT_EQ(documentOf(*full), others);
            }
        }
        EXPECT_THROW(Schema::element(*full, list, count), std::invalid_argument);
    }
}

TEST_P(EveryClass, TakesChoicesByName)
{
    for (Parameter const & parameter : info.parameters)
        for (Choice const & choice : parameter.choices) {
            SCOPED_TRACE(parameter.pointer + " " + choice.name);
            setValue(*object, parameter, choice.name);
            EXPECT_EQ(value(*object, parameter), choice.value);
        }
}

// A number that is no choice is a value like any other, unless it is refused.
TEST_P(EveryClass, TakesEveryNumberOfItsType)
{
    for (Parameter const & parameter : info.parameters) {
        if (parameter.beyond == Beyond::Refused)
            continue;
        SCOPED_TRACE(parameter.pointer);
        json values = json::array();
        if (parameter.type == "int32")
            values = {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max(), -1, 12345678};
        else if (parameter.type == "uint32")
            values = {0, 4294967295U};
        else if (parameter.type == "int64")
            values = {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
        else if (parameter.type == "double")
            values = {-1.7976931348623157e308, 1.7976931348623157e308, 5e-324, 3, -7};
        for (json const & number : values) {
            setValue(*object, parameter, number);
            EXPECT_EQ(value(*object, parameter), number);
        }
    }
}

TEST(SetValue, TakesColoursAsText)
{
    ChromaKey effect;
    Parameter const & color = parameterOf("Effect::ChromaKey", "color");
    setValue(effect, color, "#12aBcF");
    EXPECT_EQ(effect.color, 0xFF12ABCFU);
    setValue(effect, color, "#0112abcf");
    EXPECT_EQ(effect.color, 0x0112ABCFU);
    setValue(effect, color, 0x00FF0000U);
    EXPECT_EQ(effect.color, 0x00FF0000U);
}

TEST(SetValue, TakesTransformsInThreeForms)
{
    Crop effect;
    Parameter const & transform = parameterOf("Effect::Crop", "transform");
    auto const entries = [&] {
        std::vector<double> numbers;
        for (std::size_t index = 0; index < 9; ++index)
            numbers.push_back(effect.transform[index]);
        return numbers;
    };
    setValue(effect, transform, {{"m", {9, 8, 7, 6, 5, 4, 3, 2, 1.5}}});
    EXPECT_THAT(entries(), testing::ElementsAre(9, 8, 7, 6, 5, 4, 3, 2, 1.5));
    setValue(effect, transform, {1.25, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_THAT(entries(), testing::ElementsAre(1.25, 2, 3, 4, 5, 6, 7, 8, 9));
    setValue(effect, transform, {{-1, 2, 3}, {4, 5, 6}, {7, 8, 0.5}});
    EXPECT_THAT(entries(), testing::ElementsAre(-1, 2, 3, 4, 5, 6, 7, 8, 0.5));
}

TEST(SetValue, SetsAndTakesBackARange)
{
    Crop effect;
    Parameter const & range = parameterOf("Effect::Crop", "range");
    setValue(effect, range, {{"start", 40}, {"length", -2}});
    EXPECT_EQ(effect.range, Types::Range(MTime(40), MTime(-2)));
    ASSERT_EQ(elementCount(effect, range), 1U);
    setValue(*Schema::element(effect, range, 0), *range.elements->find("length"), 3);
    EXPECT_EQ(effect.range, Types::Range(MTime(40), MTime(3)));
    // A key that is absent has its default in a new record.
    setValue(effect, range, {{"start", 1}});
    EXPECT_EQ(effect.range, Types::Range(MTime(1), MTime(0)));
    setValue(effect, range, nullptr);
    EXPECT_EQ(effect.range, std::nullopt);
    EXPECT_EQ(value(effect, range), nullptr);
    EXPECT_EQ(elementCount(effect, range), 0U);
}

TEST(SetValue, KeepsWhatARecordDoesNotMention)
{
    Lut effect("warm");
    Parameter const & resource = parameterOf("Effect::Lut", "resource");
    setValue(effect, resource, {{"name", "cold"}});
    EXPECT_EQ(effect.resource, Resource::ID("cold", Resource::Type::Blob));
    setValue(effect, resource, {{"type", 3}});
    EXPECT_EQ(effect.resource, Resource::ID("cold", Resource::Type::Image));
}

TEST(SetValue, LeavesEmptySlotsInAListOfEffects)
{
    EffectsHolder holder;
    Parameter const & effects = parameterOf("Effect::EffectsHolder", "effects");
    setValue(holder, effects, {nullptr, documentOf(Crop())});
    ASSERT_EQ(elementCount(holder, effects), 2U);
    EXPECT_EQ(Schema::element(holder, effects, 0), nullptr);
    EXPECT_EQ(Schema::of(*Schema::element(holder, effects, 1)), Schema::find("Effect::Crop"));
}

TEST(SetValue, ServesClassesOfTheHost)
{
    HostCrop crop;
    setValue(crop, parameterOf("Effect::Crop", "transform"), {2, 0, 0, 0, 2, 0, 0, 0, 1});
    EXPECT_EQ(crop.transform[4], 2);
    setValue(crop, parameterOf("Effect::Blur", "tag"), "mine");
    EXPECT_EQ(crop.tag, "mine");
    EXPECT_EQ(value(crop, parameterOf("Effect::Crop", "tag")), "mine");
    Parameter const & resource = parameterOf("Effect::Blur", "resource");
    setValue(crop, resource, {{"name", "a"}, {"type", 1}});
    EXPECT_THROW(setValue(crop, resource, {{"name", "b"}, {"type", "1"}}), std::invalid_argument);
    EXPECT_EQ(crop.resource, Resource::ID("a", Resource::Type::Video));
}

TEST(SetValue, RefusesForeignObjects)
{
    Crop crop;
    json const before = documentOf(crop);
    Parameter const & angle = parameterOf("Effect::Transpose", "angle");
    Parameter const & effects = parameterOf("Effect::AudioEnhance", "effects");
    std::string const message = refusal(crop, angle, 90);
    EXPECT_THAT(message, AllOf(HasSubstr("Effect::Crop"), HasSubstr("\"angle\""), HasSubstr("Effect::Transpose")));
    EXPECT_THROW(value(crop, angle), std::invalid_argument);
    EXPECT_THROW(elementCount(crop, effects), std::invalid_argument);
    EXPECT_THROW(Schema::element(crop, effects, 0), std::invalid_argument);
    EXPECT_NE(refusal(static_cast<ISerializable &>(*created("Effect::Frame")),
                  parameterOf("Effect::FrameConceal", "method"), 1),
        "");
    HostCrop hostCrop;
    EXPECT_NE(refusal(hostCrop, angle, 90), "");
    Types::Range range;
    EXPECT_NE(refusal(range, angle, 90), "");
    EXPECT_NE(refusal(range, parameterOf("Effect::Crop", "tag"), "x"), "");
    EXPECT_EQ(documentOf(crop), before);
}

// --- Refusals --------------------------------------------------------------------------------------------------------

/// A value that a parameter refuses, and what the message says of it.
struct Bad
{
    json value;
    std::string given;
    std::string allowed;
};

std::vector<Bad> badNumbers(std::string const & type)
{
    if (type == "double") {
        std::string const allowed = "a finite number";
        return {{notANumber, "NaN", allowed}, {infinity, "Infinity", allowed}, {-infinity, "-Infinity", allowed},
            {"1", "\"1\"", allowed}, {"NaN", "\"NaN\"", allowed}, {nullptr, "null", allowed}, {true, "true", allowed},
            {json::array({1}), "[1]", allowed}};
    }
    std::vector<Bad> bad;
    std::string const allowed = type == "int32"    ? "an integer from -2147483648 to 2147483647"
                                : type == "uint32" ? "an integer from 0 to 4294967295"
                                                   : "an integer from -9223372036854775808 to 9223372036854775807";
    if (type == "int32")
        bad = {{2147483648, "2147483648", allowed}, {-2147483649, "-2147483649", allowed}};
    else if (type == "uint32")
        bad = {{-1, "-1", allowed}, {4294967296, "4294967296", allowed}};
    bad.push_back({9223372036854775808U, "9223372036854775808", allowed});
    bad.push_back({1.0, "1.0", allowed});
    bad.push_back({notANumber, "NaN", allowed});
    bad.push_back({true, "true", allowed});
    bad.push_back({nullptr, "null", allowed});
    bad.push_back({"1", "\"1\"", allowed});
    return bad;
}

std::vector<Bad> badTransforms()
{
    std::string const allowed = "finite numbers";
    json const nine = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    json eight = nine;
    eight.erase(8);
    json ten = nine;
    ten.push_back(1);
    json text = nine;
    text[4] = "1";
    json unending = nine;
    unending[8] = infinity;
    return {{nullptr, "null", "nine finite numbers"}, {1, "1", "nine finite numbers"},
        {eight, "[1,0,0,0,1,0,0,0]", allowed}, {ten, "[1,0,0,0,1,0,0,0,1,1]", allowed}, {text, "\"1\"", allowed},
        {unending, "Infinity", allowed}, {{{"m", eight}}, "[1,0,0,0,1,0,0,0]", allowed}, {{{"m", 1}}, "1", allowed},
        {{{"n", nine}}, "there is no key \"n\"", ""}, {{nine}, "[[1,0,0,0,1,0,0,0,1]]", allowed},
        {{{1, 0, 0}, {0, 1, 0}}, "[[1,0,0],[0,1,0]]", allowed},
        {{{1, 0, 0}, {0, 1, 0}, {0, 0, "1"}}, "\"1\"", allowed}};
}

std::vector<Bad> badLists(Parameter const & list)
{
    std::string const allowed = "an array of objects";
    json const good =
        documentOf(*created(list.owner == "Effect::EffectsHolder" ? "Effect::Blur" : list.elements->name));
    json const foreign = documentOf(*created("Effect::Crop"));
    return {{nullptr, "null", allowed}, {json::object(), "{}", allowed}, {"x", "\"x\"", allowed},
        {{1}, "element 0", ""}, {{good, {{"no such key", 1}}}, "element 1", ""},
        {{good, {{"$meta", {{"class", "Effect::Nothing"}}}}}, "element 1", ""},
        {{good, good, {{"$meta", {{"class", 5}}}}}, "element 2", ""}, {{good, {{"$meta", 5}}}, "element 1", ""},
        {{good, {{"$meta", foreign["$meta"]}, {"transform", 1}}}, "element 1", ""}};
}

std::vector<Bad> badValues(Parameter const & parameter)
{
    switch (parameter.kind) {
    case Kind::Boolean: {
        std::string const allowed = "true or false";
        return {{1, "1", allowed}, {0.5, "0.5", allowed}, {"true", "\"true\"", allowed}, {nullptr, "null", allowed}};
    }
    case Kind::Integer:
    case Kind::Time:
    case Kind::Real:
        return badNumbers(parameter.type);
    case Kind::Text: {
        std::string const allowed = "a text";
        return {{1, "1", allowed}, {true, "true", allowed}, {json::array(), "[]", allowed}, {1.5, "1.5", allowed},
            {{{"$utf16", "x"}}, "$utf16", allowed}, {{{"a", 1}}, "{\"a\":1}", allowed}};
    }
    case Kind::Color: {
        std::vector<Bad> bad = badNumbers("uint32");
        for (char const * const text : {"", "#", "#12345", "#1234567", "#123456789", "12345678", "#gg0000", "#-12345",
                 "# 12345", "#0x1234", "red"})
            bad.push_back({text, json(text).dump(), "\"#rrggbb\", \"#aarrggbb\""});
        return bad;
    }
    case Kind::Enumeration: {
        std::vector<Bad> bad = badNumbers("int32");
        std::string const first = parameter.choices.front().name;
        std::string lower = first;
        lower[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(lower[0])));
        for (std::string const & name : {std::string("NoSuchChoice"), std::string(), lower, first + " "})
            bad.push_back({name, json(name).dump(), "one of " + first + " ("});
        return bad;
    }
    case Kind::Transform:
        return badTransforms();
    case Kind::Resource: {
        std::string const allowed = "an object with \"name\" and \"type\"";
        return {{nullptr, "null", allowed}, {"file", "\"file\"", allowed}, {{{"name", 1}}, "1", "a text"},
            {{{"name", "other"}, {"type", 1.5}}, "1.5", "one of None (0)"},
            {{{"name", "other"}, {"Name", "x"}}, "no key \"Name\"", allowed}, {json::array(), "[]", allowed}};
    }
    case Kind::Record: {
        std::string const allowed = "an object or null";
        return {{1, "1", allowed}, {"x", "\"x\"", allowed}, {json::array(), "[]", allowed},
            {{{"length", 3}, {"start", 1.5}}, "1.5", "an integer from"},
            {{{"begin", 1}, {"start", 2}}, "no key \"begin\"", allowed},
            {{{"start", 1}, {"Effect::Object", json::object()}}, "no key \"Effect::Object\"", allowed}};
    }
    case Kind::List:
        break;
    }
    return badLists(parameter);
}

TEST_P(EveryClass, RefusesBadValuesAndStaysAsItIs)
{
    auto const full = objectOf(others);
    for (Parameter const & parameter : info.parameters)
        for (Bad const & bad : badValues(parameter)) {
            SCOPED_TRACE(parameter.pointer + " " + bad.value.dump());
            std::string const message = refusal(*full, parameter, bad.value);
            EXPECT_THAT(message, AllOf(HasSubstr('"' + parameter.key + '"'), HasSubstr(info.name), HasSubstr(bad.given),
                                     HasSubstr(bad.allowed), HasSubstr("allowed is")));
            EXPECT_EQ(documentOf(*full), others);
        }
}

TEST(SetValue, RefusesNumbersBeyondWhereTheDescriptionSaysSo)
{
    auto const strict = [](char const * className, char const * key, double least, double most) {
        Parameter parameter = parameterOf(className, key);
        parameter.beyond = Beyond::Refused;
        if (parameter.choices.empty()) {
            parameter.minimum = least;
            parameter.maximum = most;
        }
        return parameter;
    };
    Opacity opacity;
    Parameter const real = strict("Effect::Opacity", "opacity", 0.25, 0.5);
    EXPECT_THAT(refusal(opacity, real, 0.125), HasSubstr("a finite number, at least 0.25, at most 0.5"));
    EXPECT_NE(refusal(opacity, real, 0.625), "");
    EXPECT_EQ(opacity.opacity, 1);
    for (double const bound : {0.25, 0.5}) {
        setValue(opacity, real, bound);
        EXPECT_EQ(opacity.opacity, bound);
    }

    ChromaKey key;
    Parameter const integer = strict("Effect::ChromaKey", "harshness", -2, 3);
    EXPECT_THAT(refusal(key, integer, -3), HasSubstr("2147483647, at least -2, at most 3"));
    EXPECT_NE(refusal(key, integer, 4), "");
    EXPECT_EQ(key.harshness, 1);
    for (int const bound : {-2, 3}) {
        setValue(key, integer, bound);
        EXPECT_EQ(key.harshness, bound);
    }

    FrameConceal frame;
    Parameter const choice = strict("Effect::FrameConceal", "method", 0, 0);
    setValue(frame, choice, 1);
    EXPECT_THAT(refusal(frame, choice, 3), testing::EndsWith("one of Fill (0), Blur (1), Pixelate (2)"));
    EXPECT_NE(refusal(frame, choice, -1), "");
    EXPECT_EQ(frame.method, FrameConceal::Method::Blur);
}

TEST(SetValue, RefusesKeysOfOtherClassesInAnElement)
{
    Mask mask;
    mask.addFrame(FrameHighlight());
    json const before = documentOf(mask);
    Parameter const & frames = parameterOf("Effect::Mask", "concealFrames");
    // A class that is none of the element's bases, and a key of the element in the place of its base's.
    for (json const & content : {json{{"Effect::Crop", json::object()}}, json{{"Effect::Frame", {{"method", 1}}}},
             json{{"Effect::Frame", {{"$meta", {{"class", "Effect::FrameConceal"}}}}}}, json{{"Effect::Frame", 1}}}) {
        EXPECT_THAT(refusal(mask, frames, json::array({content})),
            HasSubstr("element 0 of parameter \"concealFrames\" of Effect::Mask"))
            << content;
        EXPECT_EQ(documentOf(mask), before);
    }
    setValue(mask, frames, json::array({{{"Effect::Frame", {{"shape", 1}}}, {"method", 2}}}));
    ASSERT_EQ(mask.concealFrames.size(), 1U);
    EXPECT_EQ(mask.concealFrames[0].shape, Frame::Shape::Ellipse);
}

TEST(SetValue, ShortensWhatIsGiven)
{
    Crop effect;
    std::string const message = refusal(effect, parameterOf("Effect::Crop", "intensity"), std::string(5000, 'x'));
    EXPECT_LT(message.size(), 200U);
    EXPECT_THAT(message, HasSubstr("\"intensity\" of Effect::Crop"));
}

} // namespace
