#include <EditorUtil/ItemStorage.h>
#include <inspect/Documents.h>
#include <inspect/Files.h>
#include <inspect/RenderHost.h>
#include <inspect/Text.h>
#include <inspect/ToolName.h>
#include <utils/EffectUtils.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

struct Options : FileOptions
{
    std::string className;
};

json describe(Effect::Object const & effect)
{
    Tool::Type const tool = Effect::Utils::findCorrespondingTool(effect);
    return {{"class", effect.GetNameInArchive()}, {"tool", static_cast<int>(tool)}, {"name", toolName(tool)}};
}

/// The cells behind that of the file.
std::vector<std::string> cells(json const & found)
{
    return {found["class"], toText(found["tool"]), found["name"]};
}

void toolOfClass(Options const & options)
{
    json const found = describe(*createEffect(options.className));
    if (!printIfJson(options, found))
        printTable({{"CLASS", "TOOL", "NAME"}, cells(found)});
}

void toolOfFiles(Options const & options)
{
    std::vector<std::vector<std::string>> rows{{"FILE", "CLASS", "TOOL", "NAME"}};
    bool const allDone = describeFiles(options, expand(options.arguments, effectSuffixes),
        {"Finding tools", [](std::string const & file) { return describe(*readEffect(file)); },
            [&rows](json const & found) {
                auto row = cells(found);
                row.insert(row.begin(), quoted(found["file"]));
                rows.push_back(std::move(row));
            }});
    if (rows.size() > 1)
        printTable(rows);
    endWith(allDone);
}

void tool(Options const & options)
{
    // Some effects have the tool of the stock's audio effects, which are needed to know them.
    EditorCollection::ItemStorage storage;
    RenderHost const host(storage);
    storage.waitForAll();
    if (options.className.empty())
        toolOfFiles(options);
    else
        toolOfClass(options);
}

} // namespace

void addTool(CLI::App & program)
{
    auto * const command = program.add_subcommand("tool", "The editor's tool for an effect");
    auto const options = std::make_shared<Options>();
    auto * const files = addFiles(*command, *options, "Archives in either form or items");
    addClass(*command, options->className, {files});
    addJson(*command, *options, "; for --class, the object alone");
    setExamples(*command, "  effectctl tool crop.json\n"
                          "  effectctl tool --class Effect::Crop\n"
                          "  effectctl tool --json crop.json echo.bin\n"
                          "  effectctl tool stock/AudioEffects");
    command->callback([options] { tool(*options); });
}

} // namespace Host
