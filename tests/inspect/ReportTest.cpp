#include <inspect/Report.h>

#include <cstdint>
#include <limits>

#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/Geometry.h>
#include <effects/Modulation.h>
#include <effects/Schema.h>
#include <effects/Shaders.h>
#include <inspect/Documents.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;

class Report : public testing::Test
{
protected:
    /// What became of one parameter.
    json outcome(Effect::Object const & effect, std::string const & pointer, RenderParams const & params = {})
    {
        json const report = reportOf(m_host, effect, params);
        for (json const & parameter : report["parameters"])
            if (parameter["pointer"] == pointer)
                return {parameter["outcome"], parameter["given"], parameter["used"]};
        return nullptr;
    }

    std::unique_ptr<Effect::Object> effect(json const & document) { return effectOf(document); }

    RenderHost m_host;
};

TEST_F(Report, DigitsAreLostToSinglePrecision)
{
    Effect::AudioFlanger effect;
    effect.intensity = 0.1;
    std::string const pointer = Effect::Schema::of(effect)->find("intensity")->pointer;
    EXPECT_EQ(outcome(effect, pointer), json({"narrowed", 0.1, 0.10000000149011612}));
    effect.intensity = 0.5;
    EXPECT_EQ(outcome(effect, pointer), json({"exact", 0.5, 0.5})) << "which both precisions have";
}

TEST_F(Report, DoublesStayAsTheyAre)
{
    Effect::ManualEnhance effect;
    effect.gamma = 0.1;
    EXPECT_EQ(outcome(effect, "/gamma"), json({"exact", 0.1, 0.1}));
}

TEST_F(Report, TheFirstAndTheLastIntegerHaveNoNeighbourBeyond)
{
    Effect::AudioReverb effect;
    for (auto const number : {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
        effect.duration = number;
        EXPECT_EQ(outcome(effect, "/duration"), json({"exact", number, number}));
    }
}

TEST_F(Report, NumbersThatAreNoChoiceAreReplaced)
{
    auto const mirror = effect({{"$meta", {{"class", "Effect::Mirror"}}}, {"vertical", 7}});
    EXPECT_EQ(outcome(*mirror, "/vertical"), json({"fallback", 7, 0}));
    auto const known = effect({{"$meta", {{"class", "Effect::Mirror"}}}, {"vertical", 2}});
    EXPECT_EQ(outcome(*known, "/vertical"), json({"exact", 2, 2}));
}

/// Every parameter of every class with such a rule: the settings of the used value are those of the given one.
TEST_F(Report, WhatIsUsedGivesTheSameSettings)
{
    std::map<std::string, int> seen;
    for (auto const * const info : Effect::Schema::classes()) {
        if (!info->isConverted || !info->isEffect)
            continue;
        for (auto const & parameter : info->parameters) {
            bool const isNumber = parameter.kind == Effect::Schema::Kind::Integer ||
                                  parameter.kind == Effect::Schema::Kind::Real ||
                                  parameter.kind == Effect::Schema::Kind::Enumeration;
            if (!isNumber || !parameter.beyond || *parameter.beyond == Effect::Beyond::Passed ||
                parameter.isEffective != true)
                continue;
            double const bound = parameter.maximum.value_or(1000);
            json const beyond =
                static_cast<int>(parameter.minimum && !parameter.maximum ? *parameter.minimum - 100 : bound + 100);
            auto const given = createEffect(info->name);
            Effect::Schema::setValue(*given, parameter, beyond);
            json const result = outcome(*given, parameter.pointer);
            ASSERT_FALSE(result.is_null()) << info->name << parameter.key;
            ++seen[result[0]];
            EXPECT_EQ(result[0], Effect::Schema::toString(*parameter.beyond)) << info->name << ' ' << parameter.key;
            auto const used = createEffect(info->name);
            Effect::Schema::setValue(*used, parameter, result[2]);
            EXPECT_EQ(m_host.convert(*given, {})["settings"], m_host.convert(*used, {})["settings"])
                << info->name << ' ' << parameter.key << ' ' << result;
        }
    }
    EXPECT_GT(seen["clamped"], 0);
    EXPECT_GT(seen["nearest"], 0);
    EXPECT_GT(seen["fallback"], 0);
}

TEST_F(Report, ALimitMayFollowFromTheSampleRate)
{
    auto const reverb = effect({{"$meta", {{"class", "Effect::AudioReverb"}}}, {"frequency", 30000}});
    RenderParams params;
    params.audio.sampleRate = 44100;
    EXPECT_EQ(outcome(*reverb, "/frequency", params), json({"clamped", 30000, 22050}));
    params.audio.sampleRate = 96000;
    EXPECT_EQ(outcome(*reverb, "/frequency", params), json({"exact", 30000, 30000}));
}

TEST_F(Report, WhatNothingDependsOnIsIgnored)
{
    Effect::ManualEnhance effect;
    effect.tag = "mine";
    EXPECT_EQ(outcome(effect, Effect::Schema::of(effect)->find("tag")->pointer), json({"ignored", "mine", nullptr}));
    // A table that is missing leaves nothing to be strong.
    EXPECT_EQ(outcome(Effect::Lut(), Effect::Schema::find("Effect::Lut")->find("intensity")->pointer),
        json({"ignored", 1.0, nullptr}));
    Effect::AudioNormalize const descriptor;
    json const report = reportOf(m_host, descriptor, {});
    for (json const & parameter : report["parameters"])
        EXPECT_EQ(parameter["outcome"], "ignored") << parameter;
}

TEST_F(Report, ElementsOfListsAreReported)
{
    auto const mask = effect({{"$meta", {{"class", "Effect::Mask"}}},
        {"concealFrames", {{{"method", 9}, {"Effect::Frame", {{"shape", 1}}}}}}});
    EXPECT_EQ(outcome(*mask, "/concealFrames/0/method"), json({"fallback", 9, 0}));
    EXPECT_EQ(outcome(*mask, "/concealFrames/0/Effect::Frame/shape"), json({"exact", 1, 1}));
    EXPECT_EQ(outcome(*mask, "/concealFrames"), nullptr) << "which has no value of its own";
}

TEST_F(Report, FilesAreReported)
{
    EXPECT_EQ(reportOf(m_host, Effect::Lut(), {})["resources"],
        json::array({{{"name", "no resource"}, {"file", nullptr}, {"outcome", "missing"},
            {"message", "no file is known as \"no resource\""}}}));
    EXPECT_EQ(reportOf(m_host, Effect::Crop(), {})["resources"], json::array());
}

} // namespace
