#include <inspect/Check.h>

#include <fstream>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/MotionTracking.h>
#include <effects/ColorCorrection.h>

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using Effect::Archive::Finding;
using Effect::Archive::Severity;
using namespace Effect::Inspect;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Check : public testing::Test
{
protected:
    Check()
        : checker(host)
    {}

    std::string path(std::string const & name) const { return m_folder.path().toStdString() + '/' + name; }

    void write(std::string const & name, std::string const & bytes) const
    {
        std::ofstream file(path(name));
        file << bytes;
        ASSERT_TRUE(file.flush()) << name;
    }

    /// An item with these keys in its effect and in the `Effect::Object` of that.
    std::string item(std::string const & className, std::string const & object, std::string const & own = {},
        std::string const & categories = R"("category_blur")") const
    {
        return R"({"categories": [)" + categories + R"(], "effect": {"$meta": {"class": ")" + className + R"("},)" +
               "\n  " + R"("Effect::VideoEffect": {"Effect::Object": {)" + object + "}}" +
               (own.empty() ? "" : ",\n  " + own) + "}}";
    }

    /// The findings of a file as "code pointer".
    std::vector<std::string> codes(std::string const & name)
    {
        std::vector<std::string> texts;
        for (Finding const & finding : checker.check(path(name)))
            texts.push_back(finding.code + ' ' + finding.pointer.value_or("-"));
        return texts;
    }

    std::vector<Finding> findings(std::string const & bytes) { return checker.check(path("any.json"), bytes); }

    RenderHost host;
    Checker checker;

private:
    QTemporaryDir m_folder;
};

constexpr char const * objectPointer = "/effect/Effect::VideoEffect/Effect::Object";

TEST_F(Check, AFolderWithNineMistakesHasNineFindings)
{
    std::string const object = objectPointer;
    write("a_good.effect.json", item("Effect::Blur", R"("tag": "one")"));
    write("b_tag.effect.json", item("Effect::Blur", R"("tag": "one")"));
    write("c_key.effect.json", item("Effect::Blur", R"("tag": "c", "intensitty": 0.5)"));
    write("d_base.effect.json", item("Effect::TiltShift", R"("tag": "d", "smns": 0.5)"));
    write("e_bound.effect.json", item("Effect::ManualEnhance", R"("tag": "e")", R"("gamma": 1.5)"));
    write("f_choice.effect.json", item("Effect::Mirror", R"("tag": "f")", R"("vertical": 7)"));
    write("g_category.effect.json", item("Effect::Blur", R"("tag": "g")", "", R"("category_blurr")"));
    write("h_file.effect.json",
        item("Effect::Lut", R"("tag": "h", "resource": {"name": "h.cube", "type": 4}, "resourcePath": "h.cube")"));
    write("i_nothing.effect.json", item("Effect::ManualEnhance", R"("tag": "i")"));
    write("j_id.effect.json", item("Effect::Blur", R"("tag": "j", "id": "other")"));

    EXPECT_THAT(codes("a_good.effect.json"), IsEmpty());
    EXPECT_THAT(codes("b_tag.effect.json"), ElementsAre("duplicate-tag " + object + "/tag"));
    EXPECT_THAT(codes("c_key.effect.json"), ElementsAre("unknown-key " + object + "/intensitty"));
    EXPECT_THAT(codes("d_base.effect.json"), ElementsAre("misplaced-key " + object + "/smns"));
    EXPECT_THAT(codes("e_bound.effect.json"), ElementsAre("out-of-range /effect/gamma"));
    EXPECT_THAT(codes("f_choice.effect.json"), ElementsAre("unknown-choice /effect/vertical"));
    EXPECT_THAT(codes("g_category.effect.json"), ElementsAre("unknown-category /categories/0"));
    EXPECT_THAT(codes("h_file.effect.json"), ElementsAre("missing-resource " + object + "/resource"));
    EXPECT_THAT(codes("i_nothing.effect.json"), ElementsAre("no-effect /effect"));
    EXPECT_THAT(codes("j_id.effect.json"), ElementsAre("class-identifier " + object + "/id"));
}

TEST_F(Check, AFindingSaysWhereAndWhat)
{
    auto const found = findings(item("Effect::ManualEnhance", R"("tag": "e")", R"("gamma": 1.5)"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].severity, Severity::Warning);
    EXPECT_EQ(found[0].line, 3U);
    EXPECT_EQ(found[0].column, 3U);
    EXPECT_EQ(found[0].message, "\"gamma\" is 1.5; allowed: -1 to 1; beyond: passed on as they are");
    EXPECT_EQ(found[0].suggestion, "1");
}

TEST_F(Check, ANumberThatIsNoneIsOutOfRange)
{
    for (char const * const value : {"\"NaN\"", "\"-Infinity\"", "-1.0000001"}) {
        auto const found = findings(item("Effect::ManualEnhance", "", std::string("\"gamma\": ") + value));
        ASSERT_EQ(found.size(), 1U) << value;
        EXPECT_EQ(found[0].code, "out-of-range") << value;
    }
    EXPECT_THAT(findings(item("Effect::ManualEnhance", "", R"("gamma": -1)")), IsEmpty());
    EXPECT_THAT(findings(item("Effect::ManualEnhance", "", R"("gamma": 1)")), IsEmpty());
}

TEST_F(Check, WhatHasNoPlaceInTheTextIsFoundAtWhatShouldHoldIt)
{
    // The default effect names a file that there is not.
    std::string const text = "{\"categories\": [],\n \"effect\":\n  {\"$meta\": {\"class\": \"Effect::Lut\"}}}";
    auto const found = findings(text);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].code, "missing-resource");
    EXPECT_EQ(found[0].pointer, std::string(objectPointer) + "/resource");
    EXPECT_EQ(found[0].offset, text.find("\"effect\""));
    EXPECT_EQ(found[0].line, 2U);
    EXPECT_EQ(found[0].column, 2U);
}

TEST_F(Check, ItemsAreLookedThroughBesideTheirEffects)
{
    auto const found = findings(R"({"categorys": [], "categories": [3], "$schema": "x",
        "effect": {"$meta": {"class": "Effect::Blur"}}})");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].code, "unknown-key");
    EXPECT_EQ(found[0].suggestion, "categories");
    EXPECT_EQ(found[1].code, "wrong-type");
    EXPECT_EQ(found[1].pointer, "/categories/0");
    EXPECT_EQ(found[1].severity, Severity::Error);
    EXPECT_EQ(findings(R"({"categories": "a", "effect": {"$meta": {"class": "Effect::Blur"}}})").at(0).pointer,
        "/categories");
}

TEST_F(Check, FilesThatAreSomethingElseAreBroken)
{
    write("no.cube", "nothing of the kind");
    write("no.fs", "void main() {}");
    write("no.png", "GIF89a");
    write("no.track.json", R"({"frames": [{"time": 1}]})");
    MotionTracking::registerTrack("no", QString::fromStdString(path("no.track.json")));
    struct Row
    {
        char const * className;
        char const * object;
        char const * own;
        char const * pointer;
    };
    for (Row const & row : {
             Row{"Effect::Lut", R"("resource": {"name": "no.cube", "type": 4}, "resourcePath": "no.cube")", "",
                 "/effect/Effect::VideoEffect/Effect::Object/resource"},
             Row{"Effect::ShaderISF", R"("resource": {"name": "no.fs", "type": 4}, "resourcePath": "no.fs")", "",
                 "/effect/Effect::VideoEffect/Effect::Object/resource"},
             Row{"Effect::Overlay", R"("resource": {"name": "no.png", "type": 3}, "resourcePath": "no.png")", "",
                 "/effect/Effect::VideoEffect/Effect::Object/resource"},
             Row{"Effect::Mask", "", R"("concealFrames": [{"Effect::Frame": {"trackingId": "no"}}])",
                 "/effect/concealFrames/0/Effect::Frame/trackingId"},
         }) {
        auto const found = findings(item(row.className, row.object, row.own));
        ASSERT_EQ(found.size(), 1U) << row.className;
        EXPECT_EQ(found[0].code, "broken-resource") << row.className << ": " << found[0].message;
        EXPECT_EQ(found[0].pointer, row.pointer);
        EXPECT_EQ(found[0].severity, Severity::Error);
        EXPECT_THAT(found[0].message, HasSubstr(path("no.")));
    }
    MotionTracking::unregisterTrack("no");
}

TEST_F(Check, EveryEffectInAHolderIsLookedAt)
{
    auto const found = findings(R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [null,
        {"$meta": {"class": "Effect::Blur"}, "Effect::VideoEffect": {"Effect::Object": {"intensity": 0}}},
        {"$meta": {"class": "Effect::EffectsHolder"}, "effects": [null]}]})");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].code, "no-effect");
    EXPECT_EQ(found[0].pointer, "/effects/1/Effect::VideoEffect/Effect::Object/intensity");
    EXPECT_EQ(found[1].code, "no-effect");
    EXPECT_EQ(found[1].pointer, "/effects/2");
}

TEST_F(Check, TwoFilesUnderOneNameAreADuplicate)
{
    write("x.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    ASSERT_TRUE(QDir(QString::fromStdString(path(""))).mkpath("other"));
    write("other/x.cube", "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    auto const lut = [this](char const * tag, char const * file) {
        return item("Effect::Lut", std::string(R"("tag": ")") + tag +
                                       R"(", "resource": {"name": "x.cube", "type": 4}, "resourcePath": ")" + file +
                                       '"');
    };
    write("a.effect.json", lut("a", "x.cube"));
    write("b.effect.json", lut("b", "./x.cube"));
    write("c.effect.json", lut("c", "other/x.cube"));
    EXPECT_THAT(codes("a.effect.json"), IsEmpty());
    EXPECT_THAT(codes("b.effect.json"), IsEmpty()) << "the same file";
    EXPECT_THAT(codes("c.effect.json"), ElementsAre(std::string("duplicate-resource ") + objectPointer + "/resource"));
}

TEST_F(Check, TagsAreThoseOfACollection)
{
    ASSERT_TRUE(QDir(QString::fromStdString(path(""))).mkpath("other"));
    std::string const text = item("Effect::Blur", R"("tag": "one")");
    write("a.effect.json", text);
    write("other/a.effect.json", text);
    EXPECT_THAT(codes("a.effect.json"), IsEmpty());
    EXPECT_THAT(codes("other/a.effect.json"), IsEmpty());
    EXPECT_THAT(codes("a.effect.json"), IsEmpty()) << "the same file again";
}

TEST_F(Check, BinaryArchivesAreLookedThrough)
{
    Effect::ManualEnhance effect;
    effect.gamma = -3;
    auto const found = findings(Effect::Archive::toBinary(effect));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].code, "out-of-range");
    EXPECT_EQ(found[0].pointer, "/gamma");
    EXPECT_FALSE(found[0].offset);
    EXPECT_FALSE(found[0].line);
    EXPECT_EQ(found[0].suggestion, "-1");
}

TEST_F(Check, AFileThatCannotBeReadIsAFinding)
{
    auto const found = checker.check(path("nowhere.json"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].code, "unreadable");
    EXPECT_EQ(found[0].message, "No such file or directory");
    EXPECT_FALSE(found[0].pointer);
}

} // namespace
