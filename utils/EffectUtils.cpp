#include <utils/EffectUtils.h>

#include <EditorModel/CollectionProvider.h>
#include <effects/PrivateIdentity.h>
#include <FileSystem/FileSystem.h>
#include <utils/CollectionNames.h>

#include <QMap>

namespace Effect::Utils {

namespace {

using Tools = QMap<QString, Tool::Type>;

Tool::Type toolOf(QString const & effectId)
{
    static Tools const tools{
        {Id::AutoContrast, Tool::Type::ColorAdjustment},
        {Id::AutoSaturation, Tool::Type::ColorAdjustment},
        {Id::WhiteBalance, Tool::Type::ColorAdjustment},
        {Id::MagicEnhance, Tool::Type::ColorAdjustment},
        {Id::ManualEnhance, Tool::Type::ColorAdjustment},
        {Id::ChromaKey, Tool::Type::ChromaKey},
        {Id::Crop, Tool::Type::Crop},
        {Id::Mask, Tool::Type::Mask},
        {Id::AudioEqualizer, Tool::Type::AudioEqualizer},
        {Id::Reverb, Tool::Type::Reverb},
        {Id::Compressor, Tool::Type::Compressor},
        {Id::NoiseGate, Tool::Type::NoiseGate},
        {Id::AudioEnhance, Tool::Type::AudioEnhancement},
        {Id::BackgroundRemove, Tool::Type::BackgroundRemoval},
        {Id::PictureInPicture, Tool::Type::PictureInPicture},
        {Id::SideBySide, Tool::Type::PictureInPicture},
        {Id::AudioEcho, Tool::Type::AudioEffects},
        {Id::AudioMuffle, Tool::Type::AudioEffects},
        {Id::Distortion, Tool::Type::AudioEffects},
        {Id::Flanger, Tool::Type::AudioEffects},
        {Id::Vibrato, Tool::Type::AudioEffects},
        {Id::AudioPitch, Tool::Type::AudioEffects},
        {Id::AudioPhone, Tool::Type::AudioEffects},
        {Id::AudioRadio, Tool::Type::AudioEffects},
        {Id::AudioRobot, Tool::Type::AudioEffects},
    };
    return tools.value(effectId, Tool::Type::None);
}

Tool::Type toolOfGroup(QString const & group)
{
    static Tools const tools{
        {Group::GroupPip, Tool::Type::PictureInPicture},
        {Group::GroupAudioNoiseReduction, Tool::Type::AudioNoiseReduction},
        {Group::GroupZoom, Tool::Type::Zoom},
    };
    return tools.value(group, Tool::Type::None);
}

} // namespace

void registerEffectResource(Object const & effect)
{
    if (effect.resourcePath.isEmpty() || !FS::exists(effect.resourcePath))
        return;
    if (Resource::isResourceRegistered(effect.resource))
        return;
    MTime const length = effect.range ? effect.range->length() : MTime();
    Resource::registerResource(effect.resource, effect.resourcePath, 0, length, Resource::Timing());
}

void unregisterEffectResource(Object const & effect)
{
    if (effect.resourcePath.isEmpty() || !Resource::isResourceRegistered(effect.resource))
        return;
    Resource::unregisterResource(effect.resource);
}

Tool::Type findCorrespondingTool(Object const & effect)
{
    if (Tool::Type const tool = toolOf(effect.id); tool != Tool::Type::None)
        return tool;
    if (Tool::Type const tool = toolOfGroup(effect.groupId); tool != Tool::Type::None)
        return tool;
    auto const * const audio = EditorCollection::CollectionProvider::collection(CollectionNames::effectsAudio);
    return audio && audio->itemByTag(effect.tag) ? Tool::Type::AudioEffects : Tool::Type::None;
}

} // namespace Effect::Utils
