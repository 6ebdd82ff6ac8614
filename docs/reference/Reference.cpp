/// @file
/// Writes the reference page: every class that can stand in an archive, as the library itself tells it.

#include <cstdlib>
#include <deque>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <boost/core/demangle.hpp>

#include <collection/Effects/Conversions.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/ClassList.h>
#include <host/Documents.h>
#include <host/Messages.h>
#include <host/RenderHost.h>
#include <host/ToolName.h>
#include <utils/EffectUtils.h>

#include <effects/archive/Artistic.h>
#include <effects/archive/Blur.h>
#include <effects/archive/CleanUp.h>
#include <effects/archive/ColorCorrection.h>
#include <effects/archive/ColorFilters.h>
#include <effects/archive/Composition.h>
#include <effects/archive/Distortion.h>
#include <effects/archive/Dynamics.h>
#include <effects/archive/Equalizer.h>
#include <effects/archive/Geometry.h>
#include <effects/archive/Holder.h>
#include <effects/archive/Light.h>
#include <effects/archive/Mask.h>
#include <effects/archive/Mirroring.h>
#include <effects/archive/Modulation.h>
#include <effects/archive/Retro.h>
#include <effects/archive/Shaders.h>
#include <effects/archive/Voice.h>

namespace {

using nlohmann::json;

template <class T> struct TypeName
{
    static std::string get()
    {
        std::string name = boost::core::demangle(typeid(T).name());
        std::string const ours = "Effect::";
        return name.rfind(ours, 0) == 0 ? name.substr(ours.size()) : name;
    }
};
template <> struct TypeName<std::int32_t>
{
    static std::string get() { return "int32"; }
};
template <> struct TypeName<std::uint32_t>
{
    static std::string get() { return "uint32"; }
};
template <> struct TypeName<std::int64_t>
{
    static std::string get() { return "int64"; }
};
template <> struct TypeName<std::string>
{
    static std::string get() { return "std::string"; }
};
template <class T> struct TypeName<std::unique_ptr<T>>
{
    static std::string get() { return "pointer to " + TypeName<std::remove_const_t<T>>::get(); }
};
template <class T> struct TypeName<std::deque<T>>
{
    static std::string get() { return "list of " + TypeName<T>::get(); }
};
template <class T> struct TypeName<std::optional<T>>
{
    static std::string get() { return "optional " + TypeName<T>::get(); }
};

/// Walks a class as an archive does, and takes down the type that each field has.
class FieldTypes
{
public:
    using is_saving = std::true_type;

    template <class T> FieldTypes & operator&(Serialize::Field<T> & field)
    {
        // A base, which has an entry of its own.
        if constexpr (!std::is_base_of_v<Serialize::ISerializable, T>)
            types.emplace_back(field.name(), TypeName<std::remove_const_t<T>>::get());
        return *this;
    }

    std::vector<std::pair<std::string, std::string>> types; ///< by key, in the order of the binary form
};

std::string code(std::string const & text)
{
    return text.empty() ? "none" : '`' + text + '`';
}

std::string code(QString const & text)
{
    return code(text.toStdString());
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
    Page(std::ostream & stream, Host::RenderHost & host)
        : m_stream(stream)
        , m_host(host)
    {}

    void text(std::string const & paragraph) { m_stream << paragraph << "\n\n"; }
    void family(std::string const & name) { text("## " + name); }

    template <class Class> void addClass()
    {
        auto const created = Host::create(Class::NameInArchive());
        auto & object = dynamic_cast<Class &>(*created);
        json const archived = Host::document(object);
        text("### " + object.GetNameInArchive());
        if constexpr (std::is_base_of_v<Effect::Object, Class>)
            identity(object, archived);
        else
            text("A record that effects hold.");
        FieldTypes own;
        Serialize::Access::serialize(own, object);
        fields(own.types, archived);
    }

    /// The keys of an archive document with their types and defaults.
    void fields(std::vector<std::pair<std::string, std::string>> const & types, json const & defaults)
    {
        if (types.empty())
            return;
        m_stream << "| key | type | default |\n| --- | --- | --- |\n";
        for (auto const & [key, type] : types)
            m_stream << "| `" << key << "` | " << type << " | "
                     << (defaults.contains(key) ? code(defaults[key].dump()) : "none") << " |\n";
        m_stream << '\n';
    }

private:
    void row(std::string const & name, std::string const & value)
    {
        m_stream << "| " << name << " | " << value << " |\n";
    }

    void identity(Effect::Object const & effect, json const & archived)
    {
        if (effect.id.isEmpty())
            return text("A base class of effects.");
        std::string kind = effect.type() == Effect::Type::Audio ? "audio" : "video";
        kind += effect.hasIntensity() ? ", with an intensity" : "";
        kind += effect.isTwoInput() ? ", two inputs" : "";

        m_stream << "| | |\n| --- | --- |\n";
        row("base", code(Host::baseOf(archived)));
        row("kind", kind);
        row("identifier", code(effect.id));
        row("group", effect.groupId == effect.id ? "none, its own identifier" : code(effect.groupId));
        row("tag", code(effect.tag));
        row("default tag", code(effect.defaultTag()));
        if (effect.processingSettingsId() != effect.id)
            row("settings identifier", code(effect.processingSettingsId()));
        settings(effect);
        auto const tool = Effect::Utils::findCorrespondingTool(effect);
        row("tool", tool == Tool::Type::None ? "none" : Host::toolName(tool));
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
    Host::RenderHost & m_host;
};

void addIntroduction(Page & page)
{
    page.text("# Every effect");
    page.text("Written by `script/make-reference` from the library; do not edit.");
    page.text(
        "A class's own keys stand in the order of the binary archives. Where a type is an enumeration, the archives "
        "have its integer. The settings are those that a default effect converts to.");
}

/// What every effect has before the fields of its own.
void addObject(Page & page)
{
    using Effect::Object;
    page.text("## Common to all effects");
    page.text("### Effect::Object");
    page.fields(
        {
            {"tag", TypeName<decltype(Object::tag)>::get()},
            {"id", TypeName<decltype(Object::id)>::get()},
            {"groupId", TypeName<decltype(Object::groupId)>::get()},
            {"intensity", TypeName<decltype(Object::intensity)>::get()},
            {"resource", TypeName<decltype(Object::resource)>::get()},
            {"resourcePath", TypeName<decltype(Object::resourcePath)>::get()},
            {"range", TypeName<decltype(Object::range)>::get()},
        },
        Host::document(Effect::VideoEffect({}, {}))

            .at(Object::NameInArchive()));
}

#define REFERENCE_CLASS(Class) page.addClass<Effect::Class>();
#define REFERENCE_FAMILY(name, list, X)                                                                                \
    page.family(#name);                                                                                                \
    list(X)

std::string makePage(QString const & stock)
{
    // The stock's audio effects tell the tool of an effect that nothing else does.
    Settings::setStockRoot(stock);
    EditorCollection::ItemStorage storage;
    Host::RenderHost host(storage);
    storage.waitForAll();

    std::ostringstream stream;
    Page page(stream, host);
    addIntroduction(page);
    addObject(page);
    EFFECTS_FAMILIES(REFERENCE_FAMILY, REFERENCE_CLASS)
    std::string text = stream.str();
    text.pop_back(); // the empty line at the end
    return text;
}

/// Whether the file holds the page; else tells where they differ first.
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
    Host::startMessages(argv[0], [](std::string_view message) { std::cerr << message << '\n'; });
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
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
