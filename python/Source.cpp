#include "Source.h"

#include <algorithm>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <EditorUtil/ItemFile.h>
#include <inspect/FileNames.h>

#include <QFileInfo>
#include <QString>

namespace EffectsPython {

using Effect::Archive::Document;
using Effect::Archive::Finding;
using Effect::Archive::Severity;

namespace {

/// Where an item of the catalogue has its effect, which has this key itself.
constexpr char const * itemEffectKey = "effect";
constexpr char const * metaKey = Serialize::Json::MetaDetails::s_meta;

/// Whether the finding is about the text as a whole: others follow from it.
bool isAboutText(Finding const & finding)
{
    return finding.code == "no-json" || finding.code == "truncated" || finding.code == "damaged";
}

[[noreturn]] void fail(Document const & document)
{
    Finding const * chosen = nullptr;
    for (Finding const & finding : document.findings())
        if (finding.severity == Severity::Error && (!chosen || (isAboutText(finding) && !isAboutText(*chosen))))
            chosen = &finding;
    if (chosen)
        throw ReadError(*chosen);
    Finding none;
    none.code = "no-effect";
    none.message = "there is no effect in it";
    throw ReadError(none);
}

/// Whether there is more in the file than the program's effect. A warning is about what is kept in the file alone.
bool hasUnknown(Document const & document)
{
    auto const & findings = document.findings();
    return std::any_of(findings.begin(), findings.end(),
        [](Finding const & finding) { return finding.severity == Severity::Warning; });
}

} // namespace

ReadError::ReadError(Finding finding)
    : std::runtime_error(finding.message)
    , m_finding(std::move(finding))
{}

std::shared_ptr<Source> Source::read(std::shared_ptr<std::string const> bytes, std::string file)
{
    std::shared_ptr<Source> source(new Source);
    source->m_file = std::move(file);
    try {
        source->m_effect =
            Effect::Archive::isBinary(*bytes) ? Effect::Archive::fromBinary(*bytes) : Effect::Archive::fromJson(*bytes);
    } catch (std::exception const &) {
        // An item of the catalogue, or a broken file: the document says where.
        source->m_document = Document::read(*bytes);
        if (!source->m_document->effect())
            fail(*source->m_document);
    }
    source->m_bytes = std::move(bytes);
    return source;
}

std::shared_ptr<Source> Source::of(std::unique_ptr<Effect::Object> effect)
{
    std::shared_ptr<Source> source(new Source);
    source->m_effect = std::move(effect);
    return source;
}

bool Source::isJson() const
{
    return m_bytes && !Effect::Archive::isBinary(*m_bytes);
}

Effect::Object const & Source::effect() const
{
    return m_document ? *m_document->effect() : *m_effect;
}

Effect::Object & Source::change()
{
    if (m_bytes && !m_document) {
        Document document = Document::read(*m_bytes);
        if (!document.effect())
            fail(document);
        m_document = std::move(document);
        m_effect.reset();
    }
    m_tree.reset();
    return m_document ? *m_document->effect() : *m_effect;
}

/// Only an item has no effect that could be read without a document.
bool Source::isItem() const
{
    if (!isJson() || !m_document)
        return false;
    nlohmann::ordered_json const tree = Serialize::Json::readTree(*m_bytes).value;
    return tree.is_object() && !tree.contains(metaKey) && tree.contains(itemEffectKey);
}

std::shared_ptr<Effect::Object const> Source::usable() const
{
    if (m_file.empty() || !isItem())
        return {std::shared_ptr<void>(), &effect()};
    QString const folder = QFileInfo(Effect::Inspect::fileName(m_file)).absolutePath();
    auto const item = std::make_shared<serialize_ptr<EditorCollection::IItem>>(
        EditorCollection::parseItem(toJson(), Effect::Inspect::toBytes(folder)));
    return {item, &(*item)->payload()};
}

std::string Source::toJson() const
{
    if (m_document)
        return m_document->toJson();
    return isJson() ? *m_bytes : Effect::Archive::toJson(*m_effect);
}

std::string Source::toBinary() const
{
    if (m_document)
        return m_document->toBinary();
    if (isJson())
        return Document::read(*m_bytes).toBinary();
    return m_bytes ? *m_bytes : Effect::Archive::toBinary(*m_effect);
}

std::string Source::toBytes() const
{
    return isJson() ? toJson() : toBinary();
}

std::shared_ptr<nlohmann::ordered_json const> Source::documentWithUnknown() const
{
    if (!isJson())
        return nullptr;
    std::lock_guard const lock(m_cacheMutex);
    if (!m_hasUnknown)
        m_hasUnknown = m_document ? hasUnknown(*m_document) : hasUnknown(Document::read(*m_bytes));
    if (*m_hasUnknown && !m_tree) {
        auto tree = std::make_shared<nlohmann::ordered_json>(Serialize::Json::readTree(toJson()).value);
        if (isItem())
            tree = std::make_shared<nlohmann::ordered_json>(std::move((*tree)[itemEffectKey]));
        m_tree = std::move(tree);
    }
    return *m_hasUnknown ? m_tree : nullptr;
}

} // namespace EffectsPython
