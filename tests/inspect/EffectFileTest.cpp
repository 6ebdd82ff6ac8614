#include <inspect/EffectFile.h>

#include <EditorModel/EffectArchive.h>
#include <effects/ColorCorrection.h>
#include <inspect/Failure.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;
using testing::HasSubstr;
using testing::ThrowsMessage;

std::string const text = R"({
  "$meta": {"class": "Effect::ManualEnhance"},
  "from_the_future": {"x": [1, 2]},
  "gamma": 0.5
})";
std::string const item = R"({"categories": ["category_looks"], "rating": 5, "effect": )" + text + "}";

TEST(EffectFile, ADocumentHasEveryKeyAndWhatIsUnknown)
{
    json const document = EffectFile::parse("a.json", text).document();
    EXPECT_EQ(document["from_the_future"], json({{"x", {1, 2}}}));
    EXPECT_EQ(document["gamma"], 0.5);
    EXPECT_EQ(document["hue"], 0.0);
    EXPECT_EQ(document["/Effect::VideoEffect/Effect::Object/tag"_json_pointer], "effect_manual_enhance");

    EffectFile const other = EffectFile::parse("a.effect.json", item);
    EXPECT_TRUE(other.isItem());
    EXPECT_EQ(other.effectPointer(), "/effect");
    EXPECT_EQ(other.document()["rating"], 5);
    EXPECT_EQ(other.document()["effect"], document);
}

TEST(EffectFile, AnEffectOfAnUnknownClassKeepsItsSlot)
{
    json const document = EffectFile::parse("a.json", R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [
        null, {"$meta": {"class": "Effect::Tomorrow"}, "x": 1}]})")
                              .document();
    EXPECT_EQ(document["effects"][0], nullptr);
    EXPECT_EQ(document["effects"][1]["x"], 1);
}

TEST(EffectFile, FilesWithErrorsAreRefused)
{
    EXPECT_THAT(
        [] { EffectFile::parse("a.json", "{\n 7}"); }, ThrowsMessage<Failure>(HasSubstr("a.json:2:2: error: ")));
    EXPECT_THAT([] { EffectFile::parse("a.json", R"({"$meta": {"class": "Effect::Crop"}, "transform": 5})"); },
        ThrowsMessage<Failure>(HasSubstr(", at /transform")));
    EXPECT_THAT(
        [] { EffectFile::read("/nowhere.json"); }, ThrowsMessage<Failure>("/nowhere.json: No such file or directory"));
}

TEST(EffectFile, SettingChangesNothingElse)
{
    EffectFile file = EffectFile::parse("a.json", text + '\n');
    file.set("gamma", "0.25");
    std::string expected = text + '\n';
    expected.replace(expected.find("0.5"), 3, "0.25");
    EXPECT_EQ(json::parse(file.bytes()), json::parse(expected));
    EXPECT_LT(file.bytes().find("from_the_future"), file.bytes().find("gamma")) << "the order stays";
    EXPECT_THAT(
        [&] { file.set("gama", "1"); }, ThrowsMessage<Failure>(HasSubstr("a.json: Effect::ManualEnhance has no")));
    EXPECT_THAT([&] { file.set("gamma", "high"); }, ThrowsMessage<Failure>(HasSubstr("a.json: ")));
    EXPECT_EQ(json::parse(file.bytes()), json::parse(expected)) << "after two failures";
}

TEST(EffectFile, SettingWhatIsThereLeavesTheBytes)
{
    EffectFile file = EffectFile::parse("a.json", text);
    file.set("gamma", "0.5");
    EXPECT_EQ(file.bytes(), text);
}

TEST(EffectFile, UnsettingLeavesAKeyOut)
{
    EffectFile file = EffectFile::parse("a.effect.json", item);
    file.unset("gamma");
    file.unset("hue"); // which is not in the text
    json expected = json::parse(item);
    expected["effect"].erase("gamma");
    EXPECT_EQ(json::parse(file.bytes()), expected);
    file.unset("/from_the_future/x");
    expected["effect"]["from_the_future"].erase("x");
    EXPECT_EQ(json::parse(file.bytes()), expected);
    file.unset("from_the_future");
    expected["effect"].erase("from_the_future");
    EXPECT_EQ(json::parse(file.bytes()), expected);
    for (char const * const key : {"nothing", "/nothing/at/all", "$meta", "/$meta", "", "/"})
        EXPECT_THAT([&] { file.unset(key); },
            ThrowsMessage<Failure>(HasSubstr("a.effect.json: there is no key \"" + std::string(key) + '"')));
    EXPECT_THAT([&] { file.unset("gama"); }, ThrowsMessage<Failure>(HasSubstr("did you mean \"gamma\"?")));
}

TEST(EffectFile, BinaryFilesStayBinary)
{
    Effect::ManualEnhance effect;
    effect.gamma = 0.5;
    EffectFile file = EffectFile::parse("a.bin", Effect::Archive::toBinary(effect));
    file.set("hue", "0.25");
    file.unset("gamma");
    auto const read = Effect::Archive::fromBinary(file.bytes());
    auto const & changed = dynamic_cast<Effect::ManualEnhance const &>(*read);
    EXPECT_EQ(changed.gamma, 0.0);
    EXPECT_EQ(changed.hue, 0.25);
    file.patch(json::parse(R"([{"op": "replace", "path": "/hue", "value": -0.5}])"));
    EXPECT_EQ(EffectFile::parse("b.bin", file.bytes()).document()["hue"], -0.5);
    EXPECT_TRUE(Effect::Archive::isBinary(file.bytes()));
    std::string const before = file.bytes();
    EXPECT_THAT([&] { file.patch(json::parse(R"([{"op": "add", "path": "/new", "value": 1}])")); },
        ThrowsMessage<Failure>(HasSubstr("a.bin: the binary form cannot keep what is unknown")));
    EXPECT_EQ(file.bytes(), before);
}

TEST(EffectFile, PatchesFindWhatTheTextLeavesOut)
{
    EffectFile file = EffectFile::parse("a.json", text);
    file.patch(json::parse(R"([
        {"op": "test", "path": "/hue", "value": 0.0},
        {"op": "replace", "path": "/Effect::VideoEffect/Effect::Object/tag", "value": "mine"},
        {"op": "copy", "from": "/contrast", "path": "/gamma"},
        {"op": "remove", "path": "/from_the_future/x/0"}])"));
    EXPECT_EQ(file.document()["gamma"], 0.0);
    EXPECT_EQ(file.effect()->tag, "mine");
    json const bytes = json::parse(file.bytes());
    EXPECT_EQ(bytes["from_the_future"], json({{"x", {2}}}));
    EXPECT_EQ(bytes["Effect::VideoEffect"], json({{"Effect::Object", {{"tag", "mine"}}}})) << "no more than needed";
}

TEST(EffectFile, APatchIsAppliedAsAWholeOrNotAtAll)
{
    struct Row
    {
        char const * patch;
        char const * reason;
    };
    for (Row const & row : {
             Row{R"({"op": "add"})", "a.json: a patch is an array of operations"},
             Row{R"([{"op": "replace", "path": "/gamma", "value": 1}, 5])", "a.json: operation 1 of the patch: "},
             Row{R"([{"op": "replace", "path": "/gamma", "value": 1}, {"op": "remove", "path": "/none"}])",
                 "a.json: operation 1 of the patch: "},
             Row{R"([{"op": "replace", "path": "/hue", "value": 1}, {"op": "test", "path": "/gamma", "value": 7}])",
                 "a.json: operation 1 of the patch: "},
             Row{R"([{"op": "replace", "path": "/gamma", "value": "high"}])", "at /gamma"},
             Row{R"([{"op": "add", "path": "gamma", "value": 1}])", "a.json: operation 0 of the patch: "},
         }) {
        EffectFile file = EffectFile::parse("a.json", text);
        EXPECT_THAT([&] { file.patch(json::parse(row.patch)); }, ThrowsMessage<Failure>(HasSubstr(row.reason)));
        EXPECT_EQ(file.bytes(), text) << row.patch;
    }
}

} // namespace
