#include <cstring>

#include <collection/Effects/ImageHolder.h>
#include <support/Images.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>

namespace {

using Effect::Factory::ImageHolder;
using Testing::writeImage;

class ImageHolderTest : public testing::Test
{
protected:
    QString path(char const * name) const { return folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir folder;
    ImageHolder holder;
};

void expectNoPixels(ImageHolder::Image const & image)
{
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->width, 0);
    EXPECT_EQ(image->height, 0);
    EXPECT_EQ(image->pixels, nullptr);
}

// The colour at a point of a true-colour image.
QRgb pixel(ImageHolder::Image const & image, int x, int y)
{
    QRgb color = 0;
    std::memcpy(&color, image->pixels + sizeof(QRgb) * static_cast<std::size_t>(y * image->width + x), sizeof(QRgb));
    return color;
}

TEST_F(ImageHolderTest, DecodesTheFile)
{
    QImage drawn(3, 2, QImage::Format_ARGB32);
    drawn.fill(QColor(10, 20, 30, 255));
    drawn.setPixel(2, 0, qRgba(1, 2, 3, 255));
    drawn.setPixel(0, 1, qRgba(200, 100, 50, 128));
    ASSERT_TRUE(drawn.save(path("drawn.png"), "PNG"));

    auto const & image = holder.image(path("drawn.png"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->width, 3);
    EXPECT_EQ(image->height, 2);
    EXPECT_EQ(pixel(image, 0, 0), 0xFF0A141EU);
    EXPECT_EQ(pixel(image, 2, 0), 0xFF010203U);
    EXPECT_EQ(pixel(image, 0, 1), 0x80C86432U);
}

TEST_F(ImageHolderTest, DecodesAPathOnce)
{
    writeImage(path("a.png"), 3, 2);
    writeImage(path("b.png"), 3, 2);
    auto const first = holder.image(path("a.png"));
    writeImage(path("a.png"), 5, 5);
    EXPECT_EQ(holder.image(path("a.png")), first);
    ASSERT_TRUE(QFile::remove(path("a.png")));
    EXPECT_EQ(holder.image(path("a.png")), first);
    EXPECT_NE(holder.image(path("b.png")), first);
}

TEST_F(ImageHolderTest, ReferencesSurviveFurtherImages)
{
    writeImage(path("a.png"), 3, 2);
    auto const & first = holder.image(path("a.png"));
    for (int number = 0; number < 100; ++number)
        holder.image(QString::number(number));
    EXPECT_EQ(&holder.image(path("a.png")), &first);
}

TEST_F(ImageHolderTest, ReadsPngWhateverTheName)
{
    writeImage(path("png named.bmp"), 4, 1);
    writeImage(path("bmp named.png"), 4, 1, Qt::white, "BMP");
    EXPECT_EQ(holder.image(path("png named.bmp"))->width, 4);
    expectNoPixels(holder.image(path("bmp named.png")));
}

TEST_F(ImageHolderTest, RemembersAMissingFile)
{
    auto const missing = holder.image(path("late.png"));
    expectNoPixels(missing);
    writeImage(path("late.png"), 3, 2);
    EXPECT_EQ(holder.image(path("late.png")), missing);
    EXPECT_EQ(ImageHolder().image(path("late.png"))->width, 3);
}

TEST_F(ImageHolderTest, BrokenFilesHaveNoPixels)
{
    writeImage(path("whole.png"), 64, 64, Qt::red);
    QFile whole(path("whole.png"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QByteArray const bytes = whole.readAll();
    for (int size : {0, 1, 8, 20, 33, 60}) {
        QFile cut(path("cut.png"));
        ASSERT_TRUE(cut.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(cut.write(bytes.left(size)), size);
        cut.close();
        SCOPED_TRACE(size);
        expectNoPixels(ImageHolder().image(cut.fileName()));
    }
    expectNoPixels(holder.image(folder.path()));
    expectNoPixels(holder.image(QString()));
}

TEST_F(ImageHolderTest, PixelsOutliveTheHolder)
{
    writeImage(path("a.png"), 300, 200, QColor(9, 8, 7, 255));
    ImageHolder::Image image;
    {
        ImageHolder shortLived;
        image = shortLived.image(path("a.png"));
    }
    EXPECT_EQ(pixel(image, 0, 0), 0xFF090807U);
    EXPECT_EQ(pixel(image, 299, 199), 0xFF090807U);
}

} // namespace
