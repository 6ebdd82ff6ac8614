#include <chrono>
#include <fstream>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <EditorUtil/ItemFile.h>
#include <effects/Composition.h>

#include <support/Resources.h>

#include "Effectctl.h"
#include "Terminal.h"

#include <QFile>

#include <gmock/gmock.h>

namespace {

using Testing::effectctl;
using testing::HasSubstr;
using testing::Not;
using Testing::onTerminal;
using testing::StartsWith;
using Testing::Terminal;
using Testing::whyNoTerminal;

constexpr char const * bar = "[#";
constexpr char const * wipe = "\r\033[K";

/// While it lives, this process opens no more files, and so no terminal.
class WithoutFiles
{
public:
    WithoutFiles()
    {
        EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &m_previous), 0);
        rlimit const none{0, m_previous.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    }
    ~WithoutFiles() { setrlimit(RLIMIT_NOFILE, &m_previous); }
    WithoutFiles(WithoutFiles const &) = delete;
    WithoutFiles & operator=(WithoutFiles const &) = delete;

private:
    rlimit m_previous{};
};

TEST(TerminalSupport, AMissingTerminalIsReportedAtOnce)
{
    std::string reason;
    {
        WithoutFiles const none;
        reason = whyNoTerminal();
        EXPECT_THROW(Terminal({EFFECTCTL, "--version"}, {}), std::system_error);
    }
    EXPECT_EQ(reason, "a pseudo-terminal cannot be opened: Too many open files");
}

/// Two tables whose names differ in length.
class TerminalTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (auto const reason = whyNoTerminal(); !reason.empty())
            GTEST_SKIP() << reason;
        files.write("curve.cube", "TITLE \"Warm\"\nLUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
        files.write("cube.cube", "LUT_3D_SIZE 2\n" + QByteArray("0 0 0\n").repeated(8));
    }

    std::string path(char const * file) const { return files.path(file).toStdString(); }

    std::string table(Terminal::Setup const & setup = {}) const
    {
        return onTerminal({"lut", path("curve.cube"), path("cube.cube")}, setup);
    }

    /// The table, its heading between two texts.
    std::string aligned(std::string const & on, std::string const & off) const
    {
        auto const heading = [&](std::string const & text) { return on + text + off; };
        return heading("FILE") + std::string(path("curve.cube").size() - 2, ' ') + heading("FORMAT") + "  " +
               heading("SIZE") + "   " + heading("TITLE") + "\r\n" +  //
               path("curve.cube") + "  cube    2      \"Warm\"\r\n" + //
               path("cube.cube") + "   cube    2x2x2  \"\"\r\n";
    }

    Testing::TemporaryResources files;
};

TEST_F(TerminalTest, TablesAreAlignedWithABoldHeading)
{
    EXPECT_EQ(table(), aligned("\033[1m", "\033[0m"));
}

TEST_F(TerminalTest, TheEnvironmentSwitchesColoursOff)
{
    EXPECT_EQ(table({{{"NO_COLOR", "0"}}, {}}), aligned("", ""));
    EXPECT_EQ(table({{{"TERM", "dumb"}}, {}}), aligned("", ""));
    EXPECT_EQ(table({{{"NO_COLOR", ""}}, {}}), aligned("\033[1m", "\033[0m"));
}

TEST_F(TerminalTest, ElsewhereCellsStandBetweenTabs)
{
    auto const run = effectctl({"lut", files.path("curve.cube"), files.path("cube.cube")});
    EXPECT_EQ(run.output, "FILE\tFORMAT\tSIZE\tTITLE\n" + path("curve.cube") + "\tcube\t2\t\"Warm\"\n" +
                              path("cube.cube") + "\tcube\t2x2x2\t\"\"\n");
    // Each stream is judged by itself.
    EXPECT_EQ(table({{}, path("out.txt")}), "");
    std::ifstream file(path("out.txt"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), run.output);
}

TEST_F(TerminalTest, DocumentsAreDimAndBold)
{
    std::string const shown = onTerminal({"show", "--class", "Effect::Opacity"});
    EXPECT_THAT(shown, StartsWith("\033[1mEffect::Opacity\033[0m\r\n"));
    EXPECT_THAT(shown, HasSubstr("\033[2mopacity\033[0m"));
    EXPECT_THAT(onTerminal({"show", "--class", "Effect::Opacity", "--json"}), Not(HasSubstr("\033[")));
}

TEST_F(TerminalTest, ErrorsAreRed)
{
    EXPECT_EQ(onTerminal({"lut", "nowhere"}), "\033[31meffectctl:\033[0m nowhere: No such file or directory\r\n");
    EXPECT_EQ(
        onTerminal({"lut", "nowhere"}, {{{"NO_COLOR", "1"}}, {}}), "effectctl: nowhere: No such file or directory\r\n");
    EXPECT_EQ(effectctl({"lut", "nowhere"}).errors, "effectctl: nowhere: No such file or directory\n");
    // A name cannot colour or break the line.
    EXPECT_EQ(effectctl({"lut", "a\x1b\nb"}).errors, "effectctl: a??b: No such file or directory\n");
}

/// The program waits for the pipe in the middle, which makes its work long.
class ProgressTest : public TerminalTest
{
protected:
    std::string slowly(Terminal::Setup const & setup, std::chrono::milliseconds pause)
    {
        EXPECT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
        Terminal terminal(
            {EFFECTCTL, "lut", path("cube.cube"), path("pipe"), path("cube.cube"), path("nowhere")}, setup);
        // Opened once the program has.
        std::ofstream pipe(path("pipe"));
        std::this_thread::sleep_for(pause);
        pipe << "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";
        pipe.close();
        return terminal.readAll();
    }
};

TEST_F(ProgressTest, LongWorkShowsABarAndWipesIt)
{
    std::string const screen = slowly({{}, path("out.txt")}, std::chrono::milliseconds(1500));
    // Two of four are done when the pipe is; the bar is 40 wide.
    EXPECT_THAT(
        screen, HasSubstr("\rReading tables [" + std::string(20, '#') + std::string(20, '-') + "] 2 of 4\033[K"));
    EXPECT_THAT(screen, testing::EndsWith("\033[K" + (wipe + ("\033[31meffectctl:\033[0m " + path("nowhere"))) +
                                          ": No such file or directory\r\n"));
    std::ifstream file(path("out.txt"));
    EXPECT_THAT(std::string(std::istreambuf_iterator<char>(file), {}), Not(HasSubstr("\033")));
}

TEST_F(ProgressTest, ResultsOnTheSameTerminalBeginOnAnEmptyLine)
{
    std::string const screen = slowly({}, std::chrono::milliseconds(1500));
    EXPECT_THAT(screen, HasSubstr(bar));
    EXPECT_THAT(screen, HasSubstr(std::string(": No such file or directory\r\n") + "\033[1mFILE"));
    EXPECT_GT(screen.find("\033[1mFILE"), screen.rfind(wipe));
}

TEST_F(ProgressTest, ShortWorkAndDumbTerminalsHaveNone)
{
    auto const start = std::chrono::steady_clock::now();
    std::string const screen = slowly({}, std::chrono::milliseconds(0));
    // On a machine that is busy otherwise it may have been long.
    if (std::chrono::steady_clock::now() - start < std::chrono::seconds(1)) {
        EXPECT_THAT(screen, Not(HasSubstr(bar)));
    }
    QFile::remove(files.path("pipe"));
    EXPECT_THAT(slowly({{{"TERM", "dumb"}}, {}}, std::chrono::milliseconds(1500)), Not(HasSubstr("\r\033")));
}

TEST_F(ProgressTest, TheCatalogueShowsItsDeliveries)
{
    // One large item many times over, until reading them takes long enough on this machine.
    QString const folder = files.path("VideoEffects");
    EditorCollection::storeItem(folder, "item0", Effect::Opacity());
    QFile file(folder + "/item0.effect.json");
    ASSERT_TRUE(file.open(QIODevice::Append));
    QByteArray const blanks((EditorCollection::maxItemFileSize >> 1), ' ');
    ASSERT_EQ(file.write(blanks), blanks.size());
    file.close();
    std::string screen;
    for (int made = 1, wanted = 64; wanted <= 4096; wanted *= 2) {
        for (; made < wanted; ++made)
            ASSERT_EQ(link(QFile::encodeName(file.fileName()).constData(),
                          QFile::encodeName(QString("%1/item%2.effect.json").arg(folder).arg(made)).constData()),
                0);
        auto const start = std::chrono::steady_clock::now();
        screen = onTerminal(
            {"catalogue", "--json", "--stock", files.folder().toStdString(), "--user", files.folder().toStdString()},
            {{}, path("out.json")});
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(3))
            break;
    }
    EXPECT_THAT(screen, StartsWith("\rReading items ["));
    EXPECT_THAT(screen, testing::EndsWith(wipe));
    // Nothing of it where there is no terminal, which `PrintsADocument` shows for the errors of the others.
    std::ifstream document(path("out.json"));
    EXPECT_THAT(std::string(std::istreambuf_iterator<char>(document), {}), StartsWith("{\n"));
}

} // namespace
