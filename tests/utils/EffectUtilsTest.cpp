#include <utils/EffectUtils.h>

#include <memory>
#include <utility>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/Resource.h>
#include <effects/Base.h>
#include <effects/CleanUp.h>
#include <effects/Composition.h>
#include <effects/Identity.h>
#include <effects/PrivateIdentity.h>
#include <effects/Shaders.h>
#include <support/Items.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using namespace Effect::Utils;

/// An effect whose resource is a file, under a name of the test's own.
class EffectResourceTest : public testing::Test
{
protected:
    EffectResourceTest()
    {
        effect.resource =
            Resource::ID(testing::UnitTest::GetInstance()->current_test_info()->name(), Resource::Type::Blob);
        effect.resourcePath = m_folder.path() + "/file";
        QFile file(effect.resourcePath);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ~EffectResourceTest() override { Resource::unregisterResource(effect.resource); }

    bool isRegistered() const { return Resource::isResourceRegistered(effect.resource); }
    QString registeredPath() const { return Resource::registeredPath(effect.resource.name()); }

    Lut effect;

private:
    QTemporaryDir m_folder;
};

TEST_F(EffectResourceTest, IsRegisteredAndUnregistered)
{
    EXPECT_FALSE(isRegistered());
    registerEffectResource(effect);
    EXPECT_TRUE(isRegistered());
    EXPECT_EQ(registeredPath(), effect.resourcePath);
    unregisterEffectResource(effect);
    EXPECT_FALSE(isRegistered());
}

TEST_F(EffectResourceTest, HasTheLengthOfTheRange)
{
    registerEffectResource(effect);
    EXPECT_EQ(Resource::registration(effect.resource)->length, MTime());
    EXPECT_EQ(Resource::registration(effect.resource)->index, 0);
    unregisterEffectResource(effect);

    effect.range = Types::Range(MTime(5), MTime(7));
    registerEffectResource(effect);
    EXPECT_EQ(Resource::registration(effect.resource)->length, MTime(7));
    EXPECT_EQ(Resource::registration(effect.resource)->timing.length, MTime());
}

TEST_F(EffectResourceTest, WithoutAPathIsNeitherRegisteredNorUnregistered)
{
    QString const path = std::exchange(effect.resourcePath, QString(""));
    registerEffectResource(effect);
    EXPECT_FALSE(isRegistered());

    effect.resourcePath = path;
    registerEffectResource(effect);
    effect.resourcePath = QString();
    unregisterEffectResource(effect);
    EXPECT_TRUE(isRegistered());
}

TEST_F(EffectResourceTest, WithoutAFileIsNotRegistered)
{
    effect.resourcePath += ".gone";
    registerEffectResource(effect);
    EXPECT_FALSE(isRegistered());
}

TEST_F(EffectResourceTest, IsUnregisteredWhenTheFileIsGone)
{
    registerEffectResource(effect);
    ASSERT_TRUE(QFile::remove(effect.resourcePath));
    unregisterEffectResource(effect);
    EXPECT_FALSE(isRegistered());
}

TEST_F(EffectResourceTest, TheFirstRegistrationWins)
{
    registerEffectResource(effect);
    QString const first = std::exchange(effect.resourcePath, effect.resourcePath + "2");
    ASSERT_TRUE(QFile::copy(first, effect.resourcePath));
    registerEffectResource(effect);
    EXPECT_EQ(registeredPath(), first);
}

TEST_F(EffectResourceTest, MayBeUnregisteredWithoutARegistration)
{
    unregisterEffectResource(effect);
    EXPECT_FALSE(isRegistered());
}

TEST_F(EffectResourceTest, AFolderIsAResourceToo)
{
    // What there is at the path is the registry's affair.
    effect.resourcePath = effect.resourcePath.section('/', 0, -2);
    registerEffectResource(effect);
    EXPECT_TRUE(isRegistered());
}

TEST(FindCorrespondingTool, GoesByTheIdentifier)
{
    struct Row
    {
        QString const & id;
        int tool;
    };
    Row const rows[] = {
        {Id::AutoContrast, 4},
        {Id::AutoSaturation, 4},
        {Id::WhiteBalance, 4},
        {Id::MagicEnhance, 4},
        {Id::ManualEnhance, 4},
        {Id::ChromaKey, 8},
        {Id::Crop, 5},
        {Id::Mask, 11},
        {Id::AudioEqualizer, 14},
        {Id::Reverb, 18},
        {Id::Compressor, 19},
        {Id::NoiseGate, 20},
        {Id::AudioEnhance, 16},
        {Id::BackgroundRemove, 24},
        {Id::PictureInPicture, 6},
        {Id::SideBySide, 6},
        {Id::AudioEcho, 15},
        {Id::AudioMuffle, 15},
        {Id::Distortion, 15},
        {Id::Flanger, 15},
        {Id::Vibrato, 15},
        {Id::AudioPitch, 15},
        {Id::AudioPhone, 15},
        {Id::AudioRadio, 15},
        {Id::AudioRobot, 15},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(static_cast<int>(findCorrespondingTool(VideoEffect(row.id, QString()))), row.tool)
            << row.id.toStdString();
        // Whatever the group.
        EXPECT_EQ(static_cast<int>(findCorrespondingTool(AudioFilter(row.id, Group::GroupZoom))), row.tool);
    }
}

TEST(FindCorrespondingTool, ElseByTheGroup)
{
    EXPECT_EQ(static_cast<int>(findCorrespondingTool(VideoEffect("x", Group::GroupPip))), 6);
    EXPECT_EQ(static_cast<int>(findCorrespondingTool(VideoEffect("x", Group::GroupAudioNoiseReduction))), 17);
    EXPECT_EQ(static_cast<int>(findCorrespondingTool(VideoEffect("x", Group::GroupZoom))), 7);
    EXPECT_EQ(findCorrespondingTool(AudioAiDenoise()), Tool::Type::AudioNoiseReduction);
    EXPECT_EQ(findCorrespondingTool(AudioNoiseSuppress()), Tool::Type::AudioNoiseReduction);
}

TEST(FindCorrespondingTool, ElseByTheStocksAudioEffects)
{
    Testing::ManualStorage const storage;
    ContentProvider const provider;
    AudioMonoChannel const effect;
    EXPECT_EQ(findCorrespondingTool(effect), Tool::Type::None);

    // An item of another collection does not count; loads 0 and 2 are those of the video and the audio effects.
    storage.deliver(0, std::make_unique<AudioMonoChannel>());
    EXPECT_EQ(findCorrespondingTool(effect), Tool::Type::None);
    storage.deliver(2, std::make_unique<AudioMonoChannel>());
    EXPECT_EQ(findCorrespondingTool(effect), Tool::Type::AudioEffects);
    // It goes by the tag alone.
    AudioMonoChannel other;
    other.tag = "another";
    EXPECT_EQ(findCorrespondingTool(other), Tool::Type::None);
    VideoEffect tagged("x", "x");
    tagged.tag = effect.tag;
    EXPECT_EQ(findCorrespondingTool(tagged), Tool::Type::AudioEffects);
}

TEST(FindCorrespondingTool, ElseThereIsNone)
{
    EXPECT_EQ(findCorrespondingTool(Opacity()), Tool::Type::None); // without a catalogue
    Testing::ManualStorage const storage;
    ContentProvider const provider;
    EXPECT_EQ(findCorrespondingTool(Opacity()), Tool::Type::None);
    EXPECT_EQ(findCorrespondingTool(EffectDescriptor()), Tool::Type::None);
}

} // namespace
