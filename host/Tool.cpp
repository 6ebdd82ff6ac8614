#include <iostream>

#include <EditorUtil/ItemStorage.h>
#include <utils/EffectUtils.h>

#include "Command.h"
#include "Files.h"
#include "Output.h"
#include "RenderHost.h"

namespace Host {

using nlohmann::json;

namespace {

char const * nameOf(Tool::Type tool)
{
    switch (tool) {
    case Tool::Type::None:
        return "no tool";
    case Tool::Type::ColorAdjustment:
        return "colour adjustment";
    case Tool::Type::Crop:
        return "crop";
    case Tool::Type::PictureInPicture:
        return "picture-in-picture layout";
    case Tool::Type::Zoom:
        return "zoom";
    case Tool::Type::ChromaKey:
        return "chroma key";
    case Tool::Type::Mask:
        return "mask";
    case Tool::Type::AudioEqualizer:
        return "audio equalizer";
    case Tool::Type::AudioEffects:
        return "audio effects";
    case Tool::Type::AudioEnhancement:
        return "audio enhancement";
    case Tool::Type::AudioNoiseReduction:
        return "audio noise reduction";
    case Tool::Type::Reverb:
        return "reverb";
    case Tool::Type::Compressor:
        return "compressor";
    case Tool::Type::NoiseGate:
        return "noise gate";
    case Tool::Type::BackgroundRemoval:
        return "background removal";
    }
    return "";
}

void tool(std::vector<std::string> const & files, bool asJson)
{
    // The stock's audio effects tell the tool of an effect that nothing else does.
    EditorCollection::ItemStorage storage;
    RenderHost const host(storage);
    storage.waitForAll();

    json tools = json::array();
    for (std::string const & file : files) {
        auto const effect = readEffect(file);
        Tool::Type const found = Effect::Utils::findCorrespondingTool(*effect);
        tools.push_back({{"file", file}, {"class", effect->GetNameInArchive()}, {"tool", static_cast<int>(found)},
            {"name", nameOf(found)}});
    }
    if (asJson)
        return printJson(std::cout, tools.size() == 1 ? tools[0] : tools);
    for (json const & entry : tools)
        std::cout << entry["file"].get<std::string>() << ": " << entry["tool"] << ", "
                  << entry["name"].get<std::string>() << '\n';
}

} // namespace

void addTool(CLI::App & program)
{
    auto * const command = program.add_subcommand("tool", "The editor's tool for an effect");
    auto const files = std::make_shared<std::vector<std::string>>();
    auto const asJson = std::make_shared<bool>(false);
    command->add_option("FILE", *files, "Archives in either form, - for standard input")->required();
    command->add_flag("--json", *asJson, "Print one JSON document");
    setExamples(*command, "  effectctl tool crop.json\n  effectctl tool --json crop.json echo.bin");
    command->callback([files, asJson] { tool(*files, *asJson); });
}

} // namespace Host
