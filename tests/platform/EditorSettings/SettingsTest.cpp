#include <EditorSettings/Settings.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <dlfcn.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// Each test starts with nothing set, in code or in the environment.
class SettingsTest : public testing::Test
{
protected:
    void SetUp() override { clear(); }
    void TearDown() override { clear(); }

    static void clear()
    {
        Settings::setStockRoot({});
        Settings::setUserRoot({});
        qunsetenv("EDITOR_STOCK_DIR");
        qunsetenv("EDITOR_USER_DIR");
    }
};

TEST_F(SettingsTest, EachFolderBelowItsRoot)
{
    Settings::setStockRoot("/s");
    Settings::setUserRoot("/u");

    struct
    {
        QString (*path)();
        char const * expected;
    } const rows[] = {
        {&Settings::stockRoot, "/s"},
        {&Settings::stockVideoEffectsPath, "/s/VideoEffects"},
        {&Settings::stockOverlayEffectsPath, "/s/OverlayEffects"},
        {&Settings::stockAudioEffectsPath, "/s/AudioEffects"},
        {&Settings::stockAudioEnhancePath, "/s/AudioEnhance"},
        {&Settings::stockColorFiltersPath, "/s/ColorFilters"},
        {&Settings::stockLutEffectsPath, "/s/Luts"},
        {&Settings::stockPipEffectsPath, "/s/PipEffects"},
        {&Settings::stockMasksPath, "/s/Masks"},
        {&Settings::stockBlurMasksPath, "/s/BlurMasks"},
        {&Settings::stockFlyingObjectsPath, "/s/FlyingObjects"},
        {&Settings::userRoot, "/u"},
        {&Settings::userBlobsPath, "/u/Blobs"},
        {&Settings::userTracksPath, "/u/Tracks"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(row.path().toStdString(), row.expected);
}

TEST_F(SettingsTest, UserEffectsAreFiledByClassWithoutNamespace)
{
    Settings::setUserRoot("/u");
    EXPECT_EQ(Settings::userEffectsPath("Effect::Lut"), "/u/Effects/Lut");
    EXPECT_EQ(Settings::userEffectsPath("Effect::ManualEnhance"), "/u/Effects/ManualEnhance");
    EXPECT_EQ(Settings::userEffectsPath("A::B::C"), "/u/Effects/C");
    EXPECT_EQ(Settings::userEffectsPath("Crop"), "/u/Effects/Crop");
}

TEST_F(SettingsTest, CodeGoesBeforeEnvironmentGoesBeforeDefault)
{
    QString const stockDefault = Settings::stockRoot();
    QString const userDefault = Settings::userRoot();

    qputenv("EDITOR_STOCK_DIR", "/from/environment");
    qputenv("EDITOR_USER_DIR", "/from/home");
    EXPECT_EQ(Settings::stockRoot(), "/from/environment");
    EXPECT_EQ(Settings::userRoot(), "/from/home");

    Settings::setStockRoot("/from/code");
    Settings::setUserRoot("/from/code/too");
    EXPECT_EQ(Settings::stockRoot(), "/from/code");
    EXPECT_EQ(Settings::userRoot(), "/from/code/too");

    Settings::setStockRoot({});
    Settings::setUserRoot({});
    EXPECT_EQ(Settings::stockRoot(), "/from/environment");
    EXPECT_EQ(Settings::userRoot(), "/from/home");

    qputenv("EDITOR_STOCK_DIR", "");
    qputenv("EDITOR_USER_DIR", "");
    EXPECT_EQ(Settings::stockRoot(), stockDefault);
    EXPECT_EQ(Settings::userRoot(), userDefault);
}

TEST_F(SettingsTest, RelativeAndUntidyRootsBecomeAbsolute)
{
    Settings::setStockRoot("some/stock/");
    EXPECT_EQ(Settings::stockMasksPath(), QDir::currentPath() + "/some/stock/Masks");
    Settings::setStockRoot("/a/../b/");
    EXPECT_EQ(Settings::stockMasksPath(), "/b/Masks");
    Settings::setStockRoot("/");
    EXPECT_EQ(Settings::stockMasksPath(), "/Masks");
}

TEST_F(SettingsTest, UserRootFollowsXdg)
{
    QTemporaryDir const folder;
    QByteArray const before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    EXPECT_EQ(Settings::userRoot(), folder.path() + "/EditorEffects");
    before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
}

TEST_F(SettingsTest, BuildTreeHasTheShapeOfAnInstallation)
{
    QFileInfo const link(QString(EDITOR_BUILD_FOLDER "/share/EditorEffects/stock"));
    ASSERT_TRUE(link.isSymLink());
    ASSERT_TRUE(link.exists()) << "the source tree has no stock folder";
    EXPECT_EQ(Settings::stockRoot(),
        QFileInfo(QString(EDITOR_BUILD_FOLDER)).canonicalFilePath() + "/share/EditorEffects/stock");
}

/// The library, copied into a prefix of its own and loaded from there beside the one the test is linked to.
class InstalledSettingsTest : public SettingsTest, public testing::WithParamInterface<char const *>
{};

TEST_P(InstalledSettingsTest, FindsTheStockOfItsOwnPrefix)
{
    QTemporaryDir const prefix;
    QString const root = QFileInfo(prefix.path()).canonicalFilePath();
    QString const library = root + '/' + GetParam() + "/libEditorEffectsEditorSettings.so.1";
    QString const stockFolder = root + "/share/EditorEffects/stock";
    ASSERT_TRUE(QDir().mkpath(root + '/' + GetParam()));
    ASSERT_TRUE(QDir().mkpath(stockFolder));
    ASSERT_TRUE(QFile::copy(EDITOR_SETTINGS_LIBRARY, library));

    void * const handle = dlopen(QFile::encodeName(library).constData(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << dlerror();
    // Settings::stockRoot(), by the name that the compiler gives it.
    auto const stockRoot = reinterpret_cast<QString (*)()>(dlsym(handle, "_ZN8Settings9stockRootEv"));
    ASSERT_NE(stockRoot, nullptr) << dlerror();
    EXPECT_NE(stockRoot, &Settings::stockRoot);
    EXPECT_EQ(stockRoot().toStdString(), stockFolder.toStdString());
    dlclose(handle);
}

INSTANTIATE_TEST_SUITE_P(Layouts, InstalledSettingsTest,
    testing::Values("lib/EditorEffects", "lib/x86_64-linux-gnu/EditorEffects", "lib64"));

TEST_F(SettingsTest, RootsMayChangeWhileOthersAsk)
{
    Settings::setStockRoot("/a");
    std::atomic<bool> done = false;
    std::atomic<int> torn = 0;
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            while (!done) {
                QString const path = Settings::stockMasksPath();
                if (path != "/a/Masks" && path != "/b/Masks")
                    ++torn;
            }
        });
    }
    for (int i = 0; i < 2000; ++i)
        Settings::setStockRoot(i % 2 == 0 ? "/b" : "/a");
    done = true;
    for (std::thread & reader : readers)
        reader.join();
    EXPECT_EQ(torn, 0);
}

} // namespace
