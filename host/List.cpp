#include <EditorSerialization/Registry.h>

#include "Command.h"
#include "Documents.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

/// What there is to say of a class: its default object, and of a record that is no effect only what a record has.
json describe(std::string const & className)
{
    auto const object = create(className);
    json const archived = document(*object);
    json described{{"class", className}, {"fields", ownFields(archived)}};
    std::string const base = baseOf(archived);
    described["base"] = base.empty() ? json() : json(base);
    auto const text = [](QString const & value) { return value.toStdString(); };
    if (auto const * const effect = dynamic_cast<Effect::Object const *>(object.get())) {
        described["id"] = text(effect->id);
        described["groupId"] = text(effect->groupId);
        described["tag"] = text(effect->tag);
        described["defaultTag"] = text(effect->defaultTag());
        described["type"] = static_cast<int>(effect->type());
        described["impl"] = static_cast<int>(effect->impl());
        described["hasIntensity"] = effect->hasIntensity();
        described["isTwoInput"] = effect->isTwoInput();
        described["intensity"] = effect->intensity;
        described["processingSettingsId"] = text(effect->processingSettingsId());
    } else {
        for (char const * const key : {"id", "groupId", "tag", "defaultTag", "type", "impl", "hasIntensity",
                 "isTwoInput", "intensity", "processingSettingsId"})
            described[key] = nullptr;
    }
    return described;
}

struct Options
{
    bool asJson = false;
    bool effects = false;
};

void list(Options const & options)
{
    json classes = json::array();
    for (std::string const & name : Serialize::Registry::names()) {
        json described = describe(name);
        bool const isEffect = !described["id"].is_null();
        if (isEffect || !options.effects)
            classes.push_back(std::move(described));
    }
    if (options.asJson)
        return printJson(classes);

    std::vector<std::vector<std::string>> rows{{"CLASS", "BASE", "TAG", "FIELDS"}};
    for (json const & entry : classes) {
        std::string fields;
        for (auto const & [key, value] : entry["fields"].items())
            fields += (fields.empty() ? "" : " ") + key;
        rows.push_back({entry["class"], entry["base"].is_null() ? "-" : entry["base"].get<std::string>(),
            entry["tag"].is_null() || entry["tag"] == "" ? "-" : entry["tag"].get<std::string>(), fields});
    }
    printTable(rows);
}

} // namespace

void addList(CLI::App & program)
{
    auto * const command = program.add_subcommand("list", "Every class that can stand in an archive");
    auto const options = std::make_shared<Options>();
    command->add_flag("--json", options->asJson, "Print one JSON document, an array with an object for each class");
    command->add_flag("--effects", options->effects, "Only classes of effects, without those of records inside them");
    setExamples(*command,
        "  effectctl list\n"
        "  effectctl list | cut -f 1                     (off a terminal, tabs stand between the columns)\n"
        "  effectctl list --json | jq '.[] | select(.isTwoInput) | .class'");
    command->callback([options] { list(*options); });
}

} // namespace Host
