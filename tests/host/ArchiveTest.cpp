// effectctl archive --to
#include <sstream>

#include <EditorModel/EffectArchive.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>

#include <tests/support/Folder.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::ElementsAre;
using Testing::Folder;
using testing::HasSubstr;

QStringList toFolder(Folder const & folder, char const * form, QStringList const & more)
{
    return QStringList{"archive", "--to", QString::fromStdString(folder.path("out")), "--format", form} + more;
}

QString in(Folder const & folder, char const * name)
{
    return QString::fromStdString(folder.path(name));
}

TEST(ArchiveTo, KeepsTheShapeOfTheFolders)
{
    Folder const folder;
    std::string const item = "{\"categories\": [\"b\", \"a\"], \"effect\": {\"$meta\": {\"class\": \"Effect::Lut\"}, "
                             "\"Effect::VideoEffect\": {\"Effect::Object\": {\"resourcePath\": \"../x.cube\"}}}}\n";
    folder.write("in/warm.effect.json", item);
    folder.write("in/deep/crop.bin", Effect::Archive::toBinary(Effect::Crop()));
    auto const run = effectctl(toFolder(folder, "json", {in(folder, "in"), "--json"}));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(folder.files(),
        ElementsAre("in/deep/crop.bin", "in/warm.effect.json", "out/deep/crop.json", "out/warm.effect.json"));
    // An item stays one, with its categories in their order and its path.
    EXPECT_EQ(folder.read("out/warm.effect.json"), item);
    EXPECT_EQ(json::parse(folder.read("out/deep/crop.json")), json::parse(Effect::Archive::toJson(Effect::Crop())));
    EXPECT_EQ(json::parse(run.output),
        (json::array({{{"file", folder.path("in/deep/crop.bin")}, {"written", folder.path("out/deep/crop.json")}},
            {{"file", folder.path("in/warm.effect.json")}, {"written", folder.path("out/warm.effect.json")}}})));

    auto const back = effectctl({"archive", "--to", in(folder, "back"), "--format", "bin", in(folder, "out/deep")});
    EXPECT_EQ(back.status, 0) << back.errors;
    EXPECT_EQ(back.output, "");
    EXPECT_EQ(folder.read("back/crop.bin"), folder.read("in/deep/crop.bin"));
}

TEST(ArchiveTo, GoesOnBehindABadFile)
{
    Folder const folder;
    folder.write("in/a.json", Effect::Archive::toJson(Effect::Crop()));
    folder.write("in/b.json", "{");
    folder.write("in/c.effect.json", R"({"effect": {"$meta": {"class": "Effect::Crop"}}})");
    folder.write("in/d.json", Effect::Archive::toJson(Effect::Opacity()));
    folder.write("other/d.json", Effect::Archive::toJson(Effect::Crop()));
    folder.write("out/b.bin", "old");
    auto const run = effectctl(toFolder(folder, "bin", {in(folder, "in"), in(folder, "other"), "-", "--jsonl"}));
    EXPECT_EQ(run.status, 1);
    json document = json::array();
    std::istringstream output(run.output);
    for (std::string line; std::getline(output, line);)
        document.push_back(json::parse(line));
    ASSERT_EQ(document.size(), 6U);
    EXPECT_EQ(document[0].contains("error"), false);
    EXPECT_THAT(document[1]["error"], HasSubstr("b.json: this is no JSON"));
    EXPECT_EQ(document[3]["written"], folder.path("out/d.bin"));
    EXPECT_EQ(document[4]["error"],
        folder.path("other/d.json") + ": would be written to the same file as " + folder.path("in/d.json") + ": d.bin");
    std::string lines;
    for (json const & one : document)
        if (one.contains("error"))
            lines += "effectctl: " + one["error"].get<std::string>() + '\n';
    EXPECT_EQ(run.errors, lines);
    EXPECT_THAT(
        lines, HasSubstr(folder.path("in/c.effect.json") +
                         ": an item cannot be written in the binary form, which has no place for its categories"));
    EXPECT_EQ(folder.read("out/b.bin"), "old");
    EXPECT_EQ(folder.read("out/d.bin"), Effect::Archive::toBinary(Effect::Opacity()));
}

TEST(ArchiveTo, NeedsTheFormAndTheFiles)
{
    Folder const folder;
    QString const out = in(folder, "out");
    EXPECT_EQ(effectctl({"archive", "--to", out, "a.json"}).errors,
        "effectctl: --to requires --format; see effectctl archive --help\n");
    EXPECT_EQ(effectctl({"archive", "--to", out, "--format", "bin"}).status, 2);
    EXPECT_EQ(effectctl({"archive", "a.json"}).errors,
        "effectctl: IN and OUT are required, or --to with any number of files; see effectctl archive --help\n");
    EXPECT_EQ(effectctl({"archive", "a.json", "b.json", "c.json"}).status, 2);
    EXPECT_EQ(effectctl({"archive", "a.json", "b.json", "--json"}).errors,
        "effectctl: --json and --jsonl require --to; see effectctl archive --help\n");
    EXPECT_THAT(folder.files(), ElementsAre());
}

} // namespace
