// What `describe`, `list` and `show` say about classes.
#include <algorithm>
#include <functional>
#include <set>
#include <sstream>

#include <effects/Schema.h>
#include <support/Variations.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::ContainsRegex;
using Testing::effectctl;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Keys = std::set<std::string>;

Keys keysOf(json const & object)
{
    Keys keys;
    for (auto const & [key, value] : object.items())
        keys.insert(key);
    return keys;
}

Keys const classKeys{"class", "base", "id", "groupId", "tag", "defaultTag", "type", "impl", "hasIntensity",
    "isTwoInput", "family", "description", "exported", "parameters"};
Keys const parameterKeys{"key", "pointer", "class", "kind", "type", "label", "description", "unit", "default",
    "minimum", "maximum", "suggestedMinimum", "suggestedMaximum", "choices", "beyond", "fallback", "effective",
    "elements"};
Keys const kinds{
    "boolean", "integer", "real", "text", "colour", "enumeration", "time", "transform", "resource", "record", "list"};

json output(QStringList const & arguments)
{
    auto const run = effectctl(arguments);
    EXPECT_EQ(run.status, 0) << arguments.join(' ').toStdString();
    EXPECT_EQ(run.errors, "");
    return json::parse(run.output);
}

json described(QString const & className)
{
    json const classes = output({"describe", "--json", className});
    EXPECT_EQ(classes.size(), 1U);
    return classes.at(0);
}

/// The last parameter with that key: the class's own one.
json parameterOf(QString const & className, char const * key)
{
    json found;
    json const info = described(className);
    for (json const & parameter : info["parameters"])
        if (parameter["key"] == key)
            found = parameter;
    return found;
}

/// Every parameter, those of elements included, with its place for messages.
void forEachParameter(json const & parameters, std::string const & place,
    std::function<void(json const & parameter, std::string const & place)> const & check)
{
    for (json const & parameter : parameters) {
        std::string const name = place + " " + parameter["key"].get<std::string>();
        check(parameter, name);
        if (!parameter["elements"].is_null())
            forEachParameter(parameter["elements"], name, check);
    }
}

TEST(DescribeCommand, DescribesEveryClassInTheDocumentedForm)
{
    json const classes = output({"describe", "--json"});
    ASSERT_EQ(classes.size(), 89U);
    std::vector<std::string> names;
    for (json const & info : classes) {
        std::string const name = info["class"];
        names.push_back(name);
        EXPECT_EQ(keysOf(info), classKeys) << name;
        EXPECT_NE(info["description"], "") << name;
        EXPECT_NE(info["family"], "") << name;
        forEachParameter(info["parameters"], name, [](json const & parameter, std::string const & place) {
            EXPECT_EQ(keysOf(parameter), parameterKeys) << place;
            EXPECT_NE(parameter["label"], "") << place;
            EXPECT_NE(parameter["description"], "") << place;
            EXPECT_EQ(kinds.count(parameter["kind"]), 1U) << place;
            EXPECT_EQ(parameter["choices"].is_array(), parameter["kind"] == "enumeration") << place;
            EXPECT_EQ(parameter["fallback"].is_null(), parameter["beyond"] != "fallback") << place;
            for (json const & choice : parameter["choices"])
                EXPECT_EQ(keysOf(choice), (Keys{"value", "name", "label"})) << place;
        });
    }
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
}

TEST(DescribeCommand, SaysWhatListSays)
{
    json const listed = output({"list", "--json"});
    json const classes = output({"describe", "--json"});
    ASSERT_EQ(listed.size(), classes.size());
    for (std::size_t index = 0; index < classes.size(); ++index)
        for (char const * const key :
            {"class", "base", "id", "groupId", "tag", "defaultTag", "type", "impl", "hasIntensity", "isTwoInput"})
            EXPECT_EQ(classes[index][key], listed[index][key]) << classes[index]["class"] << " " << key;
}

TEST(DescribeCommand, DefaultsAreThoseOfTheArchiveDocument)
{
    std::size_t compared = 0;
    for (json const & info : output({"describe", "--json"})) {
        std::string const name = info["class"];
        json const document = Testing::documentOf(*Effect::Schema::find(name)->create());
        for (json const & parameter : info["parameters"]) {
            json::json_pointer const pointer(parameter["pointer"].get<std::string>());
            json const value = document.contains(pointer) ? document[pointer] : json();
            EXPECT_EQ(parameter["default"], value) << name << pointer.to_string();
            ++compared;
        }
    }
    EXPECT_GT(compared,
        700U); // seven of `Effect::Object` in 84 classes, and their own
}

TEST(DescribeCommand, TakesSeveralClassesInTheirOrder)
{
    json const classes = output({"describe", "Effect::Mask", "Effect::Blur", "--json"});
    ASSERT_EQ(classes.size(), 2U);
    EXPECT_EQ(classes[0]["class"], "Effect::Mask");
    EXPECT_EQ(classes[1]["class"], "Effect::Blur");
}

TEST(DescribeCommand, TellsAParameterWhole)
{
    json const expected{{"key", "gain"}, {"pointer", "/gain"}, {"class", "Effect::AudioEqualizer::BandEq"},
        {"kind", "real"}, {"type", "double"}, {"label", "Gain"},
        {"description", "Louder above 0, quieter below; the presets use -20 to 8.5 dB"}, {"unit", "dB"},
        {"default", 0.0}, {"minimum", nullptr}, {"maximum", nullptr}, {"suggestedMinimum", -20.0},
        {"suggestedMaximum", 8.5}, {"choices", nullptr}, {"beyond", nullptr}, {"fallback", nullptr},
        {"effective", true}, {"elements", nullptr}};
    EXPECT_EQ(parameterOf("Effect::AudioEqualizer::BandEq", "gain"), expected);
    json const bands = parameterOf("Effect::AudioEqualizer", "multiband");
    EXPECT_EQ(bands["kind"], "list");
    EXPECT_EQ(bands["elements"][1], expected);
}

TEST(DescribeCommand, TellsTheOwnerAndThePointerOfInheritedParameters)
{
    json const frame = described("Effect::FrameConceal");
    EXPECT_EQ(frame["base"], "Effect::Frame");
    EXPECT_EQ(frame["id"], json());
    EXPECT_EQ(frame["exported"], true);
    json const & first = frame["parameters"][0];
    EXPECT_EQ(first["pointer"], "/Effect::Frame/shape");
    EXPECT_EQ(first["class"], "Effect::Frame");
    EXPECT_EQ(first["choices"], json::parse(R"([{"value": 0, "name": "Rectangle", "label": "Rectangle"},
        {"value": 1, "name": "Ellipse", "label": "Ellipse"}])"));
    EXPECT_EQ(described("Effect::TiltShift")["exported"], false);
}

TEST(DescribeCommand, PrintsAPageForPeople)
{
    auto const run = effectctl({"describe", "Effect::AudioEqualizer::BandEq"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, StartsWith("Effect::AudioEqualizer::BandEq\n  "));
    EXPECT_THAT(run.output, HasSubstr("\n\n  family     Equalizer\n  C++        "
                                      "in <effects/Equalizer.h>\n"));
    EXPECT_THAT(run.output, HasSubstr("\n\n  Gain\n"
                                      "    Louder above 0, quieter below; the presets use -20 to 8.5 dB\n"
                                      "    key        gain\n"
                                      "    type       real, double\n"
                                      "    unit       dB\n"
                                      "    default    0.0 dB\n"
                                      "    suggested  -20 to 8.5\n"));
    std::string const mask = effectctl({"describe", "Effect::Mask"}).output;
    EXPECT_THAT(mask, HasSubstr("    choices    Color (0): Black\n               "
                                "Blur (1)\n    range      other numbers: "));
    EXPECT_THAT(mask, HasSubstr("    of         Effect::Object\n"));
    // Of elements in a list, further in.
    EXPECT_THAT(mask, HasSubstr("\n    elements   Effect::FrameConceal, with "
                                "these parameters:\n\n      Shape\n"));
    EXPECT_THAT(mask, HasSubstr("\n        key        pixelSize\n"));
    EXPECT_THAT(effectctl({"describe", "Effect::WhiteBalance"}).output, HasSubstr("    default    #000000\n"));
    EXPECT_THAT(effectctl({"describe", "Effect::ManualEnhance"}).output,
        HasSubstr("    range      -1 to 1; beyond: passed on as they are\n"));
}

TEST(DescribeCommand, PagesFitEightyColumns)
{
    auto const run = effectctl({"describe"});
    EXPECT_EQ(run.status, 0);
    std::istringstream lines(run.output);
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line);) {
        int const columns = QString::fromStdString(line).size();
        EXPECT_LE(columns, 80) << line;
        EXPECT_FALSE(!line.empty() && line.back() == ' ') << line;
        longest = std::max(longest, static_cast<std::size_t>(columns));
    }
    EXPECT_GT(longest, 76U); // lines are not broken earlier than they need to be
}

TEST(DescribeCommand, SuggestsTheNearestClass)
{
    for (char const * const command : {"describe", "schema"}) {
        auto const run = effectctl({command, "Effect::Crop", "Effect::Blurr"});
        EXPECT_EQ(run.status, 1) << command;
        EXPECT_EQ(run.output, "") << command;
        EXPECT_EQ(run.errors, "effectctl: there is no class \"Effect::Blurr\"; did "
                              "you mean \"Effect::Blur\"?\n");
    }
    EXPECT_THAT(effectctl({"show", "--class", "tiltshfit"}).errors, HasSubstr("did you mean \"Effect::TiltShift\"?"));
    EXPECT_THAT(effectctl({"describe", "Nonsense::Whatever"}).errors, Not(HasSubstr("did you mean")));
    EXPECT_THAT(effectctl({"describe", ""}).errors, HasSubstr("there is no class \"\""));
}

TEST(ListCommand, NamesParametersByLabel)
{
    std::string const list = effectctl({"list"}).output;
    EXPECT_THAT(list, StartsWith("CLASS\tBASE\tTAG\tFIELDS\n"));
    EXPECT_THAT(list, HasSubstr("\nEffect::WhiteBalance\tEffect::VideoEffect\teffect_white_balance\t"
                                "Neutral colour: #000000\n"));
    EXPECT_THAT(list, HasSubstr("\nEffect::FrameConceal\tEffect::Frame\t-\tMethod: Pixelate (2); "));
}

TEST(ShowCommand, SaysWhatValuesMean)
{
    json const document = json::parse(R"({"$meta": {"class": "Effect::Mask"},
        "Effect::VideoEffect": {"Effect::Object": {"range": {"start": 7, "length": 2000000}}},
        "backgroundFill": 1,
        "concealFrames": [{"Effect::Frame": {"shape": 9, "transform": {"m": [0.5, 0, 0, 0, 1, 0, -0.25, 0, 1]}}}]})");
    auto const run = effectctl({"show", "-"}, QByteArray::fromStdString(document.dump()));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, HasSubstr("\n  backgroundFill        Background           Blur (1)\n"));
    EXPECT_THAT(run.output, HasSubstr("  range                 Range\n"
                                      "    start   Start   7 µs\n"
                                      "    length  Length  2000000 µs\n"));
    EXPECT_THAT(run.output, HasSubstr("  concealFrames         Hidden areas      "
                                      "   1 item\n    Effect::FrameConceal\n"));
    // A number that is no choice is only a number.
    EXPECT_THAT(run.output, ContainsRegex("\n      shape +Shape +9\n"));
    EXPECT_THAT(run.output, ContainsRegex("\n      transform +[A-Z][a-z ]+0.5 0 0 0 1 0 -0.25 0 1\n"));
    for (auto const & [color, shown] :
        {std::pair(0xFF00C800U, "#00c800"), std::pair(0x0000C800U, "#0000c800"), std::pair(0U, "#00000000")}) {
        json const balance{{"$meta", {{"class", "Effect::WhiteBalance"}}}, {"color", color}};
        EXPECT_THAT(effectctl({"show", "-"}, QByteArray::fromStdString(balance.dump())).output,
            HasSubstr(std::string("Neutral colour  ") + shown + "\n"));
    }
}

TEST(ShowCommand, ShowsNumbersThatAreNone)
{
    char const * const document = R"({"$meta": {"class": "Effect::Crop"},
        "transform": {"m": ["NaN", 0, 0, 0, "-Infinity", 0, 0, 0, 1]}})";
    auto const run = effectctl({"show", "-"}, document);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, HasSubstr("NaN 0 0 0 -Infinity 0 0 0 1\n"));
}

} // namespace
