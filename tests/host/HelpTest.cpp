// The help, the manual page and the completions tell the same commands and options.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

#include "Effectctl.h"
#include "Terminal.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using Testing::effectctl;
using testing::HasSubstr;
using Testing::runProgram;
using Testing::shell;
using Testing::Terminal;
using testing::UnorderedElementsAreArray;
using Testing::whyNoTerminal;

using Words = std::set<std::string>;

QString const hostFolder = QStringLiteral(HOST_FOLDER);

bool isMissing(char const * program)
{
    return QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty();
}

Words matches(std::string const & text, char const * pattern)
{
    std::regex const expression(pattern);
    Words words;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        words.insert((*match)[1]);
    return words;
}

std::string helpOf(std::string const & command)
{
    QStringList arguments{"--help"};
    if (!command.empty())
        arguments.prepend(QString::fromStdString(command));
    auto const run = effectctl(arguments);
    EXPECT_EQ(run.status, 0) << command;
    EXPECT_EQ(run.errors, "") << command;
    return run.output;
}

/// The commands that the help tells.
Words commands()
{
    std::string const help = helpOf("");
    std::size_t const start = help.find("Subcommands:\n");
    std::size_t const end = help.find("\n\n", start);
    EXPECT_NE(start, std::string::npos);
    Words const found = matches(help.substr(start, end - start), "\n  ([a-z]+) ");
    EXPECT_GE(found.size(), 7U);
    return found;
}

/// The long options that a command's help tells, with the empty command for the program.
Words optionsOf(std::string const & command)
{
    std::string const help = helpOf(command);
    return matches(help.substr(0, help.find("Examples:")), "\n  (?:-[a-z],)?(--[a-z][a-z-]*)");
}

std::string read(QString const & path)
{
    std::ifstream file(path.toStdString());
    EXPECT_TRUE(file) << path.toStdString();
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What bash offers for a line whose end is under the cursor.
Words bashOffers(std::string const & line)
{
    auto const run = shell("source " + hostFolder + "/completion/effectctl.bash\n" +
                           "PATH=" + QFileInfo(EFFECTCTL).path() + ":$PATH\n" + //
                           "COMP_LINE='" + QString::fromStdString(line) + "'\n" +
                           "COMP_POINT=${#COMP_LINE}\n_effectctl\nprintf '%s\\n' \"${COMPREPLY[@]}\"");
    EXPECT_EQ(run.errors, "") << line;
    Words words;
    std::istringstream lines(run.output);
    for (std::string word; std::getline(lines, word);)
        if (!word.empty())
            words.insert(word);
    return words;
}

TEST(Help, EveryCommandHasExamples)
{
    EXPECT_THAT(helpOf(""), HasSubstr("Examples:\n  effectctl "));
    for (std::string const & command : commands()) {
        std::string const help = helpOf(command);
        std::size_t const examples = help.find("\nExamples:\n");
        ASSERT_NE(examples, std::string::npos) << command;
        std::istringstream lines(help.substr(help.find("\n", examples + 1) + 1));
        std::size_t count = 0;
        for (std::string line; std::getline(lines, line) && !line.empty(); ++count)
            EXPECT_THAT(line, HasSubstr("effectctl " + command)) << line;
        EXPECT_GE(count, 2U) << command;
    }
}

TEST(Help, StandsInTheManualPage)
{
    std::string page = std::regex_replace(read(hostFolder + "/effectctl.1"), std::regex(R"(\\-)"), "-");
    // What stands under the heading of a command, or of the program's own options.
    auto const section = [&page](std::string const & heading) {
        std::size_t const start = page.find(heading + '\n');
        EXPECT_NE(start, std::string::npos) << heading;
        std::size_t const end = std::min(page.find("\n.SS", start + 1), page.find("\n.SH", start + 1));
        return page.substr(start, end - start);
    };
    Words const programs = optionsOf("");
    EXPECT_EQ(matches(section("\n.SH OPTIONS"), "(--[a-z]+)"), programs);
    for (std::string const & command : commands()) {
        Words listed = matches(section("\n.SS " + command), "\n\\.BI? (--[a-z-]+)");
        listed.insert("--help");
        EXPECT_EQ(listed, optionsOf(command)) << command;
        EXPECT_THAT(section("\n.SH SYNOPSIS"), HasSubstr("\n.B effectctl " + command + '\n'));
    }
}

TEST(Help, TheManualPageIsWellFormed)
{
    if (isMissing("groff"))
        GTEST_SKIP() << "there is no groff";
    auto const run = runProgram("groff", {"-man", "-Tutf8", "-ww", hostFolder + "/effectctl.1"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    if (isMissing("man"))
        GTEST_SKIP() << "there is no man";
    EXPECT_EQ(runProgram("man", {"--warnings", "-l", hostFolder + "/effectctl.1"}).errors, "");
}

TEST(Completion, BashOffersEveryCommandAndOption)
{
    EXPECT_EQ(runProgram("bash", {"-n", hostFolder + "/completion/effectctl.bash"}).status, 0);
    Words all = commands();
    Words const programs = optionsOf("");
    all.insert(programs.begin(), programs.end());
    EXPECT_EQ(bashOffers("effectctl "), all);
    for (std::string const & command : commands())
        EXPECT_EQ(bashOffers("effectctl " + command + " --"), optionsOf(command)) << command;
    EXPECT_EQ(bashOffers("effectctl cat"), Words{"catalogue"});
    EXPECT_EQ(bashOffers("effectctl archive a.json --format b"), Words{"bin"});
}

TEST(Completion, BashOffersClassesAndFiles)
{
    // Bash replaces what is behind the colon.
    EXPECT_EQ(bashOffers("effectctl show --class Effect::Cro"), Words{"Crop"});
    EXPECT_EQ(bashOffers("effectctl convert --class=Effect::ChromaK"), Words{"ChromaKey"});
    EXPECT_EQ(bashOffers("effectctl show --class ").size(), 89U);
    EXPECT_EQ(bashOffers("effectctl show --class ").count("Effect::Frame"), 1U);
    // Records that are no effects have neither settings nor a tool.
    for (char const * const command : {"convert", "tool"}) {
        Words const offered = bashOffers(std::string("effectctl ") + command + " --class ");
        EXPECT_EQ(offered.count("Effect::Frame"), 0U) << command;
        EXPECT_EQ(offered.count("Effect::AlphaInserter"), 1U) << command;
    }
    for (char const * const command : {"describe", "schema"}) {
        EXPECT_EQ(bashOffers(std::string("effectctl ") + command + " ").size(), 89U) << command;
        EXPECT_EQ(
            bashOffers(std::string("effectctl ") + command + " Effect::Crop Effect::ChromaK"), Words{"ChromaKey"});
    }
    QTemporaryDir const folder;
    std::ofstream(folder.filePath("one.json").toStdString()) << "{}";
    std::string const start = folder.path().toStdString() + "/o";
    for (char const * const before :
        {"show ", "archive ", "check ", "convert a.json ", "lut ", "tool ", "convert --track id="})
        EXPECT_EQ(bashOffers("effectctl " + (before + start)), Words{start + "ne.json"}) << before;
    std::string const path = folder.path().toStdString();
    EXPECT_EQ(bashOffers("effectctl catalogue --stock " + path.substr(0, path.size() - 1)), Words{path});
    EXPECT_EQ(bashOffers("effectctl list "), Words{});
}

TEST(Completion, BashOffersTheKeysOfTheClass)
{
    Words const common{"tag=", "id=", "groupId=", "intensity=", "resource=", "resourcePath=", "range="};
    for (char const * const before : {"--class Effect::Opacity --set ", "--class=Effect::Opacity --set="}) {
        Words expected = common;
        expected.insert("opacity=");
        EXPECT_EQ(bashOffers(std::string("effectctl convert ") + before), expected) << before;
    }
    EXPECT_EQ(bashOffers("effectctl convert --class Effect::AudioReverb --json --set dry"), Words{"dryWetBalance="});
    EXPECT_EQ(bashOffers("effectctl convert --class Effect::Opacity --set opacity="), Words{});
    EXPECT_EQ(bashOffers("effectctl convert --set "), Words{});
    // Keys of elements in lists are none of the effect's.
    EXPECT_EQ(bashOffers("effectctl convert --class Effect::Mask --set ").count("shape="), 0U);
    EXPECT_EQ(bashOffers("effectctl convert --class Effect::Mask --set ").count("concealFrames="), 1U);
}

TEST(Completion, BashOffersTheChoicesOfAKey)
{
    std::string const line = "effectctl convert --class Effect::Mask --set";
    EXPECT_EQ(bashOffers(line + " backgroundFill="), (Words{"Color", "Blur"}));
    EXPECT_EQ(bashOffers(line + "=backgroundFill=B"), Words{"Blur"});
    EXPECT_EQ(bashOffers(line + " backgroundOpacity="), Words{});
    EXPECT_EQ(bashOffers(line + " shape="), Words{}); // a key of elements
}

/// A shell of the user's, in which the tabulator key completes.
std::string completedBy(std::vector<std::string> command, std::string const & setup, std::string const & line)
{
    std::string const folder = QFileInfo(EFFECTCTL).path().toStdString();
    std::string const path = folder + ':' + qEnvironmentVariable("PATH").toStdString();
    Terminal terminal(std::move(command), {{{"PATH", path}, {"PS1", "> "}, {"TERM", "xterm"}}, {}});
    // Told by arithmetic, so that its own echo is something else.
    terminal.type(setup + "; echo ready$((6*7))\n");
    terminal.readUntil("ready42");
    terminal.type(line + "; echo done$((6*7))\n");
    std::string const screen = terminal.readUntil("done42");
    terminal.type("exit\n");
    terminal.readAll();
    return screen;
}

constexpr char const * showLine = "effectctl sho\t--class Effect::Cro\t--js\t";
constexpr char const * convertLine = "effectctl conv\t--class Effect::Opac\t--set opa\t0.5";
constexpr char const * choiceLine = "effectctl convert --class Effect::Mirror --set vertical=Sec\t";

TEST(Completion, WorksInBash)
{
    if (auto const reason = whyNoTerminal(); !reason.empty())
        GTEST_SKIP() << reason;
    auto const completed = [](std::string const & line) {
        return completedBy({"bash", "--norc", "--noprofile", "-i"},
            "source " + hostFolder.toStdString() + "/completion/effectctl.bash", line);
    };
    EXPECT_THAT(completed(showLine), HasSubstr("\"class\": \"Effect::Crop\""));
    EXPECT_THAT(completed(convertLine), HasSubstr("opacity\033[0m = 0.5"));
    EXPECT_THAT(completed(choiceLine), HasSubstr("vertical\033[0m = 2"));
}

TEST(Completion, WorksInZsh)
{
    if (isMissing("zsh"))
        GTEST_SKIP() << "there is no zsh";
    if (auto const reason = whyNoTerminal(); !reason.empty())
        GTEST_SKIP() << reason;
    EXPECT_EQ(runProgram("zsh", {"-n", hostFolder + "/completion/_effectctl"}).status, 0);
    auto const completed = [](std::string const & line) {
        return completedBy({"zsh", "-f", "-i"},
            "fpath=(" + hostFolder.toStdString() + "/completion $fpath); autoload -U compinit; compinit -u -D", line);
    };
    EXPECT_THAT(completed(showLine), HasSubstr("\"class\": \"Effect::Crop\""));
    EXPECT_THAT(completed(convertLine), HasSubstr("opacity\033[0m = 0.5"));
    EXPECT_THAT(completed(choiceLine), HasSubstr("vertical\033[0m = 2"));
}

TEST(Completion, ZshKnowsEveryCommandAndOption)
{
    std::string const text = read(hostFolder + "/completion/_effectctl");
    for (std::string const & command : commands()) {
        EXPECT_TRUE(std::regex_search(text, std::regex("['\"]" + command + ":"))) << command;
        // The branch of the command, in which variables contain the options that several commands have.
        std::smatch branch;
        ASSERT_TRUE(std::regex_search(
            text, branch, std::regex("\n +(?:[a-z]+ \\| )?" + command + "(?: \\| [a-z]+)?\\)([^;]*);;")))
            << command;
        std::string const listed = branch[1];
        Words options = matches(listed, "(--[a-z][a-z-]*)");
        EXPECT_THAT(listed, HasSubstr("$help"));
        options.insert("--help");
        if (listed.find("$class") != std::string::npos || listed.find("$effect") != std::string::npos)
            options.insert("--class");
        if (listed.find("$json") != std::string::npos)
            options.insert({"--json", "--jsonl"});
        if (listed.find("$output") != std::string::npos)
            options.insert("--output");
        EXPECT_EQ(options, optionsOf(command)) << command;
    }
}

TEST(Package, TheToolBringsItsPageAndCompletions)
{
    QTemporaryDir const prefix;
    auto const run = runProgram(QStringLiteral(CMAKE_PROGRAM),
        {"--install", QStringLiteral(BUILD_FOLDER), "--component", "tool", "--prefix", prefix.path()});
    EXPECT_EQ(run.status, 0) << run.errors;
    for (auto const & [installed, source] : {std::pair("share/man/man1/effectctl.1", "effectctl.1"),
             std::pair("share/bash-completion/completions/effectctl", "completion/effectctl.bash"),
             std::pair("share/zsh/site-functions/_effectctl", "completion/_effectctl")})
        EXPECT_EQ(read(prefix.filePath(installed)), read(hostFolder + '/' + source));
}

} // namespace
