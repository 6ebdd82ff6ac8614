/// @file
/// JSON values and the values of parameters as Python has them. The interpreter's lock is held in all functions.
#pragma once

#include <string_view>

#include <pybind11/pybind11.h>

#include <effects/Schema.h>

#include <nlohmann/json.hpp>

namespace EffectsPython {

/// A JSON value as the json module of Python gives it.
pybind11::object toPython(nlohmann::json const & value);
pybind11::object toPython(nlohmann::ordered_json const & value);

/// The value of a parameter: `bool`, `int`, `float`, `str`, of an enumeration the name of the choice where it has one,
/// of a colour "#rrggbb" or "#aarrggbb", of a transform three rows of three, of a record a `dict` by key, of a list a
/// `list`. An absent record and a text that is null are `None`; bytes that are no UTF-8 are `bytes`.
/// @param value  as in the archive document
pybind11::object toPython(Effect::Schema::Parameter const & parameter, nlohmann::json const & value);

/// The value in the form that `Effect::Schema::setValue` takes, where any sequence is a list and any mapping an object.
/// Throws a `TypeError` of Python for an object that is no value.
nlohmann::json toJson(pybind11::handle value);

/// A text of Python from UTF-8.
pybind11::str text(std::string_view utf8);

} // namespace EffectsPython
