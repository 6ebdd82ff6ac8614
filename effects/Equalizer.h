/// @file
/// The audio equalizer.
#pragma once

#include <cstdint>
#include <deque>

#include <effects/Base.h>

namespace Effect {

/// Raises and lowers bands of the sound, each on its own. Its intensity has no effect.
struct EFFECTS_API AudioEqualizer : AudioFilter
{
    EFFECT_CLASS(AudioEqualizer)
    AudioEqualizer();

    /// The number of a preset, 0 to 23. A name to show stands in `presetName`.
    enum class Preset : std::int32_t
    {
    };
    static constexpr int presetCount = 24; ///< numbers of presets

    /// One band.
    struct EFFECTS_API BandEq : Serialize::ISerializable
    {
        EFFECT_CLASS(AudioEqualizer::BandEq)
        BandEq();
        /// @param frequency  in hertz
        /// @param level      in decibels
        BandEq(std::int32_t frequency, double level);

        std::int32_t centralFrequency = 0; ///< in hertz
        double gain = 0;                   ///< in decibels

        static constexpr auto describe()
        {
            return description("One band.", parameter("centralFrequency", &BandEq::centralFrequency),
                parameter("gain", &BandEq::gain));
        }
    };

    Preset preset{1};                      ///< that the bands came from; the engine looks at the bands alone
    QString presetName{QLatin1String("")}; ///< to show to the user
    std::deque<BandEq> multiband;          ///< in any order; each counts by itself

    /// An equalizer with the preset's ten bands, from 31 Hz to 16 kHz, and no name. A number that is no preset is kept,
    /// and gives no bands.
    static AudioEqualizer makePreset(Preset number);

    /// Compares the preset's number and the bands, gains to within 0.001 dB, and neither name nor base: equalizers that
    /// sound alike are equal.
    bool operator==(AudioEqualizer const & other) const;
    bool operator!=(AudioEqualizer const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("Raises and lowers bands of the sound, each on its own.",
            parameter("multiband", &AudioEqualizer::multiband), parameter("preset", &AudioEqualizer::preset),
            parameter("presetName", &AudioEqualizer::presetName));
    }
};

} // namespace Effect
