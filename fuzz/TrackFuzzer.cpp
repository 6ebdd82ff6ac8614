// Motion tracks: any text either is refused with a reason, or gives a track that keeps its promises, and a path over it
// that goes through its points.
#include <EditorUtil/MotionTrackingSmoothPath.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QPointF topLeft(MotionTracking::TimedFrame const & frame)
{
    return frame.frame.toRectF().topLeft();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    QString error;
    auto const track = MotionTracking::parseTrack({reinterpret_cast<char const *>(data), size}, &error);
    require((track == nullptr) == !error.isEmpty());
    if (!track)
        return 0;

    MotionTracking::MotionTrackingSmoothPath const path(track, topLeft);
    MotionTracking::TimedFrame const * before = nullptr;
    for (MotionTracking::TimedFrame const & frame : track->frames()) {
        require(std::isfinite(frame.frame.left) && std::isfinite(frame.frame.top) && std::isfinite(frame.frame.right) &&
                std::isfinite(frame.frame.bottom));
        require(before == nullptr || before->time < frame.time);
        auto const point = path.pointValue(frame.time);
        require(point && point->x() == frame.frame.left && point->y() == frame.frame.top);
        require(path.pointValue(MTime(frame.time.units() / 2)).has_value() ||
                frame.time.units() / 2 < track->frames().front().time.units() ||
                frame.time.units() / 2 > track->frames().back().time.units());
        before = &frame;
    }
    return 0;
}
