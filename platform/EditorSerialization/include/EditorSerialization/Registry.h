/// @file
/// Creation of objects by archive name.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <EditorSerialization/ISerializable.h>

namespace Serialize {

/// Makes objects of one class.
class EDITORSERIALIZATION_EXPORT BaseCreator
{
public:
    /// A new default-constructed object, which the caller owns, or null when there is no memory for it.
    virtual ISerializable * create() const = 0;
    virtual ~BaseCreator();
};

/// Registers a class under its archive name for its own lifetime: a static member of the class, constructed when the
/// library is loaded and destroyed when it is unloaded.
class EDITORSERIALIZATION_EXPORT Registrator
{
public:
    /// @param name     kept as a pointer: a literal
    /// @param creator  owned from here on; with null the class cannot be made by name
    /// @param layout   of the class; null for one that has none
    /// A name that is already registered keeps its first creator for as long as the first registrator lives; the second
    /// creator is reported in the log and dropped.
    Registrator(char const * name, BaseCreator const * creator, Layout const * layout = nullptr);
    ~Registrator();
    Registrator(Registrator const &) = delete;
    Registrator & operator=(Registrator const &) = delete;

private:
    char const * m_name;
    std::unique_ptr<BaseCreator const> m_creator;
    bool m_isFirst; // owns the name
};

/// The classes that can be created by name. Thread-safe; lookups take no lock.
namespace Registry {

/// A registered class.
struct Entry
{
    BaseCreator const * creator; ///< null where the class cannot be made by name
    Layout const * layout;       ///< null for a class that has none
};

/// Both are null for an unknown name.
EDITORSERIALIZATION_EXPORT Entry find(std::string_view archiveName);

/// A new default-constructed object of the class with that archive name; null for an unknown name.
EDITORSERIALIZATION_EXPORT std::unique_ptr<ISerializable> create(std::string_view archiveName);

/// Every registered archive name, sorted.
EDITORSERIALIZATION_EXPORT std::vector<std::string> names();

} // namespace Registry

} // namespace Serialize
