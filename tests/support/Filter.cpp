#include "Filter.h"

#include <typeinfo>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Registry.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Conversion.h"

namespace Testing {

void expectForm(FilterForm const & form)
{
    SCOPED_TRACE(form.archiveName);
    using nlohmann::json;
    namespace Archive = Effect::Archive;
    Effect::Object & effect = *form.effect;

    EXPECT_EQ(effect.id, form.id);
    EXPECT_EQ(effect.groupId, form.id);
    EXPECT_EQ(effect.tag, form.tag);
    effect.tag = "another";
    EXPECT_EQ(effect.defaultTag(), form.tag);
    EXPECT_EQ(effect.type(), Effect::Type::Video);
    EXPECT_EQ(effect.impl(), Effect::Impl::Effect);
    EXPECT_EQ(effect.GetNameInArchive(), form.archiveName);

    auto const made = Serialize::Registry::create(form.archiveName);
    ASSERT_NE(made, nullptr);
    Serialize::ISerializable const & madeObject = *made;
    EXPECT_EQ(typeid(madeObject), typeid(effect));

    json document = json::parse(Archive::toJson(effect));
    json const fields = json::parse(form.fields);
    json own = document;
    own.erase("$meta");
    EXPECT_EQ(own.erase("Effect::VideoEffect"), 1U);
    EXPECT_EQ(own, fields);
    EXPECT_EQ(document["$meta"]["class"], form.archiveName);

    json const otherFields = json::parse(form.otherFields);
    document.update(otherFields);
    auto const other = Archive::fromJson(document.dump());
    Effect::Object const & otherObject = *other;
    EXPECT_EQ(typeid(otherObject), typeid(effect));
    EXPECT_EQ(json::parse(Archive::toJson(*other)), document);

    std::string const bytes = Archive::toBinary(*other);
    EXPECT_THAT(bytes, testing::EndsWith(form.otherBytes));
    EXPECT_EQ(json::parse(Archive::toJson(*Archive::fromBinary(bytes))), document);

    // Every key of the table has a value other than the default.
    ASSERT_EQ(fields.size(), otherFields.size());
    for (auto const & [key, value] : fields.items())
        EXPECT_NE(value, otherFields.value(key, json())) << key;
}

void expectConversion(
    Effect::Object const & effect, std::string const & settings, Effect::Factory::VideoParams const & params)
{
    auto const converted = convert(effect, params);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings, testing::ElementsAre(settings));
    EXPECT_THAT(converted.log, testing::IsEmpty());
}

} // namespace Testing
