// effectctl redact
#include <EditorModel/EffectArchive.h>
#include <effects/Shaders.h>

#include <tests/support/Folder.h>

#include "Effectctl.h"

#include <gmock/gmock.h>

namespace {

using Testing::effectctl;
using testing::ElementsAre;
using Testing::Folder;
using testing::HasSubstr;

QString in(Folder const & folder, char const * name)
{
    return QString::fromStdString(folder.path(name));
}

TEST(Redact, WritesTheSameForm)
{
    Folder const folder;
    Effect::Lut lut("anna.cube");
    lut.resourcePath = "/home/anna/film.cube";
    folder.write("a.json", Effect::Archive::toJson(lut));
    folder.write("a.bin", Effect::Archive::toBinary(lut));
    for (char const * const suffix : {".json", ".bin"}) {
        std::string const out = std::string("out") + suffix;
        auto const run = effectctl({"redact", in(folder, "a") + suffix, in(folder, "out") + suffix});
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(run.output, "");
        auto const shown = effectctl({"show", "--json", in(folder, "out") + suffix});
        EXPECT_EQ(shown.output.find("anna"), std::string::npos);
        EXPECT_THAT(shown.output, HasSubstr(lut.id.toStdString()));
    }
    auto const piped = effectctl({"redact", "-", "-"}, QByteArray::fromStdString(folder.read("a.json")));
    EXPECT_EQ(piped.output, folder.read("out.json"));
}

TEST(Redact, WritesNothingOfABadFile)
{
    Folder const folder;
    folder.write("a.json", "{\"tag\": \"anna");
    auto const run = effectctl({"redact", in(folder, "a.json"), in(folder, "out.json")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(folder.path("a.json") + ": this is no JSON: parse error at line 1, column 14"));
    EXPECT_THAT(folder.files(), ElementsAre("a.json"));
    EXPECT_EQ(effectctl({"redact", in(folder, "gone"), "-"}).status, 1);
    EXPECT_EQ(effectctl({"redact", in(folder, "a.json")}).status, 2);
}

} // namespace
