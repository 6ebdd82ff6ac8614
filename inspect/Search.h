/// @file
/// Finding items of the catalogue by words.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <EditorModel/Collection.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// An item that was found.
struct Hit
{
    std::string file;
    std::string className;
    std::string tag;
    std::vector<std::string> categories;
    double score = 0; ///< greater than 0; the best item has the greatest
};

/// Words that mean the same to a user who looks for an effect. A word is in one row at most.
EFFECTS_INSPECT_API std::vector<std::vector<std::string>> const & synonyms();

/// Looks for items that have to do with every one of some words.
///
/// A word is looked for in the item's name and tag, in its class, in its categories, and in what the class does, in
/// this order of weight, and so are words with the same meaning. It counts most where it is found as it is, less as the
/// beginning of a word, and least with a typing mistake or two. Upper and lower case are the same.
class EFFECTS_INSPECT_API Search
{
public:
    /// @param query  texts of any number of words
    explicit Search(std::vector<std::string> const & query);

    /// How well the item fits; 0 for one that lacks a word.
    double score(EditorCollection::IItem const & item) const;

    /// Adds the item if it fits.
    void offer(EditorCollection::IItem const & item);

    /// What was found, best first; equally good ones by tag and file.
    std::vector<Hit> hits() const;

private:
    std::vector<std::vector<std::string>> m_words; ///< each with those of the same meaning behind it
    std::vector<Hit> m_hits;
};

} // namespace Effect::Inspect
