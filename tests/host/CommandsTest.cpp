#include <EditorModel/EffectArchive.h>
#include <effects/Effects.h>

#include <map>
#include <sstream>

#include "Effectctl.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<json> batch(QByteArray const & requests)
{
    auto const run = effectctl({"convert", "--batch"}, requests);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    std::vector<json> answers;
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);)
        answers.push_back(json::parse(line));
    return answers;
}

json answer(QByteArray const & request)
{
    auto const answers = batch(request + "\n");
    return answers.size() == 1 ? answers[0] : json();
}

class FilesTest : public testing::Test
{
protected:
    QString path(char const * name) const { return folder.filePath(name); }

    QString write(char const * name, std::string const & bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        return file.fileName();
    }

    std::string read(char const * name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    QTemporaryDir folder;
};

TEST(Usage, WrongUsageEndsWithTwo)
{
    for (QStringList const & arguments : {QStringList{}, QStringList{"nonsense"}, QStringList{"show"},
             QStringList{"archive", "a.json"}, QStringList{"archive", "a.json", "b.txt"}, QStringList{"convert"},
             QStringList{"convert", "--class", "Effect::Blur", "--set", "novalue"},
             QStringList{"convert", "a.json", "--set", "a=1"}, QStringList{"list", "--nonsense"}}) {
        auto const run = effectctl(arguments);
        EXPECT_EQ(run.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(run.output, "");
        EXPECT_NE(run.errors, "");
    }
}

TEST(Usage, EveryCommandHasHelpWithExamples)
{
    for (char const * const command : {"list", "show", "archive", "convert", "lut"}) {
        auto const run = effectctl({command, "--help"});
        EXPECT_EQ(run.status, 0);
        EXPECT_THAT(run.output, HasSubstr(std::string("effectctl ") + command)) << command;
    }
}

TEST(ListCommand, DescribesEveryClass)
{
    auto const run = effectctl({"list", "--json"});
    EXPECT_EQ(run.status, 0) << run.errors;
    json const classes = json::parse(run.output);
    std::map<std::string, json> byName;
    for (json const & entry : classes)
        byName[entry["class"]] = entry;
    EXPECT_EQ(byName.size(), 89U);
    json const gate = byName.at("Effect::AudioNoiseGate");
    json const expected{{"class", "Effect::AudioNoiseGate"}, {"base", "Effect::AudioEffect"},
        {"id", "gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr"}, {"groupId", "gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr"},
        {"tag", "effect_audio_noise_gate"}, {"defaultTag", "effect_audio_noise_gate"}, {"type", 1}, {"impl", 1},
        {"hasIntensity", true}, {"isTwoInput", false}, {"intensity", 0.94},
        {"processingSettingsId", "gk3gd6va-p9z5-8m7q-e46u-7qj5zt3zagnr"},
        {"fields", {{"detection", 0}, {"link", 0}, {"gainIn", 0.0}, {"threshold", -18.1}, {"ratio", 2.0},
                       {"attack", 20}, {"release", 250}, {"gainOut", 0.0}, {"knee", 2.828427125}}}};
    EXPECT_EQ(gate, expected);
    EXPECT_EQ(byName.at("Effect::BackgroundRemove")["processingSettingsId"], ":256");
    EXPECT_EQ(byName.at("Effect::Frame")["base"], json());
    EXPECT_EQ(byName.at("Effect::Frame")["tag"], json());
    EXPECT_EQ(byName.at("Effect::AlphaInserter")["tag"], "");
    EXPECT_EQ(byName.at("Effect::AlphaInserter")["isTwoInput"], true);
}

TEST_F(FilesTest, ShowPrintsTheDocument)
{
    auto const run = effectctl({"show", "--class", "Effect::Opacity", "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(json::parse(run.output), json::parse(Effect::Archive::toJson(Effect::Opacity())));
}

TEST_F(FilesTest, ShowPrintsAHolderWithWhatIsInside)
{
    Effect::AudioEnhance holder;
    holder.addEffect(std::make_unique<Effect::AudioNoiseSuppress>())->addEffect(nullptr);
    auto const run = effectctl({"show", write("holder.bin", Effect::Archive::toBinary(holder))});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("Effect::AudioEnhance\n"));
    EXPECT_THAT(run.output, HasSubstr("2 items\n    Effect::AudioNoiseSuppress\n"));
    EXPECT_THAT(run.output, HasSubstr("levelPercent  50\n"));
    EXPECT_THAT(run.output, HasSubstr("    (empty)\n"));
}

TEST_F(FilesTest, ArchiveTurnsOneFormIntoTheOther)
{
    Effect::ChromaKey key;
    key.harshness = 7;
    QString const from = write("key.json", Effect::Archive::toJson(key));
    EXPECT_EQ(effectctl({"archive", from, path("key.bin")}).status, 0);
    EXPECT_EQ(read("key.bin"), Effect::Archive::toBinary(key));
    EXPECT_EQ(effectctl({"archive", path("key.bin"), path("back.json")}).status, 0);
    EXPECT_EQ(json::parse(read("back.json")), json::parse(Effect::Archive::toJson(key)));
}

TEST_F(FilesTest, BadFilesAreOneLineAndLoseNothing)
{
    QString const bad = write("bad.json", "{\"$meta\": {\"class\": \"Effect::Crop\"},\n \"transform\": 5}");
    write("old.bin", "old");
    auto const run = effectctl({"archive", bad, path("old.bin")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "effectctl: " + bad.toStdString() + ": an object is expected, found number, at /transform\n");
    EXPECT_EQ(read("old.bin"), "old");
    EXPECT_THAT(effectctl({"show", path("gone.json")}).errors, HasSubstr("gone.json: "));
    EXPECT_THAT(effectctl({"show", write("text", "EEAR")}).errors, HasSubstr("input stream error"));
    EXPECT_THAT(effectctl({"show", "--class", "Effect::None"}).errors, HasSubstr("there is no class"));
}

TEST_F(FilesTest, ConvertTellsTheCalls)
{
    auto const run = effectctl({"convert", "--class", "Effect::Blur", "--set", "intensity=20"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "Effect::Blur: stage 18, DEFAULT\n  SettingsEffectBlurGaussian\n    SetScale(1.0)\n");
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(effectctl({"convert", "--class", "Effect::Blur", "--set", "strength=20"}).errors,
        HasSubstr("Effect::Blur has no field \"strength\""));
}

TEST_F(FilesTest, ConvertTakesAHolderApart)
{
    Effect::AudioEnhance holder;
    holder.addEffect(std::make_unique<Effect::AudioMonoChannel>())->addEffect(nullptr);
    QString const file = write("holder.json", Effect::Archive::toJson(holder));
    auto const run = effectctl({"convert", file});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("Effect::AudioEnhance: no settings\n"));
    EXPECT_THAT(run.output, HasSubstr("It holds 2 effects, each converted on its own:\n"
                                      "Effect::AudioMonoChannel: stage 1, DEFAULT\n"
                                      "  SettingsFilterResample\n    channelCount = 1\n(empty)\n"));
    json const document = json::parse(effectctl({"convert", "--json", file}).output);
    EXPECT_EQ(document["effects"][0]["settings"][0]["fields"]["channelCount"], 1);
    EXPECT_EQ(document["effects"][1], json());
}

TEST(BatchConversion, AnswersInTheDocumentedForm)
{
    json const expected = json::parse(R"({"class": "Effect::Blur", "stageCode": 18, "implementation": "DEFAULT",
        "settings": [{"class": "SettingsEffectBlurGaussian", "calls": [["SetScale", 1.0]], "fields": {}}], "log": []})");
    EXPECT_EQ(answer(R"({"class": "Effect::Blur", "object": {"intensity": 20}})"), expected);
}

TEST(BatchConversion, ReplacesSingleKeys)
{
    // A nested record may leave its meta object out.
    json const equalizer = answer(
        R"({"class": "Effect::AudioEqualizer", "fields": {"multiband": [{"centralFrequency": 500, "gain": -1.5}]}})");
    EXPECT_EQ(equalizer["settings"][0]["calls"], json::parse(R"([["SetMultiband", [[500, -1.5]]]])"));
    json const reverb = answer(R"({"class": "Effect::AudioReverb", "audio": {"sampleRate": 22050}})");
    json const call = json::parse(R"(["SetSlpfFrequency", 11025])");
    EXPECT_THAT(reverb["settings"][0]["calls"], testing::Contains(call));
    json const vertical =
        answer(R"({"class": "Effect::FixVertVideo", "video": {"frameGeometry": [1080, 1920], "duration": 5}})");
    EXPECT_EQ(vertical["settings"][0]["fields"]["geometry"], json::parse("[1080, 1920]"));
}

TEST(BatchConversion, TakesTheOtherOperationWhenAsked)
{
    json const record = answer(R"({"class": "Effect::Opacity", "as": "audio"})");
    EXPECT_EQ(record["settings"], json::array());
    EXPECT_THAT(record["log"][0], HasSubstr("Couldn't provide settings for unknown effect."));
}

TEST(BatchConversion, GoesOnBehindALineThatCannotBeDone)
{
    auto const answers = batch("{\"class\": \"Effect::None\"}\n"
                               "no JSON\n"
                               "\n"
                               "{\"class\": \"Effect::Opacity\", \"fields\": {\"nothing\": 1}}\n"
                               "{\"class\": \"Effect::Opacity\", \"fields\": {\"opacity\": \"x\"}}\n"
                               "{\"class\": \"Effect::Frame\"}\n"
                               "{\"class\": \"Effect::Opacity\", \"as\": \"both\"}\n"
                               "{\"class\": \"Effect::Opacity\", \"fields\": {\"opacity\": \"-Infinity\"}}\n");
    ASSERT_EQ(answers.size(), 7U);
    EXPECT_EQ(answers[0]["class"], "Effect::None");
    EXPECT_THAT(answers[0]["error"], HasSubstr("there is no class"));
    EXPECT_THAT(answers[1]["error"], HasSubstr("this is no JSON"));
    EXPECT_THAT(answers[2]["error"], HasSubstr("has no field \"nothing\""));
    EXPECT_EQ(answers[3]["error"], "a number is expected, found string, at /opacity");
    EXPECT_THAT(answers[4]["error"], HasSubstr("no effect"));
    EXPECT_THAT(answers[5]["error"], HasSubstr("\"as\""));
    EXPECT_EQ(answers[6]["settings"][0]["fields"]["opacity"], "-Infinity");
}

} // namespace
