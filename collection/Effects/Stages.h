/// @file
/// The stages of the render engine.
#pragma once

#include <cstdint>

namespace Effect::Factory {

/// Codes that the engine receives with the settings.
namespace Stage {
inline constexpr std::uint8_t audio = 1;
inline constexpr std::uint8_t openGl = 2;
inline constexpr std::uint8_t video = 18;
inline constexpr std::uint8_t oneButton = 19; ///< one-button colour corrections
} // namespace Stage

} // namespace Effect::Factory
