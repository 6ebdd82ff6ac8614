// What the shared library shows to others, name by name, against the lists that lie beside this file. A name that comes
// is a promise made, and one that goes is a host broken: change the lists knowingly. With EDITOREFFECTS_UPDATE_GOLDEN
// set, the tests write them.

#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <cxxabi.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Names = std::set<std::string>;

std::string outputOf(std::string const & command)
{
    std::FILE * const pipe = popen(command.c_str(), "r");
    if (!pipe)
        throw std::runtime_error(command + " cannot be run");
    std::string output;
    std::array<char, 4096> buffer;
    while (std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        output.append(buffer.data(), count);
    if (pclose(pipe) != 0)
        throw std::runtime_error(command + " failed");
    return output;
}

/// The names of the dynamic symbols that the library defines.
Names exportedSymbols()
{
    std::istringstream lines(
        outputOf(EDITOR_NM " --dynamic --defined-only --format=posix " EDITOREFFECTS_LIBRARY " 2>&1"));
    Names names;
    for (std::string line; std::getline(lines, line);)
        names.insert(line.substr(0, line.find(' ')));
    return names;
}

/// The names that the library's dynamic section gives to the libraries that it needs.
Names neededLibraries()
{
    static std::regex const entry(R"(\(NEEDED\).*\[(.+)\])");
    std::istringstream lines(outputOf(EDITOR_READELF " --dynamic --wide " EDITOREFFECTS_LIBRARY " 2>&1"));
    Names names;
    for (std::string line; std::getline(lines, line);)
        if (std::smatch match; std::regex_search(line, match, entry))
            names.insert(match[1]);
    return names;
}

std::string readable(std::string const & symbol)
{
    int status = 0;
    char * const text = abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status);
    std::string const name = status == 0 ? text : symbol;
    std::free(text);
    return name;
}

std::string without(Names const & names, Names const & others)
{
    std::string text;
    for (std::string const & name : names)
        if (others.count(name) == 0)
            text += "  " + name + "  " + readable(name) + '\n';
    return text;
}

/// Expects that the names are those of the list, a name a line.
void expectListed(Names const & names, std::string const & list)
{
    ASSERT_FALSE(names.empty());
    std::string const path = EDITOREFFECTS_LISTS "/" + list;
    if (std::getenv("EDITOREFFECTS_UPDATE_GOLDEN")) {
        std::ofstream file(path);
        for (std::string const & name : names)
            file << name << '\n';
        return;
    }
    std::ifstream file(path);
    Names listed;
    for (std::string line; std::getline(file, line);)
        listed.insert(line);
    EXPECT_EQ(without(names, listed), "") << "in the library, not in " << path;
    EXPECT_EQ(without(listed, names), "") << "in " << path << ", not in the library";
}

TEST(Boundary, ExportedSymbolsAreTheListedOnes)
{
    expectListed(exportedSymbols(), "exported-symbols.txt");
}

TEST(Boundary, LinkedLibrariesAreTheListedOnes)
{
    expectListed(neededLibraries(), "linked-libraries.txt");
}

TEST(Boundary, NothingIsExportedThatIsNotTheLibrarysOwn)
{
    // A function, a const function, or a class's tables, in the namespace of the library.
    static std::regex const own("_Z(N|NK|TVN|TIN|TSN)6Effect.+");
    for (std::string const & symbol : exportedSymbols())
        EXPECT_TRUE(std::regex_match(symbol, own)) << readable(symbol);
}

/// The classes of the families that the library keeps to itself.
std::vector<std::string> hiddenClasses()
{
#define ROW_CLASS(Class, Base) #Class,
#define ROWS <effects/HiddenFamilies.def>
    return {
#include <effects/Rows.h>
    };
}

TEST(Boundary, NothingIsExportedOfHiddenClassesTheirConstantsAndTheConversions)
{
    std::vector<std::string> hidden{"Factory"};
    for (std::string const & name : hiddenClasses()) {
        if (name.find("::") != std::string::npos)
            continue; // its outer class is there
        hidden.push_back(name);
        hidden.push_back("tag" + name);
    }
    for (std::string const & symbol : exportedSymbols())
        for (std::string const & name : hidden) {
            // A symbol has the length of each name in front of it.
            auto const at = symbol.find(std::to_string(name.size()) + name);
            EXPECT_TRUE(at == std::string::npos || std::isdigit(static_cast<unsigned char>(symbol[at - 1])))
                << readable(symbol);
        }
}

} // namespace
