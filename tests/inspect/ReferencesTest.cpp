#include <inspect/References.h>

#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Mask.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using testing::ElementsAre;
using Testing::Folder;
using testing::IsEmpty;

TEST(References, HolderEffectsAreFound)
{
    Effect::EffectsHolder holder;
    auto inner = std::make_unique<Effect::EffectsHolder>();
    inner->addEffect(std::make_unique<Effect::Crop>());
    holder.addEffect(std::move(inner));
    holder.addEffect(nullptr);
    holder.addEffect(std::make_unique<Effect::Opacity>());
    std::vector<std::string> names;
    for (Effect::Object * const effect : effectsIn(holder))
        names.push_back(effect->GetNameInArchive());
    EXPECT_THAT(
        names, ElementsAre("Effect::EffectsHolder", "Effect::EffectsHolder", "Effect::Crop", "Effect::Opacity"));
}

TEST(References, TracksAreThoseOfAllFrames)
{
    Effect::Mask mask;
    Effect::FrameConceal conceal;
    mask.addFrame(*conceal.setTrackingId("face"));
    Effect::FrameHighlight highlight;
    mask.addFrame(*highlight.setTrackingId("ball"));
    mask.addFrame(*conceal.setTrackingId("face"));
    mask.addFrame(*conceal.setTrackingId(""));
    EXPECT_THAT(tracksOf(mask), ElementsAre("ball", "face"));
    Effect::Crop crop;
    EXPECT_THAT(tracksOf(crop), IsEmpty());
}

TEST(References, PathsOfItemsAreRelativeToThem)
{
    EXPECT_EQ(resolved("a/b.cube", "/stock/Luts/warm.effect.json", true), "/stock/Luts/a/b.cube");
    EXPECT_EQ(resolved("../b.cube", "Luts/warm.effect.json", true), "b.cube");
    EXPECT_EQ(resolved("/b.cube", "Luts/warm.effect.json", true), "/b.cube");
    EXPECT_EQ(resolved("b.cube", "Luts/warm.json", false), "b.cube");
    EXPECT_EQ(resolved("", "Luts/warm.effect.json", true), "");
}

TEST(References, AShaderBringsItsCompanions)
{
    Folder const folder;
    std::string const shader = folder.write(
        "glow.fs", "/*{\"IMPORTED\": {\"grain\": {\"PATH\": \"pictures/grain.png\"}}}*/\nvoid main() {}\n");
    EXPECT_THAT(companionsOf(shader), ElementsAre(folder.path("pictures/grain.png")));
    folder.write("glow.vs", "void main() {}\n");
    EXPECT_THAT(companionsOf(shader), ElementsAre(folder.path("glow.vs"), folder.path("pictures/grain.png")));
    EXPECT_THAT(companionsOf(folder.write("no.fs", "nothing")), IsEmpty());
    EXPECT_THAT(companionsOf(folder.write("table.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n")), IsEmpty());
}

} // namespace
