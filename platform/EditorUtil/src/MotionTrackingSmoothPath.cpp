#include <EditorUtil/MotionTrackingSmoothPath.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace MotionTracking {

namespace {

/// `to - from` for `from <= to`. The difference of two signed times need not fit a signed number.
double elapsed(MTime from, MTime to)
{
    return static_cast<double>(static_cast<std::uint64_t>(to.units()) - static_cast<std::uint64_t>(from.units()));
}

bool isSameDirection(double a, double b)
{
    return (a > 0.0 && b > 0.0) || (a < 0.0 && b < 0.0);
}

/// The slope between two segments of the lengths `h0` and `h1` and the mean slopes `d0` and `d1`.
double innerSlope(double h0, double h1, double d0, double d1)
{
    if (!isSameDirection(d0, d1))
        return 0.0;
    // The harmonic mean, in the form that neither overflows nor divides by a vanishing slope.
    double const weight0 = (2.0 * h0 + h1) / (3.0 * (h0 + h1));
    double const weight1 = (h0 + 2.0 * h1) / (3.0 * (h0 + h1));
    auto const [smaller, larger] = std::minmax(d0, d1, [](double a, double b) { return std::abs(a) < std::abs(b); });
    return smaller / (weight0 * (d0 / larger) + weight1 * (d1 / larger));
}

/// The slope at the free end of a segment of the length `h0` and the mean slope `d0`, whose neighbour is `h1` and `d1`:
/// that of the parabola through the three points, as far as the segment stays monotone with it.
double endSlope(double h0, double h1, double d0, double d1)
{
    double const slope = d0 + (d0 - d1) * (h0 / (h0 + h1));
    if (!isSameDirection(slope, d0))
        return 0.0;
    return std::abs(slope) > 3.0 * std::abs(d0) ? 3.0 * d0 : slope;
}

/// The Hermite cubic from `y0` to `y1` over a segment of the length `h` with the slopes `m0` and `m1` at its ends, at
/// the fraction `t` of it.
double cubic(double y0, double y1, double m0, double m1, double h, double t)
{
    double const step = y1 - y0;
    double const a = m0 * h;
    double const b = m1 * h;
    double const y = y0 + t * (a + t * ((3.0 * step - 2.0 * a - b) + t * (a + b - 2.0 * step)));
    // Monotone in exact arithmetic; rounding could still carry it past an end.
    auto const [low, high] = std::minmax(y0, y1);
    return std::min(std::max(y, low), high);
}

} // namespace

MotionTrackingSmoothPath::MotionTrackingSmoothPath(std::shared_ptr<Data const> const & data, Accessor const & accessor)
{
    if (!data || data->frames().empty())
        return;
    m_times.reserve(data->frames().size());
    m_nodes.reserve(data->frames().size());
    for (TimedFrame const & frame : data->frames()) {
        m_times.push_back(frame.time);
        m_nodes.push_back({accessor(frame), {}});
    }

    std::size_t const last = m_nodes.size() - 1;
    auto const length = [this](std::size_t segment) { return elapsed(m_times[segment], m_times[segment + 1]); };
    auto const meanSlope = [&](std::size_t segment) {
        return (m_nodes[segment + 1].point - m_nodes[segment].point) / length(segment);
    };
    // The slope that `rule` gives for two neighbouring segments, in both coordinates.
    auto const slope = [&](auto const & rule, std::size_t segment0, std::size_t segment1) {
        double const h0 = length(segment0);
        double const h1 = length(segment1);
        QPointF const d0 = meanSlope(segment0);
        QPointF const d1 = meanSlope(segment1);
        return QPointF(rule(h0, h1, d0.x(), d1.x()), rule(h0, h1, d0.y(), d1.y()));
    };

    if (last == 1) {
        m_nodes[0].slope = m_nodes[1].slope = meanSlope(0);
    } else if (last > 1) {
        m_nodes[0].slope = slope(endSlope, 0, 1);
        for (std::size_t i = 1; i < last; ++i)
            m_nodes[i].slope = slope(innerSlope, i - 1, i);
        m_nodes[last].slope = slope(endSlope, last - 1, last - 2);
    }
}

std::optional<QPointF> MotionTrackingSmoothPath::pointValue(MTime time) const
{
    auto const found = std::lower_bound(m_times.begin(), m_times.end(), time);
    if (found == m_times.end())
        return std::nullopt;
    auto const index = static_cast<std::size_t>(found - m_times.begin());
    if (*found == time)
        return m_nodes[index].point;
    if (index == 0)
        return std::nullopt;

    Node const & from = m_nodes[index - 1];
    Node const & to = m_nodes[index];
    double const h = elapsed(m_times[index - 1], m_times[index]);
    double const t = elapsed(m_times[index - 1], time) / h;
    return QPointF(cubic(from.point.x(), to.point.x(), from.slope.x(), to.slope.x(), h, t),
        cubic(from.point.y(), to.point.y(), from.slope.y(), to.slope.y(), h, t));
}

} // namespace MotionTracking
