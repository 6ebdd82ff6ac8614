/// @file
/// The four classes between `Effect::Object` and the concrete effects. They fix `type()` and `impl()` and are a named
/// link in the archives' chain of classes.
#pragma once

#include <EditorModel/EffectObject.h>
#include <effects/EffectClass.h>
#include <effects/Export.h>

namespace Effect {

/// An effect that the render engine does not execute itself: what it asks for is done elsewhere.
struct EFFECTS_API EffectDescriptor : Object
{
    EFFECT_CLASS(EffectDescriptor)

    Type descriptorType = Type::Video; ///< what `type()` answers

    EffectDescriptor();
    /// The identifier, the group and what `type()` answers.
    EffectDescriptor(QString const & effectId, QString const & group, Type effectType);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe()
    {
        return description(
            "An effect that the render engine does not execute itself: what it asks for is done elsewhere.",
            parameter("type", &EffectDescriptor::descriptorType));
    }
};

/// An effect on pictures.
struct EFFECTS_API VideoEffect : Object
{
    EFFECT_CLASS(VideoEffect)

    /// The identifier and the group; the tag stays empty.
    VideoEffect(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An effect on pictures."); }

private:
    VideoEffect(); // for the archives: no effect is without an identifier
};

/// An audio effect that the engine runs as a filter.
struct EFFECTS_API AudioFilter : Object
{
    EFFECT_CLASS(AudioFilter)

    /// The identifier and the group; the tag stays empty.
    AudioFilter(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An audio effect that the engine runs as a filter."); }

private:
    AudioFilter(); // for the archives
};

/// An audio effect that the engine runs as an effect.
struct EFFECTS_API AudioEffect : Object
{
    EFFECT_CLASS(AudioEffect)

    /// The identifier and the group; the tag stays empty.
    AudioEffect(QString const & effectId, QString const & group);

    Type type() const override;
    Impl impl() const override;

    static constexpr auto describe() { return description("An audio effect that the engine runs as an effect."); }

private:
    AudioEffect(); // for the archives
};

} // namespace Effect
