// The page that the program writes: its data, as its scripts hold it.
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>

#include "Effectctl.h"

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

QString const stock = QStringLiteral(STOCK_FOLDER);

std::string read(QString const & path)
{
    std::ifstream file(path.toStdString(), std::ios::binary);
    EXPECT_TRUE(file) << path.toStdString();
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The value in a script of the page, as a browser reads it.
json partOf(QString const & folder, std::string const & name)
{
    std::string const script = read(folder + "/data/" + QString::fromStdString(name) + ".js");
    std::string const head = "Gallery.take(\"" + name + "\", JSON.parse('";
    std::string const tail = "'));\n";
    EXPECT_EQ(script.substr(0, head.size()), head);
    EXPECT_EQ(script.substr(script.size() - tail.size()), tail);
    std::string text;
    for (std::size_t at = head.size(); at < script.size() - tail.size(); ++at) {
        EXPECT_TRUE(script[at] != '\'' && script[at] != '\n') << "ends the text at " << at;
        if (script[at] == '\\')
            ++at;
        text += script[at];
    }
    return json::parse(text);
}

/// The page of the stock, written once.
QString page()
{
    static QTemporaryDir const folder;
    static QString const path = folder.filePath("made/by it");
    static bool const isWritten = [] {
        auto const run = effectctl({"gallery", "--stock", stock, "--user", folder.path(), path});
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_THAT(run.output, HasSubstr("made/by it/index.html: 80 effects, "));
        return true;
    }();
    EXPECT_TRUE(isWritten);
    return path;
}

json part(std::string const & name)
{
    static std::map<std::string, json> parts;
    if (parts.count(name) == 0)
        parts[name] = partOf(page(), name);
    return parts[name];
}

json output(QStringList const & arguments)
{
    auto const run = effectctl(arguments);
    EXPECT_EQ(run.errors, "");
    return json::parse(run.output);
}

json cardOf(std::string const & id)
{
    for (json const & card : part("cards"))
        if (card["id"] == id)
            return card;
    ADD_FAILURE() << "there is no card " << id;
    return {};
}

TEST(Gallery, HasACardForEveryEffectAndEveryItem)
{
    std::multiset<std::string> classes, tags, ids;
    for (json const & card : part("cards")) {
        ids.insert(card["id"]);
        (card.contains("collection") ? tags : classes)
            .insert(card.contains("collection") ? card["tag"] : card["class"]);
    }
    EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size()) << "two cards have one link";

    std::multiset<std::string> effects, items;
    for (json const & info : output({"describe", "--json"}))
        if (!info["id"].is_null() && info["family"] != "Base")
            effects.insert(info["class"]);
    json const catalogue = output({"catalogue", "--json", "--stock", stock});
    for (json const & collection : catalogue["collections"])
        for (json const & item : collection["items"])
            items.insert(item["tag"]);
    EXPECT_EQ(classes.size(), 80U);
    EXPECT_EQ(classes, effects);
    EXPECT_EQ(tags, items);
}

TEST(Gallery, NamesCardsForPeople)
{
    std::pair<char const *, char const *> const rows[] = {
        {"effect-TiltShift", "Tilt shift"},
        {"effect-VHS", "VHS"},
        {"effect-AudioAiDenoise", "AI denoise"},
        {"effect-Television70s", "Television 70s"},
        {"item-audio_echo_canyon", "Canyon"},
        {"item-color_filter_07", "Color filter 07"},
        {"item-vhs_worn_tape", "Worn tape"},
        {"item-tilt_shift", "Tilt shift"},
    };
    for (auto const & [id, title] : rows)
        EXPECT_EQ(cardOf(id)["title"], title) << id;
}

TEST(Gallery, HasTheFilesOfItemsAsTheyAre)
{
    for (char const * const name : {"Luts/lut_warm_amber_film", "VideoEffects/shader_isf_edge_glow"}) {
        QString const file = stock + '/' + name + ".effect.json";
        EXPECT_EQ(part("documents")["item-" + std::string(name).substr(std::string(name).find('/') + 1)],
            json::parse(read(file)));
    }
    EXPECT_EQ(part("documents")["effect-Crop"], output({"show", "--class", "Effect::Crop", "--json"}));
    QDirIterator files(page(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        EXPECT_THAT(read(files.next()), Not(HasSubstr(stock.toStdString()))) << "a path of this machine";
}

TEST(Gallery, RecordsAreThoseOfTheConversion)
{
    json const records = part("records");
    for (char const * const name : {"AudioEffects/audio_compressor_speech", "Masks/mask_blur_face",
             "VideoEffects/effects_holder_dream", "Luts/lut_cold_steel"}) {
        json const expected = output({"convert", "--json", stock + '/' + name + ".effect.json"})[0];
        json const & record = records["item-" + std::string(name).substr(std::string(name).find('/') + 1)];
        for (char const * const key : {"class", "stageCode", "implementation", "settings"})
            EXPECT_EQ(record[key], expected[key]) << name << ' ' << key;
        EXPECT_EQ(record.value("effects", json()), expected.value("effects", json())) << name;
    }
}

TEST(Gallery, StepsReachFromBoundToBound)
{
    json const records = part("records");
    std::string const object = "/Effect::VideoEffect/Effect::Object/intensity";
    // Equal differences of 12.5 percent, rounded.
    json const noise = records["effect-AudioNoiseSuppress"]["steps"]["/levelPercent"];
    EXPECT_THAT(noise["values"], ElementsAre(0, 13, 25, 38, 50, 63, 75, 88, 100));
    // Equal intervals of 11 / 8 octaves.
    json const phone = records["effect-AudioPhone"]["steps"]["/lBound"];
    EXPECT_THAT(phone["values"], ElementsAre(16, 41, 108, 279, 724, 1878, 4871, 12634, 32768));
    // Choices and switches one by one.
    EXPECT_THAT(records["effect-Flip"]["steps"]["/vertical"]["values"], ElementsAre(false, true));
    EXPECT_EQ(records["effect-ColorFilter"]["steps"]["/preset"]["values"].size(), 36U);

    for (std::size_t index : {0U, 3U, 8U}) {
        std::string const value = noise["values"][index].dump();
        json const expected = output({"convert", "--json", "--class", "Effect::AudioNoiseSuppress", "--set",
            QString::fromStdString("levelPercent=" + value)});
        EXPECT_EQ(noise["settings"][index], expected["settings"]) << value;
    }
    // Every step starts from the card's own values: the threshold is the preset's while the ratio is another.
    json const preset = records["item-audio_noise_gate_quiet_room"];
    json const & ratio = preset["steps"]["/ratio"]["settings"][8];
    EXPECT_EQ(ratio[0]["calls"][0], preset["settings"][0]["calls"][0]);
    EXPECT_EQ(ratio[0]["calls"][3], json({"SetRatio", 6.0}));
}

/// The same pixels, however they are stored.
bool isSame(QString const & left, QString const & right)
{
    QImage const a(left), b(right);
    return !a.isNull() && a.convertToFormat(QImage::Format_ARGB32) == b.convertToFormat(QImage::Format_ARGB32);
}

TEST(Gallery, HasThePicturesOfPresetsAndOverlays)
{
    json const pictures = part("pictures");
    json const & flying = pictures["presets"]["Effect::FlyingObjects"];
    json const & bokeh = pictures["presets"]["Effect::BokehBlur"];
    EXPECT_EQ(flying.size(), 16U);
    EXPECT_EQ(bokeh.size(), 9U);
    auto const copy = [](json const & picture) {
        return page() + '/' + QString::fromStdString(picture["file"].get<std::string>());
    };
    EXPECT_TRUE(isSame(copy(bokeh["5"]), stock + "/BlurMasks/diamonds.png"));
    EXPECT_FALSE(isSame(copy(bokeh["4"]), stock + "/BlurMasks/diamonds.png"));
    // A name with a blank in it.
    EXPECT_TRUE(isSame(copy(flying["4"]), stock + "/FlyingObjects/gift box.png"));
    json const & film = pictures["pictures"]["item-overlay_frame_film"];
    EXPECT_EQ(QImage(copy(film)).size(), QSize(film["width"], film["height"]));
    EXPECT_EQ(film["width"], 360);
}

TEST(Gallery, KeepsTheEntriesOfTables)
{
    std::string const name = part("pictures")["tables"]["item-lut_warm_amber_film"];
    json const table = part(name);
    EXPECT_EQ(table["size"], json({17, 17, 17}));
    EXPECT_EQ(table["format"], "cube");
    double const least = table["entries"]["least"], most = table["entries"]["most"];
    QByteArray const bytes =
        QByteArray::fromBase64(QByteArray::fromStdString(table["entries"]["base64"].get<std::string>()));
    ASSERT_EQ(bytes.size(), 17 * 17 * 17 * 3 * 2);

    std::ifstream file((stock + "/Luts/warm_amber_film.cube").toStdString());
    int index = 0;
    for (std::string line; std::getline(file, line);) {
        double numbers[3];
        if (line.empty() || std::string("0123456789-").find(line[0]) == std::string::npos)
            continue;
        ASSERT_EQ(std::sscanf(line.c_str(), "%lf %lf %lf", &numbers[0], &numbers[1], &numbers[2]), 3) << line;
        for (double const number : numbers) {
            auto const low = static_cast<unsigned char>(bytes[2 * index]);
            auto const high = static_cast<unsigned char>(bytes[2 * index + 1]);
            ASSERT_NEAR(least + (most - least) * (low + 256 * high) / 65535, number, (most - least) / 65535) << index;
            ++index;
        }
    }
    EXPECT_EQ(index, 17 * 17 * 17 * 3);
}

TEST(Gallery, TakesAnythingThatAUsersItemMayHold)
{
    QTemporaryDir const folder;
    QString const items = folder.filePath("user/Effects/ManualEnhance");
    QDir().mkpath(items);
    std::string const odd = "it's \\ \"quoted\"\n</script> \xE2\x80\xA8 <b>";
    json const effect{{"$meta", {{"class", "Effect::ManualEnhance"}}}, {"__proto__", {{"a", 1}}},
        {"Effect::VideoEffect", {{"$meta", {{"class", "Effect::VideoEffect"}}},
                                    {"Effect::Object", {{"$meta", {{"class", "Effect::Object"}}}, {"tag", odd}}}}}};
    json const item{{"categories", {odd}}, {"effect", effect}};
    std::ofstream((items + "/o'd d\".effect.json").toStdString()) << item;
    std::ofstream((items + "/broken.effect.json").toStdString()) << "{";

    QString const out = folder.filePath("out");
    auto const run = effectctl({"gallery", "--stock", stock, "--user", folder.filePath("user"), out});
    EXPECT_EQ(run.status, 1) << "a file could not be read";
    EXPECT_THAT(run.errors, HasSubstr("broken.effect.json"));
    EXPECT_EQ(partOf(out, "documents")["user-o'd d\""], item);
    for (json const & card : partOf(out, "cards")) {
        if (card["id"] == "user-o'd d\"") {
            EXPECT_EQ(card["tag"], odd);
            EXPECT_EQ(card["categories"], json({odd}));
            EXPECT_EQ(card["user"], true);
            return;
        }
    }
    ADD_FAILURE() << "there is no card";
}

TEST(Gallery, SaysWhatCannotBeWritten)
{
    QTemporaryDir const folder;
    QString const file = folder.filePath("file");
    std::ofstream(file.toStdString()) << "kept";
    auto const run = effectctl({"gallery", "--stock", stock, file});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(file.toStdString() + ": the folder cannot be made"));
    EXPECT_EQ(read(file), "kept");

    EXPECT_EQ(effectctl({"gallery"}).status, 2);
    auto const missing = effectctl({"gallery", "--stock", folder.filePath("none"), folder.filePath("out")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.errors, HasSubstr("none: no such folder"));
    EXPECT_FALSE(QFile::exists(folder.filePath("out")));
}

} // namespace
