// Dependencies point one way: host, python -> inspect -> collection -> (conversions, serialization) -> effects ->
// platform.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

fs::path const root = EDITOR_SOURCE_DIR;

struct Include
{
    fs::path file; ///< relative to the root
    int line;
    std::string target; ///< as written between the brackets
};

void PrintTo(Include const & include, std::ostream * stream)
{
    *stream << include.file.string() << ':' << include.line << " includes " << include.target;
}

std::vector<Include> includesBelow(std::string const & folder)
{
    static std::regex const directive(R"re(^\s*#\s*include\s*[<"]([^>"]+)[>"])re");
    std::vector<Include> includes;
    for (auto const & entry : fs::recursive_directory_iterator(root / folder)) {
        if (std::string const extension = entry.path().extension();
            extension != ".h" && extension != ".cpp" && extension != ".def")
            continue;
        std::ifstream file(entry.path());
        std::string text;
        for (int line = 1; std::getline(file, text); ++line)
            if (std::smatch match; std::regex_search(text, match, directive))
                includes.push_back({fs::relative(entry.path(), root), line, match[1]});
    }
    return includes;
}

std::string firstPart(std::string const & path)
{
    return path.substr(0, path.find('/'));
}

std::set<std::string> namesIn(std::string const & folder)
{
    std::set<std::string> names;
    for (auto const & entry : fs::directory_iterator(root / folder))
        if (entry.is_directory())
            names.insert(entry.path().filename().string());
    return names;
}

/// What each folder of the product may include of the others.
std::map<std::string, std::set<std::string>> const allowed{
    {"effects", {"effects"}},
    {"serialization", {"effects", "serialization"}},
    {"utils", {"effects", "utils"}},
    {"collection", {"effects", "utils", "collection"}},
    {"inspect", {"effects", "utils", "collection", "inspect"}},
    {"host", {"effects", "utils", "inspect", "host"}},
    {"python", {"effects", "utils", "inspect", "python"}},
};

std::set<std::string> const productFolders{
    "effects", "serialization", "utils", "collection", "inspect", "host", "python"};

TEST(Includes, ProductFoldersPointOneWay)
{
    for (auto const & [folder, targets] : allowed) {
        auto const includes = includesBelow(folder);
        EXPECT_FALSE(includes.empty()) << folder;
        for (Include const & include : includes)
            if (productFolders.count(firstPart(include.target))) {
                EXPECT_THAT(targets, testing::Contains(firstPart(include.target))) << testing::PrintToString(include);
            }
    }
}

TEST(Includes, ThePlatformKnowsNothingOfTheProduct)
{
    for (Include const & include : includesBelow("platform"))
        EXPECT_THAT(productFolders, testing::Not(testing::Contains(firstPart(include.target))))
            << testing::PrintToString(include);
}

TEST(Includes, PlatformLibrariesAreReachedByTheirNameAlone)
{
    // A path through platform/ would bypass the targets, and with them a host's own libraries.
    for (std::string const & folder : productFolders)
        for (Include const & include : includesBelow(folder))
            EXPECT_THAT(include.target, testing::Not(testing::HasSubstr("platform/")))
                << testing::PrintToString(include);
}

TEST(Includes, PlatformLibrariesFormNoCircle)
{
    auto const libraries = namesIn("platform");
    std::map<std::string, std::set<std::string>> uses;
    for (std::string const & library : libraries)
        for (Include const & include : includesBelow("platform/" + library))
            if (std::string const used = firstPart(include.target); used != library && libraries.count(used))
                uses[library].insert(used);
    // Libraries that use none that is left are taken away, until none can be.
    std::set<std::string> left = libraries;
    for (bool taken = true; taken;) {
        taken = false;
        for (std::string const & library : std::set<std::string>(left)) {
            bool const usesNone = std::none_of(uses[library].begin(), uses[library].end(),
                [&](std::string const & used) { return left.count(used) != 0; });
            if (usesNone) {
                left.erase(library);
                taken = true;
            }
        }
    }
    EXPECT_THAT(left, testing::IsEmpty());
}

TEST(Includes, TestsIncludeTheFamiliesThatTheyUse)
{
    // A test that includes them all is compiled again whenever one family changes. Those that need them all go by the
    // list of families; `Plugin.cpp` and what is built outside of the tree are hosts.
    std::set<fs::path> const exceptions{"tests/serialization/AllClasses.h", "tests/structure/Plugin.cpp"};
    for (std::string const folder : {"bench", "fuzz", "host", "inspect", "tests"})
        for (Include const & include : includesBelow(folder))
            if (exceptions.count(include.file) == 0 && include.file.string().rfind("tests/consumer/", 0) != 0) {
                EXPECT_NE(include.target, "effects/Effects.h") << testing::PrintToString(include);
            }
}

TEST(Includes, PublicHeadersOfTheModelPullInNoJsonLibrary)
{
    for (std::string const folder : {"effects", "platform/EditorModel/include", "platform/Settings/include"})
        for (Include const & include : includesBelow(folder))
            EXPECT_NE(include.target, "nlohmann/json.hpp") << testing::PrintToString(include);
}

} // namespace
