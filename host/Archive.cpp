#include <memory>

#include <inspect/FileGroup.h>
#include <inspect/Files.h>
#include <inspect/Forms.h>
#include <inspect/Parallel.h>
#include <inspect/Targets.h>
#include <inspect/Text.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

struct Options : FileOptions
{
    std::string folder;
    std::string form;
};

std::optional<Form> formNamed(std::string const & name)
{
    for (Form const form : {Form::Json, Form::Binary})
        if (name == suffixOf(form) + 1)
            return form;
    return std::nullopt;
}

/// The form that a file's suffix says; of standard output, which has none, JSON.
std::optional<Form> formOf(std::string const & path)
{
    std::size_t const dot = path.rfind('.');
    return path == "-" ? Form::Json : dot == path.npos ? std::nullopt : formNamed(path.substr(dot + 1));
}

/// The file's bytes in that form. A `Failure` names the file.
std::string convertedFile(std::string const & file, Form form)
{
    std::string const bytes = readFile(file);
    try {
        return inForm(bytes, form);
    } catch (std::exception const & error) {
        throw Failure(file + ": " + error.what());
    }
}

void archiveOne(Options const & options)
{
    std::string const & to = options.arguments[1];
    std::optional<Form> const form = options.form.empty() ? formOf(to) : formNamed(options.form);
    if (!form)
        throw CLI::ValidationError("OUT", to + " ends neither in .json nor in .bin, and there is no --format");
    writeFile(to, convertedFile(options.arguments[0], *form));
}

/// The name of the file in another form.
std::string renamed(std::string const & name, Form form)
{
    std::size_t const dot = name.rfind('.');
    bool const hasSuffix = dot != name.npos && name.find('/', dot) == name.npos && formOf(name);
    return name.substr(0, hasSuffix ? dot : name.npos) + suffixOf(form);
}

void archiveAll(Options const & options)
{
    Form const form = *formNamed(options.form);
    std::vector<Target> files = targets(options.arguments, effectSuffixes);
    for (Target & file : files)
        if (file.error.empty())
            file.relative = renamed(file.relative, form);
    refuseCollisions(files);
    FileGroup group;
    parallel(files.size(), [&](std::size_t index) {
        Target & file = files[index];
        try {
            if (file.error.empty())
                group.add(options.folder + '/' + file.relative, convertedFile(file.file, form));
        } catch (std::exception const & error) {
            file.error = error.what();
        }
    });
    std::vector<std::string> problems = group.commit();
    json documents = json::array();
    for (Target const & file : files) {
        json document{{"file", asText(file.file)}};
        if (file.error.empty())
            document["written"] = asText(options.folder + '/' + file.relative);
        else
            document["error"] = asText(file.error);
        documents.push_back(std::move(document));
        if (!file.error.empty())
            problems.push_back(file.error);
    }
    for (std::string const & problem : problems)
        complain(problem);
    if (options.asJson)
        printJson(documents);
    else
        for (json const & document : documents)
            printIfJson(options, document);
    endWith(problems.empty());
}

void checkUsage(Options const & options)
{
    if (options.folder.empty() && options.arguments.size() != 2)
        throw CLI::ValidationError("IN and OUT are required, or --to with any number of files");
    if (options.folder.empty() && (options.asJson || options.asJsonLines))
        throw CLI::ValidationError("--json and --jsonl require --to");
    if (!options.folder.empty() && options.form.empty())
        throw CLI::ValidationError("--to requires --format");
}

} // namespace

void addArchive(CLI::App & program)
{
    auto * const command = program.add_subcommand("archive", "Turn archives into the other form");
    auto const options = std::make_shared<Options>();
    command
        ->add_option("PATH", options->arguments,
            "IN and OUT: an archive in either form or item, and the file to write, whose suffix, .json or .bin, says "
            "in "
            "which form; - for standard input and output, which is JSON. With --to, any number of archives and items, "
            "folders of them, and quoted patterns such as 'folder/*'")
        ->required()
        ->option_text("...");
    command
        ->add_option("--to", options->folder, "Write every file to its place below this folder, rather than one to OUT")
        ->option_text("DIR");
    command->add_option("--format", options->form, "The form to write whatever the suffix: json or bin")
        ->option_text("FORM")
        ->check(CLI::IsMember({suffixOf(Form::Json) + 1, suffixOf(Form::Binary) + 1}));
    addJson(*command, *options);
    setExamples(*command, "  effectctl archive crop.json crop.bin\n"
                          "  effectctl archive crop.bin crop.json\n"
                          "  effectctl archive - - --format bin < crop.json > crop.bin\n"
                          "  effectctl archive --to small --format bin projects");
    command->parse_complete_callback([options] { checkUsage(*options); });
    command->callback([options] { options->folder.empty() ? archiveOne(*options) : archiveAll(*options); });
}

} // namespace Host
