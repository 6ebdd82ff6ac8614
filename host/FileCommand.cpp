#include "FileCommand.h"

#include <iostream>

#include <unistd.h>

#include <inspect/Text.h>

#include "Output.h"
#include "Progress.h"

namespace Host {

using nlohmann::json;

CLI::Option * addFiles(CLI::App & command, FileOptions & options, std::string const & what)
{
    return command
        .add_option("FILE", options.arguments,
            what + ", folders of them, quoted patterns such as 'folder/*', or - for standard input")
        ->option_text("...");
}

void addJson(CLI::App & command, FileOptions & options, std::string const & otherwise)
{
    auto * const array = command.add_flag(
        "--json", options.asJson, "Print one JSON document, an array with an object for each file" + otherwise);
    command.add_flag("--jsonl", options.asJsonLines, "Print a JSON document a line, an object for each file")
        ->excludes(array);
}

bool printIfJson(FileOptions const & options, json const & document)
{
    if (options.asJson)
        printJson(document);
    else if (options.asJsonLines)
        std::cout << toText(document) << '\n';
    return options.asJson || options.asJsonLines;
}

CLI::Option * addClass(CLI::App & command, std::string & className, std::vector<CLI::Option *> const & others)
{
    auto * const option =
        command.add_option("--class", className, "Default effect of this class, such as Effect::Blur")
            ->option_text("NAME");
    auto sources = others;
    sources.push_back(option);
    command.parse_complete_callback([sources] {
        std::vector<std::string> names;
        std::size_t given = 0;
        for (CLI::Option const * const source : sources) {
            names.push_back(source->get_name());
            given += source->count() > 0 ? 1 : 0;
        }
        if (given != 1)
            throw CLI::ValidationError("exactly one of " + joined(names, ", ") + " is required");
    });
    return option;
}

void printFileHeading(std::string const & file)
{
    std::cout << painted(Look::Heading, quoted(file) + ':') << '\n';
}

bool describeFiles(FileOptions const & options, std::vector<File> const & files, FileTask const & task)
{
    json documents = json::array();
    bool allDone = true;
    Progress progress(task.work);
    for (std::size_t index = 0; index < files.size(); ++index) {
        File const & file = files[index];
        progress.show(index, files.size());
        json described;
        try {
            if (!file.error.empty())
                throw Failure(file.error);
            Description description = task.describe(file.name);
            described = std::move(description.fields);
            described["file"] = asText(file.name);
            for (std::string const & fault : description.faults)
                complain(file.name + ": " + fault);
            allDone = allDone && description.faults.empty();
        } catch (std::exception const & error) {
            complain(error.what());
            described = {{"file", asText(file.name)}, {"error", asText(error.what())}};
            allDone = false;
        }
        if (options.asJson) {
            documents.push_back(std::move(described));
        } else if (options.asJsonLines) {
            Progress::hide();
            printIfJson(options, described);
        } else if (!described.contains("error")) {
            Progress::hide();
            task.print(described);
            // On a terminal, each result is shown at once; elsewhere they are written in large pieces.
            if (isTerminal(STDOUT_FILENO))
                std::cout.flush();
        }
    }
    Progress::hide();
    if (options.asJson)
        printJson(documents);
    return allDone;
}

void endWith(bool allDone)
{
    if (!allDone)
        throw CLI::RuntimeError(Status::badInput);
}

} // namespace Host
