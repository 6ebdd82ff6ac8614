#include <inspect/Conversion.h>

#include <effects/Holder.h>
#include <inspect/Report.h>
#include <inspect/Resources.h>
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

/// Files that no conversion reads, such as the picture of an overlay: what those cannot read, they have logged.
void addResources(Object const & effect, json const & record, Outcome & outcome)
{
    if (record.contains("warnings"))
        return;
    for (ResourceUse const & use : resourcesOf(effect)) {
        if (use.outcome == ResourceUse::Outcome::Found)
            continue;
        outcome.problems.push_back(use.message);
        if (outcome.result != Outcome::Result::Failed)
            outcome.result = Outcome::Result::Incomplete;
    }
}

void addHeld(EffectsHolder const & holder, json const & record, Outcome & outcome)
{
    json const & records = record[effectsKey];
    for (std::size_t index = 0; index < records.size(); ++index) {
        if (records[index].is_null())
            continue;
        Object const & held = *holder.effects[index];
        if (auto const * const inner = dynamic_cast<EffectsHolder const *>(&held)) {
            addHeld(*inner, records[index], outcome);
            continue;
        }
        ++outcome.held;
        addProblems(records[index], outcome);
        addResources(held, records[index], outcome);
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
    if (params.isReported)
        record["report"] = reportOf(host, effect, params);
    return record;
}

Outcome outcomeOf(Effect::Object const & effect, json const & record)
{
    Outcome outcome;
    if (auto const * const holder = dynamic_cast<EffectsHolder const *>(&effect)) {
        outcome.result = Outcome::Result::Holder;
        addHeld(*holder, record, outcome);
    } else if (effect.impl() == Effect::Impl::Descriptor) {
        outcome.result = Outcome::Result::Descriptor;
    } else {
        addProblems(record, outcome);
        addResources(effect, record, outcome);
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
