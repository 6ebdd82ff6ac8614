/// @file
/// What the render engine gets for an effect, as the examples show it.
#pragma once

#include <string>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/EffectObject.h>
#include <effects/Schema.h>
#include <Settings/Trace.h>

/// The settings of an effect on a clip of four seconds in full HD: for each settings object its class, the setter calls
/// and the public data members, a line each.
inline std::string convertEffect(Effect::Object const & effect)
{
    if (!Effect::Schema::of(effect)->isConverted)
        return "carried out by the editor itself\n";
    Effect::Factory::VideoParams params;
    params.frameGeometry = {1920, 1080};
    params.duration = 4 * MTime::unitsPerSecond;
    Quoril::Proc::Trace const trace; // records the calls that the conversion makes
    auto const record = effect.type() == Effect::Type::Audio ? Effect::Factory::audioEffectSettings(effect, {})
                                                             : Effect::Factory::videoEffectSettings(effect, params);
    if (record.settings.empty())
        return "nothing to do\n";
    std::string text = "stage " + std::to_string(record.stageCode) + ", " + record.implementation + '\n';
    for (auto const & settings : record.settings) {
        text += settings->GetClassId() + '\n';
        for (auto const & call : trace.calls(*settings))
            text += "  " + call.setter + ' ' + Quoril::Proc::Value(call.arguments).toString() + '\n';
        for (auto const & [name, value] : settings->GetFields())
            text += "  " + name + " = " + value.toString() + '\n';
    }
    return text;
}
