#include <EditorModel/Resource.h>

#include <atomic>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sys/stat.h>

namespace {

using nlohmann::json;
using Resource::ID;
using Resource::Type;

TEST(ResourceID, IsValidWithANameAndAType)
{
    EXPECT_FALSE(ID().isValid());
    EXPECT_EQ(ID().name(), "");
    EXPECT_FALSE(ID().name().isNull());
    EXPECT_EQ(ID().type(), Type::None);
    EXPECT_FALSE(ID("", Type::Blob).isValid());
    EXPECT_FALSE(ID("paper", Type::None).isValid());
    EXPECT_TRUE(ID("paper", Type::Image).isValid());
    EXPECT_EQ(static_cast<int>(Type::Image), 3);
    EXPECT_EQ(static_cast<int>(Type::Blob), 4);
}

TEST(ResourceID, ComparesNameAndType)
{
    ID const image("paper", Type::Image);
    EXPECT_TRUE(image == ID("paper", Type::Image));
    EXPECT_TRUE(image != ID("paper", Type::Blob));
    EXPECT_TRUE(image != ID("Paper", Type::Image));
    // The name goes first.
    EXPECT_TRUE(image < ID("paper", Type::Blob));
    EXPECT_TRUE(image < ID("stone", Type::None));
    EXPECT_FALSE(image < image);
    EXPECT_FALSE(ID("stone", Type::None) < image);
}

TEST(ResourceID, IsAnObjectWithNameAndType)
{
    json document;
    Serialize::Json::oarchive(document) << ID("paper", Type::Blob);
    EXPECT_EQ(document, json::parse(R"({"name": "paper", "type": 4})"));
    ID read;
    Serialize::Json::iarchive archive(document);
    archive >> read;
    EXPECT_EQ(read, ID("paper", Type::Blob));
}

TEST(ResourceTiming, Keys)
{
    Resource::Timing timing;
    timing.loopCount = 2;
    timing.start = MTime(3);
    timing.length = MTime(4);
    timing.flags = 5;
    json document;
    Serialize::Json::oarchive(document) << timing;
    EXPECT_EQ(document, json::parse(R"({"loopCount": 2, "start": 3, "length": 4, "flags": 5})"));
    Resource::Timing read;
    EXPECT_EQ(read.loopCount, 0);
    EXPECT_EQ(read.start, MTime());
    EXPECT_EQ(read.length, MTime());
    EXPECT_EQ(read.flags, 0);
    Serialize::Json::iarchive archive(document);
    archive >> read;
    EXPECT_EQ(read.loopCount, 2);
    EXPECT_EQ(read.start, MTime(3));
    EXPECT_EQ(read.length, MTime(4));
    EXPECT_EQ(read.flags, 5);
}

class ResourceRegistry : public testing::Test
{
protected:
    ~ResourceRegistry() override
    {
        for (ID const & id : m_registered)
            Resource::unregisterResource(id);
    }

    QString path(QString const & name) const { return m_folder.filePath(name); }

    QString write(QString const & name, QByteArray const & bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    void add(QString const & name, Type type, QString const & file)
    {
        m_registered.emplace_back(name, type);
        Resource::registerResource(m_registered.back(), file, 0, MTime(), Resource::Timing());
    }

    static std::string blobError(QString const & name)
    {
        QString error;
        auto const blob = Resource::provideBlobResource(name, &error);
        EXPECT_TRUE(blob);
        EXPECT_TRUE(blob->data.isEmpty());
        EXPECT_TRUE(Resource::provideBlobResource(name, nullptr)->data.isEmpty());
        return error.toStdString();
    }

    static std::string imageError(QString const & name)
    {
        QString error;
        auto const image = Resource::provideImageResource(name, &error);
        EXPECT_TRUE(image);
        EXPECT_FALSE(image->pixmap);
        EXPECT_FALSE(Resource::provideImageResource(name, nullptr)->pixmap);
        return error.toStdString();
    }

    QTemporaryDir m_folder;
    std::vector<ID> m_registered;
};

TEST_F(ResourceRegistry, RemembersWhatWasRegistered)
{
    ID const id("clip", Type::Video);
    EXPECT_FALSE(Resource::isResourceRegistered(id));
    EXPECT_FALSE(Resource::registration(id));

    Resource::Timing timing;
    timing.loopCount = 3;
    Resource::registerResource(id, "/a/file", 2, MTime(40), timing);
    EXPECT_TRUE(Resource::isResourceRegistered(id));
    EXPECT_FALSE(Resource::isResourceRegistered(ID("clip", Type::Audio)));
    auto const registration = Resource::registration(id);
    ASSERT_TRUE(registration);
    EXPECT_EQ(registration->path, "/a/file");
    EXPECT_EQ(registration->index, 2);
    EXPECT_EQ(registration->length, MTime(40));
    EXPECT_EQ(registration->timing.loopCount, 3);

    Resource::registerResource(id, "/another/file", 0, MTime(), {});
    EXPECT_EQ(Resource::registeredPath("clip"), "/another/file");
    EXPECT_EQ(Resource::registration(id)->index, 0);

    Resource::unregisterResource(id);
    EXPECT_FALSE(Resource::isResourceRegistered(id));
    EXPECT_EQ(Resource::registeredPath("clip"), "");
    Resource::unregisterResource(id);
}

TEST_F(ResourceRegistry, TheFirstStaysWhereItIsOnlyTried)
{
    ID const id("clip", Type::Video);
    m_registered.push_back(id);
    EXPECT_TRUE(Resource::tryRegisterResource(id, "/a/file", 2, MTime(40), {}));
    EXPECT_FALSE(Resource::tryRegisterResource(id, "/another/file", 0, MTime(), {}));
    EXPECT_EQ(Resource::registration(id)->path, "/a/file");
    EXPECT_EQ(Resource::registration(id)->index, 2);
    EXPECT_EQ(Resource::registration(id)->length, MTime(40));
    m_registered.emplace_back("clip", Type::Audio);
    EXPECT_TRUE(Resource::tryRegisterResource(m_registered.back(), "/another/file", 0, MTime(), {}));
}

TEST_F(ResourceRegistry, LooksForABlobFirst)
{
    add("look", Type::Video, "/video");
    EXPECT_EQ(Resource::registeredPath("look"), "/video");
    add("look", Type::Image, "/image");
    EXPECT_EQ(Resource::registeredPath("look"), "/image");
    add("look", Type::Blob, "/blob");
    EXPECT_EQ(Resource::registeredPath("look"), "/blob");
}

TEST_F(ResourceRegistry, BlobsAreTheBytesOfTheirFiles)
{
    QByteArray const bytes("one\0two\r\n", 9);
    QString const file = write("bytes", bytes);
    add("bytes", Type::Blob, file);
    QString error = "untouched";
    EXPECT_EQ(Resource::provideBlobResource("bytes", &error)->data, bytes);
    EXPECT_EQ(error, "untouched");

    // The file is read anew by every call.
    write("bytes", "changed");
    EXPECT_EQ(Resource::provideBlobResource("bytes", nullptr)->data, "changed");

    // More than is read at once.
    QByteArray const large(3'000'001, 'x');
    write("bytes", large);
    EXPECT_EQ(Resource::provideBlobResource("bytes", nullptr)->data, large);

    write("bytes", "");
    EXPECT_TRUE(Resource::provideBlobResource("bytes", &error)->data.isEmpty());
    EXPECT_EQ(error, "untouched");
}

TEST_F(ResourceRegistry, BlobErrorsSayWhichFileAndWhy)
{
    EXPECT_EQ(blobError("unknown"), "no resource is registered as \"unknown\"");
    EXPECT_EQ(blobError(""), "no resource is registered as \"\"");

    add("missing", Type::Blob, path("missing"));
    EXPECT_EQ(blobError("missing"), path("missing").toStdString() + ": no such file");
    add("folder", Type::Blob, m_folder.path());
    EXPECT_EQ(blobError("folder"), m_folder.path().toStdString() + ": is not a regular file");
    add("device", Type::Blob, "/dev/zero");
    EXPECT_EQ(blobError("device"), "/dev/zero: is not a regular file");
    // Opening one would wait for a writer.
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    add("pipe", Type::Blob, path("pipe"));
    EXPECT_EQ(blobError("pipe"), path("pipe").toStdString() + ": is not a regular file");
}

TEST_F(ResourceRegistry, BlobsHaveALimit)
{
    QString const file = write("huge", "");
    add("huge", Type::Blob, file);
    ASSERT_TRUE(QFile::resize(file, Resource::maxBlobSize + 1));
    EXPECT_EQ(blobError("huge"), file.toStdString() + ": is longer than 268435456 bytes");
}

/// A PNG of one colour.
void writePicture(QString const & file, int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(0xFF336699);
    ASSERT_TRUE(picture.save(file, "PNG"));
}

class ResourcePictures : public ResourceRegistry
{
protected:
    static char const * programName()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return "EditorModelTests";
    }

    std::string m_name = programName();
    char * m_arguments[2] = {m_name.data(), nullptr};
    int m_count = 1;
    QGuiApplication m_application{m_count, m_arguments};
};

TEST_F(ResourcePictures, AreReadFromTheirFiles)
{
    writePicture(path("picture.png"), 3, 2);
    add("picture", Type::Image, path("picture.png"));
    QString error = "untouched";
    auto const image = Resource::provideImageResource("picture", &error);
    ASSERT_TRUE(image && image->pixmap);
    EXPECT_EQ(image->pixmap->size(), QSize(3, 2));
    EXPECT_EQ(image->pixmap->toImage().pixel(2, 1), 0xFF336699);
    EXPECT_EQ(error, "untouched");
}

TEST_F(ResourcePictures, AreLookedForAmongImagesFirst)
{
    writePicture(path("image.png"), 3, 2);
    writePicture(path("blob.png"), 5, 4);
    add("picture", Type::Blob, path("blob.png"));
    EXPECT_EQ(Resource::provideImageResource("picture", nullptr)->pixmap->width(), 5);
    add("picture", Type::Image, path("image.png"));
    EXPECT_EQ(Resource::provideImageResource("picture", nullptr)->pixmap->width(), 3);
}

TEST_F(ResourcePictures, ErrorsSayWhichFileAndWhy)
{
    QString error;
    EXPECT_FALSE(Resource::provideImageResource("unknown", &error));
    EXPECT_EQ(error, "no resource is registered as \"unknown\"");
    EXPECT_FALSE(Resource::provideImageResource("unknown", nullptr));

    add("missing", Type::Image, path("missing.png"));
    EXPECT_EQ(imageError("missing"), path("missing.png").toStdString() + ": no such file");
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
    add("pipe", Type::Image, path("pipe.png"));
    EXPECT_EQ(imageError("pipe"), path("pipe.png").toStdString() + ": is not a regular file");
    add("text", Type::Image, write("text.png", "no picture"));
    EXPECT_EQ(imageError("text").rfind(path("text.png").toStdString() + ": ", 0), 0U);

    writePicture(path("whole.png"), 64, 64);
    QFile whole(path("whole.png"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    add("cut", Type::Image, write("cut.png", whole.read(whole.size() / 2)));
    EXPECT_EQ(imageError("cut").rfind(path("cut.png").toStdString() + ": ", 0), 0U);
}

TEST_F(ResourcePictures, ThatClaimTooManyPixelsAreNotRead)
{
    // A portable pixmap's head, which is all that there is of it.
    add("huge", Type::Image, write("huge.ppm", "P6\n30000 30000\n255\n"));
    EXPECT_EQ(imageError("huge"), path("huge.ppm").toStdString() + ": has more than 134217728 pixels");
}

TEST_F(ResourceRegistry, PicturesNeedAnApplication)
{
    writePicture(path("picture.png"), 3, 2);
    add("picture", Type::Image, path("picture.png"));
    EXPECT_EQ(imageError("picture"), path("picture.png").toStdString() + ": pictures need a QGuiApplication");
}

TEST_F(ResourceRegistry, ServesManyThreads)
{
    constexpr int threadCount = 8;
    QString const file = write("shared", "bytes");
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, name = QString("own %1").arg(thread)] {
            ID const id(name, Type::Blob);
            for (int i = 0; i < 200; ++i) {
                Resource::registerResource(id, file, i, MTime(), {});
                Resource::registerResource(ID("shared", Type::Blob), file, i, MTime(), {});
                if (Resource::provideBlobResource(name, nullptr)->data != "bytes" ||
                    Resource::registration(id)->index != i || Resource::registeredPath("shared") != file)
                    ++wrong;
                Resource::unregisterResource(id);
                if (Resource::isResourceRegistered(id))
                    ++wrong;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    Resource::unregisterResource(ID("shared", Type::Blob));
}

} // namespace
