#include <inspect/EffectFile.h>

#include <algorithm>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <EditorSerialization/Nearest.h>
#include <effects/Schema.h>
#include <inspect/Changes.h>
#include <inspect/Documents.h>
#include <inspect/Failure.h>
#include <inspect/Files.h>
#include <inspect/Findings.h>
#include <inspect/Text.h>

namespace Effect::Inspect {

using Archive::Document;
using Archive::Finding;
using Archive::Severity;
using nlohmann::json;
using nlohmann::ordered_json;
using Serialize::Json::pointerStep;
using Serialize::Json::MetaDetails::s_meta;
using Serialize::Json::MetaDetails::s_reference;

namespace {

constexpr char const * effectKey = "effect";

bool isReference(json const & value)
{
    return value.is_object() && value.contains(s_meta) && value[s_meta].is_object() &&
           value[s_meta].contains(s_reference);
}

/// Adds to a document what the text from which it was read holds beside it. An empty slot of the document is an effect
/// of an unknown class in the text.
void addUnknown(json & document, json const & text)
{
    if (isReference(text))
        return;
    if (document.is_null() && text.is_object()) {
        document = text;
    } else if (document.is_object() && text.is_object()) {
        for (auto const & [key, value] : text.items())
            if (auto const known = document.find(key); known != document.end())
                addUnknown(*known, value);
            else if (!value.is_null()) // an optional record that is absent
                document[key] = value;
    } else if (document.is_array() && text.is_array() && document.size() == text.size()) {
        for (std::size_t index = 0; index < text.size(); ++index)
            addUnknown(document[index], text[index]);
    }
}

/// The steps of a pointer, unescaped.
std::vector<std::string> stepsOf(json::json_pointer pointer)
{
    std::vector<std::string> steps;
    for (; !pointer.empty(); pointer.pop_back())
        steps.push_back(pointer.back());
    std::reverse(steps.begin(), steps.end());
    return steps;
}

/// Writes out what a text leaves out on the way to a place, as far as the whole document has it, so that an operation
/// finds its place.
/// @param isValueNeeded  whether the value at the place itself is needed
void writeOut(ordered_json & tree, json const & whole, json::json_pointer const & pointer, bool isValueNeeded)
{
    ordered_json * value = &tree;
    json const * known = &whole;
    std::vector<std::string> const steps = stepsOf(pointer);
    for (std::size_t index = 0; index < steps.size(); ++index) {
        std::string const & step = steps[index];
        if (!value->is_object() || !known->is_object())
            return;
        auto const inner = known->find(step);
        if (inner == known->end())
            return;
        bool const isLast = index + 1 == steps.size();
        if (!value->contains(step)) {
            if (isLast && !isValueNeeded)
                return;
            (*value)[step] = isLast || !inner->is_object() ? ordered_json(*inner) : ordered_json::object();
        }
        value = &(*value)[step];
        known = &*inner;
    }
}

/// Where an operation works, or an empty text where it has no such member.
std::string placeIn(json const & operation, char const * member)
{
    auto const found = operation.find(member);
    return found != operation.end() && found->is_string() ? found->get<std::string>() : std::string();
}

/// A text in the layout of another one: its indentation, and its line end behind the last line.
std::string dumpLike(ordered_json const & tree, std::string_view text)
{
    std::size_t const lineEnd = text.find('\n');
    std::size_t const start = lineEnd == text.npos ? text.npos : text.find_first_not_of(" \r\n", lineEnd);
    int const indent = start == text.npos ? -1 : static_cast<int>(start - text.rfind('\n', start) - 1);
    return tree.dump(indent) + (!text.empty() && text.back() == '\n' ? "\n" : "");
}

/// The document of a text; the text itself while it has errors, as it may between two operations.
json wholeOf(ordered_json const & tree)
{
    try {
        return EffectFile::parse("", tree.dump()).document();
    } catch (std::exception const &) {
        return tree;
    }
}

/// What makes a file unfit for changes, damage to the text before what follows from it; null for nothing. A text whose
/// class is unknown is fit.
Finding const * errorIn(Document const & document, bool isBinary)
{
    Finding const * error = nullptr;
    for (Finding const & finding : document.findings()) {
        if (finding.code == "no-json" || finding.code == "truncated" || finding.code == "damaged")
            return &finding;
        bool const isError = finding.severity == Severity::Error && (isBinary || finding.code != "unknown-class");
        if (isError && !error)
            error = &finding;
    }
    return error;
}

} // namespace

EffectFile::EffectFile(std::string name, std::string bytes)
    : m_name(std::move(name))
    , m_document(Document::read({}))
{
    take(std::move(bytes));
}

EffectFile EffectFile::read(std::string const & path)
{
    return parse(path, readFile(path));
}

EffectFile EffectFile::parse(std::string const & name, std::string bytes)
{
    return EffectFile(name, std::move(bytes));
}

void EffectFile::fail(std::string const & reason) const
{
    throw Failure(m_name + ": " + reason);
}

void EffectFile::take(std::string bytes)
{
    Document document = Document::read(bytes);
    if (Finding const * const error = errorIn(document, Archive::isBinary(bytes)))
        throw Failure(toLine(m_name, *error));
    m_isJson = !Archive::isBinary(bytes);
    m_tree = m_isJson ? Serialize::Json::readTree(bytes).value : ordered_json();
    m_document = std::move(document);
    m_bytes = std::move(bytes);
}

bool EffectFile::isItem() const
{
    return m_tree.is_object() && m_tree.contains(effectKey) && !m_tree.contains(s_meta);
}

std::string EffectFile::effectPointer() const
{
    return isItem() ? pointerStep(effectKey) : std::string();
}

Object const * EffectFile::effect() const
{
    return m_document.effect();
}

Object & EffectFile::knownEffect()
{
    Object * const effect = m_document.effect();
    if (!effect)
        fail(m_document.findings().empty() ? "there is no effect" : m_document.findings().front().message);
    return *effect;
}

json EffectFile::document() const
{
    json whole = m_tree;
    if (Object const * const known = effect()) {
        json document = Inspect::document(*known);
        if (m_isJson)
            addUnknown(document, whole[json::json_pointer(effectPointer())]);
        whole[json::json_pointer(effectPointer())] = std::move(document);
    }
    return whole;
}

void EffectFile::set(std::string const & key, std::string const & value)
{
    try {
        setParameter(knownEffect(), key, value);
        take(m_isJson ? m_document.toJson() : m_document.toBinary());
    } catch (Failure const & failure) {
        std::string const reason = failure.what();
        if (reason.rfind(m_name + ':', 0) == 0)
            throw;
        fail(reason);
    }
}

void EffectFile::unset(std::string const & key)
{
    Object & effect = knownEffect();
    Schema::Class const * const info = Schema::of(effect);
    Schema::Parameter const * const parameter = info ? info->find(key) : nullptr;
    if (!m_isJson) {
        if (!parameter)
            fail("there is no key \"" + key + "\" that could be unset");
        Schema::setValue(effect, *parameter, parameter->defaultValue());
        return take(m_document.toBinary());
    }
    bool const isPointer = !key.empty() && key.front() == '/';
    std::string const place = parameter ? parameter->pointer : isPointer ? key : pointerStep(key);
    ordered_json tree = m_tree;
    try {
        ordered_json::json_pointer const pointer(effectPointer() + place);
        ordered_json::json_pointer const parent = pointer.parent_pointer();
        if (!parameter && (!tree.contains(pointer) || !tree[parent].is_object() || pointer.back() == s_meta)) {
            std::vector<std::string> known;
            for (Schema::Parameter const & one : info->parameters)
                known.push_back(isPointer ? one.pointer : one.key);
            fail("there is no key \"" + key + "\" that could be unset" + Serialize::didYouMean(key, known));
        }
        if (!tree.contains(pointer))
            return; // the default already
        tree[parent].erase(pointer.back());
    } catch (json::exception const &) {
        fail("there is no key \"" + key + "\" that could be unset");
    }
    take(dumpLike(tree, m_bytes));
}

void EffectFile::patch(json const & operations)
{
    if (!operations.is_array())
        fail("a patch is an array of operations");
    EffectFile changed = parse(m_name, m_isJson ? m_bytes : document().dump());
    ordered_json tree = changed.m_tree;
    for (std::size_t index = 0; index < operations.size(); ++index) {
        json const & operation = operations[index];
        std::string const what = "operation " + std::to_string(index) + " of the patch: ";
        if (!operation.is_object())
            fail(what + "it is no object");
        try {
            json const whole = wholeOf(tree);
            bool const isAdded = operation.value("op", std::string()) == "add";
            writeOut(tree, whole, json::json_pointer(placeIn(operation, "path")), !isAdded);
            writeOut(tree, whole, json::json_pointer(placeIn(operation, "from")), true);
            tree = tree.patch(ordered_json::array({operation}));
        } catch (json::exception const & error) {
            std::string const text = error.what();
            std::size_t const end = text.find("] "); // of the library's own name for it
            fail(what + text.substr(end == text.npos ? 0 : end + 2));
        }
    }
    changed.take(dumpLike(tree, changed.m_bytes));
    if (m_isJson)
        return take(std::move(changed.m_bytes));
    try {
        changed.knownEffect();
        take(changed.m_document.toBinary());
    } catch (std::exception const & error) {
        fail(error.what());
    }
}

} // namespace Effect::Inspect
