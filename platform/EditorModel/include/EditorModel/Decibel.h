/// @file
/// Levels.
#pragma once

#include <EditorModel/Export.h>
#include <EditorSerialization/Traversal.h>

/// A level, stored in decibels, so that archives keep it exactly. The default is 0 dB.
class EDITORMODEL_EXPORT Decibel
{
public:
    constexpr Decibel() = default;

    /// A level of that many decibels.
    static constexpr Decibel fromDbLevel(double decibels) { return Decibel(decibels); }
    constexpr double dbLevel() const { return m_decibels; } ///< in decibels

    /// The level as an amplitude ratio, 10^(dB / 20): 1 at 0 dB, 0.5 near -6.02 dB.
    double toRelativeLevel() const;

    /// Allows `-6_dB`.
    constexpr Decibel operator-() const { return Decibel(-m_decibels); }

    /// Exact.
    friend constexpr bool operator==(Decibel a, Decibel b) { return a.m_decibels == b.m_decibels; }
    friend constexpr bool operator!=(Decibel a, Decibel b) { return !(a == b); }

private:
    constexpr explicit Decibel(double decibels)
        : m_decibels(decibels)
    {}

    double m_decibels = 0;
};

/// A level in decibels: `6.5_dB`.
constexpr Decibel operator""_dB(long double decibels)
{
    return Decibel::fromDbLevel(static_cast<double>(decibels));
}
/// A level in decibels: `6_dB`.
constexpr Decibel operator""_dB(unsigned long long decibels)
{
    return Decibel::fromDbLevel(static_cast<double>(decibels));
}

/// In every archive a level is a double.
template <> struct Serialize::PlainForm<Decibel>
{
    using Type = double; ///< decibels
    /// To the plain form.
    static double get(Decibel level) { return level.dbLevel(); }
    /// From the plain form.
    static void set(Decibel & level, double decibels) { level = Decibel::fromDbLevel(decibels); }
};
