#include <inspect/Conversion.h>

#include <effects/Effects.h>
#include <inspect/Text.h>
#include <utils/EffectUtils.h>

namespace Effect::Inspect {

using nlohmann::json;

namespace {

constexpr char const * effectsKey = "effects";

/// What an effect that is no holder was converted without, or why it was not converted.
void addProblems(json const & record, Outcome & outcome)
{
    bool const isConverted = !record["settings"].empty();
    std::size_t const before = outcome.problems.size();
    for (char const * const key : {"log", "warnings"})
        for (json const & line : record.value(key, json::array()))
            outcome.problems.push_back(line);
    if (!isConverted && outcome.problems.size() == before)
        outcome.problems.emplace_back("no settings came of it");
    if (!isConverted)
        outcome.result = Outcome::Result::Failed;
    else if (outcome.problems.size() > before && outcome.result != Outcome::Result::Failed)
        outcome.result = Outcome::Result::Incomplete;
}

void addHeld(json const & record, Outcome & outcome)
{
    for (json const & held : record[effectsKey]) {
        if (held.is_null())
            continue;
        if (held.contains(effectsKey)) {
            addHeld(held, outcome);
            continue;
        }
        ++outcome.held;
        addProblems(held, outcome);
    }
}

} // namespace

void registerResources(Effect::Object const & effect)
{
    Effect::Utils::registerEffectResource(effect);
    if (auto const * const holder = dynamic_cast<Effect::EffectsHolder const *>(&effect))
        for (auto const & held : holder->effects)
            if (held)
                registerResources(*held);
}

json recordOf(RenderHost & host, Effect::Object const & effect, RenderParams const & params)
{
    json record = host.convert(effect, params);
    if (auto const * const holder = dynamic_cast<Effect::EffectsHolder const *>(&effect)) {
        json & records = record[effectsKey] = json::array();
        for (auto const & held : holder->effects)
            records.push_back(held ? recordOf(host, *held, params) : json());
    }
    return record;
}

Outcome outcomeOf(Effect::Object const & effect, json const & record)
{
    Outcome outcome;
    if (record.contains(effectsKey)) {
        outcome.result = Outcome::Result::Holder;
        addHeld(record, outcome);
    } else if (effect.impl() == Effect::Impl::Descriptor) {
        outcome.result = Outcome::Result::Descriptor;
    } else {
        addProblems(record, outcome);
    }
    return outcome;
}

char const * toText(Outcome::Result result)
{
    switch (result) {
    case Outcome::Result::Converted:
        return "converted";
    case Outcome::Result::Descriptor:
        return "descriptor";
    case Outcome::Result::Holder:
        return "holder";
    case Outcome::Result::Incomplete:
        return "incomplete";
    case Outcome::Result::Failed:
        return "failed";
    }
    return "";
}

} // namespace Effect::Inspect
