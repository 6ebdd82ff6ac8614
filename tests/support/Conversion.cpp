#include "Conversion.h"

#include <Settings/Settings.h>
#include <Settings/Trace.h>

#include "LogCapture.h"

namespace Testing {

namespace {

template <class Convert> Converted traced(Convert const & convert)
{
    Converted converted;
    LogCapture const log;
    Quoril::Proc::Trace const trace;
    Effect::Factory::EffectSettings const record = convert();
    converted.stageCode = record.stageCode;
    converted.implementation = record.implementation;
    for (auto const & settings : record.settings)
        converted.settings.push_back(trace.describe(*settings).toString());
    converted.log = log.errors();
    converted.warnings = log.warnings();
    return converted;
}

} // namespace

Converted convert(Effect::Object const & effect, Effect::Factory::VideoParams const & params)
{
    return traced([&] { return Effect::Factory::videoEffectSettings(effect, params); });
}

Converted convert(Effect::Object const & effect, Effect::Factory::AudioParams const & params)
{
    return traced([&] { return Effect::Factory::audioEffectSettings(effect, params); });
}

std::string settings(std::string const & className, std::string const & calls, std::string const & fields)
{
    return R"({"class": ")" + className + R"(", "calls": [)" + calls + R"(], "fields": {)" + fields + "}}";
}

} // namespace Testing
