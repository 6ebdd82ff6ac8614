#include <inspect/RenderHost.h>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorSerialization/JsonArchive.h>
#include <inspect/Failure.h>
#include <inspect/Messages.h>
#include <Settings/Settings.h>
#include <Settings/Trace.h>

#include <QGuiApplication>

namespace Effect::Inspect {

using nlohmann::json;

namespace {

json toJson(Quoril::Proc::Value const & value)
{
    using Value = Quoril::Proc::Value;
    return std::visit(
        [](auto const & data) -> json {
            using Data = std::decay_t<decltype(data)>;
            json converted;
            if constexpr (std::is_same_v<Data, Value::List>) {
                converted = json::array();
                for (Value const & element : data)
                    converted.push_back(toJson(element));
            } else if constexpr (std::is_same_v<Data, Value::Object>) {
                converted = json::object();
                for (auto const & [key, element] : data)
                    converted[key] = toJson(element);
            } else if constexpr (!std::is_same_v<Data, std::nullptr_t>) {
                // In the archives' forms, which have one for every number and text.
                Serialize::Json::Detail::save(converted, data);
            }
            return converted;
        },
        value.data());
}

EditorCollection::IItemStorage & noItems()
{
    static EditorCollection::NullItemStorage storage;
    return storage;
}

} // namespace

struct RenderHost::State
{
    /// Nothing is ever shown: whatever the environment says, neither a display nor a desktop's theme is used.
    struct Offscreen
    {
        Offscreen()
        {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            qunsetenv("QT_QPA_PLATFORMTHEME");
        }
    };

    /// The process's storage while it lives.
    struct Installed
    {
        explicit Installed(EditorCollection::IItemStorage & storage)
        {
            EditorCollection::CollectionProvider::setItemStorage(&storage);
        }
        ~Installed() { EditorCollection::CollectionProvider::setItemStorage(nullptr); }
    };

    explicit State(EditorCollection::IItemStorage & storage)
        : installed(storage)
    {}

    /// Pictures cannot be made without an application.
    struct Application
    {
        Offscreen offscreen;
        int argumentCount = 1;
        char name[14] = "EditorEffects";
        char * arguments[2] = {name, nullptr};
        QGuiApplication application{argumentCount, arguments};
    };

    std::unique_ptr<Application> application{QCoreApplication::instance() ? nullptr : new Application};
    Installed installed;
    Effect::ContentProvider provider;
};

RenderHost::RenderHost()
    : RenderHost(noItems())
{}

RenderHost::RenderHost(EditorCollection::IItemStorage & storage)
    : m_state(std::make_unique<State>(storage))
{}

RenderHost::~RenderHost() = default;

json RenderHost::convert(Effect::Object const & effect, RenderParams const & params)
{
    Messages messages; // what is logged goes into the record, and nowhere else
    Quoril::Proc::Trace const trace;
    bool const isAudio = params.as.value_or(effect.type()) == Effect::Type::Audio;
    auto const record = [&] {
        try {
            return isAudio ? Effect::Factory::audioEffectSettings(effect, params.audio)
                           : Effect::Factory::videoEffectSettings(effect, params.video);
        } catch (std::exception const & error) {
            std::string reason = error.what();
            for (json const * const lines : {&messages.errors, &messages.warnings})
                for (std::string const line : *lines)
                    reason += "; " + line;
            throw Failure(reason);
        }
    }();
    json settings = json::array();
    for (auto const & one : record.settings)
        settings.push_back(toJson(trace.describe(*one)));
    json described{{"class", effect.GetNameInArchive()}, {"stageCode", record.stageCode},
        {"implementation", record.implementation}, {"settings", std::move(settings)},
        {"log", std::move(messages.errors)}};
    if (!messages.warnings.empty())
        described["warnings"] = std::move(messages.warnings);
    return described;
}

} // namespace Effect::Inspect
