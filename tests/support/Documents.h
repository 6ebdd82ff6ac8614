/// @file
/// An effect's own keys in its archive document.
#pragma once

#include <memory>
#include <string>

#include <EditorModel/EffectObject.h>

#include <nlohmann/json.hpp>

namespace Testing {

/// What the effect's class adds to its base's document.
nlohmann::json ownKeys(Effect::Object const & effect);

/// Expects that the effect's class adds these keys, and that both forms of archive give back an effect with the same
/// document.
void expectKeys(Effect::Object const & effect, nlohmann::json const & keys);

/// The effect of that class that a document with these keys and no others holds.
std::unique_ptr<Effect::Object> readKeys(std::string const & className, nlohmann::json keys);

template <class Class> std::unique_ptr<Class> readKeys(nlohmann::json keys)
{
    auto effect = readKeys(Class::NameInArchive(), std::move(keys));
    return std::unique_ptr<Class>(&dynamic_cast<Class &>(*effect.release()));
}

} // namespace Testing
