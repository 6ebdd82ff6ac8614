#include <inspect/Differences.h>
#include <inspect/EffectFile.h>

#include "Command.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

/// Statuses of its own, those of diff(1).
constexpr int different = 1;
constexpr int trouble = 2;

struct Options
{
    std::string left;
    std::string right;
    bool asJson = false;
};

/// Returns whether the files are the same.
bool compare(Options const & options)
{
    EffectFile const left = EffectFile::read(options.left);
    EffectFile const right = EffectFile::read(options.right);
    if (options.asJson) {
        json const patch = patchFrom(left, right);
        printJson(patch);
        return patch.empty();
    }
    auto const differences = differencesOf(left, right);
    if (differences.empty())
        return true;
    std::vector<std::vector<std::string>> rows{{"KEY", "PARAMETER", "A", "B"}};
    auto const cell = [](std::string const & text) { return text.empty() ? "-" : text; };
    for (Difference const & difference : differences)
        rows.push_back({difference.key, cell(difference.label), cell(difference.left), cell(difference.right)});
    printTable(rows);
    return false;
}

void diff(Options const & options)
{
    bool isSame = false;
    try {
        isSame = compare(options);
    } catch (std::exception const & error) {
        complain(error.what());
        throw CLI::RuntimeError(trouble);
    }
    if (!isSame)
        throw CLI::RuntimeError(different);
}

} // namespace

void addDiff(CLI::App & program)
{
    auto * const command = program.add_subcommand("diff", "How two effects differ, parameter by parameter");
    auto const options = std::make_shared<Options>();
    command->add_option("A", options->left, "Archive in either form, or item; - for standard input")
        ->required()
        ->option_text(" ");
    command->add_option("B", options->right, "The one to compare it with")->required()->option_text(" ");
    command->add_flag("--json", options->asJson, "Print the patch (RFC 6902) that makes B's document of A's");
    setExamples(*command, "  effectctl diff before.json after.bin\n"
                          "  effectctl diff --json before.json after.json >patch.json");
    command->callback([options] { diff(*options); });
}

} // namespace Host
