#include <EditorUtil/ItemFile.h>

#include <cerrno>
#include <optional>
#include <set>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/Layout.h>
#include <EditorUtil/Item.h>
#include <FileSystem/FileSystem.h>

#include <nlohmann/json.hpp>

#include <QDir>

namespace EditorCollection {

using nlohmann::json;

namespace {

constexpr char const * categoriesKey = "categories";
constexpr char const * effectKey = "effect";
constexpr char const * resourcePathKey = "resourcePath"; // of `Effect::Object`

/// Closes a file at the end of the scope.
class Descriptor
{
public:
    explicit Descriptor(int descriptor)
        : m_descriptor(descriptor)
    {}
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Descriptor(Descriptor const &) = delete;
    Descriptor & operator=(Descriptor const &) = delete;

    operator int() const { return m_descriptor; }

private:
    int m_descriptor;
};

// Not through QFile, which checks the type of a file by its path before it opens it, so that it could block on a pipe
// put there in between, and cannot open every name in every locale.
std::string readFile(std::string const & path)
{
    // Without O_NONBLOCK, opening a pipe waits for its writer.
    Descriptor const file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (file < 0 || ::fstat(file, &status) != 0)
        throw std::system_error(errno, std::generic_category());
    if (!S_ISREG(status.st_mode))
        throw std::runtime_error("is not a regular file");
    if (status.st_size > maxItemFileSize)
        throw std::runtime_error("is larger than " + std::to_string(maxItemFileSize >> 20) + " MiB");
    // If the file shrinks meanwhile, less is read; if it grows, the rest is ignored and the parser reports it.
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        ssize_t const count = ::read(file, text.data() + length, text.size() - length);
        if (count == 0)
            break;
        if (count > 0)
            length += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            throw std::system_error(errno, std::generic_category());
    }
    text.resize(length);
    return text;
}

json documentOf(Effect::Object const & effect)
{
    json document;
    Serialize::Json::oarchive archive(document);
    Effect::Object const * const pointer = &effect;
    archive << pointer;
    return document;
}

/// Null for the document null.
std::unique_ptr<Effect::Object> effectOf(json const & document)
{
    std::unique_ptr<Effect::Object> effect;
    Serialize::Json::iarchive archive(document);
    archive >> effect;
    return effect;
}

/// Calls `change` with the resource path of each effect in an archive document, those of held effects included. It goes
/// by the key alone, wherever that is, since a reference may put an effect's base anywhere in the document.
template <class Change> void forEachResourcePath(json & value, Change const & change)
{
    if (value.is_object())
        if (auto const path = value.find(resourcePathKey); path != value.end() && path->is_string())
            change(path->get_ref<std::string &>());
    if (value.is_structured())
        for (json & inner : value)
            forEachResourcePath(inner, change);
}

/// The absolute path of an effect's resource, which may be given relative to the item's folder.
QString resolved(QString const & path, std::string const & folder)
{
    if (path.isEmpty() || !QDir::isRelativePath(path))
        return path;
    return QDir::cleanPath(QString::fromStdString(folder) + QLatin1Char('/') + path);
}

/// The same for each effect in an object, itself included.
void resolvePaths(Serialize::ISerializable & object, std::string const & folder)
{
    if (auto * const effect = dynamic_cast<Effect::Object *>(&object))
        effect->resourcePath = resolved(effect->resourcePath, folder);
    for (Serialize::Layout const * layout = object.GetLayout(); layout; layout = layout->base)
        for (std::size_t number = 0; number < layout->fieldCount; ++number) {
            Serialize::FieldLayout const & field = layout->fields[number];
            if (field.form != Serialize::Form::Objects)
                continue;
            void const * const container = field.address(object);
            for (std::size_t index = 0; index < field.container->size(container); ++index)
                if (Serialize::ISerializable * const held = field.container->at(container, index))
                    resolvePaths(*held, folder);
        }
}

struct ItemContent
{
    std::unique_ptr<Effect::Object> effect;
    std::set<QString> categories;
};

/// Reads without a tree. Empty if the text is invalid or needs one.
std::optional<ItemContent> readContent(std::string_view text, std::string const & folder)
{
    Serialize::Json::TextReader reader(text);
    std::unique_ptr<Serialize::ISerializable> object;
    std::optional<std::set<QString>> categories;
    std::string_view key;
    for (reader.enterObject(); reader.nextKey(key);) {
        if (key == effectKey) {
            if (object || !reader.read(object))
                return std::nullopt;
        } else if (key == categoriesKey) {
            if (categories)
                return std::nullopt;
            categories.emplace();
            for (reader.enterArray(); reader.nextElement();)
                if (QString category; reader.read(category))
                    categories->insert(category);
        } else {
            reader.skip();
        }
    }
    if (!reader.isWhole() || !object)
        return std::nullopt;
    resolvePaths(*object, folder);
    std::unique_ptr<Effect::Object> effect(dynamic_cast<Effect::Object *>(object.get()));
    if (!effect)
        return std::nullopt;
    object.release();
    return ItemContent{std::move(effect), std::move(categories).value_or(std::set<QString>())};
}

std::set<QString> categoriesOf(json const & document)
{
    std::set<QString> categories;
    auto const found = document.find(categoriesKey);
    if (found == document.end())
        return categories;
    if (!found->is_array())
        throw std::runtime_error("\"categories\" is no array");
    for (json const & name : *found) {
        if (!name.is_string())
            throw std::runtime_error("\"categories\" holds something that is no text");
        QString category;
        Serialize::Json::Detail::load(name, category);
        categories.insert(category);
    }
    return categories;
}

} // namespace

serialize_ptr<IItem> readItem(std::string const & folder, std::string const & fileName)
{
    std::string file = folder + '/' + fileName;
    std::string const text = readFile(file);
    return parseItem(text, folder, std::move(file));
}

serialize_ptr<IItem> parseItem(std::string_view text, std::string const & folder, std::string file)
{
    if (text.empty())
        throw std::runtime_error("is empty");
    if (std::optional<ItemContent> content = readContent(text, folder))
        return makeItem(std::move(content->effect), std::move(content->categories), std::move(file));
    json document = Serialize::Json::parse(text);
    if (!document.is_object())
        throw std::runtime_error("is no JSON object");
    auto const archived = document.find(effectKey);
    if (archived == document.end())
        throw std::runtime_error("has no key \"effect\"");
    forEachResourcePath(
        *archived, [&](std::string & path) { path = resolved(QString::fromStdString(path), folder).toStdString(); });

    std::unique_ptr<Effect::Object> effect;
    try {
        effect = effectOf(*archived);
    } catch (std::exception const & error) {
        throw std::runtime_error(std::string("in \"effect\": ") + error.what());
    }
    if (!effect)
        throw std::runtime_error("\"effect\" is null");
    return makeItem(std::move(effect), categoriesOf(document), std::move(file));
}

void storeItem(
    QString const & folder, QString const & name, Effect::Object const & effect, std::set<QString> const & categories)
{
    QString const place = FS::absolutePath(folder);
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.contains(QChar::Null))
        throw std::runtime_error((place + QLatin1String(": an item's file cannot be named ") + name).toStdString());
    QString const suffix = QString::fromLatin1(itemFileSuffix.data(), static_cast<int>(itemFileSuffix.size()));
    QString const path = FS::joinPath({place, name}, suffix);
    auto const fail = [&path](QString const & reason) {
        throw std::runtime_error((path + QLatin1String(": ") + reason).toStdString());
    };
    json document;
    json & archived = document[effectKey] = documentOf(effect);
    std::string const start = place.toStdString() + '/';
    forEachResourcePath(archived, [&](std::string & resource) {
        bool const isInside = resource.size() > start.size() && resource.compare(0, start.size(), start) == 0;
        if (isInside && resource[start.size()] != '/')
            resource.erase(0, start.size());
    });
    json & names = document[categoriesKey] = json::array();
    for (QString const & category : categories)
        names.push_back(category.toStdString());
    std::string const text = document.dump(2) + '\n';

    if (!QDir().mkpath(place))
        fail(QStringLiteral("the folder cannot be made"));
    if (QString error; !FS::saveFile(path, text, &error))
        fail(error);
}

} // namespace EditorCollection
