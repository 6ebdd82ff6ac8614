// Changes of single parameters: `--set KEY=VALUE`.
#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Shaders.h>
#include <inspect/Changes.h>
#include <inspect/Failure.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using testing::Not;

QStringList arguments(char const * className, std::vector<char const *> const & changes)
{
    QStringList words{"convert", "--json", "--class", className};
    for (char const * const change : changes)
        words << "--set" << change;
    return words;
}

/// The first settings object of the class with these changes.
json settings(char const * className, std::vector<char const *> const & changes)
{
    auto const run = effectctl(arguments(className, changes));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.status == 0 ? json::parse(run.output)["settings"].at(0) : json();
}

/// The error that a change ends with, without the name of the program.
std::string refusal(char const * className, std::vector<char const *> const & changes)
{
    auto const run = effectctl(arguments(className, changes));
    EXPECT_EQ(run.status, 1) << changes.back();
    EXPECT_EQ(run.output, "") << changes.back();
    return run.errors.substr(run.errors.find(' ') + 1);
}

TEST(Set, TakesJson)
{
    EXPECT_EQ(settings("Effect::Blur", {"intensity=20"})["calls"], json::parse(R"([["SetScale", 1.0]])"));
    EXPECT_EQ(settings("Effect::Opacity", {"opacity=0.25"})["fields"]["opacity"], 0.25);
    EXPECT_EQ(settings("Effect::AudioEqualizer", {R"(multiband=[{"centralFrequency": 500, "gain": -1.5}])"})["calls"],
        json::parse(R"([["SetMultiband", [[500, -1.5]]]])"));
}

TEST(Set, TheLastChangeOfAKeyCounts)
{
    EXPECT_EQ(settings("Effect::Opacity", {"opacity=0.25", "opacity=0.75"})["fields"]["opacity"], 0.75);
}

TEST(Set, TakesChoicesByNameAndLabelInEitherCase)
{
    json const mirror = settings("Effect::Mirror", {"vertical=2"});
    EXPECT_NE(mirror, settings("Effect::Mirror", {"vertical=1"}));
    for (char const * const change :
        {"vertical=Second", "vertical=second", "vertical=SECOND HALF", R"(vertical="Second")"})
        EXPECT_EQ(settings("Effect::Mirror", {change}), mirror) << change;
    json const heart = settings("Effect::FlyingObjects", {"preset=Heart"});
    EXPECT_EQ(heart, settings("Effect::FlyingObjects", {"preset=6"}));
    EXPECT_NE(heart, settings("Effect::FlyingObjects", {"preset=5"}));
}

TEST(Set, TakesColours)
{
    json const opaque = settings("Effect::WhiteBalance", {"color=#00c800"});
    EXPECT_EQ(opaque["fields"]["red"], 0);
    EXPECT_EQ(opaque["fields"]["green"], 200);
    EXPECT_EQ(opaque["fields"]["blue"], 0);
    EXPECT_EQ(settings("Effect::WhiteBalance", {"color=#00C800"}), opaque);
    EXPECT_EQ(settings("Effect::WhiteBalance", {"color=#ff00c800"}), opaque);
    EXPECT_EQ(settings("Effect::WhiteBalance", {"color=4278241280"}), opaque); // 0xFF00C800
    EXPECT_THAT(refusal("Effect::WhiteBalance", {"color=#00c80"}), HasSubstr("\"#rrggbb\", \"#aarrggbb\" or "));
    EXPECT_THAT(refusal("Effect::WhiteBalance", {"color=green"}), HasSubstr("\"green\" is given"));
}

TEST(Set, TakesTransforms)
{
    json const matrix = json::parse("[0.5, 0.0, 0.0, 0.0, 1.0, 0.0, -0.25, 0.0, 1.0]");
    for (char const * const change :
        {"transform=[0.5, 0, 0, 0, 1, 0, -0.25, 0, 1]", "transform=[[0.5, 0, 0], [0, 1, 0], [-0.25, 0, 1]]",
            R"(transform={"m": [0.5, 0, 0, 0, 1, 0, -0.25, 0, 1]})"})
        EXPECT_EQ(settings("Effect::Crop", {change})["fields"]["matrix"], matrix) << change;
    EXPECT_EQ(settings("Effect::Crop", {"/transform/m/0=0.5", "/transform/m/6=-0.25"})["fields"]["matrix"], matrix);
    EXPECT_THAT(
        refusal("Effect::Crop", {"transform=[1, 2]"}), HasSubstr("[1,2] is given, allowed is 9 finite numbers"));
    EXPECT_THAT(
        refusal("Effect::Crop", {"/transform/m/9=1"}), HasSubstr("\"transform\" has no \"/m/9\", it is {\"m\":["));
}

TEST(Set, KeysAreOwnOnesFirstOrPointers)
{
    char const * const inherited = "/Effect::VideoEffect/Effect::Object/intensity";
    json const record = settings("Effect::Blur", {"intensity=20"});
    EXPECT_EQ(settings("Effect::Blur", {(std::string(inherited) + "=20").c_str()}), record);
}

TEST(Set, PointersLeadIntoRecordsAndLists)
{
    char const * const bands = R"(multiband=[{"centralFrequency": 500, "gain": -1.5}, {"centralFrequency": 900}])";
    EXPECT_EQ(settings("Effect::AudioEqualizer",
                  {bands, "/multiband/1/gain=2.5", "/multiband/0/centralFrequency=400"})["calls"],
        json::parse(R"([["SetMultiband", [[400, -1.5], [900, 2.5]]]])"));
    EXPECT_EQ(settings("Effect::AudioEqualizer", {bands, R"(/multiband/0={"gain": 3})"})["calls"],
        json::parse(R"([["SetMultiband", [[0, 3.0], [900, 0.0]]]])"));
    EXPECT_EQ(refusal("Effect::AudioEqualizer", {bands, "/multiband/2/gain=1"}),
        "\"multiband\" has no element \"2\", it has 2\n");
    EXPECT_EQ(refusal("Effect::AudioEqualizer", {bands, "/multiband/x/gain=1"}),
        "\"multiband\" has no element \"x\", it has 2\n");
    EXPECT_EQ(refusal("Effect::AudioEqualizer", {bands, "/multiband/1/gian=1"}),
        "element 1 of \"multiband\" has no field \"/gian\"; did you mean \"/gain\"?\n");
    EXPECT_EQ(refusal("Effect::AudioEqualizer", {bands, "/multiband/99999999999999999999/gain=1"}),
        "\"multiband\" has no element \"99999999999999999999\", it has 2\n");
    // A choice by its name inside a list, also in what the element inherits.
    char const * const frame = "concealFrames=[{}]";
    EXPECT_EQ(settings("Effect::Mask", {frame, "/concealFrames/0/Effect::Frame/shape=ellipse"}),
        settings("Effect::Mask", {frame, "/concealFrames/0/Effect::Frame/shape=1"}));
    // The parts of a resource have no description of their own.
    char const * const resource = "/Effect::VideoEffect/Effect::Object/resource";
    EXPECT_THAT(refusal("Effect::Crop", {(std::string(resource) + "/nmae=x").c_str()}), HasSubstr("has no \"/nmae\""));
}

TEST(Set, ARangeIsMadeByAChangeInsideIt)
{
    std::string const range = "/Effect::VideoEffect/Effect::Object/range";
    Effect::Crop crop;
    EXPECT_THROW(Effect::Inspect::setParameter(crop, range + "/strat", "5"), Effect::Inspect::Failure);
    EXPECT_FALSE(crop.range);
    EXPECT_THROW(Effect::Inspect::setParameter(crop, range + "/start", "soon"), Effect::Inspect::Failure);
    EXPECT_FALSE(crop.range);
    Effect::Inspect::setParameter(crop, range + "/start", "5");
    EXPECT_EQ(crop.range, Types::Range(MTime(5), MTime(0)));
    Effect::Inspect::setParameter(crop, range + "/length", "7");
    EXPECT_EQ(crop.range, Types::Range(MTime(5), MTime(7)));
    // What fails later leaves what was there.
    EXPECT_THROW(Effect::Inspect::setParameter(crop, range + "/length", "0.5"), Effect::Inspect::Failure);
    EXPECT_EQ(crop.range, Types::Range(MTime(5), MTime(7)));
    Effect::Inspect::setParameter(crop, "range", "null");
    EXPECT_FALSE(crop.range);
    EXPECT_EQ(refusal("Effect::Crop", {(range + "/strat=5").c_str()}),
        "\"range\" has no field \"/strat\"; did you mean \"/start\"?\n");
}

TEST(Set, PartsOfAResourceAreSetOneByOne)
{
    Effect::Lut lut("old.cube");
    Effect::Inspect::setParameter(lut, "/Effect::VideoEffect/Effect::Object/resource/name", "new.cube");
    EXPECT_EQ(lut.resource, Resource::ID("new.cube", Resource::Type::Blob));
    Effect::Inspect::setParameter(lut, "/Effect::VideoEffect/Effect::Object/resource/type", "3");
    EXPECT_EQ(lut.resource, Resource::ID("new.cube", Resource::Type::Image));
    Effect::Inspect::setParameter(lut, "resource", R"({"type": 1})");
    EXPECT_EQ(lut.resource, Resource::ID("new.cube", Resource::Type::Video));
}

TEST(Set, EffectsInAHolderAreSetByTheirOwnClass)
{
    Effect::EffectsHolder holder;
    holder.addEffect(nullptr)->addEffect(std::make_unique<Effect::Opacity>());
    Effect::Inspect::setParameter(holder, "/effects/1/opacity", "0.25");
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[1]).opacity, 0.25);
    try {
        Effect::Inspect::setParameter(holder, "/effects/0/opacity", "0.25");
        ADD_FAILURE() << "an empty slot was set";
    } catch (Effect::Inspect::Failure const & failure) {
        EXPECT_STREQ(failure.what(), "element 0 of \"effects\" is empty");
    }
    Effect::Inspect::setParameter(holder, "/effects/0", R"({"$meta": {"class": "Effect::Crop"}})");
    EXPECT_NE(dynamic_cast<Effect::Crop const *>(holder.effects[0].get()), nullptr);
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[1]).opacity, 0.25);
}

TEST(Set, SuggestsTheNearestKey)
{
    EXPECT_EQ(refusal("Effect::Blur", {"intensty=3"}),
        "Effect::Blur has no field \"intensty\"; did you mean \"intensity\"?\n");
    EXPECT_EQ(refusal("Effect::Crop", {"Transform=1"}),
        "Effect::Crop has no field \"Transform\"; did you mean \"transform\"?\n");
    EXPECT_EQ(refusal("Effect::Crop", {"/Effect::VideoEffect/Effect::Objekt/tag=1"}),
        "Effect::Crop has no field \"/Effect::VideoEffect/Effect::Objekt/tag\"; did you mean "
        "\"/Effect::VideoEffect/Effect::Object/tag\"?\n");
    // Where none is alike, all are named.
    EXPECT_EQ(refusal("Effect::Blur", {"w=3"}),
        "Effect::Blur has no field \"w\", only tag, id, groupId, intensity, resource, resourcePath, range\n");
    EXPECT_THAT(refusal("Effect::Blur", {(std::string(100000, 'i') + "=3").c_str()}), Not(HasSubstr("did you mean")));
    EXPECT_THAT(refusal("Effect::Blur", {"/=3"}), HasSubstr("has no field \"/\""));
    EXPECT_THAT(refusal("Effect::Crop", {"/transform/~x=3"}), HasSubstr("\"transform\" has no \"/~x\""));
}

TEST(Set, SuggestsTheNearestChoice)
{
    EXPECT_EQ(refusal("Effect::Mask", {"backgroundFill=Blru"}),
        "\"backgroundFill\" has no choice \"Blru\"; did you mean \"Blur\"? Allowed is one of Color (0), Blur (1), or "
        "an "
        "integer\n");
    EXPECT_EQ(refusal("Effect::Mask", {"backgroundFill=transparent"}),
        "\"backgroundFill\" has no choice \"transparent\"; allowed is one of Color (0), Blur (1), or an integer\n");
}

TEST(Set, SaysWhatIsAllowed)
{
    EXPECT_EQ(refusal("Effect::Blur", {"intensity=high"}),
        "parameter \"intensity\" of Effect::Blur: \"high\" is given, allowed is a finite number\n");
    EXPECT_EQ(refusal("Effect::Blur", {"intensity=Infinity"}),
        "parameter \"intensity\" of Effect::Blur: \"Infinity\" is given, allowed is a finite number\n");
    EXPECT_EQ(refusal("Effect::Blur", {R"(tag=["a"])"}),
        "parameter \"tag\" of Effect::Blur: [\"a\"] is given, allowed is a text\n");
}

TEST(Set, ABatchSuggestsKeysToo)
{
    auto const run = effectctl({"convert", "--batch"}, R"({"class": "Effect::Opacity", "fields": {"opacty": 1}})"
                                                       "\n"
                                                       R"({"class": "Effect::Opacity", "object": {"intensty": 1}})");
    EXPECT_THAT(run.output, HasSubstr(R"(Effect::Opacity has no field \"opacty\"; did you mean \"opacity\"?)"));
    EXPECT_THAT(run.output, HasSubstr(R"(Effect::Object has no field \"intensty\"; did you mean \"intensity\"?)"));
}

} // namespace
