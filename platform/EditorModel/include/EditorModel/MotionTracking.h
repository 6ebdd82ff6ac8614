/// @file
/// Motion tracks: positions of a tracked object in the picture over time.
///
/// A track is a JSON file, by default `<user root>/Tracks/<id>.track.json`:
///
///     {"frames": [
///         {"time": 0,     "rect": [0.10, 0.20, 0.30, 0.50]},
///         {"time": 40000, "rect": [0.11, 0.20, 0.31, 0.50]}
///     ]}
///
/// `time` is an integer of MTime units, each greater than the one before. `rect` is left, top, right and bottom as
/// fractions of the picture's width and height. What is tracked may lie partly outside of the picture, so any finite
/// number is taken. Other keys are ignored. A track without frames has no position at any time.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <EditorModel/Export.h>
#include <MTime/MTime.h>

#include <QRectF>
#include <QString>

namespace MotionTracking {

/// A rectangle in picture coordinates, from 0 at the left and top edge to 1 at the right and bottom edge.
struct EDITORMODEL_EXPORT Frame
{
    double left = 0.0;   ///< of the picture's width
    double top = 0.0;    ///< of the picture's height
    double right = 0.0;  ///< of the picture's width
    double bottom = 0.0; ///< of the picture's height

    QRectF toRectF() const; ///< the same rectangle
};

/// The position of the tracked object at one time.
struct TimedFrame
{
    MTime time;  ///< within the clip
    Frame frame; ///< position of the tracked object
};

/// A track. Immutable, so threads can share it.
class EDITORMODEL_EXPORT Data
{
public:
    /// Takes any number of frames. Throws std::invalid_argument where a time does not come after the one before.
    explicit Data(std::vector<TimedFrame> frames);

    /// In ascending order of time, no two at the same.
    std::vector<TimedFrame> const & frames() const { return m_frames; }

private:
    std::vector<TimedFrame> m_frames;
};

/// Reads the track of the identifier `id`: the file registered for it, else the one in `Settings::userTracksPath()`.
/// Every call reads the file again.
///
/// Null when `id` is empty: there is no track. Null as well, with one warning in the log, when the file is missing or
/// holds no track. In the folder an identifier is a plain file name, and one with a slash, a backslash or a NUL in it
/// names no file. May be called from any thread.
EDITORMODEL_EXPORT std::shared_ptr<Data const> loadTrackingData(QString const & id);

/// Puts the file at `path` in place of the one in the folder for the identifier `id`, which may be any text that is not
/// empty, and of any file registered before. A registered file that is missing or broken is not replaced by the
/// folder's. For the whole process, from any thread.
EDITORMODEL_EXPORT void registerTrack(QString const & id, QString const & path);

/// Removes a registration, if there is one.
EDITORMODEL_EXPORT void unregisterTrack(QString const & id);

/// The file of the identifier `id`: the one registered for it, else the one in `Settings::userTracksPath()`, whether it
/// exists or not. Empty where the identifier can name no file.
EDITORMODEL_EXPORT QString trackPath(QString const & id);

/// Reads the file at `path`, which must be a regular one of at most 64 MiB. On failure null, and in `error`, unless
/// that is null, one line with the path, the place in the file and the reason.
EDITORMODEL_EXPORT std::shared_ptr<Data const> loadTrackFile(QString const & path, QString * error = nullptr);

/// Reads a track from the `text` of its file, as `loadTrackFile` does. Skipped values may nest 64 levels deep.
EDITORMODEL_EXPORT std::shared_ptr<Data const> parseTrack(std::string_view text, QString * error = nullptr);

} // namespace MotionTracking
