#include <algorithm>
#include <sstream>

#include <EditorUtil/ItemFile.h>
#include <effects/Base.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Dynamics.h>
#include <effects/Equalizer.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <effects/Shaders.h>

#include "Effectctl.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using EditorCollection::storeItem;
using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using testing::StartsWith;

/// A stock folder and a user's, with an item of every kind in them.
class CatalogueCommand : public testing::Test
{
protected:
    CatalogueCommand()
    {
        QDir().mkpath(stock());
        QDir().mkpath(user());
    }

    QString stock() const { return m_folder.path() + "/stock"; }
    QString user() const { return m_folder.path() + "/user"; }
    QStringList arguments(QStringList const & more = {}) const
    {
        return QStringList{"catalogue", "--stock", stock(), "--user", user()} + more;
    }

    void fill() const
    {
        storeItem(stock() + "/VideoEffects", "contrast", AutoContrast(), {"category_adjust"});
        storeItem(stock() + "/VideoEffects", "background", BackgroundRemove(), {"category_b", "category_a"});
        AudioEnhance enhance;
        enhance.addEffect(std::make_unique<AudioEqualizer>(AudioEqualizer::makePreset(AudioEqualizer::Preset{2})))
            ->addEffect(nullptr)
            ->addEffect(std::make_unique<AudioCompressor>());
        storeItem(stock() + "/AudioEnhance", "voice", enhance);
        ManualEnhance mine;
        storeItem(user() + "/Effects/ManualEnhance", "mine", *mine.setHue(0.5));
    }

    void write(QString const & path, QByteArray const & bytes) const
    {
        QDir().mkpath(path.section('/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QString path(QString const & name) const { return m_folder.path() + '/' + name; }

private:
    QTemporaryDir m_folder;
};

json itemsOf(json const & document, char const * name)
{
    for (json const & collection : document["collections"])
        if (collection["name"] == name)
            return collection["items"];
    return {};
}

TEST_F(CatalogueCommand, PrintsADocument)
{
    fill();
    auto const run = effectctl(arguments({"--json"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    json const document = json::parse(run.output);
    std::vector<std::string> names;
    for (json const & collection : document["collections"])
        names.push_back(collection["name"]);
    EXPECT_THAT(names, testing::ElementsAre("Effects", "OverlayEffects", "EffectsAudio", "AudioEnhance", "ColorFilters",
                           "Luts", "Shader effects", "PipEffects", "Masks"));
    json const effects = itemsOf(document, "Effects");
    ASSERT_EQ(effects.size(), 2U);
    EXPECT_EQ(
        effects[0], (json{{"class", "Effect::BackgroundRemove"}, {"tag", Tags::tagBackgroundRemove.toStdString()},
                        {"id", Id::BackgroundRemove.toStdString()}, {"groupId", Id::BackgroundRemove.toStdString()},
                        {"categories", {"category_a", "category_b"}}, {"user", false},
                        {"file", (stock() + "/VideoEffects/background.effect.json").toStdString()}}));
    json const colorFilters = itemsOf(document, "ColorFilters");
    ASSERT_EQ(colorFilters.size(), 1U);
    EXPECT_EQ(colorFilters[0]["user"], true);
    EXPECT_EQ(colorFilters[0]["file"], (user() + "/Effects/ManualEnhance/mine.effect.json").toStdString());
    EXPECT_EQ(document["summary"], (json{{"items", 4}, {"unreadable", 0}}));
}

TEST_F(CatalogueCommand, PrintsASummaryFirst)
{
    fill();
    auto const run = effectctl(arguments());
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("4 items; 0 files could not be read\n\nCOLLECTION\tITEMS\nEffects\t2\n"));
    EXPECT_THAT(run.output, HasSubstr("\nShader effects\t0\n"));
    EXPECT_THAT(run.output, HasSubstr("\nAudioEnhance\t1\n"));
    EXPECT_THAT(run.output, testing::Not(HasSubstr("category_a")));
}

TEST_F(CatalogueCommand, PrintsItemsWhenAsked)
{
    fill();
    auto const run = effectctl(arguments({"--long", "--convert"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("4 items; 0 files could not be read\n  2 converted\n"));
    EXPECT_THAT(run.output, HasSubstr("\nEffects\n  " + Tags::tagBackgroundRemove.toStdString() +
                                      " Effect::BackgroundRemove descriptor\n    category_a category_b\n"));
    EXPECT_THAT(run.output, HasSubstr(" Effect::ManualEnhance user converted\n"));
}

TEST_F(CatalogueCommand, FitsAPage)
{
    for (QStringList const & options : {QStringList{"--long", "--convert"}, QStringList{}}) {
        auto const run = effectctl(QStringList{"catalogue", "--stock", STOCK_FOLDER, "--user", user()} + options);
        EXPECT_EQ(run.status, 0) << run.errors;
        std::istringstream lines(run.output);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(line.size(), 80U) << line;
    }
}

TEST_F(CatalogueCommand, ConvertsEveryItem)
{
    fill();
    auto const run = effectctl(arguments({"--json", "--convert"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    json const document = json::parse(run.output);
    EXPECT_EQ(itemsOf(document, "Effects")[0]["result"], "descriptor");
    EXPECT_EQ(itemsOf(document, "Effects")[1]["result"], "converted");
    // Each of the effects in a holder on its own; the empty slot does not count.
    EXPECT_EQ(itemsOf(document, "AudioEnhance")[0]["result"], "holder");
    EXPECT_EQ(itemsOf(document, "AudioEnhance")[0]["effects"], 2);
    EXPECT_EQ(document["summary"], (json{{"items", 4}, {"unreadable", 0}, {"converted", 2}, {"descriptors", 1},
                                       {"holders", 1}, {"held", 2}, {"incomplete", 0}, {"notConverted", 0}}));

    EXPECT_THAT(effectctl(arguments({"--convert"})).output,
        StartsWith("4 items; 0 files could not be read\n"
                   "  2 converted\n"
                   "  1 descriptor, for the editor and not the render engine\n"
                   "  1 holder with 2 effects, each converted on its own\n"
                   "  0 incomplete\n"
                   "  0 not converted\n"));
}

TEST_F(CatalogueCommand, TellsWhatDidNotConvert)
{
    fill();
    storeItem(stock() + "/VideoEffects", "stranger", VideoEffect("no-such-id", "x"));
    EffectsHolder holder;
    holder.addEffect(std::make_unique<AudioNormalize>());
    storeItem(stock() + "/VideoEffects", "holder", holder);
    auto const run = effectctl(arguments({"--json", "--convert"}));
    EXPECT_EQ(run.status, 1);
    json const document = json::parse(run.output);
    EXPECT_EQ(document["summary"]["notConverted"], 2);
    EXPECT_EQ(document["summary"]["converted"], 2);
    std::string const folder = (stock() + "/VideoEffects/").toStdString();
    EXPECT_EQ(run.errors,
        "effectctl: " + folder +
            "holder.effect.json: did not convert: Settings requested for descriptor. Effect ID is " +
            Id::Normalize.toStdString() + "\neffectctl: " + folder +
            "stranger.effect.json: did not convert: Couldn't provide settings for unknown effect. Effect ID is "
            "no-such-id\n");
    // Not asked for, it is no failure.
    EXPECT_EQ(effectctl(arguments()).status, 0);
}

TEST_F(CatalogueCommand, CountsItemsWhoseFilesAreMissingOrBroken)
{
    fill();
    Mask mask;
    FrameConceal frame;
    mask.addFrame(*frame.setTrackingId("face"));
    storeItem(stock() + "/Masks", "follows", mask);
    write(user() + "/Tracks/face.track.json", "no track");
    ShaderISF shader("broken.fs");
    shader.resourcePath = stock() + "/VideoEffects/broken.fs";
    storeItem(stock() + "/VideoEffects", "shader", shader);
    write(shader.resourcePath, "void main() {}");

    // However little the environment wants to have logged.
    qputenv("GLOG_minloglevel", "3");
    auto const run = effectctl(arguments({"--json", "--convert"}));
    qunsetenv("GLOG_minloglevel");
    EXPECT_EQ(run.status, 1);
    json const document = json::parse(run.output);
    EXPECT_EQ(document["summary"]["incomplete"], 2);
    EXPECT_EQ(document["summary"]["converted"], 2);
    EXPECT_EQ(document["summary"]["notConverted"], 0);
    json const follows = itemsOf(document, "Masks")[0];
    EXPECT_EQ(follows["result"], "incomplete");
    ASSERT_EQ(follows["warnings"].size(), 1U);
    EXPECT_THAT(follows["warnings"][0], StartsWith("Couldn't read motion track: "));
    EXPECT_THAT(run.errors, HasSubstr((stock() + "/Masks/follows.effect.json: Couldn't read motion track: " + user() +
                                       "/Tracks/face.track.json: ")
                                          .toStdString()));
    EXPECT_THAT(run.errors,
        HasSubstr(
            (stock() + "/VideoEffects/shader.effect.json: Couldn't load ISF shader \"broken.fs\": ").toStdString()));
    EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 2) << run.errors;
    // It is the conversion that needs the files.
    EXPECT_EQ(effectctl(arguments()).status, 0);
}

TEST_F(CatalogueCommand, AFileThatCannotBeReadCostsNoOtherItem)
{
    fill();
    write(stock() + "/VideoEffects/broken.effect.json", "{");
    write(stock() + "/VideoEffects/empty.effect.json", "");
    QDir().mkpath(stock() + "/Masks/folder.effect.json");
    auto const run = effectctl(arguments({"--json", "--convert"}));
    EXPECT_EQ(run.status, 1);
    json const summary = json::parse(run.output)["summary"];
    EXPECT_EQ(summary["items"], 4);
    EXPECT_EQ(summary["unreadable"], 3);
    EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 3) << run.errors;
    for (char const * const file :
        {"VideoEffects/broken.effect.json: ", "VideoEffects/empty.effect.json: ", "Masks/folder.effect.json: "})
        EXPECT_THAT(run.errors, HasSubstr((stock() + '/' + file).toStdString()));
}

TEST_F(CatalogueCommand, TakesAnEmptyStock)
{
    QDir().mkpath(stock() + "/Luts");
    auto const run = effectctl(arguments({"--convert"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("0 items; 0 files could not be read\n  0 converted\n"));
}

TEST_F(CatalogueCommand, NoticesAWrongStockFolder)
{
    storeItem(user() + "/Effects/ManualEnhance", "mine", ManualEnhance());
    auto const run = effectctl(arguments({"--json"}));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "effectctl: " + stock().toStdString() +
                              ": this is no stock folder, as it holds none of VideoEffects, OverlayEffects, "
                              "AudioEffects, AudioEnhance, ColorFilters, Luts, PipEffects, Masks\n");
    EXPECT_EQ(json::parse(run.output)["summary"]["items"], 1);
}

TEST_F(CatalogueCommand, AnItemWithoutItsFileIsIncomplete)
{
    Overlay effect;
    effect.resource = Resource::ID("gone.png", Resource::Type::Image);
    effect.resourcePath = "gone.png";
    storeItem(stock() + "/OverlayEffects", "gone", effect);
    auto const run = effectctl(arguments({"--json", "--convert"}));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "effectctl: " + (stock() + "/OverlayEffects/gone.effect.json: ").toStdString() +
                              (stock() + "/OverlayEffects/gone.png: no such file\n").toStdString());
    json const document = json::parse(run.output);
    EXPECT_EQ(document["summary"]["incomplete"], 1);
    EXPECT_EQ(document["summary"]["converted"], 0);
    EXPECT_EQ(itemsOf(document, "OverlayEffects")[0]["result"], "incomplete");
}

TEST_F(CatalogueCommand, WhatTheFactoryLoggedIsInTheDocument)
{
    storeItem(stock() + "/AudioEffects", "normalize", AudioNormalize());
    storeItem(stock() + "/VideoEffects", "blur", AutoContrast());
    auto const run = effectctl(arguments({"--json", "--convert"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    json const document = json::parse(run.output);
    json const descriptor = itemsOf(document, "EffectsAudio").at(0);
    EXPECT_EQ(descriptor["result"], "descriptor");
    EXPECT_THAT(descriptor["log"].at(0).get<std::string>(), StartsWith("Settings requested for descriptor. "));
    EXPECT_FALSE(itemsOf(document, "Effects").at(0).contains("log"));
}

TEST_F(CatalogueCommand, NeedsItsFolders)
{
    auto const run = effectctl({"catalogue", "--stock", path("nowhere")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "effectctl: " + path("nowhere").toStdString() + ": no such folder\n");
    EXPECT_EQ(effectctl({"catalogue", "--stock", stock(), "--user", path("nowhere")}).status, 1);
    EXPECT_EQ(effectctl({"catalogue", "--no-such-option"}).status, 2);
    EXPECT_EQ(effectctl({"catalogue", "--help"}).status, 0);
}

TEST_F(CatalogueCommand, QuotesWhatAFilePutsIntoATable)
{
    AutoContrast effect;
    effect.tag = QString::fromUtf8("two\nlines \x1b[31m");
    storeItem(stock() + "/VideoEffects", "odd", effect);
    auto const run = effectctl(arguments({"--long"}));
    EXPECT_THAT(run.output, HasSubstr(R"("two\nlines \u001b[31m")"));
}

/// Archives of effects, and the command that tells their tools.
class ToolCommand : public CatalogueCommand
{
protected:
    QString const heading = "FILE\tCLASS\tTOOL\tNAME\n";

    /// Writes the default effect of a class.
    QString archive(char const * name) const
    {
        QString const file = path(QString("%1.json").arg(name));
        auto const shown = effectctl({"show", "--json", "--class", QString("Effect::%1").arg(name)});
        write(file, QByteArray::fromStdString(shown.output));
        return file;
    }
};

TEST_F(ToolCommand, TellsTheTool)
{
    QString const crop = archive("Crop");
    QString const denoise = archive("AudioAiDenoise");
    QString const opacity = archive("Opacity");
    auto const run = effectctl({"tool", crop, denoise, opacity});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output,
        (heading + crop + "\tEffect::Crop\t5\tcrop\n" + denoise +
            "\tEffect::AudioAiDenoise\t17\taudio noise reduction\n" + opacity + "\tEffect::Opacity\t0\tno tool\n")
            .toStdString());
    json const document = json::parse(effectctl({"tool", "--json", crop}).output);
    EXPECT_EQ(document,
        (json::array({{{"file", crop.toStdString()}, {"class", "Effect::Crop"}, {"tool", 5}, {"name", "crop"}}})));
}

TEST_F(ToolCommand, TellsTheToolOfAClass)
{
    auto const run = effectctl({"tool", "--class", "Effect::AudioAiDenoise"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "CLASS\tTOOL\tNAME\nEffect::AudioAiDenoise\t17\taudio noise reduction\n");
    EXPECT_EQ(json::parse(effectctl({"tool", "--json", "--class", "Effect::Crop"}).output),
        (json{{"class", "Effect::Crop"}, {"tool", 5}, {"name", "crop"}}));
    EXPECT_EQ(effectctl({"tool", "--class", "Effect::Frame"}).errors,
        "effectctl: the class \"Effect::Frame\" is no effect's\n");
    EXPECT_EQ(effectctl({"tool", "--class", "Effect::Crop", archive("Crop")}).status, 2);
}

TEST_F(ToolCommand, AsksTheStocksAudioEffects)
{
    QString const mono = archive("AudioMonoChannel");
    storeItem(stock() + "/AudioEffects", "mono", AudioMonoChannel());
    qputenv("EDITOR_STOCK_DIR", user().toUtf8());
    EXPECT_EQ(
        effectctl({"tool", mono}).output, (heading + mono + "\tEffect::AudioMonoChannel\t0\tno tool\n").toStdString());
    qputenv("EDITOR_STOCK_DIR", stock().toUtf8());
    EXPECT_EQ(effectctl({"tool", mono}).output,
        (heading + mono + "\tEffect::AudioMonoChannel\t15\taudio effects\n").toStdString());
    qunsetenv("EDITOR_STOCK_DIR");
}

TEST_F(ToolCommand, GoesOnBehindABadFile)
{
    QString const crop = archive("Crop");
    auto const run = effectctl({"tool", path("nowhere"), crop});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, (heading + crop + "\tEffect::Crop\t5\tcrop\n").toStdString());
    EXPECT_EQ(run.errors, "effectctl: " + path("nowhere").toStdString() + ": No such file or directory\n");
    EXPECT_EQ(effectctl({"tool"}).status, 2);
}

} // namespace
