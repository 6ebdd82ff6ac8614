// The JSON Schema that the tool prints: under two independent validators, what the reader accepts is valid and what it
// refuses is not.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorUtil/ItemFile.h>
#include <effects/Schema.h>
#include <support/Variations.h>

#include "Effectctl.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::IsEmpty;
using Testing::runProgram;

namespace fs = std::filesystem;

std::string read(fs::path const & path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> filesBelow(char const * folder, std::string const & suffix)
{
    std::vector<fs::path> files;
    for (auto const & entry : fs::recursive_directory_iterator(folder)) {
        std::string const name = entry.path().filename().native();
        if (name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0)
            files.push_back(entry.path());
    }
    return files;
}

json schemaOf(QStringList const & arguments)
{
    auto const run = effectctl(QStringList("schema") + arguments);
    EXPECT_EQ(run.status, 0) << run.errors;
    return json::parse(run.output);
}

QStringList everyClass()
{
    QStringList names;
    for (auto const * const info : Effect::Schema::classes())
        names << QString::fromStdString(info->name);
    return names;
}

/// Documents with schemas, and whether each is valid.
class Corpus
{
public:
    struct Case
    {
        std::string name;
        std::string schema;
        std::string definition; ///< of the schema, which the document is held to; empty for the schema itself
        json document;
        bool isValid;
    };

    void addSchema(std::string const & name, json schema) { m_schemas[name] = std::move(schema); }
    void add(Case one) { m_cases.push_back(std::move(one)); }
    std::size_t size() const { return m_cases.size(); }

    /// The cases that one of the validators takes for the opposite.
    std::vector<std::string> wrongCases()
    {
        std::vector<std::string> wrong;
        addWrongInValijson(wrong);
        addWrongInPython(wrong);
        return wrong;
    }

private:
    static std::string describe(Case const & one)
    {
        return one.schema + " " + one.definition + ", " + one.name +
               (one.isValid ? " should be valid: " : " should not be valid: ") + one.document.dump().substr(0, 300);
    }

    static std::string pointerTo(std::string const & definition) { return "#/definitions/" + definition; }

    void addWrongInValijson(std::vector<std::string> & wrong)
    {
        using Adapter = valijson::adapters::NlohmannJsonAdapter;
        std::map<std::pair<std::string, std::string>, std::vector<Case const *>> bySchema;
        for (Case const & one : m_cases)
            bySchema[{one.schema, one.definition}].push_back(&one);
        for (auto const & [names, cases] : bySchema) {
            json & document = m_schemas.at(names.first);
            if (!names.second.empty())
                document["$ref"] = pointerTo(names.second); // what is beside it does not count then
            valijson::Schema schema;
            valijson::SchemaParser().populateSchema(Adapter(document), schema);
            document.erase("$ref");
            valijson::Validator validator;
            for (Case const * const one : cases)
                if (validator.validate(schema, Adapter(one->document), nullptr) != one->isValid)
                    wrong.push_back("valijson: " + describe(*one));
        }
    }

    /// All of them in one run of the program.
    void addWrongInPython(std::vector<std::string> & wrong) const
    {
        json cases = json::array();
        for (Case const & one : m_cases)
            cases.push_back(
                {{"schema", one.schema}, {"ref", one.definition.empty() ? json() : json(pointerTo(one.definition))},
                    {"document", one.document}, {"valid", one.isValid}});
        QTemporaryDir const folder;
        QString const file = folder.filePath("cases.json");
        std::ofstream(file.toStdString()) << json{{"schemas", m_schemas}, {"cases", std::move(cases)}};
        auto const run = runProgram(QStringLiteral(PYTHON), {VALIDATE_SCRIPT, file});
        ASSERT_EQ(run.status, 0) << run.errors;
        for (json const & index : json::parse(run.output))
            wrong.push_back("jsonschema: " + describe(m_cases.at(index.get<std::size_t>())));
    }

    std::map<std::string, json> m_schemas;
    std::vector<Case> m_cases;
};

/// The first of many, so that a failure stays readable.
std::vector<std::string> some(std::vector<std::string> texts)
{
    constexpr std::size_t most = 20;
    if (texts.size() > most) {
        std::size_t const rest = texts.size() - most;
        texts.resize(most);
        texts.push_back("and " + std::to_string(rest) + " more");
    }
    return texts;
}

class JsonSchema : public testing::Test
{
protected:
    void SetUp() override
    {
        if (runProgram(QStringLiteral(PYTHON), {"-c", "import jsonschema"}).status != 0)
            GTEST_SKIP() << "there is no jsonschema for " PYTHON;
    }

    Corpus corpus;
};

TEST_F(JsonSchema, EveryArchiveAndEveryItemThatThereIsIsValid)
{
    corpus.addSchema("open", schemaOf(everyClass()));
    corpus.addSchema("closed", schemaOf(everyClass() + QStringList("--closed")));
    for (fs::path const & file : filesBelow(GOLDEN_FOLDER, ".json"))
        if (file.filename().native().compare(0, 7, "Effect.") == 0) // not the items and the output of the tool
            for (char const * const schema : {"open", "closed"})
                corpus.add({file.filename(), schema, "", json::parse(read(file)), true});
    EXPECT_GE(corpus.size(), 2U * 2 * 89);
    corpus.addSchema("items", schemaOf({"--items"}));
    corpus.addSchema("closed items", schemaOf({"--items", "--closed"}));
    for (fs::path const & file : filesBelow(STOCK_FOLDER, ".effect.json"))
        for (char const * const schema : {"items", "closed items"})
            corpus.add({file.filename(), schema, "", json::parse(read(file)), true});
    EXPECT_GE(corpus.size(), 2U * (2 * 89 + 300));
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

// Hand-written forms with what the documentation of the archives says of them, which the reader confirms.
struct Form
{
    char const * document;
    bool isValid;
};

Form const forms[] = {
    {R"({"$meta": {"class": "Effect::Crop"}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "no such key": 1, "$schema": "effect.schema.json"})", true},
    {R"({"$meta": {"class": "Effect::VideoEffect"}})", true},
    {R"({"$meta": {"class": "Effect::Corp"}})", false},
    {R"({"$meta": {"class": "Effect::Object"}})", false},
    {R"({"$meta": {"class": "Effect::Frame"}})", false}, // is no effect
    {R"({"$meta": {"class": 5}})", false},
    {R"({"$meta": {}})", false},
    {R"({"transform": {"m": [1, 0, 0, 0, 1, 0, 0, 0, 1]}})", false},
    {"null", false},
    {"[]", false},
    {"5", false},
    {R"("Effect::Crop")", false},
    // Bases.
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"$meta": {"class": "Effect::VideoEffect"}}})",
        true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"$meta": {"class": "Effect::AudioEffect"}}})",
        false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": null})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": []}})", false},
    // Texts.
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": null}}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": {"$utf16": [55296]}}}})",
        true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": {"$utf16": [65536]}}}})",
        false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": {"$utf16": [], "a": 1}}}})",
        false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": {}}}})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"tag": 5}}})", false},
    {R"({"$meta": {"class": "Effect::ShaderISF"}, "inputs": {"$bytes": "/w=="}})", true},
    {R"({"$meta": {"class": "Effect::ShaderISF"}, "inputs": {"$bytes": "/w="}})", false},
    {R"({"$meta": {"class": "Effect::ShaderISF"}, "inputs": {"$bytes": "?"}})", false},
    {R"({"$meta": {"class": "Effect::ShaderISF"}, "inputs": {"$utf16": []}})", false},
    {R"({"$meta": {"class": "Effect::ShaderISF"}, "inputs": null})", false},
    // Numbers.
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": 1e300})", true}, // beyond the bounds, and passed on
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": "-Infinity"})", true},
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": "NaN"})", true},
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": "nan"})", false},
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": "-NaN"})", false},
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": null})", false},
    {R"({"$meta": {"class": "Effect::WhiteBalance"}, "color": 4294967295})", true},
    {R"({"$meta": {"class": "Effect::WhiteBalance"}, "color": 4294967296})", false},
    {R"({"$meta": {"class": "Effect::WhiteBalance"}, "color": -1})", false},
    {R"({"$meta": {"class": "Effect::WhiteBalance"}, "color": "#00c800"})", false},
    // Enumerations: any number is one.
    {R"({"$meta": {"class": "Effect::Mask"}, "backgroundFill": 7})", true},
    {R"({"$meta": {"class": "Effect::Mask"}, "backgroundFill": -2147483648})", true},
    {R"({"$meta": {"class": "Effect::Mask"}, "backgroundFill": 2147483648})", false},
    {R"({"$meta": {"class": "Effect::Mask"}, "backgroundFill": 0.5})", false},
    {R"({"$meta": {"class": "Effect::Mask"}, "backgroundFill": "Blur"})", false},
    // Records and lists.
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": {"m": [1, 0, 0, 0, 1, 0, 0, 0]}})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": {"m": [1, 0, 0, 0, 1, 0, 0, 0, "Infinity"]}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": {}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": null})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": [1, 0, 0, 0, 1, 0, 0, 0, 1]})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"range": null}}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"range": {"start": -1}}}})",
        true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"range": 5}}})", false},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"resource": {"type": 9}}}})",
        true},
    {R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect": {"Effect::Object": {"resource": "a.png"}}})",
        false},
    {R"({"$meta": {"class": "Effect::Mask"}, "concealFrames": [{"Effect::Frame": {"shape": 1}}]})", true},
    {R"({"$meta": {"class": "Effect::Mask"}, "concealFrames": [{"$meta": {"class": "Effect::FrameHighlight"}}]})",
        false},
    {R"({"$meta": {"class": "Effect::Mask"}, "concealFrames": [null]})", false},
    {R"({"$meta": {"class": "Effect::Mask"}, "concealFrames": {}})", false},
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [null, {"$meta": {"class": "Effect::Crop"}}]})", true},
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{}]})", false},
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{"$meta": {"class": "Effect::Frame"}}]})", false},
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{"$meta": {"class": "Effect::Opacity"},
        "opacity": true}]})",
        false},
    // References.
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{"$meta": {"class": "Effect::Crop", "id": 3}},
        {"$meta": {"ref": 3}}]})",
        true},
    {R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{"$meta": {"class": "Effect::Crop", "id": 3}},
        {"$meta": {"ref": "3"}}]})",
        false},
    {R"({"$meta": {"ref": 1}, "it": {"$meta": {"class": "Effect::Crop", "id": 1}}})", true},
    {R"({"$meta": {"class": "Effect::Crop"}, "transform": {"$meta": {"ref": 2}},
        "it": {"$meta": {"id": 2}, "m": [1, 0, 0, 0, 1, 0, 0, 0, 1]}})",
        true},
    {R"({"$meta": {"class": "Effect::Opacity"}, "opacity": {"$meta": {"ref": 2}}, "it": {"$meta": {"id": 2}}})", false},
};

bool isRead(json const & document)
{
    try {
        Effect::Archive::fromJson(document.dump());
        return true;
    } catch (std::exception const &) {
        return false;
    }
}

TEST_F(JsonSchema, FormsOfTheArchivesAreValidAndOthersAreNot)
{
    corpus.addSchema("effect", schemaOf({}));
    corpus.addSchema("item", schemaOf({"--items"}));
    for (Form const & form : forms) {
        json const document = json::parse(form.document);
        EXPECT_EQ(isRead(document), form.isValid) << form.document;
        corpus.add({"form", "effect", "", document, form.isValid});
        corpus.add({"form", "item", "", {{"effect", document}}, form.isValid});
    }
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

TEST_F(JsonSchema, ItemsAreAnEffectWithCategories)
{
    corpus.addSchema("item", schemaOf({"--items"}));
    json const crop{{"$meta", {{"class", "Effect::Crop"}}}};
    for (auto const & [item, isValid] : std::vector<std::pair<json, bool>>{
             {{{"effect", crop}}, true},
             {{{"effect", crop}, {"categories", json::array()}, {"note", 5}, {"$schema", "x"}}, true},
             {{{"effect", crop}, {"categories", {"b", "a", "b"}}}, true},
             {{{"effect", crop}, {"categories", "a"}}, false},
             {{{"effect", crop}, {"categories", {1}}}, false},
             {{{"effect", nullptr}}, false},
             {{{"categories", json::array()}}, false},
             {crop, false},
             {nullptr, false},
         }) {
        bool isItem = true;
        try {
            EditorCollection::parseItem(item.dump(), "/");
        } catch (std::exception const &) {
            isItem = false;
        }
        EXPECT_EQ(isItem, isValid) << item;
        corpus.add({"item", "item", "", item, isValid});
    }
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

TEST_F(JsonSchema, ClosedSchemasKnowEveryKey)
{
    corpus.addSchema("effect", schemaOf({"--closed"}));
    corpus.addSchema("item", schemaOf({"--closed", "--items"}));
    for (auto const & [text, isValid] : {
             std::pair(R"({"$meta": {"class": "Effect::Blur"}, "$schema": "effect.schema.json"})", true),
             std::pair(R"({"$meta": {"class": "Effect::Blur"}, "intensty": 1})", false),
             std::pair(R"({"$meta": {"class": "Effect::Blur", "clas": 1}})", false),
             std::pair(R"({"$meta": {"class": "Effect::Blur"}, "intensity": 1})", false), // belongs into the base
             std::pair(R"({"$meta": {"class": "Effect::Blur"}, "Effect::VideoEffect": {"intensity": 1}})", false),
             std::pair(R"({"$meta": {"class": "Effect::Mask"}, "concealFrames": [{"shape": 1}]})", false),
             std::pair(R"({"$meta": {"class": "Effect::Crop"}, "transform": {"matrix": []}})", false),
             std::pair(R"({"$meta": {"class": "Effect::Crop"}, "transform": {"$meta": {"id": 1}}})", true),
         }) {
        json const document = json::parse(text);
        EXPECT_TRUE(isRead(document)) << text;
        corpus.add({"closed", "effect", "", document, isValid});
        corpus.add({"closed", "item", "", {{"effect", document}}, isValid});
    }
    corpus.add({"closed", "item", "",
        json::parse(R"({"effect": {"$meta": {"class": "Effect::Blur"}}, "category": []})"), false});
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

TEST_F(JsonSchema, ASchemaOfClassesKnowsNoOther)
{
    corpus.addSchema("two", schemaOf({"Effect::EffectsHolder", "Effect::AudioEcho::Echo"}));
    for (auto const & [text, isValid] : {
             std::pair(R"({"$meta": {"class": "Effect::AudioEcho::Echo"}, "delay": 5})", true),
             std::pair(R"({"$meta": {"class": "Effect::AudioEcho::Echo"}, "delay": "5"})", false),
             std::pair(R"({"$meta": {"class": "Effect::Crop"}})", false),
             // What a holder holds is any effect.
             std::pair(
                 R"({"$meta": {"class": "Effect::EffectsHolder"}, "effects": [{"$meta": {"class": "Effect::Crop"}}]})",
                 true),
         })
        corpus.add({"two", "two", "", json::parse(text), isValid});
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

// --- Every place of every class --------------------------------------------------------------------------------------

/// Values of every type and at every limit, one of which is wrong wherever it is put.
std::vector<json> const & probes()
{
    static std::vector<json> const values{nullptr, true, -1, 7, 0.5, 2147483648, 4294967296, 1e19, "text", "NaN",
        json::array(), json::array({1, 2}), json::object(), {{"$utf16", {97}}}, {{"$bytes", "YQ=="}},
        {{"$meta", {{"class", "Effect::Transpose"}}}}};
    return values;
}

/// The pointers to every value in a document, but for those below `Effect::Object`, unless `isWhole`.
void collectPointers(
    json const & value, json::json_pointer const & pointer, bool isWhole, std::vector<json::json_pointer> & pointers)
{
    pointers.push_back(pointer);
    if (!isWhole && pointer.to_string().find("/Effect::Object") != std::string::npos)
        return;
    if (value.is_object())
        for (auto const & [key, inner] : value.items())
            collectPointers(inner, pointer / key, isWhole, pointers);
    else if (value.is_array() && !value.empty())
        collectPointers(value.front(), pointer / 0, isWhole, pointers); // the others are alike
}

/// Whether the reader of the library builds an object of it, of whatever class.
bool isObject(json const & document)
{
    try {
        return Testing::objectOf(document) != nullptr;
    } catch (std::exception const &) {
        return false;
    }
}

TEST_F(JsonSchema, AgreesWithTheReaderAboutEveryValueOfEveryClass)
{
    corpus.addSchema("every", schemaOf(everyClass()));
    std::size_t refused = 0;
    for (auto const * const info : Effect::Schema::classes()) {
        json const document = Testing::varied(Testing::documentOf(*info->create()));
        std::vector<json::json_pointer> pointers;
        collectPointers(document, json::json_pointer(), info->name == "Effect::Mask", pointers);
        for (json::json_pointer const & pointer : pointers) {
            // The schema is stricter about the meta object than the reader, which hardly looks at it.
            if (pointer.empty() || pointer.to_string().find("/$meta") != std::string::npos)
                continue;
            for (json const & probe : probes()) {
                json damaged = document;
                damaged[pointer] = probe;
                bool const isValid = isObject(damaged);
                refused += isValid ? 0 : 1;
                corpus.add({pointer.to_string(), "every", info->name, std::move(damaged), isValid});
            }
        }
    }
    EXPECT_GT(refused, corpus.size() / 2);
    EXPECT_LT(refused, corpus.size());
    EXPECT_THAT(some(corpus.wrongCases()), IsEmpty());
}

TEST(JsonSchemaCommand, ItemsAreOfEffects)
{
    auto const run = effectctl({"schema", "--items", "Effect::Crop", "Effect::Frame"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "effectctl: an item cannot hold \"Effect::Frame\", which is not an effect\n");
    EXPECT_EQ(effectctl({"schema", "--items", "Effect::Crop"}).status, 0);
}

// --- What a person gets of it ----------------------------------------------------------------------------------------

TEST(JsonSchemaText, ExplainsParameters)
{
    json const schema = schemaOf({"Effect::Mask"});
    EXPECT_EQ(schema["$schema"], "http://json-schema.org/draft-07/schema#");
    json const & mask = schema["definitions"]["Effect::Mask"];
    EXPECT_EQ(mask["title"], "Effect::Mask");
    EXPECT_NE(mask["description"], "");
    json const & fill = mask["properties"]["backgroundFill"];
    EXPECT_EQ(fill["title"], "Background");
    EXPECT_EQ(fill["default"], 0);
    EXPECT_EQ(fill["anyOf"][1], json::parse(R"({"const": 1, "title": "Blur", "description": "Blur"})"));
    EXPECT_EQ(fill["anyOf"][0]["description"], "Black");
    EXPECT_THAT(mask["properties"]["backgroundOpacity"]["description"].get<std::string>(),
        testing::EndsWith("Range: 0 to 1; beyond: passed on as they are"));
    // Numbers beyond are valid, so the bounds are no part of the validation.
    EXPECT_FALSE(mask["properties"]["backgroundOpacity"].contains("maximum"));
}

TEST(JsonSchemaText, GivesTheDefaultsOfTheClass)
{
    json const definitions = schemaOf({"Effect::Crop", "Effect::Blur"})["definitions"];
    for (char const * const name : {"Effect::Crop", "Effect::Blur"}) {
        json const & object = definitions[name]["properties"]["Effect::VideoEffect"]["else"]["properties"]
                                         ["Effect::Object"]["else"]["properties"];
        json tag = object["tag"];
        if (tag.contains("$ref"))
            tag = definitions[tag["$ref"].get<std::string>().substr(std::string("#/definitions/").size())];
        EXPECT_EQ(tag["default"], Effect::Schema::find(name)->tag.toStdString());
    }
}

TEST(Package, TheToolBringsTheSchemasItPrints)
{
    QTemporaryDir const prefix;
    auto const run = runProgram(QStringLiteral(CMAKE_PROGRAM),
        {"--install", QStringLiteral(BUILD_FOLDER), "--component", "tool", "--prefix", prefix.path()});
    EXPECT_EQ(run.status, 0) << run.errors;
    fs::path const folder = fs::path(prefix.path().toStdString()) / "share/EditorEffects/schema";
    EXPECT_EQ(read(folder / "effect.schema.json"), effectctl({"schema"}).output);
    EXPECT_EQ(read(folder / "effect-item.schema.json"), effectctl({"schema", "--items"}).output);
}

} // namespace
