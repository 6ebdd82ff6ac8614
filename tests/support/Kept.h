/// @file
/// What documents of an earlier release had that later ones must have.
#pragma once

#include <algorithm>
#include <string>

#include <nlohmann/json.hpp>

namespace Testing {

/// How lists may differ.
enum class Lists
{
    Same,  ///< as many entries
    Grown, ///< lists of objects may have further ones in between
};

/// The place of a value that the document of an earlier release has and this one lacks, as a JSON pointer with a colon
/// behind it; empty when nothing is lost. Objects may have further keys.
inline std::string lost(nlohmann::json const & then, nlohmann::json const & now, Lists lists,
    nlohmann::json::json_pointer const & place = nlohmann::json::json_pointer())
{
    if (then.is_object() && now.is_object()) {
        for (auto const & [key, value] : then.items()) {
            auto const found = now.find(key);
            if (found == now.end())
                return (place / key).to_string() + ": is missing";
            if (std::string const text = lost(value, *found, lists, place / key); !text.empty())
                return text;
        }
        return {};
    }
    if (then.is_array() && now.is_array() && lists == Lists::Grown && !then.empty() && then[0].is_object()) {
        auto next = now.begin();
        for (std::size_t index = 0; index < then.size(); ++index) {
            auto const keeps = [&](auto const & entry) { return lost(then[index], entry, lists).empty(); };
            next = std::find_if(next, now.end(), keeps);
            if (next == now.end())
                return (place / index).to_string() + ": no entry has all of " + then[index].dump();
            ++next;
        }
        return {};
    }
    if (then.is_array() && now.is_array() && then.size() == now.size()) {
        for (std::size_t index = 0; index < then.size(); ++index)
            if (std::string const text = lost(then[index], now[index], lists, place / index); !text.empty())
                return text;
        return {};
    }
    return then == now ? "" : place.to_string() + ": " + then.dump() + " has become " + now.dump();
}

} // namespace Testing
