#include <EditorModel/MotionTracking.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <glog/logging.h>

#include <EditorSettings/Settings.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using namespace std::string_literals;
using testing::HasSubstr;

std::string const oneFrame = R"({"frames": [{"time": 7, "rect": [0, 0.25, 0.5, 1]}]})";

TEST(MotionTrack, ParsesFrames)
{
    QString error;
    auto const track = MotionTracking::parseTrack(
        R"({"frames": [{"time": -40000, "rect": [0.125, 0.25, 0.5, 0.75]}, {"rect": [0, 0, 1, 1], "time": 0}]})",
        &error);
    ASSERT_NE(track, nullptr) << error.toStdString();
    ASSERT_EQ(track->frames().size(), 2u);
    EXPECT_EQ(track->frames()[0].time, MTime(-40000));
    EXPECT_EQ(track->frames()[0].frame.toRectF(), QRectF(0.125, 0.25, 0.375, 0.5));
    EXPECT_EQ(track->frames()[1].time, MTime(0));
    EXPECT_EQ(track->frames()[1].frame.toRectF(), QRectF(0, 0, 1, 1));
}

TEST(MotionTrack, RectangleKeepsItsCorners)
{
    MotionTracking::Frame const frame{0.25, 0.5, 0.75, 0.625};
    EXPECT_EQ(frame.toRectF().topLeft(), QPointF(0.25, 0.5));
    EXPECT_EQ(frame.toRectF().bottomRight(), QPointF(0.75, 0.625));
    EXPECT_FALSE((MotionTracking::Frame{0.5, 0.5, 0.5, 0.5}).toRectF().isValid());
    EXPECT_FALSE((MotionTracking::Frame{0.75, 0.5, 0.25, 0.625}).toRectF().isValid());
}

TEST(MotionTrack, TakesWhatIsUnusualButGood)
{
    struct
    {
        char const * what;
        std::string text;
        std::size_t frameCount;
    } const rows[] = {
        {"no frames", R"({"frames": []})", 0},
        {"byte order mark", "\xEF\xBB\xBF" + oneFrame, 1},
        {"beyond the edges", R"({"frames": [{"time": 0, "rect": [-0.5, 1.5, 3e2, -0]}]})", 1},
        {"first and last time",
            R"({"frames": [{"time": -9223372036854775808, "rect": [0,0,1,1]}, {"time": 9223372036854775807, "rect": [0,0,1,1]}]})",
            2},
        {"unknown keys at the top",
            R"({"version": 2, "a": [1, {"frames": 3}], "frames": [{"time": 7, "rect": [0,0,1,1]}], "b": {"c": []}})",
            1},
        {"unknown keys in a frame",
            R"({"frames": [{"who": null, "time": 7, "x": {"time": true, "rect": ["a", 1.5]}, "rect": [0,0,1,1], "y": -3}]})",
            1},
        {"unknown keys, twice", R"({"a": 1, "a": 2, "frames": []})", 0},
        {"a skipped number over 64 bits", R"({"a": 18446744073709551616, "b": 18446744073709551615, "frames": []})", 0},
        {"skipped values 64 deep", R"({"a": )" + std::string(64, '[') + std::string(64, ']') + R"(, "frames": []})", 0},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.what);
        QString error;
        auto const track = MotionTracking::parseTrack(row.text, &error);
        ASSERT_NE(track, nullptr) << error.toStdString();
        EXPECT_EQ(track->frames().size(), row.frameCount);
        EXPECT_TRUE(error.isEmpty());
    }
}

TEST(MotionTrack, SaysWhatIsWrongAndWhere)
{
    struct
    {
        std::string text;
        char const * message;
    } const rows[] = {
        {"", "line 1, column 1: syntax error"},
        {"nonsense", "line 1, column 2: syntax error"},
        {oneFrame + "x", "line 1, column 53: syntax error"},
        {oneFrame.substr(0, 30), "syntax error"},
        {"\0"s, "byte 1 is a NUL"},
        {oneFrame + "\0garbage"s, "byte 53 is a NUL"},
        {"{\"frames\": [\"\xFF\"]}", "ill-formed UTF-8"},
        {"[]", "the document must be an object"},
        {"null", "the document must be an object"},
        {"7", "the document must be an object"},
        {"7.5", "the document must be an object"},
        {"\"frames\"", "the document must be an object"},
        {"{}", "frames is missing"},
        {R"({"Frames": []})", "frames is missing"},
        {R"({"frames": {}})", "frames must be an array"},
        {R"({"frames": null})", "frames must be an array"},
        {R"({"frames": 1})", "frames must be an array"},
        {R"({"frames": [], "frames": []})", "frames is a duplicate key"},
        {R"({"frames": [[]]})", "frames[0] must be an object"},
        {R"({"frames": [true]})", "frames[0] must be an object"},
        {R"({"frames": [{}]})", "frames[0].time is missing"},
        {R"({"frames": [{"rect": [0,0,1,1]}]})", "frames[0].time is missing"},
        {R"({"frames": [{"time": 0}]})", "frames[0].rect is missing"},
        {R"({"frames": [{"time": 0, "time": 1, "rect": [0,0,1,1]}]})", "frames[0].time is a duplicate key"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,1], "rect": [0,0,1,1]}]})", "frames[0].rect is a duplicate key"},
        {R"({"frames": [{"time": 0.5, "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": "0", "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": [0], "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": {}, "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": 9223372036854775808, "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": -9223372036854775809, "rect": [0,0,1,1]}]})", "frames[0].time must be an integer"},
        {R"({"frames": [{"time": 0, "rect": 1}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": {}}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": []}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,1,1]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,"1"]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,null]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,[1]]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,{}]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,"NaN"]}]})", "frames[0].rect must be an array of four numbers"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,NaN]}]})", "syntax error"},
        {R"({"frames": [{"time": 0, "rect": [0,0,1,1e999]}]})", "number overflow parsing '1e999'"},
        {R"({"frames": [{"time": 5, "rect": [0,0,1,1]}, {"time": 5, "rect": [0,0,1,1]}]})",
            "frames[1].time 5 does not come after 5"},
        {R"({"frames": [{"time": 5, "rect": [0,0,1,1]}, {"time": 6, "rect": [0,0,1,1]}, {"time": -4, "rect": [0,0,1,1]}]})",
            "frames[2].time -4 does not come after 6"},
        {R"({"a": )" + std::string(65, '[') + std::string(65, ']') + R"(, "frames": []})", "a value nests too deep"},
        {R"({"a": )" + std::string(1'000'000, '['), "a value nests too deep"},
        {std::string(1'000'000, '['), "the document must be an object"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.text.substr(0, 100));
        QString error;
        EXPECT_EQ(MotionTracking::parseTrack(row.text, &error), nullptr);
        EXPECT_THAT(error.toStdString(), HasSubstr(row.message));
        EXPECT_EQ(MotionTracking::parseTrack(row.text), nullptr);
    }
}

TEST(MotionTrack, ErrorStaysShortWhateverTheFileHolds)
{
    QString error;
    EXPECT_EQ(MotionTracking::parseTrack("{\"" + std::string(1'000'000, 'x'), &error), nullptr);
    EXPECT_THAT(error.toStdString(), HasSubstr("syntax error"));
    EXPECT_LE(error.size(), 200);
}

TEST(MotionTrack, DataRefusesTimesOutOfOrder)
{
    EXPECT_TRUE(MotionTracking::Data({}).frames().empty());
    EXPECT_EQ(MotionTracking::Data({{MTime(1), {}}, {MTime(2), {}}}).frames().size(), 2u);
    EXPECT_THROW(MotionTracking::Data({{MTime(1), {}}, {MTime(1), {}}}), std::invalid_argument);
    EXPECT_THROW(MotionTracking::Data({{MTime(1), {}}, {MTime(0), {}}}), std::invalid_argument);
}

/// Counts the log lines of one severity.
class LogCounter : public google::LogSink
{
public:
    LogCounter() { google::AddLogSink(this); }
    ~LogCounter() override { google::RemoveLogSink(this); }

    void send(google::LogSeverity severity, char const *, char const *, int, tm const *, char const * message,
        std::size_t length) override
    {
        lines.push_back(std::to_string(severity) + ' ' + std::string(message, length));
    }

    std::vector<std::string> lines;
};

class MotionTrackFile : public testing::Test
{
protected:
    void SetUp() override
    {
        Settings::setUserRoot(m_root.path());
        ASSERT_TRUE(QDir(m_root.path()).mkpath("Tracks"));
    }
    void TearDown() override { Settings::setUserRoot({}); }

    QString path(QString const & relative) const { return m_root.filePath(relative); }

    QString write(QString const & relative, std::string const & text) const
    {
        QFile file(path(relative));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        EXPECT_EQ(file.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
        return file.fileName();
    }

    LogCounter m_log;

private:
    QTemporaryDir m_root;
};

TEST_F(MotionTrackFile, LoadsFromTheFolderById)
{
    write("Tracks/car.track.json", oneFrame);
    auto const track = MotionTracking::loadTrackingData("car");
    ASSERT_NE(track, nullptr);
    ASSERT_EQ(track->frames().size(), 1u);
    EXPECT_EQ(track->frames()[0].time, MTime(7));

    write("Tracks/a b..c \xC3\xA4.track.json", oneFrame);
    EXPECT_NE(MotionTracking::loadTrackingData("a b..c \xC3\xA4"), nullptr);
    EXPECT_TRUE(m_log.lines.empty());
}

TEST_F(MotionTrackFile, NoIdIsSilentlyNull)
{
    write("Tracks/.track.json", oneFrame);
    EXPECT_EQ(MotionTracking::loadTrackingData(""), nullptr);
    EXPECT_EQ(MotionTracking::loadTrackingData({}), nullptr);
    EXPECT_TRUE(m_log.lines.empty());
}

TEST_F(MotionTrackFile, MissingFileIsNullAndOneWarning)
{
    for (char const * const id : {"unknown", "..", ".", "two\nlines"}) {
        EXPECT_EQ(MotionTracking::loadTrackingData(id), nullptr);
        std::string shown = path(QString("Tracks/%1.track.json").arg(id)).toStdString();
        if (auto const end = shown.find('\n'); end != shown.npos)
            shown.replace(end, 1, "\xEF\xBF\xBD");
        EXPECT_THAT(m_log.lines, testing::ElementsAre(std::to_string(google::GLOG_WARNING) +
                                                      " Couldn't read motion track: " + shown + ": no such file"));
        m_log.lines.clear();
    }
    MotionTracking::registerTrack("car", path("gone.json"));
    EXPECT_EQ(MotionTracking::loadTrackingData("car"), nullptr);
    MotionTracking::unregisterTrack("car");
    EXPECT_THAT(m_log.lines, testing::ElementsAre(HasSubstr(
                                 "Couldn't read motion track: " + path("gone.json").toStdString() + ": no such file")));
}

TEST_F(MotionTrackFile, IdsThatNameNoFileAreNullAndOneWarning)
{
    write("outside.track.json", oneFrame);
    write("Tracks/nul.track.json", oneFrame);
    ASSERT_TRUE(QDir(path("Tracks")).mkpath("sub"));
    write("Tracks/sub/deep.track.json", oneFrame);
    write("Tracks/.track.json", oneFrame);

    QString const ids[] = {"../outside", "./nul", "sub/deep", "..\\outside", path("outside"), QString("nul") + QChar(),
        QString("nul.track.json") + QChar()};
    for (QString const & id : ids) {
        EXPECT_EQ(MotionTracking::loadTrackingData(id), nullptr) << id.toStdString();
        EXPECT_THAT(m_log.lines, testing::ElementsAre(testing::EndsWith("\" cannot be the name of a file")));
        m_log.lines.clear();
    }
    EXPECT_EQ(MotionTracking::loadTrackingData("sub/deep"), nullptr);
    EXPECT_THAT(
        m_log.lines, testing::ElementsAre(std::to_string(google::GLOG_WARNING) +
                                          " Couldn't read motion track: \"sub/deep\" cannot be the name of a file"));
    m_log.lines.clear();
    EXPECT_EQ(MotionTracking::loadTrackingData(QString(100'000, 'x')), nullptr);
    ASSERT_EQ(m_log.lines.size(), 1U);
    EXPECT_LT(m_log.lines[0].size(), 2100U);
}

TEST_F(MotionTrackFile, BrokenFileIsNullAndOneWarning)
{
    QString const file = write("Tracks/broken.track.json", R"({"frames": [{"time": 0}]})");
    EXPECT_EQ(MotionTracking::loadTrackingData("broken"), nullptr);
    EXPECT_THAT(m_log.lines,
        testing::ElementsAre(std::to_string(google::GLOG_WARNING) +
                             " Couldn't read motion track: " + file.toStdString() + ": frames[0].rect is missing"));
}

TEST_F(MotionTrackFile, AnIdentifierHasAPathWhetherTheFileExistsOrNot)
{
    EXPECT_EQ(MotionTracking::trackPath("car"), path("Tracks/car.track.json"));
    EXPECT_EQ(MotionTracking::trackPath("a/car"), QString());
    MotionTracking::registerTrack("a/car", "elsewhere.json");
    EXPECT_EQ(MotionTracking::trackPath("a/car"), "elsewhere.json");
    MotionTracking::unregisterTrack("a/car");
}

TEST_F(MotionTrackFile, RegisteredFileGoesAheadOfTheFolder)
{
    write("Tracks/car.track.json", oneFrame);
    QString const brought = write("brought.json", R"({"frames": []})");
    QString const second = write("second.json", R"({"frames": [{"time": 8, "rect": [0,0,1,1]}]})");

    MotionTracking::registerTrack("car", brought);
    auto track = MotionTracking::loadTrackingData("car");
    ASSERT_NE(track, nullptr);
    EXPECT_TRUE(track->frames().empty());

    MotionTracking::registerTrack("car", second);
    track = MotionTracking::loadTrackingData("car");
    ASSERT_NE(track, nullptr);
    EXPECT_EQ(track->frames().at(0).time, MTime(8));
    EXPECT_TRUE(m_log.lines.empty());

    MotionTracking::registerTrack("car", path("gone.json"));
    EXPECT_EQ(MotionTracking::loadTrackingData("car"), nullptr);

    MotionTracking::unregisterTrack("car");
    track = MotionTracking::loadTrackingData("car");
    ASSERT_NE(track, nullptr);
    EXPECT_EQ(track->frames().at(0).time, MTime(7));
    MotionTracking::unregisterTrack("car");
}

TEST_F(MotionTrackFile, RegisteredIdNeedNotBeAFileName)
{
    QString const brought = write("brought.json", oneFrame);
    MotionTracking::registerTrack("clips/7", brought);
    EXPECT_NE(MotionTracking::loadTrackingData("clips/7"), nullptr);
    MotionTracking::unregisterTrack("clips/7");
    EXPECT_EQ(MotionTracking::loadTrackingData("clips/7"), nullptr);

    MotionTracking::registerTrack("", brought);
    EXPECT_EQ(MotionTracking::loadTrackingData(""), nullptr);
    MotionTracking::unregisterTrack("");
}

TEST_F(MotionTrackFile, ErrorsNameTheFile)
{
    auto const errorOf = [](QString const & file) {
        QString error;
        EXPECT_EQ(MotionTracking::loadTrackFile(file, &error), nullptr);
        return error.toStdString();
    };
    EXPECT_EQ(errorOf(path("none")), path("none").toStdString() + ": no such file");
    EXPECT_EQ(errorOf(path("Tracks")), path("Tracks").toStdString() + ": is not a regular file");
    EXPECT_EQ(errorOf("/dev/zero"), "/dev/zero: is not a regular file");
    QString const pipe = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(errorOf(pipe), pipe.toStdString() + ": is not a regular file");
    QString const text = write("text.json", "[]");
    EXPECT_EQ(errorOf(text), text.toStdString() + ": the document must be an object");

    EXPECT_EQ(MotionTracking::loadTrackFile(path("none")), nullptr);
}

TEST_F(MotionTrackFile, RefusesFilesOverTheLimit)
{
    QString const file = write("large.json", oneFrame);
    QString error;
    ASSERT_TRUE(QFile::resize(file, 67108865));
    EXPECT_EQ(MotionTracking::loadTrackFile(file, &error), nullptr);
    EXPECT_EQ(error, file + ": is longer than 67108864 bytes");
    // One byte less is read, and found to have zeros at its end.
    ASSERT_TRUE(QFile::resize(file, 67108864));
    EXPECT_EQ(MotionTracking::loadTrackFile(file, &error), nullptr);
    EXPECT_EQ(error, file + ": byte 53 is a NUL");
}

TEST_F(MotionTrackFile, LoadsLongTracks)
{
    std::string text = R"({"frames": [)";
    for (int i = 0; i < 100'000; ++i) {
        text += i == 0 ? "" : ",";
        text += R"({"time": )" + std::to_string(i * std::int64_t{40'000}) + R"(, "rect": [0.1, 0.2, 0.3, 0.4]})";
    }
    write("Tracks/long.track.json", text + "]}");
    auto const track = MotionTracking::loadTrackingData("long");
    ASSERT_NE(track, nullptr);
    ASSERT_EQ(track->frames().size(), 100'000u);
    EXPECT_EQ(track->frames().back().time, MTime(3'999'960'000));
}

TEST_F(MotionTrackFile, RegistrationsMayChangeWhileOthersLoad)
{
    write("Tracks/shared.track.json", oneFrame);
    QString const brought = write("brought.json", R"({"frames": [{"time": 8, "rect": [0,0,1,1]}]})");
    std::atomic<bool> done = false;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            while (!done) {
                auto const track = MotionTracking::loadTrackingData("shared");
                if (!track || (track->frames()[0].time != MTime(7) && track->frames()[0].time != MTime(8)))
                    ++wrong;
            }
        });
    }
    for (int i = 0; i < 500; ++i) {
        MotionTracking::registerTrack("shared", brought);
        MotionTracking::unregisterTrack("shared");
    }
    done = true;
    for (std::thread & reader : readers)
        reader.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
