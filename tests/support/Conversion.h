/// @file
/// Converting an effect in a test and seeing all of what came of it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>

#include <gtest/gtest.h>

namespace Testing {

/// What a conversion gave. A settings object reads as its description does, for instance
/// `{"class": "SettingsEffectBlurGaussian", "calls": [["SetScale", 1]], "fields": {}}`.
struct Converted
{
    int stageCode = 0;
    std::string implementation;
    std::vector<std::string> settings;
    std::vector<std::string> log;      ///< at severity ERROR
    std::vector<std::string> warnings; ///< at severity WARNING
};

/// Converts through the installed factory.
Converted convert(Effect::Object const & effect, Effect::Factory::VideoParams const & params = {});
Converted convert(Effect::Object const & effect, Effect::Factory::AudioParams const & params);

/// The description of a settings object: class, calls and fields, the last two without their brackets,
/// such as `["SetScale", 1]` and `"gamma": 1`.
std::string settings(std::string const & className, std::string const & calls, std::string const & fields = "");

/// A test that converts: a factory is installed while it runs.
class ConversionTest : public testing::Test
{
protected:
    Effect::Factory::SettingsFactory factory;
};

} // namespace Testing
