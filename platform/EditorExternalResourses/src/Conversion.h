/// @file
/// Conversion of a head's loosely typed values.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace External::ShaderISF {

/// Reads a T from JSON. `from` returns nothing for another type; `kind` names the expected type in messages.
template <class T> struct Conversion;

template <> struct Conversion<std::string>
{
    static std::string kind() { return "a text"; }

    /// Numbers are taken as well: they are usual in versions and labels.
    static std::optional<std::string> from(nlohmann::json const & value)
    {
        if (value.is_string())
            return value.get<std::string>();
        if (value.is_number())
            return value.dump();
        return {};
    }
};

template <> struct Conversion<double>
{
    static std::string kind() { return "a number"; }

    static std::optional<double> from(nlohmann::json const & value)
    {
        if (value.is_boolean())
            return value.get<bool>() ? 1.0 : 0.0;
        if (value.is_number())
            return value.get<double>();
        return {};
    }
};

template <> struct Conversion<bool>
{
    static std::string kind() { return "true or false"; }

    /// A number is true if positive.
    static std::optional<bool> from(nlohmann::json const & value)
    {
        if (value.is_string()) {
            auto const & text = value.get_ref<std::string const &>();
            if (text == "true" || text == "yes" || text == "1")
                return true;
            if (text == "false" || text == "no" || text == "0" || text.empty())
                return false;
            return {};
        }
        std::optional<double> const number = Conversion<double>::from(value);
        return number ? std::optional(*number > 0.0) : std::nullopt;
    }
};

template <> struct Conversion<std::int32_t>
{
    static std::string kind() { return "a whole number of 32 bits"; }

    /// Whole numbers are often written with a fraction of zero.
    static std::optional<std::int32_t> from(nlohmann::json const & value)
    {
        using Limits = std::numeric_limits<std::int32_t>;
        std::optional<double> const number = Conversion<double>::from(value);
        if (!number || *number < Limits::min() || *number > Limits::max() || std::trunc(*number) != *number)
            return {};
        return static_cast<std::int32_t>(*number);
    }
};

template <class T> struct Conversion<std::vector<T>>
{
    static std::string kind() { return "an array, each of its elements " + Conversion<T>::kind(); }

    static std::optional<std::vector<T>> from(nlohmann::json const & value)
    {
        if (!value.is_array())
            return {};
        std::vector<T> elements;
        elements.reserve(value.size());
        for (nlohmann::json const & item : value) {
            std::optional<T> element = Conversion<T>::from(item);
            if (!element)
                return {};
            elements.push_back(std::move(*element));
        }
        return elements;
    }
};

template <std::size_t size> struct Conversion<std::array<double, size>>
{
    static std::string kind() { return "an array of " + std::to_string(size) + " numbers"; }

    static std::optional<std::array<double, size>> from(nlohmann::json const & value)
    {
        auto const numbers = Conversion<std::vector<double>>::from(value);
        if (!numbers || numbers->size() != size)
            return {};
        std::array<double, size> elements{};
        std::copy(numbers->begin(), numbers->end(), elements.begin());
        return elements;
    }
};

} // namespace External::ShaderISF
