#include "Documents.h"

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>

#include <gtest/gtest.h>

namespace Testing {

namespace Meta = Serialize::Json::MetaDetails;

nlohmann::json ownKeys(Effect::Object const & effect)
{
    nlohmann::json const document = nlohmann::json::parse(Effect::Archive::toJson(effect));
    nlohmann::json own = nlohmann::json::object();
    for (auto const & [key, value] : document.items()) {
        bool const isBase = key.rfind("Effect::", 0) == 0;
        if (key != Meta::s_meta && !isBase)
            own[key] = value;
    }
    return own;
}

void expectKeys(Effect::Object const & effect, nlohmann::json const & keys)
{
    EXPECT_EQ(ownKeys(effect), keys);
    std::string const document = Effect::Archive::toJson(effect);
    EXPECT_EQ(Effect::Archive::toJson(*Effect::Archive::fromJson(document)), document);
    EXPECT_EQ(Effect::Archive::toJson(*Effect::Archive::fromBinary(Effect::Archive::toBinary(effect))), document);
}

std::unique_ptr<Effect::Object> readKeys(std::string const & className, nlohmann::json keys)
{
    keys[Meta::s_meta][Meta::s_class_name] = className;
    return Effect::Archive::fromJson(keys.dump());
}

} // namespace Testing
