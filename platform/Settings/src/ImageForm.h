/// @file
/// The value form of an image.
#pragma once

#include <memory>
#include <string>

#include "Form.h"

#include <Settings/ImageHandler.h>

namespace Quoril::Proc {

/// Told as its size.
template <> struct Form<std::shared_ptr<ImageHandler const>> : HandleForm<std::shared_ptr<ImageHandler const>>
{
    static Value toValue(std::shared_ptr<ImageHandler const> const & image)
    {
        return image ? Value::Object{{"width", image->width}, {"height", image->height}} : Value();
    }
    static std::string expected() { return "an image, which only code can give"; }
};

} // namespace Quoril::Proc
