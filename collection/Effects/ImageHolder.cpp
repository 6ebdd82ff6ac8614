#include <collection/Effects/ImageHolder.h>

#include <utility>

#include <QImage>

namespace Effect::Factory {

namespace {

/// An image together with its pixels, which the engine's record only points to.
struct Handler final : Quoril::Proc::ImageHandler
{
    explicit Handler(QImage decoded)
        : ImageHandler{decoded.width(), decoded.height(), decoded.constBits()}
        , m_pixels(std::move(decoded))
    {}

private:
    QImage m_pixels;
};

} // namespace

ImageHolder::Image const & ImageHolder::image(QString const & path)
{
    auto const found = m_images.find(path);
    if (found != m_images.end())
        return found->second;
    return m_images.emplace(path, holdImage(QImage(path, "PNG"))).first->second;
}

ImageHolder::Image holdImage(QImage decoded)
{
    return std::make_shared<Handler const>(std::move(decoded));
}

} // namespace Effect::Factory
