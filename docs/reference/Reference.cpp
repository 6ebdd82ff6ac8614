// Writes docs/reference.md, the page of all effects, from the library's own descriptions of them.

#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

#include <collection/Effects/Stages.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/Base.h>
#include <effects/Schema.h>
#include <inspect/Documents.h>
#include <inspect/Messages.h>
#include <inspect/RenderHost.h>
#include <inspect/ToolName.h>
#include <utils/EffectUtils.h>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace {

using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;

std::string code(std::string const & text)
{
    return text.empty() ? "none" : '`' + text + '`';
}

std::string code(QString const & text)
{
    return code(text.toStdString());
}

/// Text in a cell of a table.
std::string cell(std::string text)
{
    for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 2))
        text.insert(at, "\\");
    return text;
}

std::string number(double value)
{
    return json(value == std::int64_t(value) ? json(std::int64_t(value)) : json(value)).dump();
}

/// "0 to 1", "at least 0"; empty without either.
std::string limits(std::optional<double> const & least, std::optional<double> const & most)
{
    if (least && most)
        return number(*least) + " to " + number(*most);
    if (least)
        return "at least " + number(*least);
    return most ? "at most " + number(*most) : std::string();
}

/// Bounds and what becomes of numbers beyond; of an enumeration, its choices.
std::string boundsOf(Parameter const & parameter)
{
    std::string text = limits(parameter.minimum, parameter.maximum);
    for (Effect::Choice const & choice : parameter.choices)
        text += (text.empty() ? "" : ", ") + std::to_string(choice.value) + " " + choice.name;
    if (parameter.beyond) {
        text += std::string("; beyond: ") + Effect::Schema::toString(*parameter.beyond);
        if (parameter.fallback)
            text += " " + number(*parameter.fallback);
    }
    std::string const slider = limits(parameter.suggestedMinimum, parameter.suggestedMaximum);
    if (!slider.empty())
        text += (text.empty() ? "" : "; ") + std::string("suggested: ") + slider;
    return text;
}

std::string stageName(int code)
{
    namespace Stage = Effect::Factory::Stage;
    static std::map<int, char const *> const names{{Stage::audio, "sound"}, {Stage::openGl, "shaders"},
        {Stage::video, "pictures"}, {Stage::oneButton, "one-button corrections"}};
    return std::to_string(code) + ", " + names.at(code);
}

/// The page, as it is written class by class.
class Page
{
public:
    Page(std::ostream & stream, Effect::Inspect::RenderHost & host)
        : m_stream(stream)
        , m_host(host)
    {}

    void text(std::string const & paragraph) { m_stream << paragraph << "\n\n"; }
    void family(std::string const & name) { text("## " + name); }

    void addClass(Class const & info)
    {
        text("### " + info.name);
        text(info.description().toStdString());
        auto const created = info.create();
        if (info.isEffect && !info.id.isEmpty())
            identity(info, dynamic_cast<Effect::Object const &>(*created));
        parameters(info);
    }

    /// The parameters that the class itself declares.
    void parameters(Class const & info)
    {
        bool isFirst = true;
        for (Parameter const & parameter : info.parameters) {
            if (parameter.owner != info.name)
                continue;
            if (isFirst)
                m_stream << "| parameter | key | type | unit | default | bounds | |\n"
                            "| --- | --- | --- | --- | --- | --- | --- |\n";
            isFirst = false;
            std::string note = parameter.description().toStdString();
            if (parameter.isEffective == false)
                note += note.empty() ? "No settings depend on it" : "; no settings depend on it";
            json const value = parameter.defaultValue();
            m_stream << "| " << cell(parameter.label().toStdString()) << " | `" << parameter.key << "` | "
                     << cell(typeName(parameter)) << " | " << parameter.unit << " | "
                     << (value.is_null() ? "none" : code(cell(valueText(parameter, value)))) << " | "
                     << cell(boundsOf(parameter)) << " | " << cell(note) << " |\n";
        }
        if (!isFirst)
            m_stream << '\n';
    }

private:
    static std::string typeName(Parameter const & parameter)
    {
        return parameter.kind == Kind::Enumeration || parameter.kind == Kind::Color
                   ? parameter.type + ", " + Effect::Schema::toString(parameter.kind)
                   : "`" + parameter.type + "`";
    }

    static std::string valueText(Parameter const & parameter, json const & value)
    {
        if (parameter.kind == Kind::Color) {
            char text[16];
            std::snprintf(text, sizeof text, "#%08x", value.get<unsigned>());
            return text;
        }
        for (Effect::Choice const & choice : parameter.choices)
            if (value == choice.value)
                return value.dump() + " " + choice.name;
        return value.dump();
    }

    void row(std::string const & name, std::string const & value)
    {
        m_stream << "| " << name << " | " << value << " |\n";
    }

    void identity(Class const & info, Effect::Object const & effect)
    {
        std::string kind = info.type == Effect::Type::Audio ? "audio" : "video";
        kind += info.hasIntensity ? ", with an intensity" : "";
        kind += info.isTwoInput ? ", two inputs" : "";

        m_stream << "| | |\n| --- | --- |\n";
        row("base", code(info.base));
        row("kind", kind);
        row("identifier", code(info.id));
        row("group", info.groupId == info.id ? "none, its own identifier" : code(info.groupId));
        row("tag", code(info.tag));
        row("default tag", code(info.defaultTag));
        if (info.processingSettingsId != info.id)
            row("settings identifier", code(info.processingSettingsId));
        settings(effect);
        auto const tool = Effect::Utils::findCorrespondingTool(effect);
        row("tool", tool == Tool::Type::None ? "none" : Effect::Inspect::toolName(tool));
        if (Parameter const * const intensity = info.find("intensity"); intensity && info.hasIntensity) {
            std::string const slider = limits(intensity->suggestedMinimum, intensity->suggestedMaximum);
            row("intensity", number(info.intensity) + (slider.empty() ? "" : ", suggested: " + slider) + ". " +
                                 intensity->description().toStdString());
        }
        m_stream << '\n';
    }

    void settings(Effect::Object const & effect)
    {
        if (effect.impl() == Effect::Impl::Descriptor)
            return row("settings", "none: the render engine does not execute it");
        json record = m_host.convert(effect, {});
        bool const isIdle = record["settings"].empty();
        if (isIdle)
            record = convertStock(effect.GetNameInArchive());
        std::string classes;
        for (json const & one : record["settings"])
            classes += (classes.empty() ? "" : ", ") + code(one["class"].get<std::string>());
        row("settings", classes + (isIdle ? "; none by default" : ""));
        row("stage", stageName(record["stageCode"]));
        row("implementation", record["implementation"]);
    }

    /// The first stock effect of the class that converts to something.
    json convertStock(std::string const & className)
    {
        for (auto const * const collection : EditorCollection::CollectionProvider::collections())
            for (auto const * const item : collection->items())
                if (item->payload().GetNameInArchive() == className)
                    if (json record = m_host.convert(item->payload(), {}); !record["settings"].empty())
                        return record;
        throw std::logic_error(className + " does not convert");
    }

    std::ostream & m_stream;
    Effect::Inspect::RenderHost & m_host;
};

void addIntroduction(Page & page)
{
    page.text("# Every effect");
    page.text("Written by `script/make-reference` from the library; do not edit.");
    page.text(
        "Each class lists its own parameters in the order of the binary archives. `type` is the C++ type; archives "
        "hold an enumeration as its integer. What becomes of numbers beyond the bounds: `passed` to the engine as "
        "they are, `clamped` to the nearer bound, `nearest` choice, or the `fallback` given. The settings are those "
        "that a default effect converts to.");
}

std::string makePage(QString const & stock)
{
    // Some effects have a tool only through an item of the stock.
    Settings::setStockRoot(stock);
    EditorCollection::ItemStorage storage;
    Effect::Inspect::RenderHost host(storage);
    storage.waitForAll();

    std::ostringstream stream;
    Page page(stream, host);
    addIntroduction(page);
    page.text("## Common to all effects");
    page.text("### Effect::Object");
    Class object = *Effect::Schema::find(Effect::VideoEffect::NameInArchive());
    object.name = Effect::Object::NameInArchive();
    page.parameters(object);
    auto const addFamily = [&](std::string const & family) {
        page.family(family);
        for (Class const * const info : Effect::Schema::classes())
            if (info->family == family)
                page.addClass(*info);
    };
#define EXPORTED_FAMILY(family) addFamily(#family);
#define HIDDEN_FAMILY(family) addFamily(#family);
#include <effects/Families.def>
    std::string text = stream.str();
    text.pop_back(); // the empty line at the end
    return text;
}

/// Whether the file equals the page; else prints the first difference.
bool isCurrent(std::string const & path, std::string const & page)
{
    std::ifstream file(path);
    std::istringstream expected(page);
    std::string found;
    std::string line;
    for (int number = 1; std::getline(expected, line); ++number) {
        if (std::getline(file, found) && found == line)
            continue;
        std::cerr << path << ':' << number << ": should be\n" << line << "\nRun script/make-reference\n";
        return false;
    }
    if (!std::getline(file, found))
        return true;
    std::cerr << path << ": has more lines than the page. Run script/make-reference\n";
    return false;
}

} // namespace

int main(int argc, char ** argv)
{
    CLI::App program("Writes the reference page of all effects.", "make-reference");
    std::string stock;
    std::string current;
    program.add_option("--stock", stock, "The folder of stock content")->required();
    program.add_option("--check", current, "Compare the page with this file, instead of printing it");
    CLI11_PARSE(program, argc, argv);
    Effect::Inspect::startMessages(argv[0], [](std::string_view message) { std::cerr << message << '\n'; });
    try {
        std::string const page = makePage(QString::fromStdString(stock));
        if (!current.empty())
            return isCurrent(current, page) ? 0 : 1;
        std::cout << page;
    } catch (std::exception const & error) {
        std::cerr << "make-reference: " << error.what() << '\n';
        return 1;
    }
}
