/// @file
/// Archive documents as the commands look at them.
#pragma once

#include <memory>
#include <string>

#include <EditorModel/EffectObject.h>
#include <EditorSerialization/ISerializable.h>

#include <nlohmann/json.hpp>

namespace Host {

/// A new object of the class with that archive name. Throws a `Failure` for an unknown name.
std::unique_ptr<Serialize::ISerializable> create(std::string const & className);

/// A new effect of the class with that archive name. Throws a `Failure` when it is no effect's.
std::unique_ptr<Effect::Object> createEffect(std::string const & className);

/// The object's archive document.
nlohmann::json document(Serialize::ISerializable const & object);

/// The effect in an archive document.
std::unique_ptr<Effect::Object> effectOf(nlohmann::json const & document);

/// The key of the base object in a document: the archive name of the direct base. Empty for an object without one.
std::string baseOf(nlohmann::json const & document);

/// The class's own keys with their values: neither the meta object nor the base.
nlohmann::json ownFields(nlohmann::json const & document);

/// Replaces the value of one of the class's own keys, or of its bases' short of `Effect::Object`. Throws a `Failure`
/// for a key that the class does not have.
void setField(nlohmann::json & document, std::string const & key, nlohmann::json value);

/// Replaces the value of a key of `Effect::Object`. Throws a `Failure` for a key that it does not have.
void setObjectField(nlohmann::json & document, std::string const & key, nlohmann::json value);

} // namespace Host
