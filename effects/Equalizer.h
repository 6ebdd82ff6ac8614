/// @file
/// The audio equalizer.
#pragma once

#include <cstdint>
#include <deque>

#include <effects/Base.h>

namespace Effect {

/// Raises and lowers bands of the sound, each on its own. The intensity is ignored.
struct EFFECTS_API AudioEqualizer : AudioFilter
{
    EFFECT_CLASS(AudioEqualizer)
    AudioEqualizer();

    /// The number of a preset, 0 to 23. `presetName` holds a name to show.
    enum class Preset : std::int32_t
    {
    };
    static constexpr int presetCount = 24; ///< number of presets
    /// The known values of `preset`, under the names that they have in the stock.
    EFFECTS_HIDDEN static constexpr Choice presetChoices[] = {
        {0, "Flat", "Flat"},
        {1, "Neutral", "Neutral"},
        {2, "ClearVoice", "Clear voice"},
        {3, "BrightVoice", "Bright voice"},
        {4, "DeepAndAiry", "Deep and airy"},
        {5, "NoRumble", "No rumble"},
        {6, "MoreBass", "More bass"},
        {7, "LessBass", "Less bass"},
        {8, "MoreTreble", "More treble"},
        {9, "LessTreble", "Less treble"},
        {10, "Acoustic", "Acoustic"},
        {11, "Orchestra", "Orchestra"},
        {12, "Dance", "Dance"},
        {13, "Deep", "Deep"},
        {14, "Electronic", "Electronic"},
        {15, "Beat", "Beat"},
        {16, "JazzClub", "Jazz club"},
        {17, "Percussion", "Percussion"},
        {18, "Lounge", "Lounge"},
        {19, "Piano", "Piano"},
        {20, "ForwardVoice", "Forward voice"},
        {21, "Groove", "Groove"},
        {22, "RockBand", "Rock band"},
        {23, "SmallSpeakers", "Small speakers"},
    };

    /// One band.
    struct EFFECTS_API BandEq : Serialize::ISerializable
    {
        EFFECT_CLASS(AudioEqualizer::BandEq)
        BandEq();
        /// @param frequency  in hertz
        /// @param level      in decibels
        BandEq(std::int32_t frequency, double level);

        std::int32_t centralFrequency = 0; ///< centre of the band, in hertz
        double gain = 0;                   ///< amplification of the band, in decibels; below 0 it is lowered

        static constexpr auto describe()
        {
            return description("One band of the equalizer.",
                parameter("centralFrequency", &BandEq::centralFrequency)
                    .label("Frequency")
                    .text("Centre of the band; the presets use 31 to 16000 Hz")
                    .unit(Unit::hertz)
                    .suggest(31, 16000),
                parameter("gain", &BandEq::gain)
                    .label("Gain")
                    .text("Louder above 0, quieter below; the presets use -20 to 8.5 dB")
                    .unit(Unit::decibels)
                    .suggest(-20, 8.5));
        }
    };

    Preset preset{1};                      ///< preset that the bands come from; the engine receives only the bands
    QString presetName{QLatin1String("")}; ///< name of the preset, to show to the user
    std::deque<BandEq> multiband;          ///< the bands, in any order; each counts by itself

    /// An equalizer with the preset's ten bands, from 31 Hz to 16 kHz, and an empty name. A number without a preset is
    /// kept and gives no bands.
    static AudioEqualizer makePreset(Preset number);

    /// Compares the preset's number and the bands, gains to within 0.001 dB. The name and the base are ignored:
    /// equalizers that sound alike are equal.
    bool operator==(AudioEqualizer const & other) const;
    bool operator!=(AudioEqualizer const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("Makes ranges of the sound louder or quieter, each on its own.",
            parameter("multiband", &AudioEqualizer::multiband)
                .label("Bands")
                .text("Ranges of the sound and how loud they are"),
            parameter("preset", &AudioEqualizer::preset)
                .label("Preset")
                .text("Where the bands come from; only the bands themselves change the sound")
                .choices(presetChoices)
                .fallback(1)
                .ineffective(),
            parameter("presetName", &AudioEqualizer::presetName)
                .label("Preset name")
                .text("What is shown for the preset")
                .ineffective());
    }
};

} // namespace Effect
