// The archives of every class as they have been written, byte by byte and key by key. They must be read and written
// the same for ever: projects hold them. EDITOREFFECTS_UPDATE_GOLDEN=1 in the environment writes missing files.

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <support/Variations.h>

#include "AllClasses.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Serialize::ISerializable;
using namespace Testing;

// The library version in the header is the framework's own affair.
constexpr std::size_t headerSize = 6;

struct Golden
{
    std::string className;
    bool isVaried;
};

void PrintTo(Golden const & golden, std::ostream * stream)
{
    *stream << golden.className << (golden.isVaried ? " varied" : " default");
}

std::string fileName(Golden const & golden)
{
    std::string name;
    for (char const letter : golden.className)
        if (letter != ':')
            name += letter;
        else if (name.back() != '.')
            name += '.';
    return name + (golden.isVaried ? ".varied" : ".default");
}

std::string binaryOf(ISerializable const & object)
{
    std::stringstream stream;
    Serialize::BinaryOArchive archive(stream);
    ISerializable const * const pointer = &object;
    archive << pointer;
    return stream.str();
}

/// The bytes of a golden file; written first when that is asked for and it is missing.
std::string golden(std::string const & name, std::string const & written)
{
    std::string const path = std::string(EDITOR_GOLDEN_DIR) + "/" + name;
    std::ifstream existing(path, std::ios::binary);
    if (!existing && std::getenv("EDITOREFFECTS_UPDATE_GOLDEN"))
        std::ofstream(path, std::ios::binary) << written;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path << " is missing";
    return {std::istreambuf_iterator<char>(file), {}};
}

class GoldenTest : public testing::TestWithParam<Golden>
{
protected:
    json document = [] {
        json const plain = documentOf(*created(GetParam().className));
        return GetParam().isVaried ? varied(plain) : plain;
    }();
};

TEST_P(GoldenTest, Json)
{
    std::string const text = document.dump(1) + "\n";
    std::string const stored = golden(fileName(GetParam()) + ".json", text);
    EXPECT_EQ(text, stored);
    EXPECT_EQ(documentOf(*objectOf(Serialize::Json::parse(stored))).dump(1) + "\n", stored);
}

TEST_P(GoldenTest, Binary)
{
    std::string const bytes = binaryOf(*objectOf(document));
    std::string const stored = golden(fileName(GetParam()) + ".bin", bytes);
    EXPECT_EQ(bytes.substr(headerSize), stored.substr(headerSize));
    std::stringstream stream(stored);
    Serialize::BinaryIArchive archive(stream);
    std::unique_ptr<ISerializable> object;
    archive >> object;
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(documentOf(*object), document);
}

std::vector<Golden> goldens()
{
    std::vector<Golden> goldens;
#define ROW_CLASS(Class, Base)                                                                                         \
    goldens.push_back({"Effect::" #Class, false});                                                                     \
    goldens.push_back({"Effect::" #Class, true});
#define ROWS <support/AllFamilies.def>
#include <effects/Rows.h>
    return goldens;
}

INSTANTIATE_TEST_SUITE_P(
    EveryClass, GoldenTest, testing::ValuesIn(goldens()), [](testing::TestParamInfo<Golden> const & golden) {
        std::string name = fileName(golden.param);
        for (char & letter : name)
            letter = letter == '.' ? '_' : letter;
        return name;
    });

} // namespace
