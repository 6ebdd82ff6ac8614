#include <inspect/Resources.h>

#include <functional>
#include <stdexcept>

#include <EditorExternalResourses/ShaderISF.h>
#include <EditorModel/EffectFactory.h>
#include <EditorModel/MotionTracking.h>
#include <EditorModel/Resource.h>
#include <EditorSerialization/MessageText.h>
#include <EditorSettings/Settings.h>
#include <effects/Mask.h>
#include <effects/Schema.h>
#include <effects/Shaders.h>
#include <FileSystem/FileSystem.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Walk.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <utils/LutUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace Effect::Inspect {

namespace {

/// Reads a file as the effect that needs it does. Returns what is wrong with it, or an empty text.
using Problem = std::function<QString(QString const & file)>;

QString tableProblem(QString const & file)
{
    QByteArray const bytes = QByteArray::fromStdString(readFile(toBytes(file)));
    QString error;
    if (Utils::parseLutEffect(bytes.mid(0, bytes.indexOf('\0')), &error))
        return {};
    return error.isEmpty() ? QString::fromStdString(Quoril::Proc::LUT::ParserLUTFactory::UnknownFormat()) : error;
}

QString shaderProblem(QString const & file)
{
    return readFile(toBytes(file)).empty() ? QStringLiteral("is empty") : QString();
}

QString isfProblem(QString const & file)
{
    External::ShaderISF::loadFile(file);
    return {};
}

QString pictureProblem(QString const & file)
{
    QImageReader reader(file);
    return reader.read().isNull() ? reader.errorString() : QString();
}

QString trackProblem(QString const & file)
{
    QString error;
    MotionTracking::loadTrackFile(file, &error);
    return error;
}

QString noProblem(QString const &)
{
    return {};
}

class Collector
{
public:
    Collector(std::string const & folder, std::vector<ResourceUse> & uses)
        : m_folder(QString::fromStdString(folder))
        , m_uses(uses)
    {}

    void add(Object const & effect, std::string const & pointer)
    {
        Schema::Class const * const info = Schema::of(effect);
        if (!info)
            return;
        auto const at = [&](char const * key) { return pointer + info->find(key)->pointer; };
        Resource::ID const & own = effect.resource;
        if (dynamic_cast<Lut const *>(&effect)) {
            add(at("resource"), own.name(), fileOf(own.name(), effect), tableProblem);
        } else if (dynamic_cast<ShaderISF const *>(&effect)) {
            addIsf(at("resource"), effect);
        } else if (auto const * const shader = dynamic_cast<ExternalShader const *>(&effect)) {
            add(at("shaderResource"), shader->shaderResource, fileOf(shader->shaderResource, effect), shaderProblem);
            add(at("auxImageResource"), shader->auxImageResource, fileOf(shader->auxImageResource, effect),
                pictureProblem);
        } else if (own.isValid() || !effect.resourcePath.isEmpty()) {
            bool const isPicture = own.type() == Resource::Type::Image;
            add(at("resource"), own.name(), fileOf(own.name(), effect), isPicture ? pictureProblem : noProblem);
        }
        if (auto const * const mask = dynamic_cast<Mask const *>(&effect)) {
            addTracks(mask->highlightFrames, at("highlightFrames"));
            addTracks(mask->concealFrames, at("concealFrames"));
        }
    }

private:
    /// @param file  empty where the name belongs to none
    void add(std::string const & pointer, QString const & name, QString const & file, Problem const & problemOf)
    {
        if (name.isEmpty() && file.isEmpty())
            return;
        ResourceUse use{pointer, name.toStdString(), toBytes(file), ResourceUse::Outcome::Missing, {}};
        if (file.isEmpty()) {
            use.message = "no file is known as " + Serialize::quotedText(use.name);
        } else if (QFileInfo const info(file); !info.exists()) {
            use.message = Serialize::messageText(use.file + ": no such file");
        } else {
            use.outcome = ResourceUse::Outcome::Broken;
            QString problem = info.isFile() ? QString() : QStringLiteral("is not a regular file");
            try {
                if (problem.isEmpty())
                    problem = problemOf(file);
            } catch (std::exception const & error) {
                problem = QString::fromUtf8(error.what());
            }
            if (problem.isEmpty())
                use.outcome = ResourceUse::Outcome::Found;
            else
                use.message = Serialize::messageText(
                    problem.contains(file) ? problem.toStdString() : use.file + ": " + problem.toStdString());
        }
        m_uses.push_back(std::move(use));
    }

    /// A shader's path leads to the file without its suffix, or to the folder in which the file has the resource's
    /// name.
    void addIsf(std::string const & pointer, Object const & effect)
    {
        QString const & name = effect.resource.name();
        QString file = effect.resourcePath.isEmpty() ? Resource::registeredPath(name) : absolute(effect.resourcePath);
        if (QFileInfo(file).isDir())
            file = FS::joinPath({file, name}, {});
        for (char const * const suffix : {".fs", ".frag", ".isf"})
            if (!file.isEmpty() && !QFileInfo::exists(file) && QFileInfo(file + QLatin1String(suffix)).isFile())
                file += QLatin1String(suffix);
        add(pointer, name, file, isfProblem);
    }

    template <class Frames> void addTracks(Frames const & frames, std::string const & pointer)
    {
        for (std::size_t index = 0; index < frames.size(); ++index) {
            QString const & id = frames[index].trackingId;
            if (id.isEmpty())
                continue;
            std::string const place =
                pointer + '/' + std::to_string(index) + Schema::of(frames[index])->find("trackingId")->pointer;
            add(place, id, MotionTracking::trackPath(id), trackProblem);
        }
    }

    QString absolute(QString const & path) const
    {
        if (!QDir::isRelativePath(path) || m_folder.isEmpty())
            return FS::absolutePath(path);
        return QDir::cleanPath(m_folder + QLatin1Char('/') + path);
    }

    /// Empty where the name belongs to no file.
    QString fileOf(QString const & name, Object const & effect) const
    {
        if (name.isEmpty() && name != effect.resource.name())
            return {};
        if (QString const registered = Resource::registeredPath(name); !registered.isEmpty())
            return registered;
        if (name == effect.resource.name() && !effect.resourcePath.isEmpty())
            return absolute(effect.resourcePath);
        QString const blob = name.isEmpty() ? QString() : FS::joinPath({::Settings::userBlobsPath(), name}, {});
        return QFileInfo(blob).isFile() ? blob : QString();
    }

    QString const m_folder;
    std::vector<ResourceUse> & m_uses;
};

} // namespace

char const * toText(ResourceUse::Outcome outcome)
{
    switch (outcome) {
    case ResourceUse::Outcome::Found:
        return "found";
    case ResourceUse::Outcome::Missing:
        return "missing";
    case ResourceUse::Outcome::Broken:
        return "broken";
    }
    return "";
}

std::vector<ResourceUse> resourcesOf(Object const & effect, std::string const & folder, std::string const & pointer)
{
    std::vector<ResourceUse> uses;
    Collector collector(folder, uses);
    walkEffects(effect, pointer, [&](Object const & held, std::string const & place) { collector.add(held, place); });
    return uses;
}

} // namespace Effect::Inspect
