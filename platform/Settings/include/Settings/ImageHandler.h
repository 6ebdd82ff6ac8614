/// @file
/// The render engine's image record.
#pragma once

#include <cstdint>

namespace Quoril::Proc {

/// The pixels of an image, not owned: derive a class that keeps them alive, and share it as
/// std::shared_ptr<ImageHandler const>. A default record is an image without pixels.
struct ImageHandler
{
    std::int32_t width = 0;                ///< in pixels
    std::int32_t height = 0;               ///< in pixels
    std::uint8_t const * pixels = nullptr; ///< the first pixel; null when there are none
};

} // namespace Quoril::Proc
