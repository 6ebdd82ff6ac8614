#include <inspect/Check.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <set>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <EditorSerialization/MessageText.h>
#include <EditorSerialization/Nearest.h>
#include <effects/Holder.h>
#include <effects/Schema.h>
#include <effects/Shaders.h>
#include <inspect/Bounds.h>
#include <inspect/Categories.h>
#include <inspect/ClassDescription.h>
#include <inspect/Failure.h>
#include <inspect/Files.h>
#include <inspect/Resources.h>
#include <inspect/Text.h>
#include <inspect/Walk.h>

namespace Effect::Inspect {

using Archive::Document;
using Archive::Finding;
using Archive::Severity;
using nlohmann::json;
using nlohmann::ordered_json;
using Schema::Kind;
using Schema::Parameter;
using Serialize::ISerializable;
using Serialize::quotedText;
using Serialize::Json::pointerStep;

namespace fs = std::filesystem;

namespace {

constexpr char const * categoriesKey = "categories";
constexpr char const * effectKey = "effect";
constexpr char const * schemaKey = "$schema";
constexpr char const * standardInput = "-";

/// The folder of a file, in a form that two paths to one folder share.
std::string folderOf(std::string const & file)
{
    std::error_code ignored;
    fs::path const path = file == standardInput ? fs::path() : fs::path(file).parent_path();
    fs::path const folder = fs::weakly_canonical(fs::absolute(path, ignored), ignored);
    return folder.native();
}

/// The pointers that lead to the places around a place, from the nearest one to the document.
std::vector<std::string> placesAround(std::string pointer)
{
    std::vector<std::string> places;
    while (!pointer.empty()) {
        places.push_back(pointer);
        pointer.erase(pointer.rfind('/'));
    }
    places.push_back(pointer);
    return places;
}

/// Fills in where in the text the findings are: at their value or, where the text leaves it out, at what should hold
/// it.
void locate(std::vector<Finding> & findings, std::string_view text)
{
    std::set<std::string> pointers;
    for (Finding const & finding : findings)
        for (std::string & place : placesAround(*finding.pointer))
            pointers.insert(std::move(place));
    auto const offsets = Serialize::Json::offsetsOf(text, pointers);
    for (Finding & finding : findings) {
        for (std::string const & place : placesAround(*finding.pointer)) {
            auto const found = offsets.find(place);
            if (found == offsets.end())
                continue;
            std::string_view const before = text.substr(0, found->second);
            finding.offset = found->second;
            finding.line = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
            std::size_t const lineEnd = before.rfind('\n');
            finding.column = before.size() - (lineEnd == before.npos ? 0 : lineEnd + 1) + 1;
            break;
        }
    }
}

} // namespace

/// One file at work.
class Checker::Task
{
public:
    Task(Checker & checker, std::string const & file, std::string_view bytes)
        : m_checker(checker)
        , m_file(file)
        , m_folder(folderOf(file))
        , m_bytes(bytes)
        , m_isJson(!Archive::isBinary(bytes))
        , m_document(Document::read(bytes))
    {}

    std::vector<Finding> run()
    {
        if (m_isJson)
            checkItem(Serialize::Json::readTree(m_bytes).value);
        if (Object const * const effect = m_document.effect()) {
            checkValues(*effect);
            checkEffects(*effect);
            checkResources(*effect);
        }
        if (m_isJson)
            locate(m_own, m_bytes);
        std::vector<Finding> findings = m_document.findings();
        findings.insert(findings.end(), m_own.begin(), m_own.end());
        std::stable_sort(findings.begin(), findings.end(),
            [](Finding const & left, Finding const & right) { return left.offset < right.offset; });
        return findings;
    }

private:
    void add(Severity severity, char const * code, std::string const & pointer, std::string const & message,
        std::string const & suggestion = {})
    {
        Finding finding;
        finding.severity = severity;
        finding.code = code;
        finding.pointer = pointer;
        finding.message = Serialize::messageText(message);
        finding.suggestion = suggestion;
        m_own.push_back(std::move(finding));
    }

    /// What an item has beside its effect, whose place in it is found out on the way.
    void checkItem(ordered_json const & tree)
    {
        m_isItem = tree.is_object() && tree.contains(effectKey) && !tree.contains(Serialize::Json::MetaDetails::s_meta);
        if (!m_isItem)
            return;
        m_effectPointer = pointerStep(effectKey);
        std::vector<std::string> const known{categoriesKey, effectKey, schemaKey};
        for (auto const & [key, value] : tree.items()) {
            if (key == categoriesKey)
                checkCategories(value);
            else if (std::find(known.begin(), known.end(), key) == known.end())
                add(Severity::Warning, "unknown-key", pointerStep(key), "an item has no key " + quotedText(key),
                    Serialize::nearest(key, known));
        }
    }

    void checkCategories(ordered_json const & names)
    {
        std::string const pointer = pointerStep(categoriesKey);
        if (!names.is_array())
            return add(Severity::Error, "wrong-type", pointer,
                std::string("an array is expected, found ") + names.type_name());
        for (std::size_t index = 0; index < names.size(); ++index) {
            std::string const place = pointer + pointerStep(index);
            if (!names[index].is_string()) {
                add(Severity::Error, "wrong-type", place,
                    std::string("a string is expected, found ") + names[index].type_name());
                continue;
            }
            std::string const name = names[index];
            if (categoryText(name).empty())
                add(Severity::Warning, "unknown-category", place,
                    "the category " + quotedText(name) + " has no text in the editor",
                    Serialize::nearest(name, categories()));
        }
    }

    /// Numbers beyond their bounds, and numbers that stand for nothing.
    void checkValues(Object const & effect)
    {
        walk(effect, m_effectPointer,
            [this](ISerializable const & object, Parameter const & parameter, std::string const & pointer) {
                if (!parameter.beyond)
                    return;
                json const value = Schema::value(object, parameter);
                auto const number = numberIn(value);
                if (!number)
                    return;
                bool const isRefused = *parameter.beyond == Beyond::Refused;
                Severity const severity = isRefused ? Severity::Error : Severity::Warning;
                std::string const given = quotedText(parameter.key) + " is " + toText(value);
                if (parameter.kind == Kind::Enumeration) {
                    if (!isChoice(*number, parameter))
                        add(severity, "unknown-choice", pointer,
                            given + ", which is none of " + choicesText(parameter) + "; " + boundsText(parameter));
                } else if (auto const bound = boundBefore(*number, parameter)) {
                    add(severity, "out-of-range", pointer, given + "; allowed: " + boundsText(parameter),
                        std::isnan(*bound) ? std::string() : numberText(*bound));
                }
            });
    }

    static std::string choicesText(Parameter const & parameter)
    {
        std::vector<std::string> names;
        for (Choice const & choice : parameter.choices)
            names.push_back(std::to_string(choice.value) + " (" + choice.name + ')');
        return joined(names, ", ");
    }

    void checkEffects(Object const & effect)
    {
        checkTag(effect);
        walkEffects(effect, m_effectPointer, [this](Object const & held, std::string const & pointer) {
            if (Schema::Class const * const info = Schema::of(held)) {
                checkName(held, *info, pointer);
                checkPurpose(held, *info, pointer);
            }
        });
    }

    /// Of two items of one collection with the same tag, the second one cannot be found.
    void checkTag(Object const & effect)
    {
        if (!m_isItem || m_file == standardInput || effect.tag.isEmpty())
            return;
        std::string const tag = effect.tag.toStdString();
        auto const [other, isNew] = m_checker.m_tags.emplace(std::pair(m_folder, tag), m_file);
        Schema::Class const * const info = Schema::of(effect);
        if (!isNew && other->second != m_file && info)
            add(Severity::Warning, "duplicate-tag", m_effectPointer + info->find("tag")->pointer,
                "the tag " + quotedText(tag) + " is that of " + asText(other->second) + " already");
    }

    /// Of two files under one name, the second one is not used.
    void checkName(Object const & effect, Schema::Class const & info, std::string const & pointer)
    {
        if (!effect.resource.isValid() || effect.resourcePath.isEmpty())
            return;
        std::error_code ignored;
        fs::path const path = fs::path(m_isItem ? m_folder : std::string()) / effect.resourcePath.toStdString();
        Named const named{m_file, fs::weakly_canonical(fs::absolute(path, ignored), ignored).native()};
        std::string const name = effect.resource.name().toStdString();
        auto const [other, isNew] =
            m_checker.m_resources.emplace(std::pair(name, static_cast<int>(effect.resource.type())), named);
        if (!isNew && other->second.path != named.path)
            add(Severity::Warning, "duplicate-resource", pointer + info.find("resource")->pointer,
                "the name " + quotedText(name) + " belongs to another file already, to which " +
                    asText(other->second.user) + " refers");
    }

    /// Whether the engine gets anything of it.
    void checkPurpose(Object const & effect, Schema::Class const & info, std::string const & pointer)
    {
        if (!info.id.isEmpty() && effect.id != info.id)
            return add(Severity::Error, "class-identifier", pointer + info.find("id")->pointer,
                "the identifier " + quotedText(effect.id.toStdString()) + " is not that of " + info.name,
                info.id.toStdString());
        if (auto const * const holder = dynamic_cast<EffectsHolder const *>(&effect)) {
            bool const isEmpty = std::none_of(
                holder->effects.begin(), holder->effects.end(), [](auto const & held) { return held != nullptr; });
            if (isEmpty)
                add(Severity::Warning, "no-effect", pointer, "it holds no effects, so it changes nothing");
            return;
        }
        Parameter const & intensity = *info.find("intensity");
        if (effect.hasIntensity() && intensity.isEffective == true && effect.intensity == 0)
            add(Severity::Warning, "no-effect", pointer + intensity.pointer,
                "the intensity is 0, so the effect changes nothing");
        bool const readsFile = dynamic_cast<Lut const *>(&effect) || dynamic_cast<ShaderISF const *>(&effect) ||
                               dynamic_cast<ExternalShader const *>(&effect);
        if (!info.isConverted || readsFile) // which are found by their names, and have settings without them
            return;
        RenderParams params;
        params.video.frameGeometry = {1920, 1080}; // any will do
        json const record = m_checker.m_host.convert(effect, params);
        if (record["settings"].empty())
            add(Severity::Warning, "no-effect", pointer, "no parameter is set, so the effect changes nothing");
        // The picture of a preset, which no parameter names.
        for (std::string const line : record.value("warnings", json::array()))
            if (line.rfind("Couldn't load image ", 0) == 0)
                add(Severity::Error, line.find("no such file") == line.npos ? "broken-resource" : "missing-resource",
                    pointer, line);
    }

    void checkResources(Object const & effect)
    {
        for (ResourceUse const & use : resourcesOf(effect, m_isItem ? m_folder : std::string(), m_effectPointer))
            if (use.outcome != ResourceUse::Outcome::Found)
                add(Severity::Error,
                    use.outcome == ResourceUse::Outcome::Missing ? "missing-resource" : "broken-resource", use.pointer,
                    use.message);
    }

    Checker & m_checker;
    std::string const & m_file;
    std::string const m_folder;
    std::string_view const m_bytes;
    bool const m_isJson;
    Document const m_document;
    bool m_isItem = false;
    std::string m_effectPointer;
    std::vector<Finding> m_own; // beside those of the document
};

Checker::Checker(RenderHost & host)
    : m_host(host)
{}

std::vector<Finding> Checker::check(std::string const & file)
{
    std::string bytes;
    try {
        bytes = readFile(file);
    } catch (Failure const & failure) {
        return {unreadable(file, failure)};
    }
    return check(file, bytes);
}

std::vector<Finding> Checker::check(std::string const & file, std::string_view bytes)
{
    return Task(*this, file, bytes).run();
}

Finding unreadable(std::string const & file, std::exception const & error)
{
    Finding finding;
    finding.code = "unreadable";
    finding.message = error.what();
    if (std::string const start = file + ": "; finding.message.rfind(start, 0) == 0)
        finding.message.erase(0, start.size());
    finding.message = Serialize::messageText(finding.message);
    return finding;
}

} // namespace Effect::Inspect
