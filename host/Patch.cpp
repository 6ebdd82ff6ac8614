#include <EditorSerialization/JsonArchive.h>
#include <inspect/EffectFile.h>
#include <inspect/Files.h>

#include "Command.h"

namespace Host {

namespace {

struct Options
{
    std::string file;
    std::string patch;
    std::string out;
};

nlohmann::json readPatch(std::string const & path)
{
    std::string const text = readFile(path);
    try {
        return Serialize::Json::parse(text);
    } catch (std::exception const & error) {
        throw Failure(path + ": " + error.what());
    }
}

void patch(Options const & options)
{
    EffectFile file = EffectFile::read(options.file);
    file.patch(readPatch(options.patch));
    writeFile(options.out.empty() ? options.file : options.out, file.bytes());
}

} // namespace

void addPatch(CLI::App & program)
{
    auto * const command = program.add_subcommand("patch", "Apply a patch to an effect, all of it or nothing");
    auto const options = std::make_shared<Options>();
    command
        ->add_option("FILE", options->file,
            "Archive in either form, or item, which is changed in place; - for standard input and output")
        ->required()
        ->option_text(" ");
    command->add_option("PATCH", options->patch, "JSON patch (RFC 6902), such as effectctl diff --json prints")
        ->required()
        ->option_text(" ");
    command->add_option("-o,--output", options->out, "File to write instead, in the same form; - for standard output")
        ->option_text("OUT");
    setExamples(*command, "  effectctl patch preset.json changes.json\n"
                          "  effectctl diff --json a.json b.json | effectctl patch c.bin - -o d.bin");
    command->callback([options] { patch(*options); });
}

} // namespace Host
