// Files as releases wrote them, in tests/golden/vN: a folder for each form that the files have had. Every later release
// reads them and loses nothing, so they are never changed or written anew; CTest compares their checksums. When a class
// gets another field, the files of older folders have none: only what they do have is compared.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorUtil/ItemFile.h>
#include <support/Kept.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using Serialize::ISerializable;
using namespace Testing;

std::vector<fs::path> folders()
{
    std::vector<fs::path> folders;
    for (auto const & entry : fs::directory_iterator(EDITOR_GOLDEN_DIR))
        if (entry.is_directory())
            folders.push_back(entry.path());
    std::sort(folders.begin(), folders.end());
    return folders;
}

std::vector<fs::path> filesIn(fs::path const & folder, char const * extension)
{
    std::vector<fs::path> files;
    for (auto const & entry : fs::directory_iterator(folder))
        if (entry.path().extension() == extension)
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string bytesOf(fs::path const & path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

json documentIn(fs::path const & path)
{
    return Serialize::Json::parse(bytesOf(path));
}

/// The objects that a binary file gives, read by all means that the library has for it.
std::vector<std::unique_ptr<ISerializable>> objectsIn(std::string const & bytes, bool isEffect)
{
    std::vector<std::unique_ptr<ISerializable>> objects;
    if (isEffect)
        objects.push_back(Effect::Archive::fromBinary(bytes));
    if (bytes.substr(0, 4) == "EEAR") { // the archive alone, without anything around it
        std::stringstream stream(bytes);
        Serialize::BinaryIArchive archive(stream);
        archive >> objects.emplace_back();
    }
    return objects;
}

TEST(Frozen, ThereAreFilesOfEveryClassOfTheFirstRelease)
{
    ASSERT_THAT(folders(), testing::Contains(fs::path(EDITOR_GOLDEN_DIR "/v1")));
    // 89 classes, effects and their records, each as its constructor makes it and with every field changed.
    EXPECT_EQ(filesIn(EDITOR_GOLDEN_DIR "/v1", ".json").size(), 2 * 89u);
    EXPECT_EQ(filesIn(EDITOR_GOLDEN_DIR "/v1", ".bin").size(), 2 * 89u);
}

TEST(Frozen, DocumentsAreReadAndLoseNothing)
{
    for (fs::path const & folder : folders())
        for (fs::path const & path : filesIn(folder, ".json")) {
            SCOPED_TRACE(path);
            json const stored = documentIn(path);
            EXPECT_EQ(lost(stored, documentOf(*objectOf(stored)), Lists::Same), "");
        }
}

TEST(Frozen, BinaryArchivesGiveTheObjectsOfTheDocuments)
{
    for (fs::path const & folder : folders())
        for (fs::path const & path : filesIn(folder, ".bin")) {
            SCOPED_TRACE(path);
            fs::path document = path;
            document.replace_extension(".json");
            if (!fs::exists(document)) // the first form had the same documents
                document = EDITOR_GOLDEN_DIR "/v1" / document.filename();
            auto const expected = objectOf(documentIn(document));
            bool const isEffect = dynamic_cast<Effect::Object const *>(expected.get()) != nullptr;
            std::vector<std::unique_ptr<ISerializable>> objects;
            ASSERT_NO_THROW(objects = objectsIn(bytesOf(path), isEffect));
            ASSERT_FALSE(objects.empty());
            for (auto const & object : objects)
                EXPECT_EQ(documentOf(*object), documentOf(*expected));
        }
}

TEST(Frozen, ItemsAreReadAndLoseNothing)
{
    std::string const folder = EDITOR_GOLDEN_DIR "/v1/items";
    auto const item = EditorCollection::readItem(folder, "warm.effect.json");
    EXPECT_THAT(item->categories(), testing::ElementsAre("category_lut_warm", "category_own"));
    json stored = documentIn(folder + "/warm.effect.json")["effect"];
    // Relative in the file, and absolute in the item.
    stored["Effect::VideoEffect"]["Effect::Object"]["resourcePath"] = folder + "/tables/warm.cube";
    EXPECT_EQ(lost(stored, documentOf(item->payload()), Lists::Same), "");
}

} // namespace
