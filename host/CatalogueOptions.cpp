#include "CatalogueOptions.h"

#include "Progress.h"

namespace Host {

using Effect::Inspect::Catalogue;
using Effect::Inspect::CatalogueFolders;

void addFolders(CLI::App & command, CatalogueFolders & folders)
{
    command
        .add_option("--stock", folders.stock,
            "Stock folder; unless given, that of the environment's EDITOR_STOCK_DIR, else the installed one")
        ->option_text("DIR");
    command
        .add_option("--user", folders.user,
            "User's folder; unless given, that of the environment's EDITOR_USER_DIR, else the user's data folder")
        ->option_text("DIR");
}

Catalogue readCatalogue(CatalogueFolders const & folders)
{
    Progress progress("Reading items");
    return Catalogue(folders, [&progress](std::size_t done, std::size_t all) { progress.show(done, all); });
}

} // namespace Host
