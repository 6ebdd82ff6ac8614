#include <inspect/Forms.h>

#include <algorithm>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/JsonTree.h>
#include <EditorUtil/ItemFile.h>
#include <inspect/Documents.h>
#include <inspect/Failure.h>
#include <inspect/Text.h>

namespace Effect::Inspect {

using Archive::Document;
using Archive::Finding;

namespace {

constexpr char const * effectKey = "effect";
constexpr char const * metaKey = "$meta";

bool isDamage(Finding const & finding)
{
    return finding.code == "no-json" || finding.code == "truncated" || finding.code == "damaged";
}

/// Why a document has no effect. What follows from damage comes before it in the file, but says less.
std::string reasonOf(Document const & document)
{
    auto const & findings = document.findings();
    auto error = std::find_if(findings.begin(), findings.end(), isDamage);
    if (error == findings.end())
        error = std::find_if(findings.begin(), findings.end(),
            [](Finding const & finding) { return finding.severity == Archive::Severity::Error; });
    if (error == findings.end())
        return "there is no effect in this file";
    bool const hasPlace = error->pointer && !error->pointer->empty();
    return error->message + (hasPlace ? ", at " + *error->pointer : "");
}

} // namespace

char const * suffixOf(Form form)
{
    return form == Form::Json ? ".json" : ".bin";
}

bool isItem(std::string_view text)
{
    Serialize::Json::TextReader reader(text);
    bool hasEffect = false;
    std::string_view key;
    for (reader.enterObject(); reader.nextKey(key);) {
        if (key == metaKey)
            return false;
        hasEffect = hasEffect || key == effectKey;
        reader.skip();
    }
    if (reader.isWhole())
        return hasEffect;
    // What such a reader refuses need not be wrong.
    auto const tree = Serialize::Json::readTree(text).value;
    return tree.is_object() && tree.contains(effectKey) && !tree.contains(metaKey);
}

std::string inForm(std::string_view bytes, Form form)
{
    if (Archive::isBinary(bytes)) {
        auto const effect = Archive::fromBinary(bytes);
        return form == Form::Json ? toText(document(*effect), 2) + '\n' : std::string(bytes);
    }
    Document const read = Document::read(bytes);
    if (!read.effect())
        throw Failure(reasonOf(read));
    if (isItem(bytes)) {
        if (form == Form::Binary)
            throw Failure("an item cannot be written in the binary form, which has no place for its categories");
        EditorCollection::parseItem(bytes, "/"); // refuses what the catalogue would
    }
    return form == Form::Json ? read.toJson() : read.toBinary();
}

} // namespace Effect::Inspect
