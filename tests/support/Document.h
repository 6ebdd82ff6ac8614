/// @file
/// Looking at an effect's document in a test.
#pragma once

#include <string>

#include <EditorModel/EffectArchive.h>

#include <gtest/gtest.h>

namespace Testing {

/// Expects `part` in the effect's document, and both forms of archive to give back an effect with the same document.
inline void expectDocument(Effect::Object const & effect, std::string const & part)
{
    std::string const document = Effect::Archive::toJson(effect);
    EXPECT_NE(document.find(part), std::string::npos) << document;
    EXPECT_EQ(Effect::Archive::toJson(*Effect::Archive::fromJson(document)), document);
    EXPECT_EQ(Effect::Archive::toJson(*Effect::Archive::fromBinary(Effect::Archive::toBinary(effect))), document);
}

} // namespace Testing
