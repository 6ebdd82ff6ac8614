/// @file
/// Archive documents as the commands look at them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <EditorSerialization/ISerializable.h>
#include <effects/Schema.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// The description of a class. Throws a `Failure` for an unknown name, which suggests a known one.
EFFECTS_INSPECT_API Effect::Schema::Class const & classNamed(std::string const & name);

/// Those with these names, in that order; all of them where no name is given. Throws a `Failure` like `classNamed`.
EFFECTS_INSPECT_API std::vector<Effect::Schema::Class const *> classesNamed(std::vector<std::string> const & names);

/// A new object of the class with that archive name. Throws a `Failure` for an unknown name.
EFFECTS_INSPECT_API std::unique_ptr<Serialize::ISerializable> create(std::string const & className);

/// A new effect of the class with that archive name. Throws a `Failure` when it is no effect's.
EFFECTS_INSPECT_API std::unique_ptr<Effect::Object> createEffect(std::string const & className);

/// The object's archive document.
EFFECTS_INSPECT_API nlohmann::json document(Serialize::ISerializable const & object);

/// The effect in an archive document.
EFFECTS_INSPECT_API std::unique_ptr<Effect::Object> effectOf(nlohmann::json const & document);

/// Fields that a request to convert names apart.
enum class FieldsOf
{
    Class, ///< the class's own and its bases' short of `Effect::Object`
    Object ///< those of `Effect::Object`
};

/// Replaces the value of one key in an archive document. Throws a `Failure` for a key that there is not.
EFFECTS_INSPECT_API void setField(
    nlohmann::json & document, FieldsOf part, std::string const & key, nlohmann::json value);

} // namespace Effect::Inspect
