/// @file
/// What the tests of the filter collections share: each class is a row of a table.
#pragma once

#include <memory>
#include <string>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/EffectObject.h>

namespace Testing {

/// A class: how it starts and how it is archived.
struct FilterForm
{
    std::shared_ptr<Effect::Object> effect; ///< as its constructor makes it
    char const * archiveName;
    char const * id;
    char const * tag;
    char const * fields;      ///< its own keys with their defaults, as JSON
    char const * otherFields; ///< the same keys with other values
    std::string otherBytes;   ///< those values, as they end its binary archive
};

/// Expects a video effect of that form in both archives.
void expectForm(FilterForm const & form);

/// Values one behind the other, as the binary archive has them.
template <class... Values> std::string packed(Values... values)
{
    std::string bytes;
    (bytes.append(reinterpret_cast<char const *>(&values), sizeof(values)), ...);
    return bytes;
}

/// Expects that an effect converts to one settings object, as `settings` describes it, for the engine's video stage.
void expectConversion(
    Effect::Object const & effect, std::string const & settings, Effect::Factory::VideoParams const & params = {});

} // namespace Testing
