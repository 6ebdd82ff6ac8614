/// @file
/// Interpolated path of a tracked point.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <EditorModel/MotionTracking.h>
#include <EditorUtil/Export.h>
#include <MTime/MTime.h>

#include <QPointF>

namespace MotionTracking {

/// A smooth path through one point of each frame of a track.
///
/// Per coordinate it is the monotone piecewise cubic Hermite interpolant of F. N. Fritsch and J. Butland, "A Method for
/// Constructing Local Monotone Piecewise Cubic Interpolants", SIAM J. Sci. Stat. Comput. 5 (1984), 300-304: the slope
/// at a point is the weighted harmonic mean of the slopes on its two sides, and zero where these differ in sign. So the
/// path goes through every tracked point, has a steady speed there, turns nowhere else, never leaves the range between
/// two neighbouring points, and moves at constant speed where the points do.
///
/// The path copies the points of the track and is immutable, so threads can share it.
class EDITORUTIL_EXPORT MotionTrackingSmoothPath
{
public:
    /// Chooses the point of a frame.
    using Accessor = std::function<QPointF(TimedFrame const &)>;

    /// A path over the frames of `data`; null counts as no frames. `accessor` is called once per frame, in order, and
    /// must return finite coordinates.
    MotionTrackingSmoothPath(std::shared_ptr<Data const> const & data, Accessor const & accessor);

    /// The point at `time`, or nothing before the first and after the last frame. Its cost grows with the logarithm of
    /// the number of frames.
    std::optional<QPointF> pointValue(MTime time) const;

private:
    struct Node
    {
        QPointF point;
        QPointF slope; ///< picture sizes per MTime unit
    };

    // The search goes over the times alone, hence two arrays. They are of the same length.
    std::vector<MTime> m_times;
    std::vector<Node> m_nodes;
};

} // namespace MotionTracking
