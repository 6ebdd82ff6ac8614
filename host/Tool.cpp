#include <iostream>

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
    return {{"file", asText(file)}, {"class", effect->GetNameInArchive()}, {"tool", static_cast<int>(tool)},
        {"name", toolName(tool)}};
}

/// One bad file does not keep the others from being told.
void tool(std::vector<std::string> const & files, bool asJson)
{
    // The stock's audio effects tell the tool of an effect that nothing else does.
    EditorCollection::ItemStorage storage;
    RenderHost const host(storage);
    storage.waitForAll();

    json tools = json::array();
    bool failed = false;
    for (std::string const & file : files) {
        try {
            tools.push_back(describe(file));
            if (!asJson)
                std::cout << file << ": " << tools.back()["tool"] << ", " << tools.back()["name"].get<std::string>()
                          << '\n';
        } catch (std::exception const & error) {
            complain(error);
            tools.push_back({{"file", asText(file)}, {"error", asText(error.what())}});
            failed = true;
        }
    }
    if (asJson)
        printJson(std::cout, tools);
    if (failed)
        throw CLI::RuntimeError(Status::badInput);
}

} // namespace

void addTool(CLI::App & program)
{
    auto * const command = program.add_subcommand("tool", "The editor's tool for an effect");
    auto const files = std::make_shared<std::vector<std::string>>();
    auto const asJson = std::make_shared<bool>(false);
    command->add_option("FILE", *files, "Archives in either form, - for standard input")->required();
    command->add_flag("--json", *asJson, "Print one JSON document, an array with an object for each file");
    setExamples(*command, "  effectctl tool crop.json\n  effectctl tool --json crop.json echo.bin");
    command->callback([files, asJson] { tool(*files, *asJson); });
}

} // namespace Host
