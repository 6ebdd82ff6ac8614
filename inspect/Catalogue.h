/// @file
/// The catalogue over a stock folder and a user's.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include <EditorModel/Collection.h>
#include <inspect/Export.h>
#include <inspect/RenderHost.h>

namespace Effect::Inspect {

/// Where the items are. An empty path is that of the environment, EDITOR_STOCK_DIR or EDITOR_USER_DIR, else the
/// installed stock or the user's data folder.
struct CatalogueFolders
{
    std::string stock; ///< with a folder for each collection
    std::string user;  ///< with the user's own items in `Effects`
};

/// The catalogue, with all of its items read. One at a time.
class EFFECTS_INSPECT_API Catalogue
{
public:
    /// Called now and then while items are read, with how many are done.
    using Progress = std::function<void(std::size_t done, std::size_t all)>;
    /// Called with the name of the item's collection.
    using Visit = std::function<void(std::string const & collection, EditorCollection::IItem const & item)>;

    /// Reads the items. Those that cannot be read are logged. Throws a `Failure` for a folder that is not there.
    explicit Catalogue(CatalogueFolders const & folders, Progress const & progress = {});
    ~Catalogue();

    RenderHost & host();            ///< that converts with the catalogue's resources
    std::size_t itemCount() const;  ///< in all collections
    std::size_t unreadable() const; ///< files and folders
    /// Why the stock folder is none: it holds no collection. Empty for one that holds any.
    std::string stockProblem() const;
    /// Visits every item, collection by collection.
    void forEach(Visit const & visit) const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Effect::Inspect
