#include <inspect/NewItem.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include <EditorExternalResourses/ShaderISF.h>
#include <EditorUtil/ItemFile.h>
#include <effects/Schema.h>
#include <inspect/Changes.h>
#include <inspect/Documents.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Text.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <utils/LutUtils.h>

#include <QByteArray>
#include <QImageReader>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

using nlohmann::json;
namespace fs = std::filesystem;
namespace LUT = Quoril::Proc::LUT;

namespace {

constexpr char const * tagStart = "effect_";

void checkTable(std::string const & file)
{
    QString error;
    if (!Utils::validateLutEffect(QByteArray::fromStdString(readFile(file)), &error))
        throw Failure(file + ": " + (error.isEmpty() ? LUT::ParserLUTFactory::UnknownFormat() : error.toStdString()));
}

void checkIsf(std::string const & file)
{
    readFile(file); // says what is wrong with the file itself
    External::ShaderISF::loadFile(fileName(file));
}

void checkShader(std::string const & file)
{
    if (readFile(file).empty())
        throw Failure(file + ": is empty");
}

void checkPicture(std::string const & file)
{
    readFile(file);
    QImageReader reader(fileName(file));
    if (!reader.canRead())
        throw Failure(file + ": " + reader.errorString().toStdString());
}

/// A class whose effects are nothing without a file.
struct FileClass
{
    char const * name;
    char const * what; ///< the file is
    Resource::Type type;
    void (*check)(std::string const & file); ///< throws for one that cannot be used
    bool namesGroup;                         ///< whether the group bears the name of the resource
    char const * key;                        ///< of a parameter that bears it as well; null for none
};

constexpr FileClass fileClasses[] = {
    {"Effect::Lut", "a lookup table", Resource::Type::Blob, checkTable, true, nullptr},
    {"Effect::ShaderISF", "a shader", Resource::Type::Blob, checkIsf, true, nullptr},
    {"Effect::ExternalShader", "a shader", Resource::Type::Blob, checkShader, false, "shaderResource"},
    {"Effect::Overlay", "a picture", Resource::Type::Image, checkPicture, true, nullptr},
};

FileClass const * fileClassNamed(std::string const & name)
{
    auto const * const found = std::find_if(std::begin(fileClasses), std::end(fileClasses),
        [&name](FileClass const & known) { return known.name == name; });
    return found == std::end(fileClasses) ? nullptr : found;
}

/// The name of the item, without folder and suffix.
std::string stemOf(std::string const & file)
{
    std::string const name = fs::path(file).filename().native();
    std::string const suffix(EditorCollection::itemFileSuffix);
    bool const isWhole =
        name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.npos, suffix) == 0;
    return isWhole ? name.substr(0, name.size() - suffix.size()) : fs::path(name).stem().native();
}

/// Letters and digits of a name, in lower case, with underscores between its words.
std::string wordsOf(std::string const & name)
{
    QString words;
    for (QChar const letter : QString::fromStdString(name))
        words += letter.isLetterOrNumber() ? letter.toLower() : QChar('_');
    return words.toStdString();
}

/// "effect_lut_warm" for the class with the tag "effect_lut" and an item "warm" or "lut_warm".
std::string tagOf(std::string const & classTag, std::string const & file)
{
    std::string const start = tagStart;
    std::string words = file == "-" ? "" : wordsOf(stemOf(file));
    if (words.compare(0, start.size(), start) == 0)
        words.erase(0, start.size());
    bool const isCommon = classTag.compare(0, start.size(), start) == 0;
    std::string const kind = isCommon ? classTag.substr(start.size()) : classTag;
    if (words.empty() || words == kind)
        return classTag;
    bool const hasKind = words.compare(0, kind.size() + 1, kind + '_') == 0;
    return classTag + '_' + (hasKind ? words.substr(kind.size() + 1) : words);
}

/// The path of the resource as the item has it.
std::string pathFrom(std::string const & file, std::string const & resource)
{
    fs::path const target = fs::absolute(resource).lexically_normal();
    if (file == "-")
        return target.native();
    fs::path const relative = target.lexically_relative(fs::absolute(file).lexically_normal().parent_path());
    return (relative.empty() || *relative.begin() == ".." ? target : relative).native();
}

void setResource(Effect::Object & effect, FileClass const & kind, NewItem const & item)
{
    kind.check(item.resource);
    QString const name = fileName(fs::path(item.resource).filename().native());
    effect.resource = Resource::ID(name, kind.type);
    effect.resourcePath = fileName(pathFrom(item.file, item.resource));
    if (kind.namesGroup)
        effect.groupId = name;
    if (kind.key)
        setParameter(effect, kind.key, toText(name.toStdString()));
}

} // namespace

std::string newItem(NewItem const & item)
{
    auto const effect = createEffect(item.className);
    FileClass const * const kind = fileClassNamed(item.className);
    if (kind && item.resource.empty())
        throw Failure(item.className + " needs " + kind->what + ": name its file behind the class");
    if (!kind && !item.resource.empty())
        throw Failure(item.className + " uses no file, so it cannot use " + item.resource);
    effect->tag = QString::fromStdString(tagOf(Schema::of(*effect)->tag.toStdString(), item.file));
    if (kind)
        setResource(*effect, *kind, item);
    for (auto const & [key, value] : item.settings)
        setParameter(*effect, key, value);
    std::set<std::string> const categories(item.categories.begin(), item.categories.end());
    return toText({{"categories", categories}, {"effect", document(*effect)}}, 2) + '\n';
}

} // namespace Effect::Inspect
