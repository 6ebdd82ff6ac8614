/// @file
/// The texts that are translated.
#pragma once

#include <set>

#include <effects/Schema.h>

#include <QString>

namespace Translations {

inline void addTexts(std::set<QString> & texts, Effect::Schema::Class const & info)
{
    texts.insert(info.description());
    for (Effect::Schema::Parameter const & parameter : info.parameters) {
        texts.insert({parameter.label(), parameter.description()});
        for (Effect::Choice const & choice : parameter.choices)
            texts.insert(parameter.label(choice));
        if (parameter.elements && !Effect::Schema::find(parameter.elements->name)) // a record of the model library
            addTexts(texts, *parameter.elements);
    }
}

/// Every text of the descriptions, in English as long as no translator is installed. They are found in a translation
/// under the context "Effect::Schema".
inline std::set<QString> texts()
{
    std::set<QString> all;
    for (Effect::Schema::Class const * const info : Effect::Schema::classes())
        addTexts(all, *info);
    all.erase(QString());
    return all;
}

} // namespace Translations
