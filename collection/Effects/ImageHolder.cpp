#include <collection/Effects/ImageHolder.h>

#include <utility>

#include <collection/Effects/Loading.h>

#include <QFileInfo>
#include <QImage>
#include <QImageReader>

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
    auto found = m_images.find(path);
    if (found == m_images.end())
        found = m_images.emplace(path, load(path)).first;
    if (!found->second.problem.isEmpty())
        warnOfMissing("image", path, found->second.problem);
    return found->second.image;
}

ImageHolder::Entry ImageHolder::load(QString const & path)
{
    QString problem;
    QImage image;
    // Opening a pipe would wait for its writer.
    if (QFileInfo const file(path); !file.exists()) {
        problem = QStringLiteral("no such file");
    } else if (!file.isFile()) {
        problem = QStringLiteral("is not a regular file");
    } else {
        QImageReader reader(path, "PNG");
        if (!reader.read(&image))
            problem = reader.errorString();
    }
    return {holdImage(std::move(image)), problem};
}

ImageHolder::Image holdImage(QImage decoded)
{
    return std::make_shared<Handler const>(std::move(decoded));
}

} // namespace Effect::Factory
