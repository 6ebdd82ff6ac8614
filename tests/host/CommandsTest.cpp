#include <EditorModel/EffectArchive.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Shaders.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "Effectctl.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using Testing::shell;
using testing::StartsWith;

std::vector<json> answersOf(Testing::Run const & run)
{
    std::vector<json> answers;
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);)
        answers.push_back(json::parse(line));
    return answers;
}

std::vector<json> batch(QByteArray const & requests, QStringList const & options = {})
{
    auto const run = effectctl(QStringList{"convert", "--batch"} + options, requests);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    return answersOf(run);
}

json answer(QByteArray const & request, QStringList const & options = {})
{
    auto const answers = batch(request + "\n", options);
    return answers.size() == 1 ? answers[0] : json();
}

/// The error that a batch of one request answers with.
std::string refusal(QByteArray const & request)
{
    auto const run = effectctl({"convert", "--batch"}, request + "\n");
    EXPECT_EQ(run.status, 1) << request.toStdString();
    auto const answers = answersOf(run);
    return answers.size() == 1 ? answers[0].value("error", "") : "";
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

TEST(Usage, WrongUsageIsOneLineThatLeadsToTheHelp)
{
    EXPECT_EQ(effectctl({}).errors, "effectctl: A subcommand is required; see effectctl --help\n");
    EXPECT_EQ(effectctl({"nonsense"}).errors,
        "effectctl: there is no command or option \"nonsense\"; see effectctl --help\n");
    EXPECT_EQ(
        effectctl({"show"}).errors, "effectctl: exactly one of FILE, --class is required; see effectctl show --help\n");
    EXPECT_EQ(effectctl({"convert", "--batch", "--class", "Effect::Blur"}).errors,
        "effectctl: exactly one of FILE, --batch, --class is required; see effectctl convert --help\n");
    EXPECT_EQ(effectctl({"archive", "a.json", "b.txt"}).errors,
        "effectctl: OUT: b.txt ends neither in .json nor in .bin, and there is no --format; see effectctl archive "
        "--help\n");
}

TEST(Output, LosingItIsToldWithItsReason)
{
    auto const full = shell("$effectctl list >/dev/full");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.errors, "effectctl: standard output: No space left on device\n");
    auto const closed = shell("$effectctl convert --class Effect::Blur --json >&-");
    EXPECT_EQ(closed.status, 1);
    EXPECT_EQ(closed.errors, "effectctl: standard output: Bad file descriptor\n");
}

TEST(Output, AReaderThatLeavesIsNoFault)
{
    auto const run = shell("$effectctl list | head -n 1");
    EXPECT_EQ(run.output, "CLASS\tBASE\tTAG\tFIELDS\n");
    EXPECT_EQ(run.errors, "");
    // Nor where the signal that ends such a program is held back.
    auto const held = shell("trap '' PIPE; (sleep 0.2; $effectctl list) | true");
    EXPECT_EQ(held.errors, "");
}

TEST(Display, IsNeverUsed)
{
    for (char const * const platform : {"wayland", "xcb", "none-such", ""}) {
        auto const run =
            shell(QString("unset DISPLAY; QT_QPA_PLATFORM=%1 $effectctl convert --class Effect::Blur").arg(platform));
        EXPECT_EQ(run.status, 0) << platform;
        EXPECT_THAT(run.output, StartsWith("Effect::Blur: stage 18, DEFAULT\n")) << platform;
        EXPECT_EQ(run.errors, "") << platform;
    }
    EXPECT_EQ(
        shell("QT_QPA_PLATFORM=xcb; source " SCRIPT_FOLDER "/lib.sh; echo $QT_QPA_PLATFORM").output, "offscreen\n");
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
    EXPECT_THAT(run.output, HasSubstr("levelPercent  Strength       50 %\n"));
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

TEST_F(FilesTest, SalvageSavesWhatCanBeRead)
{
    Effect::EffectsHolder holder;
    for (double const opacity : {0.25, 0.5, 0.75}) {
        auto effect = std::make_unique<Effect::Opacity>();
        effect->opacity = opacity;
        holder.addEffect(std::move(effect));
    }
    std::string const whole = Effect::Archive::toJson(holder);
    std::string const cut = whole.substr(0, whole.rfind("Effect::Object"));
    auto const run = effectctl({"salvage", write("cut.json", cut), path("saved.json")});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, HasSubstr("cut.json:1:" + std::to_string(cut.size() + 1) + ": error: this is no JSON"));
    json const saved = json::parse(read("saved.json"));
    EXPECT_EQ(saved["effects"].size(), 3U);
    EXPECT_EQ(saved["effects"][1], json::parse(whole)["effects"][1]);

    std::string const bytes = Effect::Archive::toBinary(holder);
    QString const half = write("cut.bin", bytes.substr(0, bytes.size() - 9));
    json const findings = json::parse(effectctl({"salvage", "--json", half, path("saved.bin")}).output);
    EXPECT_EQ(findings["file"], half.toStdString());
    EXPECT_EQ(findings["saved"], true);
    ASSERT_EQ(findings["findings"].size(), 1U);
    EXPECT_EQ(findings["findings"][0]["code"], "truncated");
    EXPECT_EQ(findings["findings"][0]["severity"], "error");
    for (char const * const key : {"pointer", "line", "column", "suggestion"})
        EXPECT_TRUE(findings["findings"][0].at(key).is_null()) << key;
    auto const back = Effect::Archive::fromBinary(read("saved.bin"));
    auto const & effects = dynamic_cast<Effect::EffectsHolder const &>(*back).effects;
    ASSERT_GE(effects.size(), 2U);
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*effects[1]).opacity, 0.5);
}

TEST_F(FilesTest, SalvageKeepsItemsAndWhatIsUnknown)
{
    std::string const item =
        R"({"categories":["category_own"],"rating":5,"effect":{"$meta":{"class":"Effect::Opacity"},)"
        R"("opacity":"half","opcaity":1}})";
    auto const run = effectctl({"salvage", write("item.effect.json", item), path("saved.effect.json")});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, HasSubstr("error: a number is expected, found string, at /effect/opacity\n"));
    EXPECT_THAT(run.output,
        HasSubstr("warning: Effect::Opacity has no key \"opcaity\", at /effect/opcaity; did you mean \"opacity\"?\n"));
    json expected = json::parse(item);
    expected["effect"].erase("opacity");
    EXPECT_EQ(json::parse(read("saved.effect.json")), expected);
}

TEST_F(FilesTest, SalvageOfNothingWritesNothing)
{
    write("old.json", "old");
    auto const run = effectctl({"salvage", write("none.json", "nothing"), path("old.json")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("none.json: nothing could be saved"));
    EXPECT_EQ(read("old.json"), "old");
    EXPECT_EQ(effectctl({"salvage", path("gone.json"), path("old.json")}).status, 1);
    EXPECT_EQ(effectctl({"salvage", path("none.json")}).status, 2);
}

TEST_F(FilesTest, AFullDiskLeavesTheOldFile)
{
    Effect::Lut lut;
    lut.resourcePath = QString(2000, 'n');
    write("lut.json", Effect::Archive::toJson(lut));
    for (char const * const name : {"old.json", "old.bin"}) {
        write(name, "old");
        // No file grows beyond 1 KiB, and the signal that would end the program is ignored.
        auto const run =
            shell("cd " + folder.path() + "; trap '' XFSZ; ulimit -f 1; $effectctl archive lut.json " + name);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.errors, std::string("effectctl: ") + name + ": File too large\n");
        EXPECT_EQ(read(name), "old");
    }
    EXPECT_THAT(QDir(folder.path()).entryList(QDir::Files), testing::ElementsAre("lut.json", "old.bin", "old.json"));
}

TEST_F(FilesTest, StandardStreamsStandWhereFilesDo)
{
    std::string const text = Effect::Archive::toJson(Effect::Opacity());
    std::string const bytes = Effect::Archive::toBinary(Effect::Opacity());
    QByteArray const input = QByteArray::fromStdString(bytes);
    EXPECT_EQ(json::parse(effectctl({"archive", "-", "-"}, input).output), json::parse(text));
    EXPECT_EQ(effectctl({"archive", "-", "-", "--format", "bin"}, QByteArray::fromStdString(text)).output, bytes);
    EXPECT_EQ(effectctl({"archive", "-", path("out.json")}, input).status, 0);
    EXPECT_EQ(json::parse(read("out.json")), json::parse(text));
    EXPECT_EQ(effectctl({"archive", "-", path("out.dat"), "--format", "bin"}, input).status, 0);
    EXPECT_EQ(read("out.dat"), bytes);
    EXPECT_EQ(effectctl({"archive", "-", "-", "--format", "xml"}, input).status, 2);
    EXPECT_EQ(json::parse(effectctl({"show", "--json", "-"}, input).output), json::parse(text));
    EXPECT_EQ(json::parse(effectctl({"convert", "--json", "-"}, input).output)[0]["class"], "Effect::Opacity");
    EXPECT_EQ(json::parse(effectctl({"tool", "--json", "-"}, input).output)[0]["file"], "-");
    EXPECT_EQ(shell("$effectctl show - <&-").errors, "effectctl: -: Bad file descriptor\n");
}

TEST_F(FilesTest, ItemsAreReadLikeArchives)
{
    Effect::Lut lut("mine");
    lut.resourcePath = "table.cube";
    json const item{{"categories", {"category_x"}}, {"effect", json::parse(Effect::Archive::toJson(lut))}};
    QString const file = write("mine.effect.json", item.dump());
    // What lies beside the item is found from anywhere.
    write("table.cube", "LUT_3D_SIZE 2\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n");
    auto const converted = effectctl({"convert", "--json", file});
    EXPECT_EQ(converted.status, 0) << converted.errors;
    EXPECT_EQ(json::parse(converted.output)[0]["settings"][0]["calls"][0],
        json::parse(R"(["SetTable", {"size": [2, 2, 2]}])"));
    EXPECT_EQ(json::parse(effectctl({"tool", "--json", file}).output)[0]["class"], "Effect::Lut");
    QString const bad = write("bad.effect.json", R"({"effect": {"$meta": {"class": "Effect::Crop"}, "transform": 5}})");
    EXPECT_EQ(effectctl({"show", bad}).errors, "effectctl: " + bad.toStdString() +
                                                   ": in \"effect\": an object is expected, found number, at "
                                                   "/transform\n");
}

TEST_F(FilesTest, ItemsStayItems)
{
    Effect::Lut lut("mine");
    lut.resourcePath = "../tables/mine.cube";
    // Categories out of order, and a key that only another program knows.
    json const item{{"categories", {"category_b", "category_a"}}, {"note", "kept"},
        {"effect", json::parse(Effect::Archive::toJson(lut))}};
    QString const file = write("mine.effect.json", item.dump());
    EXPECT_EQ(json::parse(effectctl({"show", "--json", file}).output), item);
    auto const run = effectctl({"archive", file, path("copy.effect.json")});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(json::parse(read("copy.effect.json")), item);
    EXPECT_EQ(json::parse(effectctl({"archive", "-", "-"}, QByteArray::fromStdString(item.dump())).output), item);

    std::string const shown = effectctl({"show", file}).output;
    EXPECT_THAT(shown, StartsWith("Effect::Lut\n"));
    EXPECT_THAT(shown, HasSubstr("  resourcePath  Resource path  \"../tables/mine.cube\"\n"));
    EXPECT_THAT(shown, HasSubstr("categories  [\"category_b\",\"category_a\"]\nnote  \"kept\"\n"));

    // Where there is no categories, none are made up.
    json const bare{{"effect", item["effect"]}};
    EXPECT_EQ(json::parse(effectctl({"show", "--json", write("bare.effect.json", bare.dump())}).output), bare);
}

TEST_F(FilesTest, ItemsHaveNoBinaryForm)
{
    json const item{{"categories", {"category_x"}}, {"effect", json::parse(Effect::Archive::toJson(Effect::Crop()))}};
    QString const file = write("mine.effect.json", item.dump());
    write("old.bin", "old");
    auto const run = effectctl({"archive", file, path("old.bin")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        run.errors, "effectctl: " + file.toStdString() +
                        ": an item cannot be written in the binary form, which has no place for its categories\n");
    EXPECT_EQ(read("old.bin"), "old");
    EXPECT_EQ(effectctl({"archive", file, "-", "--format", "bin"}).output, "");
}

TEST_F(FilesTest, ItemsOfTheStockKeepTheirCategoriesAndPaths)
{
    QString const luts = STOCK_FOLDER "/Luts/";
    QStringList const names = QDir(luts).entryList({"*.effect.json"});
    EXPECT_GE(names.size(), 8);
    for (QString const & name : names) {
        QFile file(luts + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        json const item = json::parse(file.readAll().toStdString());
        json const shown = json::parse(effectctl({"show", "--json", file.fileName()}).output);
        EXPECT_EQ(shown["categories"], item["categories"]) << name.toStdString();
        json::json_pointer const resourcePath("/effect/Effect::VideoEffect/Effect::Object/resourcePath");
        EXPECT_EQ(shown[resourcePath], item[resourcePath]) << name.toStdString();
        EXPECT_NE(shown[resourcePath], "") << name.toStdString();
    }
}

TEST_F(FilesTest, PipesAreWrittenTo)
{
    std::string const text = Effect::Archive::toJson(Effect::Opacity());
    write("opacity.json", text);
    auto const run = shell("cd " + folder.path() + " && mkfifo pipe && { timeout 20 cat pipe & } && " +
                           "$effectctl archive opacity.json pipe --format json && wait && test -p pipe");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(json::parse(run.output), json::parse(text));
}

/// A folder with effects in it and in a folder in it, and with what is no effect.
class ManyFilesTest : public FilesTest
{
protected:
    void SetUp() override
    {
        QDir(folder.path()).mkdir("in");
        crop = write("b.json", Effect::Archive::toJson(Effect::Crop()));
        opacity = write("a.BIN", Effect::Archive::toBinary(Effect::Opacity()));
        transposed = write("in/c.json", Effect::Archive::toJson(Effect::Transpose()));
        write("d.txt", "no effect");
        write("e.track.json", R"({"frames": []})");
    }

    /// The files of a document, with "!" behind those that could not be done.
    static std::vector<std::string> filesOf(Testing::Run const & run)
    {
        std::vector<std::string> names;
        for (json const & entry : json::parse(run.output))
            names.push_back(entry["file"].get<std::string>() + (entry.contains("error") ? "!" : ""));
        return names;
    }

    static auto are(std::vector<QString> const & files)
    {
        std::vector<std::string> names;
        for (QString const & file : files)
            names.push_back(file.toStdString());
        return testing::ElementsAreArray(names);
    }

    QString crop;
    QString opacity;
    QString transposed;
};

TEST_F(ManyFilesTest, FoldersStandForTheFilesInThem)
{
    for (char const * const command : {"convert", "tool"})
        EXPECT_THAT(filesOf(effectctl({command, "--json", folder.path()})), are({opacity, crop, transposed}))
            << command;
    EXPECT_EQ(effectctl({"show", folder.path()}).status, 0);
    write("f.CUBE", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    write("in/g.3dl", "0 1023\n");
    EXPECT_THAT(filesOf(effectctl({"lut", "--json", folder.path()})), are({path("f.CUBE"), path("in/g.3dl!")}));
}

TEST_F(ManyFilesTest, PatternsStandForTheFilesThatMatch)
{
    EXPECT_THAT(filesOf(effectctl({"convert", "--json", path("*.json"), path("[a]*")})),
        are({crop, path("e.track.json!"), opacity}));
    EXPECT_THAT(filesOf(effectctl({"convert", "--json", path("i?")})), are({transposed}));
    // A file of that very name comes first.
    QString const odd = write("*.json", Effect::Archive::toJson(Effect::Crop()));
    EXPECT_THAT(filesOf(effectctl({"tool", "--json", odd})), are({odd}));
}

TEST_F(ManyFilesTest, NamingNothingIsBadInput)
{
    QDir(folder.path()).mkdir("empty");
    auto const run = effectctl({"tool", path("x*"), path("empty"), crop});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "effectctl: " + path("x*").toStdString() + ": no file matches\neffectctl: " +
                              path("empty").toStdString() + ": no file in this folder ends in .json or .bin\n");
    EXPECT_THAT(run.output, HasSubstr("b.json\tEffect::Crop\t5\tcrop\n"));
    EXPECT_EQ(effectctl({"show", "--json", path("empty")}).status, 1);
}

TEST_F(ManyFilesTest, ABrokenFileKeepsNoOtherFromBeingDone)
{
    QString const broken = write("broken.json", "{");
    for (QStringList const & command :
        {QStringList{"show"}, QStringList{"convert"}, QStringList{"convert", "--json"}}) {
        auto const run = effectctl(command + QStringList{broken, crop});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1) << run.errors;
        EXPECT_THAT(run.errors, StartsWith("effectctl: " + broken.toStdString() + ": "));
        EXPECT_THAT(run.output, HasSubstr("Effect::Crop"));
    }
}

TEST_F(ManyFilesTest, DocumentsAreArraysWhateverTheNumberOfFiles)
{
    for (char const * const command : {"tool", "convert"}) {
        json const one = json::parse(effectctl({command, "--json", crop}).output);
        ASSERT_TRUE(one.is_array()) << command;
        EXPECT_EQ(one.size(), 1U) << command;
        EXPECT_EQ(one[0]["file"], crop.toStdString()) << command;
        EXPECT_EQ(one[0]["class"], "Effect::Crop") << command;
        EXPECT_EQ(json::parse(effectctl({command, "--json", crop, opacity}).output)[0], one[0]) << command;
        EXPECT_EQ(
            json::parse(effectctl({command, "--json", "--class", "Effect::Crop"}).output)["class"], "Effect::Crop")
            << command;
    }

    // One file's document is an archive.
    EXPECT_EQ(json::parse(effectctl({"show", "--json", crop}).output), json::parse(read("b.json")));
    auto const several = effectctl({"show", "--json", crop, opacity});
    EXPECT_EQ(several.status, 1);
    EXPECT_EQ(several.errors, "effectctl: --json shows one effect, and these are 2 files\n");
}

TEST_F(ManyFilesTest, SeveralFilesHaveHeadings)
{
    EXPECT_THAT(effectctl({"show", crop, opacity}).output, StartsWith(crop.toStdString() + ":\nEffect::Crop\n"));
    EXPECT_THAT(effectctl({"show", crop}).output, StartsWith("Effect::Crop\n"));
    EXPECT_THAT(
        effectctl({"convert", crop, opacity}).output, HasSubstr("\n" + opacity.toStdString() + ":\nEffect::Opacity: "));
}

TEST_F(ManyFilesTest, AFileWithoutSettingsIsBadInput)
{
    Effect::ManualEnhance const idle;
    QString const file = write("idle.json", Effect::Archive::toJson(idle));
    std::string const reason =
        "Couldn't provide settings for effect. Effect ID is " + Effect::Id::ManualEnhance.toStdString();
    for (QStringList const & command : {QStringList{"convert"}, QStringList{"convert", "--json"}}) {
        auto const run = effectctl(command + QStringList{file, crop});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.errors, "effectctl: " + file.toStdString() + ": " + reason + "\n");
        EXPECT_THAT(run.output, HasSubstr("Effect::Crop"));
    }
    json const record = json::parse(effectctl({"convert", "--json", file}).output)[0];
    EXPECT_EQ(record["settings"], json::array());
    EXPECT_EQ(record["log"], json::array({reason}));
    EXPECT_FALSE(record.contains("error"));

    // One inside a holder counts, a descriptor does not: nothing ever converts it.
    Effect::AudioEnhance holder;
    holder.addEffect(std::make_unique<Effect::ManualEnhance>());
    EXPECT_EQ(effectctl({"convert", write("holder.json", Effect::Archive::toJson(holder))}).status, 1);
    EXPECT_EQ(effectctl({"convert", write("d.json", Effect::Archive::toJson(Effect::AudioNormalize()))}).status, 0);
}

TEST_F(ManyFilesTest, AFileThatRefersToABrokenOneIsBadInput)
{
    Effect::ShaderISF shader("none.fs");
    shader.resourcePath = path("none.fs");
    QString const file = write("shader.json", Effect::Archive::toJson(shader));
    auto const run = effectctl({"convert", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(
        run.errors, StartsWith("effectctl: " + file.toStdString() + ": Couldn't load ISF shader \"none.fs\": "));
    EXPECT_THAT(run.output, StartsWith("Effect::ShaderISF: stage 18, DEFAULT\n"));
    EXPECT_THAT(run.output, HasSubstr("\n  Couldn't load ISF shader \"none.fs\": "));
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
    json const record = json::parse(effectctl({"convert", "--json", file}).output)[0];
    EXPECT_EQ(record["effects"][0]["settings"][0]["fields"]["channelCount"], 1);
    EXPECT_EQ(record["effects"][1], json());
}

TEST_F(FilesTest, ConvertTakesHoldersInHoldersApart)
{
    auto inner = std::make_unique<Effect::AudioEnhance>();
    inner->addEffect(std::make_unique<Effect::AudioMonoChannel>());
    Effect::EffectsHolder outer;
    outer.addEffect(std::move(inner));
    auto const run = effectctl({"convert", "--json", write("outer.json", Effect::Archive::toJson(outer))});
    EXPECT_EQ(run.status, 0) << run.errors;
    json const inside = json::parse(run.output)[0]["effects"][0];
    EXPECT_EQ(inside["class"], "Effect::AudioEnhance");
    EXPECT_EQ(inside["effects"][0]["settings"][0]["fields"]["channelCount"], 1);
}

TEST_F(FilesTest, ValuesAreJsonOrTexts)
{
    auto const set = [](QString const & pair) {
        return effectctl({"convert", "--json", "--class", "Effect::Blur", "--set", pair});
    };
    EXPECT_EQ(set("tag=[\"a\"").status, 0); // no JSON, so a text
    EXPECT_THAT(set("tag=[\"a\"]").errors, HasSubstr("[\"a\"] is given, allowed is a text"));
    EXPECT_THAT(set("intensity=high").errors, HasSubstr("\"high\" is given, allowed is a finite number"));
    // Deeper than any document: it is not walked.
    EXPECT_EQ(set("tag=" + QString("[").repeated(60000) + QString("]").repeated(60000)).status, 0);
}

TEST_F(FilesTest, FilesForResourcesAndTracksMustExist)
{
    for (QString const & option : {QString("--resource"), QString("--track")}) {
        auto const run = effectctl({"convert", "--batch", option, "x=nowhere"}, "{\"class\": \"Effect::Crop\"}\n");
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.errors, "effectctl: nowhere: No such file or directory\n");
    }
}

TEST_F(FilesTest, WarningsStandBesideTheLog)
{
    QByteArray const request = R"({"class": "Effect::Mask", "fields": {"concealFrames": [
        {"Effect::Frame": {"trackingId": "face"}}]}})";
    QString const broken = write("face.track.json", "no track");
    json const record = answer(QByteArray(request).replace('\n', ' '), {"--track", "face=" + broken});
    EXPECT_EQ(record["log"], json::array());
    ASSERT_EQ(record["warnings"].size(), 1U);
    EXPECT_THAT(record["warnings"][0], StartsWith("Couldn't read motion track: " + broken.toStdString() + ": "));
    EXPECT_EQ(record["settings"].size(), 1U);
    QString const whole = write("whole.track.json", R"({"frames": []})");
    json const fine = answer(QByteArray(request).replace('\n', ' '), {"--track", "face=" + whole});
    EXPECT_FALSE(fine.contains("warnings"));
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

TEST(BatchConversion, GoesOnBehindBytesThatAreNoUtf8)
{
    auto const answers = batch("{\"class\": \xc3\xa9}\n"
                               "\xff\n"
                               "{\"class\": \"\xff\"}\n"
                               "{\"class\": \"Effect::Blur\", \"object\": {\"\xc3\": 1}}\n"
                               "{\"class\": \"Effect::Crop\"}\n");
    ASSERT_EQ(answers.size(), 5U);
    for (std::size_t index = 0; index < 4; ++index)
        EXPECT_NE(answers[index].value("error", ""), "") << index;
    EXPECT_THAT(answers[0]["error"], HasSubstr("this is no JSON"));
    EXPECT_EQ(answers[4]["class"], "Effect::Crop");
}

TEST_F(FilesTest, GoesOnBehindAShaderThatIsNoUtf8)
{
    QByteArray const shader = R"({"class": "Effect::ShaderISF", "object": {"resource": {"name": "bad", "type": 4}}})";
    for (char const * const head : {"/*{\"A\": \xc3\xa9}*/", "/*{\"A\": \"\xff\"} \xff*/", "\xff", "/*{\xff"}) {
        QString const file = write("bad.fs", head);
        auto const answers = batch(shader + "\n{\"class\": \"Effect::Crop\"}\n", {"--resource", "bad=" + file});
        ASSERT_EQ(answers.size(), 2U);
        EXPECT_EQ(answers[0]["class"], "Effect::ShaderISF");
        EXPECT_EQ(answers[1]["class"], "Effect::Crop");
    }
}

TEST(BatchConversion, RefusesUnknownKeys)
{
    EXPECT_EQ(refusal(R"({"class": "Effect::Blur", "objects": {"intensity": 20}})"),
        R"(a request has no key "objects", only "class", "fields", "object", "video", "audio", "as")");
    EXPECT_EQ(refusal(R"({"class": "Effect::AudioReverb", "audio": {"samplerate": 22050}})"),
        R"("audio" has no key "samplerate", only "sampleRate")");
    EXPECT_EQ(refusal(R"({"class": "Effect::Blur", "video": {"size": [1, 2]}})"),
        R"("video" has no key "size", only "frameGeometry", "duration")");
}

TEST(BatchConversion, FailsAsAWholeWhenEveryRequestDoes)
{
    auto const run = effectctl({"convert", "--batch"}, "no JSON\n{\"class\": \"Effect::None\"}\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(answersOf(run).size(), 2U);
    EXPECT_EQ(run.errors, "effectctl: 2 of 2 requests failed\n");
    EXPECT_EQ(effectctl({"convert", "--batch"}, "\n").status, 0);
}

} // namespace
