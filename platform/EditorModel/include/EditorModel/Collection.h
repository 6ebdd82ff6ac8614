/// @file
/// Items of the catalogue and the collections that hold them.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <EditorModel/Export.h>

#include <QString>

namespace EditorCollection {

/// An entry of the catalogue: an effect with its settings, and the categories that it belongs to.
///
/// An item is immutable once a collection holds it, and may then be read from any thread.
class EDITORMODEL_EXPORT IItem
{
public:
    virtual ~IItem();

    /// The names of the item's categories, in ascending order.
    virtual std::set<QString> const & categories() const = 0;
    /// Adds a category.
    virtual void addCategory(QString const & name) = 0;
    /// The effect. It lives as long as the item.
    virtual Effect::Object const & payload() const = 0;
    virtual void setUserFlagA(bool set) = 0; ///< sets what `userFlagA` returns
    virtual void setUserFlagB(bool set) = 0; ///< sets what `userFlagB` returns

    /// Whether the item is the user's own, not a stock one. Clear at first.
    virtual bool userFlagA() const = 0;
    /// Whether the user may rename and delete the item. Clear at first.
    virtual bool userFlagB() const = 0;

    /// The file that the item was read from: absolute, in the bytes of the file system. Empty for an item that came
    /// from no file.
    virtual std::string const & file() const;

protected:
    IItem() = default;
    IItem(IItem const &) = default;
    IItem & operator=(IItem const &) = default;
};

/// How a collection shows one of its categories.
struct CategoryInfo
{
    /// Whose items the category holds.
    enum class Kind
    {
        Thematic, ///< items of one theme, as the stock has them
        User      ///< the user's own items
    };

    Kind kind = Kind::Thematic; ///< whose items it holds
    int position = 0;           ///< among the categories of the collection, from 0
};

/// A category of a collection.
struct Category
{
    QString name;      ///< unique in its collection; the host shows a text for it
    CategoryInfo info; ///< as it was added
};

/// The items of one kind, such as all stock LUTs, and their categories. Thread-safe.
class EDITORMODEL_EXPORT ICollection
{
public:
    virtual ~ICollection();

    /// Takes ownership of the item. A rejected item, such as null, stays with the caller.
    virtual void addItem(std::unique_ptr<IItem> && item) = 0;
    /// The first item added whose payload has that tag; null if there is none. It lives as long as the collection.
    virtual IItem const * itemByTag(QString const & tag) const = 0;
    /// Adds a category. Does nothing if there is one of that name.
    virtual void addCategory(QString const & name, CategoryInfo const & info) = 0;
    virtual bool hasCategory(QString const & name) const = 0; ///< whether it was added

    virtual QString const & name() const = 0; ///< as registered, such as "Luts"
    /// The items added so far, in the order in which they were added. They live as long as the collection.
    virtual std::vector<IItem const *> items() const = 0;
    /// The categories added so far, in the order in which they were added.
    virtual std::vector<Category> categories() const = 0;

protected:
    ICollection() = default;
    ICollection(ICollection const &) = default;
    ICollection & operator=(ICollection const &) = default;
};

} // namespace EditorCollection
