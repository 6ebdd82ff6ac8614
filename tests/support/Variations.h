/// @file
/// Objects of every class, with every field off its default.
#pragma once

#include <memory>
#include <string>

#include <EditorSerialization/ISerializable.h>

#include <nlohmann/json.hpp>

namespace Testing {

/// The archive document of an object.
nlohmann::json documentOf(Serialize::ISerializable const & object);

/// The object in an archive document.
std::unique_ptr<Serialize::ISerializable> objectOf(nlohmann::json const & document);

/// The document with every value changed: numbers moved, flags turned, texts lengthened, empty lists given two
/// elements, a range put where there was none. Varying a variation gives yet another one.
nlohmann::json varied(nlohmann::json document);

/// A new default object of the class, by archive name.
std::unique_ptr<Serialize::ISerializable> created(std::string const & className);

} // namespace Testing
