/// @file
/// A page of all effects and catalogue items, to be looked at in a browser without a server.
#pragma once

#include <cstddef>

#include <inspect/Catalogue.h>
#include <inspect/Export.h>

#include <QString>

namespace Effect::Inspect {

/// What a page came to.
struct GallerySummary
{
    std::size_t effects = 0; ///< cards of effect classes
    std::size_t items = 0;   ///< cards of catalogue items
    std::size_t bytes = 0;   ///< of all files written
};

/// Writes the page of every effect class and of every item of the catalogue: `index.html` and what it loads,
/// all below `folder`, which is made when it is missing. Files of an earlier page are replaced, others are left alone.
///
/// The page converts nothing: the settings records of the defaults, of the items, and of the steps between the bounds
/// of each parameter are made here. Resource paths are written as the item files have them.
///
/// Throws a `Failure` that names the file that could not be written. What the library logs meanwhile becomes part of
/// the records.
/// @param catalogue  whose host converts the effects
/// @param folder     of `index.html`
EFFECTS_INSPECT_API GallerySummary writeGallery(Catalogue & catalogue, QString const & folder);

} // namespace Effect::Inspect
