/// @file
/// The images that the conversions of one factory have loaded.
#pragma once

#include <map>
#include <memory>

#include <Settings/ImageHandler.h>

#include <QString>

class QImage;

namespace Effect::Factory {

/// Decodes each image once. Settings objects share the image and keep it alive beyond the holder.
///
/// There is no limit and no eviction: presets name a few dozen stock images. No lock either: see `SettingsFactory`.
class ImageHolder
{
public:
    using Image = std::shared_ptr<Quoril::Proc::ImageHandler const>;

    /// The image at `path`, which is read as PNG whatever its name. The pixels are as Qt decodes them: 32 bits each
    /// without padding for a true-colour file. A file that is missing or broken gives an image without pixels, never
    /// null, and is not tried again, but warned of each time. The reference holds as long as the holder.
    Image const & image(QString const & path);

private:
    struct Entry
    {
        Image image;
        QString problem; ///< why it has no pixels
    };

    static Entry load(QString const & path);

    std::map<QString, Entry> m_images;
};

/// The engine's record of a decoded image, whose pixels it keeps alive.
ImageHolder::Image holdImage(QImage decoded);

} // namespace Effect::Factory
