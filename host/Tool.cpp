#include <EditorUtil/ItemStorage.h>
#include <utils/EffectUtils.h>

#include "Command.h"
#include "Files.h"
#include "Output.h"
#include "RenderHost.h"
#include "ToolName.h"

namespace Host {

using nlohmann::json;

namespace {

json describe(std::string const & file)
{
    auto const effect = readEffect(file);
    Tool::Type const tool = Effect::Utils::findCorrespondingTool(*effect);
    return {{"class", effect->GetNameInArchive()}, {"tool", static_cast<int>(tool)}, {"name", toolName(tool)}};
}

void tool(FileOptions const & options)
{
    // The stock's audio effects tell the tool of an effect that nothing else does.
    EditorCollection::ItemStorage storage;
    RenderHost const host(storage);
    storage.waitForAll();

    std::vector<std::vector<std::string>> rows{{"FILE", "CLASS", "TOOL", "NAME"}};
    bool const allDone = describeFiles(options, expand(options.arguments, effectSuffixes),
        {"Finding tools", describe, [&rows](json const & found) {
             rows.push_back({quoted(found["file"]), found["class"], found["tool"].dump(), found["name"]});
         }});
    if (rows.size() > 1)
        printTable(rows);
    endWith(allDone);
}

} // namespace

void addTool(CLI::App & program)
{
    auto * const command = program.add_subcommand("tool", "The editor's tool for an effect");
    auto const options = std::make_shared<FileOptions>();
    addFiles(*command, *options, "Archives in either form or items")->required();
    command->add_flag("--json", options->asJson, filesAsJson);
    setExamples(*command, "  effectctl tool crop.json\n"
                          "  effectctl tool --json crop.json echo.bin\n"
                          "  effectctl tool stock/AudioEffects");
    command->callback([options] { tool(*options); });
}

} // namespace Host
