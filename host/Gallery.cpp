#include <iostream>
#include <memory>

#include <inspect/FileNames.h>
#include <inspect/Gallery.h>
#include <inspect/Messages.h>
#include <inspect/Text.h>

#include "CatalogueOptions.h"
#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

namespace {

struct Options
{
    CatalogueFolders folders;
    std::string folder;
};

void gallery(Options const & options)
{
    Catalogue catalogue = readCatalogue(options.folders);
    auto const summary = writeGallery(catalogue, fileName(options.folder));
    constexpr std::size_t kilobyte = 1000;
    std::cout << quoted(options.folder) << "/index.html: " << counted(summary.effects, "effect") << ", "
              << counted(summary.items, "item") << ", " << summary.bytes / kilobyte << " kB\n";
    std::string const problem = catalogue.stockProblem();
    if (!problem.empty())
        complain(problem);
    // What could not be read has been logged, and is on the screen already.
    endWith(problem.empty() && messageCount() == 0);
}

} // namespace

void addGallery(CLI::App & program)
{
    auto * const command =
        program.add_subcommand("gallery", "A page of all effects and items, to look at in a browser");
    auto const options = std::make_shared<Options>();
    command->add_option("OUT_DIR", options->folder, "Folder to write index.html and what it loads to")->required();
    addFolders(*command, options->folders);
    setExamples(*command, "  effectctl gallery gallery\n"
                          "  effectctl gallery --stock stock /tmp/gallery && xdg-open /tmp/gallery/index.html");
    command->callback([options] { gallery(*options); });
}

} // namespace Host
