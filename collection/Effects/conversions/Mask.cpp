#include <optional>
#include <utility>
#include <vector>

#include <collection/Effects/Conversions.h>
#include <EditorModel/MotionTracking.h>
#include <EditorUtil/MotionTrackingSmoothPath.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <MTime/MTime.h>
#include <Settings/SettingsMask.h>

#include <QPointF>
#include <QRectF>

namespace Effect::Factory {

namespace {

using FrameMask = Proc::SettingsEffectMask::FrameMask;
using FrameFunctor = Proc::SettingsEffectMask::FrameFunctor;
using MotionTracking::MotionTrackingSmoothPath;
using MotionTracking::TimedFrame;

constexpr int shapeCount = 2;
constexpr int methodCount = 3;
constexpr int backgroundFillCount = 2;
constexpr double frameParameter = 0.04;

/// A frame that does not move.
class DefaultFrameFunctor
{
public:
    explicit DefaultFrameFunctor(FrameMask const & frame)
        : m_frame(frame)
    {}

    std::unique_ptr<FrameMask> operator()(double) const { return std::make_unique<FrameMask>(m_frame); }

private:
    FrameMask m_frame;
};

/// A frame that follows a motion track. It owns all of its data, since the engine calls it long after the conversion,
/// on any thread; copies share the immutable paths.
class TrackingFrameFunctor
{
public:
    /// @param frame     all but its matrix
    /// @param transform of the frame within the tracked rectangle
    /// @param duration  of the effect, in `MTime` units
    TrackingFrameFunctor(FrameMask const & frame, Types::Transform const & transform,
        std::shared_ptr<MotionTracking::Data const> const & data, std::int64_t duration)
        : m_frame(frame)
        , m_duration(duration)
        , m_topLeft(std::make_shared<MotionTrackingSmoothPath const>(
              data, [](TimedFrame const & timed) { return timed.frame.toRectF().topLeft(); }))
        , m_bottomRight(std::make_shared<MotionTrackingSmoothPath const>(
              data, [](TimedFrame const & timed) { return timed.frame.toRectF().bottomRight(); }))
    {
        m_frame.matrix = transform.toMatrix3x3();
    }

    /// The frame at a position from 0 to 1 of the effect. Null where the track has no rectangle: there is no frame
    /// then.
    std::unique_ptr<FrameMask> operator()(double position) const
    {
        std::optional<MTime> const time = timeAt(position);
        if (!time)
            return nullptr;
        std::optional<QPointF> const topLeft = m_topLeft->pointValue(*time);
        if (!topLeft)
            return nullptr;
        std::optional<QPointF> const bottomRight = m_bottomRight->pointValue(*time);
        if (!bottomRight)
            return nullptr;
        QRectF const tracked(*topLeft, *bottomRight);
        if (!tracked.isValid())
            return nullptr;

        // The tracked rectangle's size, then the way of its middle from the picture's middle.
        double const width = tracked.width();
        double const height = tracked.height();
        double const right = tracked.left() + 0.5 * width - 0.5;
        double const down = tracked.top() + 0.5 * height - 0.5;
        auto const & m = m_frame.matrix;
        auto frame = std::make_unique<FrameMask>(m_frame);
        frame->matrix = {
            m[0] * width, m[1] * height, m[2], m[3] * width, m[4] * height, m[5], m[6] + right, m[7] + down, m[8]};
        return frame;
    }

private:
    /// Empty if the time is not finite or does not fit `MTime`; no track reaches that far.
    std::optional<MTime> timeAt(double position) const
    {
        constexpr double limit = 9223372036854775808.0; // 2^63
        double const units = static_cast<double>(m_duration) * position;
        if (!(units >= -limit && units < limit))
            return std::nullopt;
        return MTime(static_cast<std::int64_t>(units));
    }

    FrameMask m_frame;
    std::int64_t m_duration;
    std::shared_ptr<MotionTrackingSmoothPath const> m_topLeft;
    std::shared_ptr<MotionTrackingSmoothPath const> m_bottomRight;
};

/// The function of a frame: it follows the track if that can be read, else it does not move.
/// @param mask  all but its shape, its outline and its matrix
FrameFunctor makeFrameFunctor(FrameMask mask, Frame const & frame, std::int64_t duration)
{
    mask.shape = knownValue(frame.shape, shapeCount);
    mask.outline = frame.outline;
    if (auto const data = MotionTracking::loadTrackingData(frame.trackingId))
        return TrackingFrameFunctor(mask, frame.trackingTransform, data, duration);
    mask.matrix = frame.transform.toMatrix3x3();
    return DefaultFrameFunctor(mask);
}

std::unique_ptr<Proc::Settings> highlight(Mask const & effect, std::int64_t duration)
{
    FrameMask mask;
    mask.opacity = 1;
    std::vector<FrameFunctor> functors;
    functors.reserve(effect.highlightFrames.size());
    for (FrameHighlight const & frame : effect.highlightFrames)
        functors.push_back(makeFrameFunctor(mask, frame, duration));

    auto settings = std::make_unique<Proc::SettingsEffectMask>();
    settings->SetFrameFunctors(std::move(functors));
    settings->kind = 1;
    settings->backgroundOpacity = effect.backgroundOpacity;
    settings->backgroundFill = knownValue(effect.backgroundFill, backgroundFillCount);
    settings->backgroundSmoothness = effect.backgroundSmoothness;
    settings->frameParameter = frameParameter;
    settings->SetBackGColor(0, 0, 0, 1);
    settings->SetFrameColor(1, 1, 1, 1);
    return settings;
}

std::unique_ptr<Proc::Settings> conceal(FrameConceal const & frame, std::int64_t duration)
{
    FrameMask mask;
    mask.method = knownValue(frame.method, methodCount);
    mask.opacity = frame.opacity;
    mask.smoothness = frame.smoothness;

    auto settings = std::make_unique<Proc::SettingsEffectMask>();
    settings->SetFrameFunctors({makeFrameFunctor(mask, frame, duration)});
    settings->kind = 0;
    settings->frameParameter = frameParameter;
    settings->pixelSize = frame.pixelSize;
    settings->SetBackGColor(0, 0, 0, 1);
    settings->SetFrameColor(1, 1, 1, 1);
    return settings;
}

EffectSettings convertMask(Mask const & effect, VideoParams const & params)
{
    EffectSettings record{{}, Stage::video, Proc::ImplNames::DEFAULT};
    if (!effect.highlightFrames.empty())
        record.settings.push_back(highlight(effect, params.duration));
    for (FrameConceal const & frame : effect.concealFrames)
        record.settings.push_back(conceal(frame, params.duration));
    return record;
}

} // namespace

void addMask(Conversions & table)
{
    table.addRecord<Mask>(Id::Mask, convertMask);
}

} // namespace Effect::Factory
