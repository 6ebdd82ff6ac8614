// Documents: what the library does not know stays in the file, and what is damaged costs no more than it must.

#include <random>
#include <string>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <EditorSerialization/Error.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Mask.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using Effect::Archive::Document;
using Effect::Archive::Finding;
using Effect::Archive::Severity;
using nlohmann::json;
using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Codes and pointers of the findings.
std::vector<std::string> summary(Document const & document)
{
    std::vector<std::string> lines;
    for (Finding const & finding : document.findings())
        lines.push_back(finding.code + ' ' + finding.pointer.value_or("-"));
    return lines;
}

/// A holder as a newer version might write it: with keys, an effect and an order of keys that are not of this one.
constexpr char const * fromTheFuture = R"({
    "format": 7,
    "$meta": {"class": "Effect::EffectsHolder", "writer": "2.0"},
    "effects": [
        {"$meta": {"class": "Effect::Opacity"}, "opacity": 0.5, "easing": {"curve": [0.1, 1e-9, 12345678901234567890]}},
        {"$meta": {"class": "Effect::Hologram"}, "depth": 3, "opacity": "kept"},
        null,
        {"zoom": true, "$meta": {"class": "Effect::Opacity"}, "opacity": 0.75}
    ],
    "Effect::EffectDescriptor": {"type": 1, "label": "\u00e9"}
}
)";

Effect::EffectsHolder & holderOf(Document & document)
{
    return dynamic_cast<Effect::EffectsHolder &>(*document.effect());
}

TEST(Document, AnUntouchedTextStaysAsItIs)
{
    Document document = Document::read(fromTheFuture);
    ASSERT_NE(document.effect(), nullptr);
    EXPECT_EQ(document.toJson(), fromTheFuture);
    EXPECT_THAT(summary(document),
        ElementsAre("unknown-key /format", "unknown-key /effects/0/easing", "unknown-class /effects/1/$meta/class",
            "unknown-key /effects/3/zoom", "unknown-key /Effect::EffectDescriptor/label"));
}

TEST(Document, AnUnknownEffectIsAnEmptySlot)
{
    Document document = Document::read(fromTheFuture);
    Effect::EffectsHolder const & holder = holderOf(document);
    ASSERT_THAT(holder.effects, SizeIs(4));
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[0]).opacity, 0.5);
    EXPECT_EQ(holder.effects[1], nullptr);
    EXPECT_EQ(holder.effects[2], nullptr);
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[3]).opacity, 0.75);
    EXPECT_EQ(holder.descriptorType, Effect::Type::Audio);
}

Effect::Opacity & opacityAt(Effect::EffectsHolder & holder, std::size_t index)
{
    return const_cast<Effect::Opacity &>(dynamic_cast<Effect::Opacity const &>(*holder.effects[index]));
}

TEST(Document, AChangeIsTheOnlyChange)
{
    Document document = Document::read(fromTheFuture);
    opacityAt(holderOf(document), 3).opacity = 0.25;
    ordered_json expected = ordered_json::parse(fromTheFuture);
    expected["effects"][3]["opacity"] = 0.25;
    ordered_json const written = ordered_json::parse(document.toJson());
    EXPECT_EQ(written, expected);
    EXPECT_EQ(written.dump(), expected.dump()) << "the order of the keys";
    EXPECT_THAT(document.toJson(), HasSubstr("\n    \"format\": 7,\n"));
    EXPECT_EQ(document.toJson().back(), '\n');
}

TEST(Document, AKeyThatWasAbsentIsAddedWhenItsValueChanges)
{
    Document document = Document::read(R"({"$meta":{"class":"Effect::Opacity"},"more":1})");
    document.effect()->intensity = 0.5;
    json const written = json::parse(document.toJson());
    EXPECT_EQ(written["more"], 1);
    EXPECT_EQ(written["Effect::VideoEffect"]["Effect::Object"]["intensity"], 0.5);
    EXPECT_FALSE(written.contains("opacity"));
    auto const read = Effect::Archive::fromJson(written.dump());
    EXPECT_EQ(read->intensity, 0.5);
    EXPECT_EQ(read->id, Effect::Opacity().id);
}

TEST(Document, AValueThatIsTakenAwayGoes)
{
    Effect::Opacity effect;
    effect.range = Types::Range(MTime(1), MTime(2));
    json text = json::parse(Effect::Archive::toJson(effect));
    text["Effect::VideoEffect"]["Effect::Object"]["range"]["unit"] = "frames";
    Document document = Document::read(text.dump());
    document.effect()->range.reset();
    text["Effect::VideoEffect"]["Effect::Object"].erase("range");
    EXPECT_EQ(json::parse(document.toJson()), text);
}

/// Effects that stay keep what is unknown in them when others come and go around them.
TEST(Document, ListsKeepWhatIsUnknownInElementsThatStay)
{
    {
        Document document = Document::read(fromTheFuture);
        Effect::EffectsHolder & holder = holderOf(document);
        holder.effects.pop_front();
        ordered_json expected = ordered_json::parse(fromTheFuture);
        expected["effects"].erase(0);
        EXPECT_EQ(ordered_json::parse(document.toJson()), expected);
    }
    {
        Document document = Document::read(fromTheFuture);
        Effect::EffectsHolder & holder = holderOf(document);
        auto added = std::make_unique<Effect::Crop>();
        ordered_json expected = ordered_json::parse(fromTheFuture);
        expected["effects"].insert(
            expected["effects"].begin() + 1, ordered_json::parse(Effect::Archive::toJson(*added)));
        expected["effects"][4]["opacity"] = 0.125;
        holder.effects.insert(holder.effects.begin() + 1, std::move(added));
        opacityAt(holder, 4).opacity = 0.125;
        EXPECT_EQ(ordered_json::parse(document.toJson()), expected);
    }
    {
        // Another class in its place brings nothing of the old one along.
        Document document = Document::read(fromTheFuture);
        Effect::EffectsHolder & holder = holderOf(document);
        holder.effects[0] = std::make_unique<Effect::Crop>();
        ordered_json expected = ordered_json::parse(fromTheFuture);
        expected["effects"][0] = ordered_json::parse(Effect::Archive::toJson(Effect::Crop()));
        EXPECT_EQ(json(ordered_json::parse(document.toJson())), json(expected));
    }
}

TEST(Document, AnUnknownClassIsKeptWhole)
{
    std::string const text = R"({"$meta":{"class":"Effect::Hologramm"},"depth":3})";
    Document const document = Document::read(text);
    EXPECT_EQ(document.effect(), nullptr);
    EXPECT_EQ(document.toJson(), text);
    EXPECT_THAT(summary(document), ElementsAre("unknown-class /$meta/class"));
    EXPECT_EQ(document.findings()[0].severity, Severity::Error);
    EXPECT_THROW(document.toBinary(), Serialize::ArchiveError);
}

TEST(Document, FindsEverythingAtOnceAndWhere)
{
    constexpr char const * text = "{\"$meta\": {\"class\": \"Effect::Blurr\"}}";
    Document const misspelt = Document::read(text);
    ASSERT_THAT(misspelt.findings(), SizeIs(1));
    EXPECT_EQ(misspelt.findings()[0].suggestion, "Effect::Blur");
    EXPECT_EQ(misspelt.findings()[0].offset, 11U);
    EXPECT_EQ(misspelt.findings()[0].column, 12U);

    Document const document = Document::read("{\"$meta\": {\"class\": \"Effect::Crop\"},\n"
                                             " \"transfrom\": 1,\n"
                                             " \"intensity\": 0.5,\n"
                                             " \"Effect::VideoEffect\": {\"Effect::Object\": {\n"
                                             "   \"intensity\": \"much\", \"tag\": \"a\", \"tag\": 7,\n"
                                             "   \"range\": {\"start\": 0.5, \"end\": 3}}},\n"
                                             " \"transform\": {\"m\": [1, 0, 0, 0, 1, 0, 0, 0]}}");
    EXPECT_THAT(
        summary(document), ElementsAre("unknown-key /transfrom", "misplaced-key /intensity",
                               "wrong-type /Effect::VideoEffect/Effect::Object/intensity",
                               "wrong-type /Effect::VideoEffect/Effect::Object/tag",
                               "duplicate-key /Effect::VideoEffect/Effect::Object/tag",
                               "wrong-type /Effect::VideoEffect/Effect::Object/range/start",
                               "unknown-key /Effect::VideoEffect/Effect::Object/range/end", "wrong-type /transform/m"));
    auto const & findings = document.findings();
    EXPECT_EQ(findings[0].suggestion, "transform");
    EXPECT_EQ(findings[0].line, 2U);
    EXPECT_EQ(findings[0].column, 2U);
    EXPECT_THAT(findings[1].message, HasSubstr("belongs to Effect::Object"));
    EXPECT_EQ(findings[2].message, "a number is expected, found string");
    EXPECT_EQ(findings[2].line, 5U);
    EXPECT_EQ(findings[3].line, 5U);
    EXPECT_GT(findings[3].column, findings[2].column);
    EXPECT_EQ(findings[7].line, 7U);
    EXPECT_EQ(document.effect(), nullptr);
    EXPECT_THROW(document.toBinary(), Serialize::ArchiveError);
}

TEST(Document, NothingIsWrongWithWhatTheLibraryWrites)
{
    for (Effect::Archive::Document const & document : {Document::read(Effect::Archive::toJson(Effect::Mask())),
             Document::read(Effect::Archive::toBinary(Effect::Mask()))}) {
        EXPECT_THAT(document.findings(), IsEmpty());
        ASSERT_NE(document.effect(), nullptr);
        EXPECT_EQ(Effect::Archive::toJson(*document.effect()), Effect::Archive::toJson(Effect::Mask()));
    }
}

TEST(Document, ReferencesAreReadAndKept)
{
    std::string const text = R"({"$meta":{"class":"Effect::EffectsHolder"},"Effect::EffectDescriptor":{"type":0},)"
                             R"("effects":[{"$meta":{"class":"Effect::Opacity","id":4},"opacity":0.5},)"
                             R"({"$meta":{"ref":4}}]})";
    Document document = Document::read(text);
    EXPECT_THAT(document.findings(), IsEmpty());
    EXPECT_EQ(opacityAt(holderOf(document), 1).opacity, 0.5);
    EXPECT_EQ(document.toJson(), text);
    opacityAt(holderOf(document), 1).opacity = 0.25;
    auto const written = Effect::Archive::fromJson(document.toJson());
    auto const & holder = dynamic_cast<Effect::EffectsHolder const &>(*written);
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[0]).opacity, 0.5);
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*holder.effects[1]).opacity, 0.25);
}

TEST(Document, AnItemKeepsWhatIsAroundItsEffect)
{
    std::string const text =
        R"({"rating":5,"effect":{"$meta":{"class":"Effect::EffectsHolder"},)"
        R"("Effect::EffectDescriptor":{"type":0},"effects":[{"$meta":{"class":"Effect::Hologram"}},)"
        R"({"$meta":{"class":"Effect::Opacity"},"opacity":0.5,"easing":1}]},"categories":["a"]})";
    Document document = Document::read(text);
    EXPECT_THAT(summary(document),
        ElementsAre("unknown-class /effect/effects/0/$meta/class", "unknown-key /effect/effects/1/easing"));
    EXPECT_EQ(document.toJson(), text);
    ASSERT_NE(document.effect(), nullptr);
    opacityAt(holderOf(document), 1).opacity = 0.25;
    ordered_json expected = ordered_json::parse(text);
    expected["effect"]["effects"][1]["opacity"] = 0.25;
    EXPECT_EQ(document.toJson(), expected.dump());
    EXPECT_THROW(document.toBinary(), Serialize::ArchiveError);
}

TEST(Document, BinaryBytesStayUnlessTheEffectChanges)
{
    Effect::Opacity effect;
    effect.opacity = 0.5;
    std::string const bytes = Effect::Archive::toBinary(effect);
    Document document = Document::read(bytes);
    EXPECT_EQ(document.toBinary(), bytes);
    document.effect()->intensity = 0.25;
    EXPECT_EQ(Effect::Archive::fromBinary(document.toBinary())->intensity, 0.25);
    EXPECT_EQ(Effect::Archive::fromJson(document.toJson())->intensity, 0.25);

    // A class that nothing has registered: the same archive under another name.
    std::string unknown = bytes.substr(20);
    unknown.replace(unknown.find("Effect::Opacity"), 15, "Effect::Opacitx");
    Document const kept = Document::read(unknown);
    EXPECT_EQ(kept.effect(), nullptr);
    EXPECT_EQ(kept.toBinary(), unknown);
    EXPECT_THAT(summary(kept), ElementsAre("unknown-class -"));
    EXPECT_THROW(kept.toJson(), Serialize::ArchiveError);
}

TEST(Document, TheBinaryFormCannotKeepWhatIsUnknown)
{
    Document const document = Document::read(fromTheFuture);
    try {
        document.toBinary();
        FAIL();
    } catch (Serialize::ArchiveError const & error) {
        EXPECT_THAT(error.what(), HasSubstr("/format"));
    }
}

TEST(Document, SalvageLeavesOutWhatCannotBeRead)
{
    json text = json::parse(fromTheFuture);
    text["effects"][0]["opacity"] = "half";
    text["effects"].insert(text["effects"].begin(), 5);
    Document document = Document::salvage(text.dump());
    EXPECT_THAT(document.findings(), testing::Contains(testing::Field(&Finding::code, "wrong-type")).Times(2));
    ASSERT_NE(document.effect(), nullptr);
    ASSERT_THAT(holderOf(document).effects, SizeIs(4));
    EXPECT_EQ(opacityAt(holderOf(document), 0).opacity, Effect::Opacity().opacity);
    EXPECT_EQ(holderOf(document).effects[1], nullptr);
    EXPECT_EQ(opacityAt(holderOf(document), 3).opacity, 0.75);
    json expected = text;
    expected["effects"].erase(0);
    expected["effects"][0].erase("opacity");
    EXPECT_EQ(json::parse(document.toJson()), expected);
    EXPECT_EQ(Document::read(text.dump()).effect(), nullptr);
}

TEST(Document, NothingCanBeHadFromNothing)
{
    for (std::string const & bytes : {std::string(), std::string("EEAR"), std::string("EEFX"), std::string("\xFF\xFE"),
             std::string("[]"), std::string("{"), std::string("null"), std::string("7")})
        for (bool const salvages : {false, true}) {
            Document const document = salvages ? Document::salvage(bytes) : Document::read(bytes);
            EXPECT_EQ(document.effect(), nullptr) << bytes;
            EXPECT_FALSE(document.findings().empty()) << bytes;
        }
}

TEST(Document, AnEmptyFileHasNothingToWrite)
{
    EXPECT_EQ(Document::read("").toJson(), "");
    EXPECT_EQ(Document::salvage("").toJson(), "null");
}

std::unique_ptr<Effect::EffectsHolder> hundredEffects()
{
    auto holder = std::make_unique<Effect::EffectsHolder>();
    for (int number = 0; number < 100; ++number) {
        auto effect = std::make_unique<Effect::Opacity>();
        effect->opacity = number / 128.0;
        holder->addEffect(std::move(effect));
    }
    return holder;
}

/// @param ends  where the text or archive of each effect ends
void expectEffectsBeforeTheCut(std::string const & bytes, std::vector<std::size_t> const & ends)
{
    std::mt19937 random(3);
    std::vector<std::size_t> cuts{bytes.size() - 1, bytes.size() - 2};
    for (std::size_t const end : ends)
        cuts.insert(cuts.end(), {end - 1, end, end + 1});
    while (cuts.size() < 600)
        cuts.push_back(random() % bytes.size());
    for (std::size_t const cut : cuts) {
        if (cut >= bytes.size())
            continue;
        std::size_t whole = 0;
        while (whole < ends.size() && ends[whole] <= cut)
            ++whole;
        Document document = Document::salvage(std::string_view(bytes).substr(0, cut));
        EXPECT_FALSE(document.findings().empty());
        if (whole == 0)
            continue;
        ASSERT_NE(document.effect(), nullptr) << cut;
        Effect::EffectsHolder & holder = holderOf(document);
        ASSERT_GE(holder.effects.size(), whole) << cut;
        for (std::size_t index = 0; index < whole; ++index)
            ASSERT_EQ(opacityAt(holder, index).opacity, static_cast<double>(index) / 128.0) << cut;
    }
}

TEST(Document, SalvagesTheEffectsBeforeACutInJson)
{
    json document = json::parse(Effect::Archive::toJson(*hundredEffects()));
    for (std::string const & text : {document.dump(), document.dump(2)}) {
        std::vector<std::size_t> ends;
        for (std::size_t place = text.find("\"opacity\""); place != text.npos;
             place = text.find("\"opacity\"", place + 1))
            ends.push_back(text.find('}', place) + 1);
        ASSERT_THAT(ends, SizeIs(100));
        expectEffectsBeforeTheCut(text, ends);
    }
}

TEST(Document, SalvagesTheEffectsBeforeACutInBinary)
{
    std::string const bytes = Effect::Archive::toBinary(*hundredEffects());
    std::vector<std::size_t> ends;
    for (int number = 0; number < 100; ++number) {
        // The opacity is the last field of each.
        double const opacity = number / 128.0;
        std::string const pattern(reinterpret_cast<char const *>(&opacity), sizeof opacity);
        std::size_t const place = bytes.find(pattern, ends.empty() ? bytes.find("Effect::Opacity") : ends.back());
        ASSERT_NE(place, bytes.npos);
        ends.push_back(place + sizeof opacity);
    }
    // Zero is not unique in the bytes: the first one ends where the next begins, one size before the second's end.
    ends[0] = ends[1] - (ends[2] - ends[1]);
    expectEffectsBeforeTheCut(bytes, ends);
}

TEST(Document, SalvageNeverThrowsAndNeverInventsInDamagedFiles)
{
    std::mt19937 random(5);
    for (std::string const & bytes :
        {Effect::Archive::toBinary(*hundredEffects()), Effect::Archive::toJson(*hundredEffects())})
        for (int round = 0; round < 500; ++round) {
            std::string damaged = bytes;
            for (int count = 0; count < 3; ++count)
                damaged[random() % damaged.size()] = static_cast<char>(random());
            Document const document = Document::salvage(damaged);
            if (damaged != bytes && bytes[0] == 'E') {
                EXPECT_FALSE(document.findings().empty());
            }
            EXPECT_NO_THROW(Document::read(damaged));
        }
}

/// The header's checksum sees what no check of the content can see.
TEST(Document, EveryFlippedBitOfABinaryFileIsNoticed)
{
    for (std::string const & bytes :
        {Effect::Archive::toBinary(Effect::Mask()), Effect::Archive::toBinary(*hundredEffects())})
        for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
            std::string damaged = bytes;
            damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
            ASSERT_ANY_THROW(Effect::Archive::fromBinary(damaged)) << bit;
        }
}

TEST(Document, AnArchiveWithoutAHeaderIsReadAsWell)
{
    Effect::Opacity effect;
    effect.opacity = 0.5;
    std::string const bytes = Effect::Archive::toBinary(effect);
    ASSERT_EQ(bytes.substr(0, 4), "EEFX");
    ASSERT_EQ(bytes.substr(20, 4), "EEAR");
    auto const read = Effect::Archive::fromBinary(bytes.substr(20));
    EXPECT_EQ(dynamic_cast<Effect::Opacity const &>(*read).opacity, 0.5);
}

} // namespace
