// Every number of every class at the ends of its range, through the JSON and the binary archive.

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Registry.h>
#include <support/Variations.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Serialize::ISerializable;
using Testing::documentOf;
using Testing::objectOf;

std::unique_ptr<ISerializable> throughBytes(ISerializable const & object)
{
    std::stringstream stream;
    {
        Serialize::BinaryOArchive archive(stream);
        ISerializable const * const pointer = &object;
        archive << pointer;
    }
    Serialize::BinaryIArchive archive(stream);
    std::unique_ptr<ISerializable> read;
    archive >> read;
    return read;
}

/// What the class's fields may hold where a default one holds `value`.
std::vector<json> extremesOf(json const & value)
{
    using Limits = std::numeric_limits<double>;
    if (value.is_number_float())
        return {"NaN", "Infinity", "-Infinity", Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
            -0.0, 0.1, 1 + Limits::epsilon(), 16777217.0, 1e-300};
    if (value.is_number_unsigned())
        return {0U, std::numeric_limits<std::uint32_t>::max(), 0x80000000U, 0x01020304U};
    if (value.is_number_integer())
        return {std::numeric_limits<std::int32_t>::min(), -1, 0, 0x01020304, std::numeric_limits<std::int32_t>::max()};
    return {};
}

/// The classes of the library. The documents of each have something in every list and in the range.
std::vector<std::pair<std::string, json>> documents()
{
    std::vector<std::pair<std::string, json>> documents;
    for (std::string const & name : Serialize::Registry::names())
        if (name.rfind("Effect::", 0) == 0)
            documents.emplace_back(name, Testing::varied(documentOf(*Testing::created(name))));
    return documents;
}

TEST(Extremes, SurviveEveryArchive)
{
    for (auto const & [name, document] : documents()) {
        json const leaves = document.flatten();
        for (auto const & [path, value] : leaves.items()) {
            for (json const & extreme : extremesOf(value)) {
                SCOPED_TRACE(name + path + " is " + extreme.dump());
                json changed = document;
                changed[json::json_pointer(path)] = extreme;
                auto const object = objectOf(changed);
                // The texts distinguish -0.0 from 0.0, the documents do not.
                EXPECT_EQ(documentOf(*object).dump(), changed.dump());
                EXPECT_EQ(documentOf(*throughBytes(*object)).dump(), changed.dump());
            }
        }
    }
}

TEST(Extremes, AnIntegerThatDoesNotFitIsRefused)
{
    constexpr std::int64_t beyond[] = {std::numeric_limits<std::int64_t>::min(), -4294967297, -2147483649, 2147483648,
        4294967296, 4294967297, std::numeric_limits<std::int64_t>::max()};
    for (auto const & [name, document] : documents()) {
        json const leaves = document.flatten();
        for (auto const & [path, value] : leaves.items()) {
            if (!value.is_number_integer())
                continue;
            for (std::int64_t const number : beyond) {
                SCOPED_TRACE(name + path + " is " + std::to_string(number));
                json changed = document;
                changed[json::json_pointer(path)] = number;
                std::unique_ptr<ISerializable> object;
                try {
                    object = objectOf(changed);
                } catch (Serialize::ArchiveError const & error) {
                    // It says where.
                    EXPECT_NE(std::string(error.what()).find(path.substr(path.rfind('/') + 1)), std::string::npos)
                        << error.what();
                    continue;
                }
                EXPECT_EQ(documentOf(*object)[json::json_pointer(path)], number);
            }
        }
    }
}

} // namespace
