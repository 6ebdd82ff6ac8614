#include <EditorModel/MotionTracking.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include <glog/logging.h>
#include <nlohmann/json.hpp>

#include <EditorSerialization/MessageText.h>
#include <EditorSettings/Settings.h>
#include <FileSystem/FileSystem.h>

#include "RegularFile.h"

#include <QByteArray>

namespace MotionTracking {

namespace {

/// Hours of frames at any rate in use, yet a size that can be read in one go.
constexpr qint64 maxFileSize = 64 << 20;
constexpr int maxIgnoredDepth = 64;
/// The parser quotes what it stumbled over, which can be as long as the file.
constexpr int maxSyntaxMessage = 200;

/// Takes the frames from the events of the JSON parser, without a tree of values between.
class TrackReader final : public nlohmann::json_sax<nlohmann::json>
{
public:
    std::vector<TimedFrame> takeFrames() { return std::move(m_frames); }
    QString const & error() const { return m_error; }

    bool null() override { return isIgnored() || mismatch(); }
    bool boolean(bool /*value*/) override { return isIgnored() || mismatch(); }
    bool string(string_t & /*value*/) override { return isIgnored() || mismatch(); }
    bool binary(binary_t & /*value*/) override { return isIgnored() || mismatch(); }

    bool number_integer(number_integer_t value) override
    {
        if (m_place == Place::Frame && m_key == Key::Time) {
            m_time = MTime(value);
            return true;
        }
        return number_float(static_cast<double>(value), {});
    }

    bool number_unsigned(number_unsigned_t value) override
    {
        if (value <= static_cast<number_unsigned_t>(std::numeric_limits<number_integer_t>::max()))
            return number_integer(static_cast<number_integer_t>(value));
        return number_float(static_cast<double>(value), {});
    }

    bool number_float(number_float_t value, string_t const & /*text*/) override
    {
        if (m_place != Place::Rect)
            return isIgnored() || mismatch();
        if (m_coordinateCount == m_coordinates.size())
            return mismatch();
        m_coordinates[m_coordinateCount++] = value;
        return true;
    }

    bool start_object(std::size_t /*size*/) override
    {
        if (isIgnored())
            return enterIgnored();
        if (m_place == Place::Outside) {
            m_place = Place::Track;
            return true;
        }
        if (m_place == Place::Frames) {
            m_place = Place::Frame;
            m_time.reset();
            m_coordinateCount = 0;
            m_hasRect = false;
            return true;
        }
        return mismatch();
    }

    bool key(string_t & name) override
    {
        if (m_ignoredDepth > 0)
            return true;
        m_key = Key::Other;
        if (m_place == Place::Track && name == "frames") {
            m_key = Key::Frames;
            return !m_hasFrames || fail("frames", "is a duplicate key");
        }
        if (m_place == Place::Frame && name == "time") {
            m_key = Key::Time;
            return !m_time || fail(frameName() + ".time", "is a duplicate key");
        }
        if (m_place == Place::Frame && name == "rect") {
            m_key = Key::Rect;
            return !m_hasRect || fail(frameName() + ".rect", "is a duplicate key");
        }
        return true;
    }

    bool end_object() override
    {
        if (m_ignoredDepth > 0)
            return leaveIgnored();
        if (m_place == Place::Track) {
            m_place = Place::Outside;
            return m_hasFrames || fail("frames", "is missing");
        }
        m_place = Place::Frames;
        return addFrame();
    }

    bool start_array(std::size_t /*size*/) override
    {
        if (isIgnored())
            return enterIgnored();
        if (m_place == Place::Track) {
            m_place = Place::Frames;
            m_hasFrames = true;
            return true;
        }
        if (m_place == Place::Frame && m_key == Key::Rect) {
            m_place = Place::Rect;
            m_hasRect = true;
            return true;
        }
        return mismatch();
    }

    bool end_array() override
    {
        if (m_ignoredDepth > 0)
            return leaveIgnored();
        if (m_place == Place::Frames) {
            m_place = Place::Track;
            return true;
        }
        if (m_coordinateCount != m_coordinates.size())
            return mismatch();
        m_place = Place::Frame;
        return true;
    }

    bool parse_error(
        std::size_t /*position*/, std::string const & /*token*/, nlohmann::json::exception const & exception) override
    {
        // Such as "[json.exception.parse_error.101] parse error at line 1, column 2: ...".
        auto const length = static_cast<int>(qstrnlen(exception.what(), maxSyntaxMessage));
        m_error = QString::fromUtf8(exception.what(), length).section("] ", 1);
        return false;
    }

private:
    enum class Place
    {
        Outside,
        Track,  ///< in the object of the whole file
        Frames, ///< in its list
        Frame,  ///< in one object of the list
        Rect,   ///< in the list of coordinates of one
    };
    enum class Key
    {
        Other,
        Frames,
        Time,
        Rect
    };

    bool isIgnored() const
    {
        return m_ignoredDepth > 0 || ((m_place == Place::Track || m_place == Place::Frame) && m_key == Key::Other);
    }

    bool enterIgnored() { return ++m_ignoredDepth <= maxIgnoredDepth || fail(QString(), "a value nests too deep"); }

    bool leaveIgnored()
    {
        --m_ignoredDepth;
        return true;
    }

    bool addFrame()
    {
        if (!m_time)
            return fail(frameName() + ".time", "is missing");
        if (!m_hasRect)
            return fail(frameName() + ".rect", "is missing");
        if (!m_frames.empty() && *m_time <= m_frames.back().time) {
            return fail(frameName() + ".time",
                QStringLiteral("%1 does not come after %2").arg(m_time->units()).arg(m_frames.back().time.units()));
        }
        auto const & [left, top, right, bottom] = m_coordinates;
        m_frames.push_back({*m_time, {left, top, right, bottom}});
        return true;
    }

    /// The value at this place is not of the type that belongs there.
    bool mismatch()
    {
        switch (m_place) {
        case Place::Outside:
            return fail("the document", "must be an object");
        case Place::Track:
            return fail("frames", "must be an array");
        case Place::Frames:
            return fail(frameName(), "must be an object");
        case Place::Frame:
            if (m_key == Key::Time)
                return fail(frameName() + ".time", "must be an integer of 64 bits");
            break;
        case Place::Rect:
            break;
        }
        return fail(frameName() + ".rect", "must be an array of four numbers");
    }

    QString frameName() const { return QStringLiteral("frames[%1]").arg(m_frames.size()); }

    bool fail(QString const & where, QString const & reason)
    {
        m_error = where.isEmpty() ? reason : where + ' ' + reason;
        return false;
    }

    std::vector<TimedFrame> m_frames;
    QString m_error;

    Place m_place = Place::Outside;
    Key m_key = Key::Other;
    int m_ignoredDepth = 0;
    bool m_hasFrames = false;

    // The frame being read.
    std::optional<MTime> m_time;
    bool m_hasRect = false;
    std::array<double, 4> m_coordinates{};
    std::size_t m_coordinateCount = 0;
};

/// Files that a host brought, by identifier.
struct Registry
{
    std::mutex mutex;
    std::map<QString, QString> paths;
};

Registry & registry()
{
    static Registry instance;
    return instance;
}

void report(QString * error, QString const & text)
{
    if (error != nullptr)
        *error = text;
}

} // namespace

QRectF Frame::toRectF() const
{
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

Data::Data(std::vector<TimedFrame> frames)
    : m_frames(std::move(frames))
{
    for (std::size_t i = 1; i < m_frames.size(); ++i) {
        if (m_frames[i].time <= m_frames[i - 1].time) {
            throw std::invalid_argument("Motion track: the time of frame " + std::to_string(i) +
                                        " does not come after that of the frame before");
        }
    }
}

std::shared_ptr<Data const> parseTrack(std::string_view text, QString * error)
{
    // The parser would take it for the end of the text.
    if (auto const nul = text.find('\0'); nul != std::string_view::npos) {
        report(error, QStringLiteral("byte %1 is a NUL").arg(nul + 1));
        return nullptr;
    }
    TrackReader reader;
    if (!nlohmann::json::sax_parse(text.begin(), text.end(), &reader)) {
        report(error, reader.error());
        return nullptr;
    }
    return std::make_shared<Data const>(reader.takeFrames());
}

std::shared_ptr<Data const> loadTrackFile(QString const & path, QString * error)
{
    std::optional<QByteArray> const text = RegularFile::read(path, maxFileSize, error);
    if (!text)
        return nullptr;
    QString reason;
    std::shared_ptr<Data const> data = parseTrack({text->constData(), static_cast<std::size_t>(text->size())}, &reason);
    if (!data)
        report(error, path + ": " + reason);
    return data;
}

QString trackPath(QString const & id)
{
    {
        Registry & tracks = registry();
        std::lock_guard const lock(tracks.mutex);
        if (auto const found = tracks.paths.find(id); found != tracks.paths.end())
            return found->second;
    }
    // What would lead out of the folder. ".." need not be here: with the suffix it is a name like others.
    for (QChar const separator : {QChar('/'), QChar('\\'), QChar()}) {
        if (id.contains(separator))
            return {};
    }
    return FS::joinPath({Settings::userTracksPath(), id}, QStringLiteral(".track.json"));
}

std::shared_ptr<Data const> loadTrackingData(QString const & id)
{
    if (id.isEmpty())
        return nullptr;
    QString error;
    std::shared_ptr<Data const> data;
    if (QString const path = trackPath(id); path.isEmpty())
        error = QStringLiteral("\"%1\" cannot be the name of a file").arg(id);
    else
        data = loadTrackFile(path, &error);
    if (!data)
        LOG(WARNING) << "Couldn't read motion track: " << Serialize::messageText(error.toStdString());
    return data;
}

void registerTrack(QString const & id, QString const & path)
{
    Registry & tracks = registry();
    std::lock_guard const lock(tracks.mutex);
    tracks.paths[id] = path;
}

void unregisterTrack(QString const & id)
{
    Registry & tracks = registry();
    std::lock_guard const lock(tracks.mutex);
    tracks.paths.erase(id);
}

} // namespace MotionTracking
