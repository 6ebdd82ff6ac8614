/// @file
/// The render engine's image record.
#pragma once

#include <cstdint>

namespace Quoril::Proc {

/// Where the pixels of an image lie. The record does not own them: derive from it what keeps them alive, and share that
/// as std::shared_ptr<ImageHandler const>. A default record is an image without pixels.
struct ImageHandler
{
    std::int32_t width = 0;                ///< in pixels
    std::int32_t height = 0;               ///< in pixels
    std::uint8_t const * pixels = nullptr; ///< the first pixel; null when there are none
};

} // namespace Quoril::Proc
