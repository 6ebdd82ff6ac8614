#include <inspect/Documents.h>
#include <inspect/JsonSchema.h>

#include "Command.h"
#include "Output.h"

namespace Host {

namespace {

struct Options
{
    std::vector<std::string> classNames;
    bool isOfItems = false;
    bool isClosed = false;
};

void schema(Options const & options)
{
    SchemaOptions schema;
    if (!options.classNames.empty())
        schema.classes = classesNamed(options.classNames);
    if (options.isOfItems)
        for (auto const * const info : schema.classes)
            if (!info->isEffect)
                throw Failure("an item cannot hold \"" + info->name + "\", which is not an effect");
    schema.isOfItems = options.isOfItems;
    schema.isClosed = options.isClosed;
    printJson(jsonSchema(schema));
}

} // namespace

void addSchema(CLI::App & program)
{
    auto * const command =
        program.add_subcommand("schema", "A JSON Schema of archive documents, for editors and validators");
    auto const options = std::make_shared<Options>();
    command
        ->add_option("CLASS", options->classNames,
            "Classes that a document may have, such as Effect::Crop; any effect's without one")
        ->option_text("...");
    command->add_flag("--items", options->isOfItems, "The schema of item files rather than of archive documents");
    command->add_flag("--closed", options->isClosed, "Refuse keys that the reader would ignore");
    setExamples(*command, "  effectctl schema >effect.schema.json\n"
                          "  effectctl schema --items >effect-item.schema.json\n"
                          "  effectctl schema --closed Effect::Mask >mask.schema.json");
    command->callback([options] { schema(*options); });
}

} // namespace Host
