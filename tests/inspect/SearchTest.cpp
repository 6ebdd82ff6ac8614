#include <inspect/Search.h>

#include <EditorUtil/Item.h>
#include <inspect/Documents.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using testing::ElementsAre;
using testing::IsEmpty;

struct Given
{
    char const * name;
    char const * className;
    char const * category;
};

constexpr Given items[] = {
    {"tilt_shift", "Effect::TiltShift", "category_blur"},
    {"blur", "Effect::Blur", "category_blur"},
    {"audio_reverb_church", "Effect::AudioReverb", "category_space"},
    {"manual_enhance_sunrise", "Effect::ManualEnhance", "category_looks"},
    {"crop", "Effect::Crop", "category_geometry"},
};

std::vector<Hit> search(std::vector<std::string> const & query)
{
    Search search(query);
    for (Given const & item : items) {
        auto effect = createEffect(item.className);
        effect->tag = QString("effect_") + item.name;
        auto const made = EditorCollection::makeItem(
            std::move(effect), {item.category}, std::string("/stock/") + item.name + ".effect.json");
        search.offer(*made);
    }
    return search.hits();
}

std::vector<std::string> namesOf(std::vector<std::string> const & query)
{
    std::vector<std::string> names;
    for (Hit const & hit : search(query))
        names.push_back(hit.tag.substr(sizeof "effect_" - 1));
    return names;
}

TEST(Search, FindsByNameClassCategoryAndDescription)
{
    EXPECT_THAT(namesOf({"church"}), ElementsAre("audio_reverb_church"));
    EXPECT_THAT(namesOf({"manualenhance"}), IsEmpty()); // two words
    EXPECT_THAT(namesOf({"ManualEnhance"}), ElementsAre("manual_enhance_sunrise"));
    EXPECT_THAT(namesOf({"geometry"}), ElementsAre("crop"));
    // "Keeps a band of the picture sharp ..."
    EXPECT_THAT(namesOf({"sharp"}), ElementsAre("tilt_shift"));
    EXPECT_THAT(namesOf({"nothing at all"}), IsEmpty());
    EXPECT_THAT(namesOf({""}), IsEmpty());
}

TEST(Search, TheNameCountsMost)
{
    EXPECT_THAT(namesOf({"blur"}), ElementsAre("blur", "tilt_shift"));
    auto const hits = search({"BLUR"});
    EXPECT_EQ(hits[0].file, "/stock/blur.effect.json");
    EXPECT_EQ(hits[0].className, "Effect::Blur");
    EXPECT_THAT(hits[0].categories, ElementsAre("category_blur"));
    EXPECT_GT(hits[0].score, hits[1].score);
    EXPECT_GT(hits[1].score, 0);
}

TEST(Search, EveryWordHasToBeFound)
{
    EXPECT_THAT(namesOf({"blur", "tilt"}), ElementsAre("tilt_shift"));
    EXPECT_THAT(namesOf({"tilt blur"}), ElementsAre("tilt_shift"));
    EXPECT_THAT(namesOf({"blur", "church"}), IsEmpty());
    // It is in every tag.
    EXPECT_THAT(namesOf({"crop", "effect"}), ElementsAre("crop"));
}

TEST(Search, ForgivesATypingMistake)
{
    for (char const * const word : {"chruch", "churhc", "churc", "churcch", "chorch"})
        EXPECT_THAT(namesOf({word}), ElementsAre("audio_reverb_church")) << word;
    EXPECT_THAT(namesOf({"geomtryy"}), ElementsAre("crop")); // two in a long word
    EXPECT_THAT(namesOf({"corpp"}), IsEmpty());              // two in a short one
    EXPECT_THAT(namesOf({"cro"}), ElementsAre("crop"));      // a beginning
    EXPECT_THAT(namesOf({"cr"}), IsEmpty());
    // As it is written comes before what is mistaken, and both before nothing.
    EXPECT_GT(search({"church"})[0].score, search({"chur"})[0].score);
    EXPECT_GT(search({"chur"})[0].score, search({"chorch"})[0].score);
}

TEST(Search, KnowsWordsOfTheSameMeaning)
{
    EXPECT_THAT(namesOf({"defocus"}), ElementsAre("blur", "tilt_shift"));
    EXPECT_THAT(namesOf({"hall"}), ElementsAre("audio_reverb_church"));
    EXPECT_THAT(namesOf({"trim"}), ElementsAre("crop"));
}

} // namespace
