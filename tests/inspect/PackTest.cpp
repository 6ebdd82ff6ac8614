#include <inspect/Pack.h>

#include <filesystem>

#include <archive.h>
#include <archive_entry.h>

#include <EditorModel/EffectArchive.h>
#include <EditorSettings/Settings.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Mask.h>
#include <effects/Shaders.h>
#include <inspect/Hash.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;
using testing::ElementsAre;
using Testing::failureOf;
using Testing::Folder;
using testing::HasSubstr;
using testing::IsEmpty;

json lutDocument(std::string const & path)
{
    Effect::Lut lut("warm.cube");
    lut.resourcePath = QString::fromStdString(path);
    return json::parse(Effect::Archive::toJson(lut));
}

std::string item(std::string const & path)
{
    return json{{"categories", {"b", "a"}}, {"newer", 1}, {"effect", lutDocument(path)}}.dump() + '\n';
}

/// A zip archive as other programs make them.
std::string zip(std::vector<std::pair<std::string, std::string>> const & files, unsigned type = AE_IFREG)
{
    std::string bytes(1 << 20, '\0');
    std::size_t size = 0;
    archive * const written = archive_write_new();
    archive_write_set_format_zip(written);
    archive_write_open_memory(written, bytes.data(), bytes.size(), &size);
    for (auto const & [name, content] : files) {
        archive_entry * const entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_filetype(entry, name == packManifest ? AE_IFREG : type);
        if (type == AE_IFLNK && name != packManifest)
            archive_entry_set_symlink(entry, "/etc/passwd");
        archive_entry_set_perm(entry, 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
        archive_write_header(written, entry);
        archive_write_data(written, content.data(), content.size());
        archive_entry_free(entry);
    }
    archive_write_close(written);
    archive_write_free(written);
    bytes.resize(size);
    return bytes;
}

std::string manifest(std::vector<std::pair<std::string, std::string>> const & files)
{
    json list = json::array();
    for (auto const & [name, content] : files)
        list.push_back({{"path", name}, {"role", "resource"}, {"size", content.size()}, {"sha256", sha256(content)}});
    return json{{"format", "effects"}, {"formatVersion", 1}, {"files", list}}.dump();
}

/// The archive of one entry that is listed as it is.
std::string packOf(std::string const & name, std::string const & content, unsigned type = AE_IFREG)
{
    return zip({{packManifest, manifest({{name, content}})}, {name, content}}, type);
}

struct PackTest : testing::Test
{
    std::string unpackFailure(std::string const & bytes) const
    {
        std::string const file = folder.write("bad.effects", bytes);
        std::string const failure = failureOf([&] { unpack(file, folder.path("bad")); });
        EXPECT_FALSE(std::filesystem::exists(folder.path("bad"))) << "something was written";
        EXPECT_EQ(failure.rfind(file + ": ", 0), 0U) << failure;
        return failure.substr(std::min(failure.size(), file.size() + 2));
    }

    Folder folder;
};

TEST_F(PackTest, BringsEverythingAcross)
{
    folder.write("in/warm.effect.json", item("tables/warm.cube"));
    folder.write("in/tables/warm.cube", "a table");
    folder.write("in/deep/far.effect.json", item(folder.path("else/warm.cube")));
    folder.write("else/warm.cube", "another table");
    folder.write("in/plain.json", lutDocument(folder.path("else/warm.cube")).dump());
    Effect::Lut lut("warm.cube");
    lut.resourcePath = QString::fromStdString(folder.path("in/tables/warm.cube"));
    folder.write("in/plain.bin", Effect::Archive::toBinary(lut));

    PackInfo const info{"CC-BY-4.0 OR MIT", "A. \xC3\x84uthor", "1.2"};
    Packed const packed = pack({folder.path("in")}, info);
    EXPECT_THAT(packed.problems, IsEmpty());
    EXPECT_THAT(
        packed.files, ElementsAre("deep/far.effect.json", "deep/resources/warm.cube", "plain.bin", "plain.json",
                          "resources/warm-2.cube", "resources/warm.cube", "tables/warm.cube", "warm.effect.json"));
    EXPECT_EQ(pack({folder.path("in")}, info).bytes, packed.bytes);

    std::string const file = folder.write("looks.effects", packed.bytes);
    EXPECT_EQ(unpack(file, folder.path("out")).size(), 9U);
    EXPECT_EQ(folder.read("out/warm.effect.json"), item("tables/warm.cube"));
    EXPECT_EQ(folder.read("out/tables/warm.cube"), "a table");
    json const far = json::parse(folder.read("out/deep/far.effect.json"));
    EXPECT_EQ(far["effect"]["Effect::VideoEffect"]["Effect::Object"]["resourcePath"], "resources/warm.cube");
    EXPECT_EQ(far["categories"], json({"b", "a"}));
    EXPECT_EQ(far["newer"], 1);
    EXPECT_EQ(folder.read("out/deep/resources/warm.cube"), "another table");
    // An archive's path is whole.
    json const plain = json::parse(folder.read("out/plain.json"));
    std::string const plainPath = plain["Effect::VideoEffect"]["Effect::Object"]["resourcePath"];
    EXPECT_EQ(plainPath.substr(0, folder.path("out/resources/").size()), folder.path("out/resources/"));
    EXPECT_EQ(folder.read(plainPath.substr(folder.path().size() + 1)), "another table");
    std::string const binaryPath =
        Effect::Archive::fromBinary(folder.read("out/plain.bin"))->resourcePath.toStdString();
    EXPECT_EQ(folder.read(binaryPath.substr(folder.path().size() + 1)), "a table");

    json const list = json::parse(folder.read("out/pack.json"));
    EXPECT_EQ(list["licence"], info.licence);
    EXPECT_EQ(list["author"], info.author);
    EXPECT_EQ(list["version"], "1.2");
    EXPECT_EQ(list["files"].size(), 8U);
    EXPECT_EQ(list["files"][6],
        (json{{"path", "tables/warm.cube"}, {"role", "resource"}, {"size", 7}, {"sha256", sha256("a table")}}));
}

TEST_F(PackTest, BringsShadersWithTheirPicturesAndTracks)
{
    Effect::EffectsHolder holder;
    auto shader = std::make_unique<Effect::ShaderISF>("glow.fs");
    shader->resourcePath = "shaders/glow.fs";
    holder.addEffect(std::move(shader));
    auto mask = std::make_unique<Effect::Mask>();
    Effect::FrameConceal frame;
    mask->addFrame(*frame.setTrackingId("face"));
    holder.addEffect(std::move(mask));
    folder.write("in/glow.effect.json", json{{"effect", json::parse(Effect::Archive::toJson(holder))}}.dump());
    folder.write(
        "in/shaders/glow.fs", "/*{\"IMPORTED\": {\"grain\": {\"PATH\": \"pictures/grain.png\"}}}*/\nvoid main() {}\n");
    folder.write("in/shaders/pictures/grain.png", "a picture");
    folder.write("user/Tracks/face.track.json", R"({"frames": []})");
    Settings::setUserRoot(QString::fromStdString(folder.path("user")));
    Packed const packed = pack({folder.path("in")}, {});
    Settings::setUserRoot({});
    EXPECT_THAT(packed.problems, IsEmpty());
    EXPECT_THAT(packed.files,
        ElementsAre("Tracks/face.track.json", "glow.effect.json", "shaders/glow.fs", "shaders/pictures/grain.png"));
}

TEST_F(PackTest, IsNotMadeOfHalf)
{
    folder.write("in/a.effect.json", item("gone.cube"));
    folder.write("in/b.json", "{");
    folder.write("in/good.json", Effect::Archive::toJson(Effect::Crop()));
    Packed const packed = pack({folder.path("in"), folder.path("gone.json")}, {});
    EXPECT_EQ(packed.bytes, "");
    ASSERT_EQ(packed.problems.size(), 3U);
    EXPECT_EQ(packed.problems[0],
        folder.path("in/a.effect.json") + ": " + folder.path("in/gone.cube") + ": No such file or directory");
    EXPECT_THAT(packed.problems[1], HasSubstr(folder.path("in/b.json") + ": this is no JSON"));
    EXPECT_EQ(packed.problems[2], folder.path("gone.json") + ": No such file or directory");
}

TEST_F(PackTest, RefusesAWrongHash)
{
    std::string const bytes = zip({{packManifest, manifest({{"a.cube", "listed"}})}, {"a.cube", "other."}});
    EXPECT_EQ(unpackFailure(bytes), "a.cube: has another SHA-256 than the list of the pack says");
}

TEST_F(PackTest, RefusesAPathOutOfTheFolder)
{
    for (char const * const path : {"../a.cube", "a/../../b", "/etc/a", "a//b", "./a", "a\\b", "a/"})
        EXPECT_EQ(unpackFailure(packOf(path, "x")), std::string(path) + ": leads out of the folder");
    // Nor one that is listed otherwise.
    EXPECT_EQ(
        unpackFailure(zip({{packManifest, manifest({{"a", "x"}})}, {"../a", "x"}})), "../a: leads out of the folder");
}

TEST_F(PackTest, RefusesWhatIsNotListedOrMissing)
{
    EXPECT_EQ(unpackFailure(zip({{packManifest, manifest({})}, {"a", "x"}})), "a: is not in the list of the pack");
    EXPECT_EQ(unpackFailure(zip({{packManifest, manifest({{"a", "x"}})}})), "a: is missing from the pack");
    EXPECT_EQ(unpackFailure(zip({{packManifest, manifest({{"a", "x"}})}, {"a", "x"}, {"a", "x"}})),
        "a: is in the pack twice");
    EXPECT_EQ(unpackFailure(packOf("a", "", AE_IFLNK)), "a: is no plain file");
}

TEST_F(PackTest, RefusesWhatIsNoPack)
{
    EXPECT_EQ(unpackFailure(zip({{"a", "x"}})), "this is no pack");
    EXPECT_EQ(unpackFailure(zip({})), "this is no pack");
    EXPECT_EQ(unpackFailure(zip({{packManifest, "{}"}})), "this is no pack");
    EXPECT_EQ(unpackFailure(zip({{packManifest, R"({"format": "effects", "formatVersion": 2})"}})),
        "this pack is of another version than 1");
    EXPECT_NE(unpackFailure("PK no archive"), "");
    std::string const whole = packOf("a", std::string(10000, 'x'));
    EXPECT_NE(unpackFailure(whole.substr(0, whole.size() / 2)), "");
}

TEST_F(PackTest, ReplacesNoFile)
{
    std::string const file =
        folder.write("a.effects", zip({{packManifest, manifest({{"a", "x"}, {"b", "y"}})}, {"a", "x"}, {"b", "y"}}));
    folder.write("out/b", "mine");
    EXPECT_EQ(
        failureOf([&] { unpack(file, folder.path("out")); }), file + ": b: is in " + folder.path("out") + " already");
    EXPECT_THAT(folder.files(), ElementsAre("a.effects", "out/b"));
    EXPECT_EQ(folder.read("out/b"), "mine");
}

TEST(Licence, IsAnExpression)
{
    for (char const * const text : {"MIT", "CC-BY-4.0", "(MIT OR Apache-2.0) AND CC0-1.0", "GPL-2.0+", "LicenseRef-1"})
        EXPECT_TRUE(isLicence(text)) << text;
    for (char const * const text : {"", "free!", "a,b", "\n"})
        EXPECT_FALSE(isLicence(text)) << text;
}

} // namespace
