#include <EditorModel/EffectDocument.h>

#include <algorithm>
#include <set>
#include <utility>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/Bytes.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/MessageText.h>
#include <EditorSerialization/Nearest.h>
#include <EditorSerialization/Registry.h>

#include <nlohmann/json.hpp>

#include "BinaryForm.h"
#include "Merge.h"

namespace Effect::Archive {

namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using Serialize::ArchiveError;
using Serialize::FieldLayout;
using Serialize::Form;
using Serialize::Layout;
using Serialize::Json::pointerStep;

constexpr char const * metaKey = Serialize::Json::MetaDetails::s_meta;
constexpr char const * classKey = Serialize::Json::MetaDetails::s_class_name;
constexpr char const * referenceKey = Serialize::Json::MetaDetails::s_reference;
constexpr char const * itemEffectKey = "effect";

/// The value of a member; null when there is none.
template <class Value> Value * member(Value & value, std::string_view key)
{
    if (!value.is_object())
        return nullptr;
    auto const found = value.find(key);
    return found == value.end() ? nullptr : &*found;
}

bool isReference(ordered_json const & value)
{
    ordered_json const * const meta = member(value, metaKey);
    return meta && member(*meta, referenceKey);
}

/// The class that an object says it is of; empty where it does not.
std::string className(ordered_json const & value)
{
    ordered_json const * const meta = member(value, metaKey);
    ordered_json const * const name = meta ? member(*meta, classKey) : nullptr;
    return name && name->is_string() ? name->get<std::string>() : std::string();
}

/// Looks through the tree of a text for everything that reading it would stumble over or pass over.
class Inspector
{
public:
    /// @param repairs  whether values that cannot be read are taken out of the tree
    Inspector(std::vector<Finding> & findings, bool repairs)
        : m_findings(findings)
        , m_repairs(repairs)
    {}

    /// An object with its class, or null in the slot of a holder. Returns whether it may stay.
    bool pointed(ordered_json & value, std::string const & pointer, bool isSlot)
    {
        if (value.is_null() && isSlot)
            return true;
        if (!value.is_object())
            return wrong(pointer, std::string("an object is expected, found ") + value.type_name());
        if (isReference(value))
            return true;
        std::string const name = className(value);
        if (name.empty())
            return wrong(pointer, "the object does not say its class");
        Serialize::Registry::Entry const type = Serialize::Registry::find(name);
        if (!type.creator) {
            if (isSlot)
                m_unknownSlots.push_back(pointer);
            add(isSlot ? Severity::Warning : Severity::Error, "unknown-class",
                pointer + pointerStep(metaKey) + pointerStep(classKey),
                "the class " + Serialize::quotedText(name) + " is unknown",
                Serialize::nearest(name, Serialize::Registry::names()));
            return true;
        }
        return !type.layout || content(value, *type.layout, pointer, type.layout);
    }

    /// JSON pointers of effects in slots, of classes that are unknown.
    std::vector<std::string> const & unknownSlots() const { return m_unknownSlots; }
    /// Whether anything is kept that the library does not know.
    bool foundUnknown() const { return m_foundUnknown; }

private:
    void add(Severity severity, char const * code, std::string const & pointer, std::string const & message,
        std::string const & suggestion = {})
    {
        m_foundUnknown = m_foundUnknown || severity == Severity::Warning;
        Finding finding;
        finding.severity = severity;
        finding.code = code;
        finding.pointer = pointer;
        finding.message = Serialize::messageText(message);
        finding.suggestion = suggestion;
        m_findings.push_back(std::move(finding));
    }

    bool wrong(std::string const & pointer, std::string const & message)
    {
        add(Severity::Error, "wrong-type", pointer, message);
        return false;
    }

    /// @param dynamic  layout of the object's class, of which `layout` may be a base's
    bool content(ordered_json & value, Layout const & layout, std::string const & pointer, Layout const * dynamic)
    {
        if (!value.is_object())
            return wrong(pointer, std::string("an object is expected, found ") + value.type_name());
        if (isReference(value))
            return true;
        if (std::string const name = className(value);
            layout.hasClassInformation && !name.empty() && name != layout.name)
            return wrong(pointer, "an object of the class " + std::string(layout.name) + " is expected, found " +
                                      Serialize::quotedText(name));
        std::vector<std::string> removed;
        for (auto item = value.begin(); item != value.end(); ++item) {
            std::string const & key = item.key();
            if (key == metaKey)
                continue;
            Serialize::KeyLayout const * const known = find(layout, key);
            std::string const place = pointer + pointerStep(key);
            if (!known)
                unknownKey(layout, dynamic, key, place);
            else if (!(known->field ? field(item.value(), *known->field, place)
                                    : content(item.value(), *layout.base, place, dynamic)))
                removed.push_back(key);
        }
        if (m_repairs)
            for (std::string const & key : removed)
                value.erase(key);
        return true;
    }

    static Serialize::KeyLayout const * find(Layout const & layout, std::string_view key)
    {
        auto const * const end = layout.keys + layout.keyCount;
        auto const * const found =
            std::find_if(layout.keys, end, [key](auto const & known) { return known.key() == key; });
        return found == end ? nullptr : found;
    }

    void unknownKey(Layout const & layout, Layout const * dynamic, std::string const & key, std::string const & place)
    {
        for (Layout const * other = dynamic; other; other = other->base)
            if (other != &layout && find(*other, key)) {
                add(Severity::Warning, "misplaced-key", place,
                    "the key " + Serialize::quotedText(key) + " belongs to " + other->name + " and not to " +
                        layout.name);
                return;
            }
        std::vector<std::string> names;
        for (std::size_t index = 0; index < layout.keyCount; ++index)
            names.emplace_back(layout.keys[index].key());
        add(Severity::Warning, "unknown-key", place,
            std::string(layout.name) + " has no key " + Serialize::quotedText(key), Serialize::nearest(key, names));
    }

    template <class Value> bool scalar(ordered_json const & value, std::string const & pointer)
    {
        try {
            Value loaded{};
            Serialize::Json::Detail::load(json(value), loaded);
            return true;
        } catch (ArchiveError const & error) {
            return wrong(pointer, error.what());
        }
    }

    bool field(ordered_json & value, FieldLayout const & field, std::string const & pointer)
    {
        if (isReference(value))
            return true;
        switch (field.form) {
        case Form::Boolean:
            return scalar<bool>(value, pointer);
        case Form::Int32:
            return scalar<int>(value, pointer);
        case Form::UInt32:
            return scalar<unsigned>(value, pointer);
        case Form::Int64:
            return scalar<std::int64_t>(value, pointer);
        case Form::Double:
            return scalar<double>(value, pointer);
        case Form::Text:
            return scalar<QString>(value, pointer);
        case Form::Bytes:
            return scalar<std::string>(value, pointer);
        case Form::Doubles: {
            if (!value.is_array() || value.size() != field.count)
                return wrong(pointer, "an array of " + std::to_string(field.count) + " items is expected");
            bool isRight = true;
            for (std::size_t index = 0; index < value.size(); ++index)
                isRight = scalar<double>(value[index], pointer + pointerStep(index)) && isRight;
            return isRight;
        }
        case Form::Record:
            return content(value, *field.record, pointer, field.record);
        case Form::OptionalRecord:
            return value.is_null() || content(value, *field.record, pointer, field.record);
        case Form::Records:
            return elements(value, pointer, [&](ordered_json & element, std::string const & place) {
                return content(element, *field.record, place, field.record);
            });
        case Form::Objects:
            return elements(value, pointer,
                [&](ordered_json & element, std::string const & place) { return pointed(element, place, true); });
        }
        return true;
    }

    template <class Inspect> bool elements(ordered_json & value, std::string const & pointer, Inspect const & inspect)
    {
        if (!value.is_array())
            return wrong(pointer, std::string("an array is expected, found ") + value.type_name());
        std::vector<bool> isRight;
        for (std::size_t index = 0; index < value.size(); ++index)
            isRight.push_back(inspect(value[index], pointer + pointerStep(index)));
        if (m_repairs) {
            ordered_json kept = ordered_json::array();
            for (std::size_t index = 0; index < value.size(); ++index)
                if (isRight[index])
                    kept.push_back(std::move(value[index]));
            value = std::move(kept);
        }
        return true;
    }

    std::vector<Finding> & m_findings;
    bool m_repairs;
    bool m_foundUnknown = false;
    std::vector<std::string> m_unknownSlots;
};

json documentOf(Object const & effect)
{
    json document;
    Serialize::Json::oarchive archive(document);
    Object const * const pointer = &effect;
    archive << pointer;
    return document;
}

/// Fills line and column in, and puts the findings into the order of the file.
void place(std::vector<Finding> & findings, std::string_view text)
{
    std::set<std::string> pointers;
    for (Finding const & finding : findings)
        if (finding.pointer && !finding.offset)
            pointers.insert(*finding.pointer);
    auto const offsets = Serialize::Json::offsetsOf(text, pointers);
    for (Finding & finding : findings)
        if (auto const found = finding.pointer ? offsets.find(*finding.pointer) : offsets.end();
            found != offsets.end() && !finding.offset)
            finding.offset = found->second;
    std::stable_sort(
        findings.begin(), findings.end(), [](Finding const & a, Finding const & b) { return a.offset < b.offset; });
    std::size_t line = 1;
    std::size_t lineStart = 0;
    std::size_t counted = 0;
    for (Finding & finding : findings) {
        if (!finding.offset)
            continue;
        for (; counted < *finding.offset && counted < text.size(); ++counted)
            if (text[counted] == '\n') {
                ++line;
                lineStart = counted + 1;
            }
        finding.line = line;
        finding.column = *finding.offset - lineStart + 1;
    }
}

/// The number of spaces by which the text indents; -1 for a text on one line.
int indentationOf(std::string_view text)
{
    std::size_t const end = text.find('\n');
    if (end == text.npos || text.find_first_not_of(" \r\n", end) == text.npos)
        return -1;
    return static_cast<int>(text.find_first_not_of(' ', end + 1) - end - 1);
}

bool hasError(std::vector<Finding> const & findings)
{
    return std::any_of(
        findings.begin(), findings.end(), [](Finding const & finding) { return finding.severity == Severity::Error; });
}

} // namespace

struct Document::State
{
    std::string bytes; // as they were read
    bool isJson = true;
    std::vector<Finding> findings;
    std::unique_ptr<Object> effect;
    bool foundUnknown = false;             // something that no effect holds
    bool isRepaired = false;               // what is written is not what was read
    ordered_json tree;                     // of the text, without what could not be read
    std::string effectPointer;             // JSON pointer of the effect in the text: an item of the catalogue holds it
    std::vector<std::string> unknownSlots; // JSON pointers of effects that are empty slots for the program
    json before;                           // document of the effect as it was read

    static std::unique_ptr<State> make(std::string_view bytes, bool isSalvage);
    ordered_json & effectTree() { return tree[ordered_json::json_pointer(effectPointer)]; }
    void readJson(bool isSalvage);
    void readBinary(bool isSalvage);
    bool isChanged() const { return effect && documentOf(*effect) != before; }
    void fail(char const * code, std::string const & message, std::optional<std::size_t> offset = {});
};

std::unique_ptr<Document::State> Document::State::make(std::string_view bytes, bool isSalvage)
{
    auto state = std::make_unique<State>();
    state->bytes = bytes;
    if (isBinaryForm(bytes))
        state->readBinary(isSalvage);
    else
        state->readJson(isSalvage);
    return state;
}

void Document::State::fail(char const * code, std::string const & message, std::optional<std::size_t> offset)
{
    Finding finding;
    finding.code = code;
    finding.message = Serialize::messageText(message);
    finding.offset = offset;
    if (isJson && !offset)
        finding.pointer.emplace();
    findings.push_back(std::move(finding));
}

void Document::State::readJson(bool isSalvage)
{
    Serialize::Json::TextTree text = Serialize::Json::readTree(bytes);
    tree = std::move(text.value);
    if (text.damage) {
        std::string message = "this is no JSON";
        try {
            Serialize::Json::parse(bytes);
        } catch (ArchiveError const & error) {
            message = error.what();
        }
        bool const isCut = *text.damage == bytes.size() && !bytes.empty();
        fail(tree.is_null() ? "no-json" : isCut ? "truncated" : "damaged", message, text.damage);
    }
    if (tree.is_object() && !member(tree, metaKey) && member(tree, itemEffectKey))
        effectPointer = pointerStep(itemEffectKey);
    if (!text.damage || !tree.is_null()) {
        Inspector inspector(findings, isSalvage);
        inspector.pointed(effectTree(), effectPointer, false);
        foundUnknown = inspector.foundUnknown();
        unknownSlots = inspector.unknownSlots();
        if (isSalvage) {
            // Elements that were taken out have moved the others.
            std::vector<Finding> known;
            Inspector repaired(known, false);
            repaired.pointed(effectTree(), effectPointer, false);
            unknownSlots = repaired.unknownSlots();
        }
    }
    for (std::string const & pointer : text.duplicates) {
        Finding finding;
        finding.severity = Severity::Warning;
        finding.code = "duplicate-key";
        finding.pointer = pointer;
        finding.message = "the key occurs more than once; the last one counts";
        findings.push_back(std::move(finding));
    }
    bool const isReadable = !hasError(findings) || isSalvage;
    isRepaired = isSalvage && hasError(findings);
    if (isReadable && !effectTree().is_null()) {
        try {
            json document = tree;
            for (std::string const & slot : unknownSlots)
                document[json::json_pointer(slot)] = nullptr;
            // References in an item are those of its effect's own document.
            json const & archived = document[json::json_pointer(effectPointer)];
            Serialize::Json::iarchive archive(archived);
            archive >> effect;
        } catch (std::exception const & error) {
            effect.reset();
            if (!hasError(findings))
                fail("damaged", error.what());
        }
    }
    if (effect)
        before = documentOf(*effect);
    place(findings, bytes);
}

void Document::State::readBinary(bool isSalvage)
{
    isJson = false;
    BinaryRead read = readBinaryForm(bytes, isSalvage);
    effect = std::move(read.effect);
    if (read.error) {
        bool const isUnknown = read.error->code == ArchiveError::unregistered_class;
        bool const isCut = read.error->code == ArchiveError::input_stream_error;
        fail(isUnknown ? "unknown-class" : isCut ? "truncated" : "damaged", read.error->what(), read.offset);
        isRepaired = isSalvage;
    }
    if (effect)
        before = documentOf(*effect);
}

Document Document::read(std::string_view bytes)
{
    return Document(State::make(bytes, false));
}

Document Document::salvage(std::string_view bytes)
{
    return Document(State::make(bytes, true));
}

Document::Document(std::unique_ptr<State> state)
    : m_state(std::move(state))
{}

Document::Document(Document &&) noexcept = default;

Document & Document::operator=(Document &&) noexcept = default;

Document::~Document() = default;

Object * Document::effect()
{
    return m_state->effect.get();
}

Object const * Document::effect() const
{
    return m_state->effect.get();
}

std::vector<Finding> const & Document::findings() const
{
    return m_state->findings;
}

std::string Document::toJson() const
{
    State const & state = *m_state;
    if (!state.isJson) {
        if (!state.effect)
            throw ArchiveError(ArchiveError::other_exception, "the binary archive holds no effect that can be read");
        return Archive::toJson(*state.effect);
    }
    if (!state.isRepaired && !state.isChanged())
        return state.bytes;
    ordered_json tree = state.tree;
    if (state.effect)
        merge(tree[ordered_json::json_pointer(state.effectPointer)], state.before, documentOf(*state.effect));
    int const indentation = indentationOf(state.bytes);
    return tree.dump(indentation) + (!state.bytes.empty() && state.bytes.back() == '\n' ? "\n" : "");
}

std::string Document::toBinary() const
{
    State const & state = *m_state;
    if (!state.isJson && !state.isRepaired && !state.isChanged())
        return state.bytes;
    if (!state.effect)
        throw ArchiveError(ArchiveError::other_exception, "the archive holds no effect that can be read");
    if (!state.effectPointer.empty())
        throw ArchiveError(ArchiveError::other_exception, "the binary form has no place for the categories of an item");
    if (state.foundUnknown) {
        auto const unknown = std::find_if(state.findings.begin(), state.findings.end(), [](Finding const & finding) {
            return finding.severity == Severity::Warning && finding.code != "duplicate-key";
        });
        throw ArchiveError(ArchiveError::other_exception,
            "the binary form cannot keep what is unknown: " + unknown->message + ", at " + *unknown->pointer);
    }
    return Archive::toBinary(*state.effect);
}

} // namespace Effect::Archive
