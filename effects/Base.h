/// @file
/// The four classes between `Effect::Object` and the concrete effects. They define `type()` and `impl()`, and each is a
/// named link in the chain of classes in the archives.
#pragma once

#include <EditorModel/EffectObject.h>
#include <effects/EffectClass.h>
#include <effects/Export.h>

namespace Effect {

/// An effect that is carried out outside the render engine. The factory makes no settings of it.
struct EFFECTS_API EffectDescriptor : Object
{
    EFFECT_CLASS(EffectDescriptor)

    Type descriptorType = Type::Video; ///< what `type()` returns; archived under the key "type"

    /// The known values of `descriptorType`.
    EFFECTS_HIDDEN static constexpr Choice typeChoices[] = {{0, "Video", "Video"}, {1, "Audio", "Audio"}};

    EffectDescriptor();
    /// @param effectType  what `type()` returns
    EffectDescriptor(QString const & effectId, QString const & group, Type effectType);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe()
    {
        return description("An effect that is carried out outside the render engine.",
            parameter("type", &EffectDescriptor::descriptorType)
                .label("Type")
                .text("Whether the effect works on pictures or on sound")
                .choices(typeChoices));
    }
};

/// An effect on pictures.
struct EFFECTS_API VideoEffect : Object
{
    EFFECT_CLASS(VideoEffect)

    /// Leaves the tag empty.
    VideoEffect(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An effect on pictures."); }

private:
    VideoEffect(); // for the archives, which read the identifier afterwards
};

/// An audio effect that the render engine runs as a filter.
struct EFFECTS_API AudioFilter : Object
{
    EFFECT_CLASS(AudioFilter)

    /// Leaves the tag empty.
    AudioFilter(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An effect on sound that runs as a filter."); }

private:
    AudioFilter(); // for the archives, which read the identifier afterwards
};

/// An audio effect that the render engine runs as an effect.
struct EFFECTS_API AudioEffect : Object
{
    EFFECT_CLASS(AudioEffect)

    /// Leaves the tag empty.
    AudioEffect(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An effect on sound."); }

private:
    AudioEffect(); // for the archives, which read the identifier afterwards
};

} // namespace Effect
