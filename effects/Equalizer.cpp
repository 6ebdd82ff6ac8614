#include <effects/Equalizer.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <effects/Identity.h>

namespace Effect {

namespace {

constexpr std::size_t bandCount = 10;

/// In hertz.
constexpr std::array<std::int32_t, bandCount> frequencies{31, 63, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};

/// In decibels, a preset a row.
constexpr std::array<std::array<double, bandCount>, AudioEqualizer::presetCount> gains{{
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, 0, 3.5, 0, 0, 5, 0, 0, 0},
    {0.75, 3.75, 7, 4.5, 3.75, 2.5, 5, 7, 8.5, 5.5},
    {6, 4, 0, 0, -2, 0, -1, -5, 5, 1},
    {-20, -7.4, -4.5, 0, -1.2, 0, 0, -1, -0.5, -5},
    {5, 4, 3, 2, 1, 0, 0, 0, 0, 0},
    {-5, -4, -3, -2, -1, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 1, 2, 3, 4, 5},
    {0, 0, 0, 0, 0, -1, -2, -3, -4, -5},
    {5, 4, 3.5, 1, 2, 2, 3.5, 4, 3.5, 2},
    {4.5, 3.5, 3, 2.5, -1.5, -1.5, 0, 2.5, 3, 4},
    {3.5, 6.5, 4.75, 0, 1.5, 4, 4.75, 4.5, 4, 0},
    {4.5, 3.5, 1.5, 0.5, 3, 2.75, 1.5, -2, -4, -4.5},
    {4, 3.5, 1.25, 0, -2, 2.75, 1, 1.25, 4, 4.75},
    {4.75, 4, 1.5, 3, -1.2, -1.2, 1.5, -1, 1.75, 3},
    {4, 3, 1.5, 1.75, -1.5, -1.5, 0, 1.5, 3, 4},
    {4.5, 3, 0, 0, -1.5, -1.5, -1.5, 0, 3, 4.5},
    {-3, -1.5, -1, 1.5, 4, 2, 0, -1.5, 1.75, 1},
    {3, 1.75, 0, 2, 3, 1.5, 3.25, 4.5, 2.75, 3.25},
    {-1.5, -1.2, 0, 1.75, 4, 4, 1.75, 0, -1.2, -1.5},
    {2.75, 7, 5.2, 1.5, -2, -1.5, 1.75, 2.25, 2.5, 4},
    {4.75, 4, 3, 1.5, -0.5, -2, 0.5, 2, 3.5, 4.5},
    {5, 4.25, 3.5, 2.75, 1.25, 0, -1.5, -2.7, -3.5, -4.5},
}};

constexpr double gainTolerance = 0.001; // decibels

bool alike(AudioEqualizer::BandEq const & a, AudioEqualizer::BandEq const & b)
{
    return a.centralFrequency == b.centralFrequency && std::abs(a.gain - b.gain) < gainTolerance;
}

} // namespace

AudioEqualizer::BandEq::BandEq() = default;

AudioEqualizer::BandEq::BandEq(std::int32_t frequency, double level)
    : centralFrequency(frequency)
    , gain(level)
{}

AudioEqualizer AudioEqualizer::makePreset(Preset number)
{
    AudioEqualizer equalizer;
    if (auto const row = static_cast<std::uint32_t>(number); row < gains.size())
        for (std::size_t band = 0; band < bandCount; ++band)
            equalizer.multiband.emplace_back(frequencies[band], gains[row][band]);
    equalizer.preset = number;
    return equalizer;
}

bool AudioEqualizer::operator==(AudioEqualizer const & other) const
{
    return this == &other || (preset == other.preset && std::equal(multiband.begin(), multiband.end(),
                                                            other.multiband.begin(), other.multiband.end(), alike));
}

} // namespace Effect
