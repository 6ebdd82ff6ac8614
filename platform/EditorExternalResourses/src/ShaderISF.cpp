#include <EditorExternalResourses/ShaderISF.h>

#include <algorithm>
#include <stdexcept>

#include <EditorModel/Resource.h>
#include <EditorSerialization/MessageText.h>
#include <FileSystem/FileSystem.h>
#include <glog/logging.h>
#include <nlohmann/json.hpp>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include "Configuration.h"
#include "HeadComment.h"

namespace External::ShaderISF {

namespace {

/// The text in valid UTF-8, without byte order mark, with "\nAn ISF effect for the render engine: three texts in UTF-8
/// with " Bytes that are no text of the encoding become replacement characters: old files have them in the names of
/// their authors. `what` names the text in messages.
std::string decodeText(std::string_view bytes, std::string const & what)
{
    if (bytes.size() > maximumFileSize)
        throw std::runtime_error(what + " is larger than " + std::to_string(maximumFileSize >> 20) + " MiB");
    auto const array = QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size()));
    QString text = QTextCodec::codecForUtfText(array, QTextCodec::codecForName("UTF-8"))->toUnicode(array);
    if (text.contains(QChar(u'\0')))
        throw std::runtime_error(what + " holds a zero byte, so it is no text");
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.toStdString();
}

/// The library's message without its number and without its position, which counts within the JSON only. It quotes
/// the text up to the byte at fault, which may be in the middle of a character.
std::string describe(nlohmann::json::exception const & error)
{
    std::string const message = error.what();
    std::size_t begin = message.find("] ") + 2;
    if (message.compare(begin, 12, "parse error ") == 0)
        begin = message.find(": ", begin) + 2;
    return Serialize::shortenedText(std::string_view(message).substr(begin));
}

nlohmann::json parseHead(std::string_view shader, HeadComment const & head)
{
    try {
        return nlohmann::json::parse(head.json);
    } catch (nlohmann::json::parse_error const & error) {
        std::size_t const offset = std::min(head.jsonBegin + error.byte - 1, head.end);
        throw std::runtime_error(describePlace(shader, offset) + ": " + describe(error));
    } catch (nlohmann::json::exception const & error) {
        throw std::runtime_error(describePlace(shader, head.begin) + ": within the head: " + describe(error));
    }
}

std::string removeHead(std::string const & shader, HeadComment const & head)
{
    auto const begin = shader.begin();
    auto const headBegin = begin + static_cast<std::ptrdiff_t>(head.begin);
    auto const headEnd = begin + static_cast<std::ptrdiff_t>(head.end);
    auto const lineBreaks = static_cast<std::size_t>(std::count(headBegin, headEnd, '\n'));
    return std::string(begin, headBegin).append(lineBreaks, '\n').append(headEnd, shader.end());
}

ISFSettings parse(std::string_view fragmentShader, std::string_view vertexShader, ResolvePath const & resolvePath)
{
    std::string const shader = decodeText(fragmentShader, "the fragment shader");
    HeadComment const head = findHeadComment(shader);
    return {makeConfiguration(parseHead(shader, head), resolvePath), removeHead(shader, head),
        decodeText(vertexShader, "the vertex shader")};
}

std::string quotedText(QString const & text)
{
    return Serialize::quotedText(text.toStdString());
}

/// The first regular file that is `base` with one of the suffixes, or an empty text. Devices and pipes are
/// skipped, since reading them may block or never end.
QString findFile(QString const & base, std::initializer_list<char const *> suffixes)
{
    for (char const * suffix : suffixes) {
        if (QString const path = base + QLatin1String(suffix); QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QByteArray readFile(QString const & path)
{
    QFile file(path);
    QByteArray bytes;
    // One byte more than allowed, so that the parser refuses the file whatever size the file system reports.
    if (file.open(QIODevice::ReadOnly))
        bytes = file.read(static_cast<qint64>(maximumFileSize) + 1);
    if (file.error() != QFileDevice::NoError)
        throw std::runtime_error(quotedText(path) + ": " + file.errorString().toStdString());
    return bytes;
}

std::string_view view(QByteArray const & bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString findShader(QString const & name, QString const & absolutePath)
{
    QString const path = absolutePath.isEmpty() ? Resource::registeredPath(name) : absolutePath;
    if (path.isEmpty())
        throw std::runtime_error("no file is registered under this name");
    return QFileInfo(path).isDir() ? FS::joinPath({path, name}, {}) : path;
}

} // namespace

std::shared_ptr<ISFSettings> loadEffectISF(QString const & name, QString const & absolutePath)
{
    try {
        return std::make_shared<ISFSettings>(loadFile(findShader(name, absolutePath)));
    } catch (std::exception const & error) {
        LOG(WARNING) << "Couldn't load ISF shader " << quotedText(name) << ": " << error.what();
    }
    return std::make_shared<ISFSettings>();
}

ISFSettings loadFile(QString const & path)
{
    QString const fragmentPath = findFile(path, {"", ".fs", ".frag", ".isf"});
    if (fragmentPath.isEmpty())
        throw std::runtime_error(
            quotedText(path) + (FS::exists(path) ? ": this is not a regular file" : ": there is no such file"));
    QFileInfo const info(fragmentPath);
    QDir const folder(info.absolutePath());
    QString const vertexPath = findFile(folder.filePath(info.completeBaseName()), {".vs", ".vert"});
    QByteArray const fragment = readFile(fragmentPath);
    QByteArray const vertex = vertexPath.isEmpty() ? QByteArray() : readFile(vertexPath);
    try {
        return parse(view(fragment), view(vertex), [&folder](std::string const & import) {
            return FS::absolutePath(folder.filePath(QString::fromStdString(import))).toStdString();
        });
    } catch (std::runtime_error const & error) {
        throw std::runtime_error(quotedText(fragmentPath) + ": " + error.what());
    }
}

ISFSettings parse(std::string_view fragmentShader, std::string_view vertexShader)
{
    return parse(fragmentShader, vertexShader, [](std::string const & path) { return path; });
}

} // namespace External::ShaderISF
