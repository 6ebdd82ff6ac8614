#include "Gallery.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <EditorModel/Collection.h>
#include <EditorModel/EffectFactory.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSettings/Settings.h>
#include <effects/Effects.h>
#include <effects/Schema.h>
#include <ParserLUT/LUTTable.h>
#include <Settings/Settings.h>
#include <Settings/SettingsShader.h>

#include "Categories.h"
#include "ClassDescription.h"
#include "Conversion.h"
#include "Documents.h"
#include "Failure.h"
#include "FileNames.h"
#include "Files.h"
#include "Messages.h"
#include "Search.h"
#include "Text.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

namespace Effect::Inspect {

using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;

namespace {

constexpr char const * pageFiles[] = {"index.html", "style.css", "text.js", "search.js", "testcard.js", "isf.js",
    "lut.js", "charts.js", "pictures.js", "panel.js", "page.js"};

/// Of the records between the bounds of a parameter, both ends included.
constexpr int stepCount = 9;

/// Of a picture on the page, the longer side. Larger ones are scaled down.
constexpr int largestPicture = 360;

/// Any request will do: no record of the page depends on it but for the geometry in it.
RenderParams const params{{{1920, 1080}, 10 * MTime::unitsPerSecond}, {}, {}};

/// Classes whose pictures are drawn from records, also while the panel of an item changes them.
constexpr char const * drawnFromRecords[] = {"Effect::AudioCompressor", "Effect::AudioMuffle", "Effect::AudioNoiseGate",
    "Effect::AudioNoiseSuppress", "Effect::AudioPhone", "Effect::AudioPitch", "Effect::AudioRadio"};

bool isDrawnFromRecords(std::string const & className)
{
    return std::find(std::begin(drawnFromRecords), std::end(drawnFromRecords), className) != std::end(drawnFromRecords);
}

/// Those that an editor offers: the bases of the others are not among them.
bool isOffered(Class const & info)
{
    return info.isEffect && info.family != "Base";
}

/// The words of a name: of `TiltShift` "Tilt", "Shift", of `audio_echo_alley` "audio", "echo", "alley".
std::vector<std::string> wordsOf(std::string const & name)
{
    enum class Unit
    {
        Lower,
        Upper,
        Digit,
        Other
    };
    auto const unitOf = [](char unit) {
        if (unit >= 'A' && unit <= 'Z')
            return Unit::Upper;
        if (unit >= '0' && unit <= '9')
            return Unit::Digit;
        bool const isSeparator = unit == '_' || unit == '-' || unit == ' ' || unit == '.';
        return isSeparator ? Unit::Other : Unit::Lower;
    };
    std::vector<std::string> words;
    Unit previous = Unit::Other;
    for (char const unit : name) {
        Unit const kind = unitOf(unit);
        bool const isStart = previous == Unit::Other || (kind == Unit::Upper && previous == Unit::Lower) ||
                             (kind == Unit::Digit && previous == Unit::Lower);
        if (kind != Unit::Other) {
            if (isStart)
                words.emplace_back();
            words.back() += unit;
        }
        previous = kind;
    }
    return words;
}

std::string lowered(std::string text)
{
    for (char & unit : text)
        if (unit >= 'A' && unit <= 'Z')
            unit += 'a' - 'A';
    return text;
}

std::string raised(std::string text)
{
    for (char & unit : text)
        if (unit >= 'a' && unit <= 'z')
            unit -= 'a' - 'A';
    return text;
}

/// The words as a name for people: "Tilt shift", "VHS worn tape".
std::string nameOf(std::vector<std::string> const & words)
{
    static std::set<std::string> const acronyms{"ai", "hud", "isf", "lut", "mpeg", "tv", "vhs"};
    std::string name;
    for (std::string const & word : words) {
        std::string text = lowered(word);
        if (acronyms.count(text) > 0)
            text = raised(text);
        else if (name.empty())
            text[0] = raised(text.substr(0, 1))[0];
        name += (name.empty() ? "" : " ") + text;
    }
    return name;
}

/// Without its namespace.
std::string shortName(std::string const & className)
{
    return className.substr(className.rfind(':') + 1);
}

std::string classTitle(std::string const & className)
{
    auto words = wordsOf(shortName(className));
    if (words.size() > 1 && words.front() == "Audio")
        words.erase(words.begin());
    return nameOf(words);
}

/// Of `audio_echo_alley`, which is an echo, "Alley": the words that the class says already are left out, unless nothing
/// but a number is left.
std::string itemTitle(std::string const & className, std::string const & stem)
{
    auto const known = wordsOf(shortName(className));
    auto const words = wordsOf(stem);
    std::size_t start = 0;
    while (start < words.size() && start < known.size() && lowered(words[start]) == lowered(known[start]))
        ++start;
    std::vector<std::string> const rest(words.begin() + static_cast<std::ptrdiff_t>(start), words.end());
    bool isNumber = true;
    for (std::string const & word : rest)
        isNumber = isNumber && word.find_first_not_of("0123456789") == word.npos;
    if (isNumber)
        return classTitle(className) + (rest.empty() ? "" : ' ' + nameOf(rest));
    return nameOf(rest);
}

/// JSON as an argument of a script: parsed as a text, which browsers do faster than a literal, and which gives a key
/// such as "__proto__" no meaning.
std::string asArgument(json const & value)
{
    std::string argument = "JSON.parse('";
    for (char const unit : toText(value)) {
        if (unit == '\\' || unit == '\'')
            argument += '\\';
        argument += unit;
    }
    return argument + "')";
}

/// Numbers in 16 bits between their least and their greatest, as base64: a hundredth of an 8-bit step is kept, in a
/// third of the length of their digits.
json packed(std::vector<Quoril::Proc::LUT::Color> const & colors)
{
    float least = std::numeric_limits<float>::max();
    float most = std::numeric_limits<float>::lowest();
    for (auto const & color : colors)
        for (float const value : color) {
            least = std::min(least, value);
            most = std::max(most, value);
        }
    double const range = double(most) - double(least);
    double const scale = range > 0 ? 65535 / range : 0;
    QByteArray bytes;
    bytes.reserve(static_cast<int>(colors.size() * 6));
    for (auto const & color : colors)
        for (float const value : color) {
            auto const number = static_cast<unsigned>(std::lround((double(value) - double(least)) * scale));
            bytes.append(static_cast<char>(number & 0xFF));
            bytes.append(static_cast<char>(number >> 8));
        }
    return {{"least", least}, {"most", most}, {"base64", bytes.toBase64().toStdString()}};
}

json described(Quoril::Proc::LUT::LUTTable const & table)
{
    json shaper = json::array();
    for (auto const & curve : table.shaper) {
        json knots = json::array();
        for (auto const & knot : curve)
            knots.push_back({knot.input, knot.output});
        shaper.push_back(std::move(knots));
    }
    return {{"format", table.format}, {"title", table.title}, {"size", table.size}, {"domainMin", table.domainMin},
        {"domainMax", table.domainMax}, {"shaper", std::move(shaper)}, {"videoRangeInput", table.videoRangeInput},
        {"videoRangeOutput", table.videoRangeOutput}, {"entries", packed(table.entries)}};
}

/// Numbers between the ends of a parameter's slider at which records are made; the values of a choice or of a switch.
std::vector<json> stepsOf(Parameter const & parameter)
{
    std::vector<json> steps;
    switch (parameter.kind) {
    case Kind::Boolean:
        return {false, true};
    case Kind::Enumeration:
        for (Effect::Choice const & choice : parameter.choices)
            steps.emplace_back(choice.value);
        return steps;
    case Kind::Integer:
    case Kind::Real: {
        auto const least = parameter.suggestedMinimum ? parameter.suggestedMinimum : parameter.minimum;
        auto const most = parameter.suggestedMaximum ? parameter.suggestedMaximum : parameter.maximum;
        if (!least || !most)
            return {};
        for (int index = 0; index < stepCount; ++index) {
            // Frequencies span so many octaves that equal differences would skip the lower ones.
            bool const isFrequency = parameter.unit == Effect::Unit::hertz && *least > 0;
            double const part = double(index) / (stepCount - 1);
            double const value =
                isFrequency ? *least * std::pow(*most / *least, part) : *least + (*most - *least) * part;
            json step = parameter.kind == Kind::Real ? json(value) : json(std::int64_t(std::llround(value)));
            if (steps.empty() || steps.back() != step)
                steps.push_back(std::move(step));
        }
        return steps;
    }
    default:
        return {};
    }
}

/// Writes the files of one page.
class Gallery
{
public:
    Gallery(Catalogue & catalogue, QString const & folder)
        : m_catalogue(catalogue)
        , m_host(catalogue.host())
        , m_folder(folder)
    {}

    GallerySummary write()
    {
        for (char const * const below : {"", "data", "images"})
            if (QString const path = m_folder.filePath(QLatin1String(below)); !QDir().mkpath(path))
                throw Failure(toBytes(path) + ": the folder cannot be made");
        for (Class const * const info : Effect::Schema::classes())
            if (isOffered(*info))
                addClass(*info);
        m_catalogue.forEach([this](std::string const & collection, EditorCollection::IItem const & item) {
            addItem(item, collection);
        });
        script("cards", m_cards);
        script("synonyms", synonyms());
        script("classes", m_classes);
        script("documents", m_documents);
        script("records", m_records);
        script("pictures", m_pictures);
        for (char const * const name : pageFiles) {
            QFile source(QLatin1String(":/gallery/") + QLatin1String(name));
            source.open(QIODevice::ReadOnly);
            file(QLatin1String(name), source.readAll().toStdString());
        }
        return m_summary;
    }

private:
    void file(QString const & name, std::string const & bytes)
    {
        writeFile(toBytes(m_folder.filePath(name)), bytes);
        m_summary.bytes += bytes.size();
    }

    /// A part of the data, which the page takes in when it runs the script.
    void script(std::string const & part, json const & value)
    {
        file(QString::fromStdString("data/" + part + ".js"),
            "Gallery.take(" + toText(json(part)) + ", " + asArgument(value) + ");\n");
    }

    void addClass(Class const & info)
    {
        auto const effect = createEffect(info.name);
        json description = describe(info);
        description["title"] = classTitle(info.name);
        description["isConverted"] = info.isConverted;
        m_classes[info.name] = std::move(description);
        std::string const id = "effect-" + shortName(info.name);
        m_cards.push_back({{"id", id}, {"class", info.name}, {"tag", info.tag.toStdString()},
            {"title", classTitle(info.name)}, {"description", info.description().toStdString()},
            {"family", info.family}, {"type", info.type == Effect::Type::Audio ? "audio" : "video"},
            {"categories", json::array()}, {"categoryTexts", json::array()}});
        m_documents[id] = document(*effect);
        addRecords(id, *effect, true);
        ++m_summary.effects;
    }

    void addItem(EditorCollection::IItem const & item, std::string const & collection)
    {
        Effect::Object const & effect = item.payload();
        Class const * const info = Effect::Schema::of(effect);
        if (!info)
            return; // of a class of the host, about which there is nothing to show
        QFileInfo const source(fileName(item.file()));
        std::string stem = toBytes(source.fileName());
        stem = asText(stem.substr(0, stem.find('.')));
        json categories = json::array();
        json categoryTexts = json::array();
        for (QString const & category : item.categories()) {
            categories.push_back(category.toStdString());
            categoryTexts.push_back(categoryText(category.toStdString()));
        }
        std::string const id = unused((item.userFlagA() ? "user-" : "item-") + stem);
        m_cards.push_back({{"id", id}, {"class", info->name}, {"tag", effect.tag.toStdString()},
            {"title", itemTitle(info->name, stem)}, {"description", info->description().toStdString()},
            {"family", info->family}, {"type", effect.type() == Effect::Type::Audio ? "audio" : "video"},
            {"categories", std::move(categories)}, {"categoryTexts", std::move(categoryTexts)},
            {"collection", collection}, {"file", asText(toBytes(source.fileName()))}, {"user", item.userFlagA()}});
        // The file's own text has its paths as they are, where the payload has those of this machine.
        m_documents[id] = Serialize::Json::parse(readFile(item.file()));
        addRecords(id, effect, isDrawnFromRecords(info->name));
        ++m_summary.items;
    }

    std::string unused(std::string const & wanted)
    {
        std::string id = wanted;
        for (int count = 2; !m_ids.insert(id).second; ++count)
            id = wanted + '-' + std::to_string(count);
        return id;
    }

    /// @param hasSteps  whether there are records between the bounds, too
    void addRecords(std::string const & id, Effect::Object const & effect, bool hasSteps)
    {
        json record = recordOf(m_host, effect, params);
        if (hasSteps && !record["settings"].empty())
            record["steps"] = stepsOf(effect);
        m_records[id] = std::move(record);
        addPictures(id, effect);
    }

    /// The settings when one parameter is changed, by its pointer and then in the order of `values`.
    json stepsOf(Effect::Object const & effect)
    {
        json steps = json::object();
        Class const & info = *Effect::Schema::of(effect);
        auto const changed = effectOf(document(effect));
        for (Parameter const & parameter : info.parameters) {
            if (parameter.isEffective != true)
                continue;
            json const original = Effect::Schema::value(effect, parameter);
            json values = json::array();
            json settings = json::array();
            for (json const & value : Inspect::stepsOf(parameter)) {
                Effect::Schema::setValue(*changed, parameter, value);
                json record = m_host.convert(*changed, params);
                if (record["settings"].empty())
                    continue; // refused
                values.push_back(value);
                settings.push_back(std::move(record["settings"]));
            }
            Effect::Schema::setValue(*changed, parameter, original);
            if (!values.empty())
                steps[parameter.pointer] = {{"values", std::move(values)}, {"settings", std::move(settings)}};
        }
        return steps;
    }

    /// What is drawn from files: a table, an overlay's picture, those of the presets.
    void addPictures(std::string const & id, Effect::Object const & effect)
    {
        std::string const name = effect.GetNameInArchive();
        if (name == Effect::Lut::NameInArchive())
            addTable(id, effect);
        else if (name == Effect::Overlay::NameInArchive())
            addPicture(id, effect.resourcePath);
        else if (name == "Effect::BokehBlur" || name == "Effect::FlyingObjects")
            addPresets(name, effect);
    }

    void addTable(std::string const & id, Effect::Object const & effect)
    {
        Messages const ignored; // the record has them already
        auto const record = Effect::Factory::videoEffectSettings(effect, params.video);
        for (auto const & one : record.settings) {
            auto const * const settings = dynamic_cast<Quoril::Proc::SettingsEffectLUT const *>(one.get());
            if (!settings || !settings->GetTable())
                continue;
            std::string const part = "lut-" + std::to_string(m_tables++);
            script(part, described(*settings->GetTable()));
            m_pictures["tables"][id] = part;
        }
    }

    /// The pictures of the presets, once for the whole class.
    void addPresets(std::string const & className, Effect::Object const & effect)
    {
        json & pictures = m_pictures["presets"][className];
        if (!pictures.is_null())
            return;
        pictures = json::object();
        Parameter const & preset = *Effect::Schema::find(className)->find("preset");
        auto const changed = effectOf(document(effect));
        for (Effect::Choice const & choice : preset.choices) {
            Effect::Schema::setValue(*changed, preset, choice.value);
            if (json picture = copyOf(presetFile(*changed)); !picture.is_null())
                pictures[std::to_string(choice.value)] = std::move(picture);
        }
    }

    /// The stock picture that the conversion of an effect loads. The record has its pixels only; but where the stock
    /// folder is empty, the loader says which file it misses.
    QString presetFile(Effect::Object const & effect)
    {
        QString const stock = Settings::stockRoot();
        QTemporaryDir const empty;
        Settings::setStockRoot(empty.path());
        json const record = m_host.convert(effect, params);
        Settings::setStockRoot(stock);
        std::string const start = toBytes(empty.path()) + '/';
        for (json const & warning : record.value("warnings", json::array())) {
            auto const & text = warning.get_ref<std::string const &>();
            std::size_t const at = text.find(start);
            std::size_t const end = text.find(".png", at);
            if (at != text.npos && end != text.npos)
                return stock + '/' + fileName(text.substr(at + start.size(), end + 4 - at - start.size()));
        }
        return {};
    }

    void addPicture(std::string const & id, QString const & path)
    {
        if (json picture = copyOf(path); !picture.is_null())
            m_pictures["pictures"][id] = std::move(picture);
    }

    /// Copies a picture to the page, scaled down where it is large: `file`, `width` and `height` of the copy. Null when
    /// there is none.
    json copyOf(QString const & path)
    {
        if (!QFileInfo(path).isFile())
            return nullptr;
        QImageReader reader(path);
        QSize size = reader.size();
        if (size.width() > largestPicture || size.height() > largestPicture) {
            size.scale(largestPicture, largestPicture, Qt::KeepAspectRatio);
            reader.setScaledSize(size.expandedTo({1, 1}));
        }
        QImage const image = reader.read();
        if (image.isNull())
            return nullptr;
        QBuffer buffer;
        image.save(&buffer, "PNG", 0); // the strongest compression
        std::string const name = "images/" + std::to_string(m_copies++) + ".png";
        file(QString::fromStdString(name), buffer.data().toStdString());
        return {{"file", name}, {"width", image.width()}, {"height", image.height()}};
    }

    Catalogue & m_catalogue;
    RenderHost & m_host;
    QDir m_folder;
    GallerySummary m_summary;
    std::set<std::string> m_ids;
    std::size_t m_tables = 0;
    std::size_t m_copies = 0;
    json m_cards = json::array();
    json m_classes = json::object();
    json m_documents = json::object();
    json m_records = json::object();
    json m_pictures = {{"tables", json::object()}, {"presets", json::object()}, {"pictures", json::object()}};
};

} // namespace

GallerySummary writeGallery(Catalogue & catalogue, QString const & folder)
{
    return Gallery(catalogue, folder).write();
}

} // namespace Effect::Inspect
