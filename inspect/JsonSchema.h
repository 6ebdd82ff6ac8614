/// @file
/// JSON Schema (draft-07) of the documents that the archives read.
#pragma once

#include <vector>

#include <effects/Schema.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// What a schema is of.
struct SchemaOptions
{
    /// The classes that a document may have. Without any, every effect.
    std::vector<Effect::Schema::Class const *> classes;
    bool isOfItems = false; ///< of item files, rather than of archive documents
    bool isClosed = false;  ///< whether a key that nothing reads is an error
};

/// A schema that accepts what the reader of the archives accepts, with titles, descriptions, defaults and choices. A
/// bound is validated only where the reader refuses numbers beyond it; elsewhere the description mentions it.
///
/// Stricter than the reader in one point: `$meta` must be an object, its class name a string and its number an integer,
/// also where the reader does not need them. More lenient in two: an integer may be written as 1.0, which JSON Schema
/// does not distinguish from 1, and the objects that references lead to are not validated.
EFFECTS_INSPECT_API nlohmann::json jsonSchema(SchemaOptions const & options);

} // namespace Effect::Inspect
