#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <iostream>
#include <limits>
#include <map>
#include <optional>

#include <sys/stat.h>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/MotionTracking.h>
#include <EditorModel/Resource.h>
#include <EditorSerialization/JsonArchive.h>
#include <effects/Holder.h>
#include <inspect/Changes.h>
#include <inspect/Conversion.h>
#include <inspect/Documents.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/RenderHost.h>
#include <inspect/Report.h>
#include <inspect/Text.h>
#include <utils/EffectUtils.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"
#include "Pairs.h"

#include <QString>

namespace Host {

using nlohmann::json;

namespace {

struct Options : FileOptions
{
    std::string className;
    std::vector<std::string> changes;
    std::vector<std::string> resources;
    std::vector<std::string> tracks;
    std::string video;
    RenderParams params; ///< of every effect, a request of a batch overriding them
    bool batch = false;
};

/// What is not as it was given, and how much else there is.
void printReport(json const & report)
{
    std::map<std::string, std::size_t> counts;
    for (json const & parameter : report["parameters"]) {
        std::string const outcome = parameter["outcome"];
        ++counts[outcome];
        if (outcome != "exact" && outcome != "ignored")
            std::cout << "  " << outcome << ' ' << parameter["pointer"].get<std::string>() << ": "
                      << toText(parameter["given"]) << ", used " << toText(parameter["used"]) << '\n';
    }
    std::cout << "  " << counted(counts["exact"], "parameter") << " exact, " << counts["ignored"] << " ignored\n";
    for (json const & resource : report["resources"]) {
        json const & about = resource["message"].is_null() ? resource["file"] : resource["message"];
        std::cout << "  " << resource["outcome"].get<std::string>() << ' ' << toText(resource["name"]) << ": "
                  << quoted(asText(about.get<std::string>())) << '\n';
    }
}

void printRecord(json const & record)
{
    std::cout << painted(Look::Heading, record["class"]) << ": ";
    if (record["settings"].empty())
        std::cout << "no settings\n";
    else
        std::cout << "stage " << record["stageCode"] << ", " << record["implementation"].get<std::string>() << '\n';
    for (json const & settings : record["settings"]) {
        std::cout << "  " << settings["class"].get<std::string>() << '\n';
        for (json const & call : settings["calls"]) {
            std::cout << "    " << call[0].get<std::string>() << '(';
            for (std::size_t index = 1; index < call.size(); ++index)
                std::cout << (index > 1 ? ", " : "") << toText(call[index]);
            std::cout << ")\n";
        }
        for (auto const & [key, value] : settings["fields"].items())
            std::cout << "    " << painted(Look::Dim, key) << " = " << toText(value) << '\n';
    }
    for (char const * const key : {"log", "warnings"})
        for (json const & line : record.value(key, json::array()))
            std::cout << "  " << asText(line.get_ref<std::string const &>()) << '\n';
    if (auto const report = record.find("report"); report != record.end())
        printReport(*report);
}

void printRecords(json const & record)
{
    printRecord(record);
    if (!record.contains("effects"))
        return;
    std::cout << "  It holds " << record["effects"].size()
              << (record["effects"].size() == 1 ? " effect, converted on its own:\n"
                                                : " effects, each converted on its own:\n");
    for (json const & inside : record["effects"]) {
        if (inside.is_null())
            std::cout << "(empty)\n";
        else
            printRecords(inside);
    }
}

void convertFiles(RenderHost & host, Options const & options)
{
    auto const files = expand(options.arguments, effectSuffixes);
    auto const describe = [&](std::string const & file) -> Description {
        auto const effect = readEffect(file);
        registerResources(*effect);
        try {
            json record = recordOf(host, *effect, options.params);
            auto problems = outcomeOf(*effect, record).problems;
            return {std::move(record), std::move(problems)};
        } catch (std::exception const & error) {
            throw Failure(file + ": " + error.what());
        }
    };
    auto const print = [&files](json const & record) {
        if (files.size() > 1)
            printFileHeading(record["file"]);
        printRecords(record);
    };
    endWith(describeFiles(options, files, {"Converting", describe, print}));
}

void convertClass(RenderHost & host, Options const & options)
{
    auto const effect = createEffect(options.className);
    for (std::string const & change : options.changes) {
        auto const [key, value] = halves(change);
        setParameter(*effect, key, value);
    }
    json const record = recordOf(host, *effect, options.params);
    if (!printIfJson(options, record))
        printRecords(record);
}

template <class Number> void take(json const & object, char const * key, Number & number)
{
    if (auto const found = object.find(key); found != object.end())
        Serialize::Json::Detail::load(*found, number);
}

/// Throws a `Failure` for a key that nothing reads, which is most likely misspelt.
void checkKeys(json const & object, std::string const & what, std::vector<std::string> const & known)
{
    for (auto const & [key, value] : object.items())
        if (std::find(known.begin(), known.end(), key) == known.end())
            throw Failure(what + " has no key \"" + key + "\", only \"" + joined(known, "\", \"") + '"');
}

RenderParams paramsOf(json const & request, RenderParams params)
{
    if (auto const video = request.find("video"); video != request.end()) {
        if (!video->is_object())
            throw Failure("\"video\" is no object");
        checkKeys(*video, "\"video\"", {"frameGeometry", "duration"});
        take(*video, "duration", params.video.duration);
        if (auto const geometry = video->find("frameGeometry"); geometry != video->end()) {
            if (!geometry->is_array() || geometry->size() != params.video.frameGeometry.size())
                throw Failure("\"frameGeometry\" is not two integers");
            for (std::size_t index = 0; index < params.video.frameGeometry.size(); ++index)
                Serialize::Json::Detail::load((*geometry)[index], params.video.frameGeometry[index]);
        }
    }
    if (auto const audio = request.find("audio"); audio != request.end()) {
        if (!audio->is_object())
            throw Failure("\"audio\" is no object");
        checkKeys(*audio, "\"audio\"", {"sampleRate"});
        take(*audio, "sampleRate", params.audio.sampleRate);
    }
    if (auto const as = request.find("as"); as != request.end()) {
        if (*as != "video" && *as != "audio")
            throw Failure("\"as\" is neither \"video\" nor \"audio\"");
        params.as = *as == "audio" ? Effect::Type::Audio : Effect::Type::Video;
    }
    return params;
}

json convertRequest(RenderHost & host, json const & request, RenderParams const & defaults)
{
    if (!request.is_object() || !request.contains("class") || !request["class"].is_string())
        throw Failure("the request names no class");
    checkKeys(request, "a request", {"class", "fields", "object", "video", "audio", "as"});
    json archived = document(*createEffect(request["class"]));
    for (auto const & [name, part] : {std::pair("fields", FieldsOf::Class), std::pair("object", FieldsOf::Object)}) {
        auto const changes = request.find(name);
        if (changes == request.end())
            continue;
        if (!changes->is_object())
            throw Failure(std::string("\"") + name + "\" is no object");
        for (auto const & [key, value] : changes->items())
            setField(archived, part, key, value);
    }
    auto const effect = effectOf(archived);
    RenderParams const params = paramsOf(request, defaults);
    json record = host.convert(*effect, params);
    if (params.isReported)
        record["report"] = reportOf(host, *effect, params);
    return record;
}

/// A request a line, an answer a line. A line that cannot be done is answered with an error, and the batch goes on.
/// Each answer says how its request went; the batch as a whole fails when every request did.
void convertBatch(RenderHost & host, RenderParams const & defaults)
{
    std::size_t requests = 0;
    std::size_t failures = 0;
    std::string line;
    while (std::cout && std::getline(std::cin, line)) {
        if (line.find_first_not_of(" \t\r") == line.npos)
            continue;
        json answer;
        json request;
        ++requests;
        try {
            request = Serialize::Json::parse(line);
            answer = convertRequest(host, request, defaults);
        } catch (std::exception const & error) {
            answer = {{"class", request.is_object() && request.contains("class") ? request["class"] : json()},
                {"error", error.what()}};
            ++failures;
        }
        // Flushed, since the sender may wait for the answer to one request before it sends the next.
        std::cout << toText(answer) << std::endl;
    }
    if (requests > 0 && failures == requests)
        throw Failure(std::to_string(failures) + " of " + std::to_string(requests) + " requests failed");
}

/// Such as "1920x1080". Returns what is wrong with the text, or an empty text.
std::string readGeometry(std::string const & text, Options & options)
{
    auto & [width, height] = options.params.video.frameGeometry;
    char const * const end = text.data() + text.size();
    auto const first = std::from_chars(text.data(), end, width);
    bool const isWidth = first.ec == std::errc() && first.ptr != end && *first.ptr == 'x' && width > 0;
    auto const second = isWidth ? std::from_chars(first.ptr + 1, end, height) : first;
    bool const isWhole = isWidth && second.ec == std::errc() && second.ptr == end && height > 0;
    return isWhole ? std::string() : text + " is no size such as 1920x1080";
}

/// The file of a pair "NAME=FILE", as the library takes it.
QString existingFile(std::string const & file)
{
    struct stat status;
    if (stat(file.c_str(), &status) != 0)
        throw Failure(file + ": " + std::strerror(errno));
    return fileName(file);
}

void convert(Options const & options)
{
    RenderHost host;
    for (std::string const & pair : options.resources) {
        auto const [name, file] = halves(pair);
        Resource::registerResource(Resource::ID(QString::fromStdString(name), Resource::Type::Blob), existingFile(file),
            0, MTime(), Resource::Timing());
    }
    for (std::string const & pair : options.tracks) {
        auto const [id, file] = halves(pair);
        MotionTracking::registerTrack(QString::fromStdString(id), existingFile(file));
    }
    if (options.batch)
        convertBatch(host, options.params);
    else if (!options.className.empty())
        convertClass(host, options);
    else
        convertFiles(host, options);
}

} // namespace

void addConvert(CLI::App & program)
{
    auto * const command = program.add_subcommand("convert", "The settings record that the render engine would get");
    auto const options = std::make_shared<Options>();
    auto * const files = addFiles(*command, *options, "Archives in either form or items");
    auto * const batch = command->add_flag(
        "--batch", options->batch, "Read a JSON request a line from standard input and answer each with a line");
    auto * const byClass = addClass(*command, options->className, {files, batch});
    addPairs(*command, "--set", options->changes, "Change a parameter of the default effect of --class")
        ->option_text("KEY=VALUE ...")
        ->needs(byClass);
    addPairs(*command, "--resource", options->resources,
        "Make an existing file the resource of that name, whatever asks for it")
        ->option_text("NAME=FILE ...");
    addPairs(*command, "--track", options->tracks, "Make an existing file the motion track of that identifier")
        ->option_text("ID=FILE ...");
    command->add_option("--video", options->video, "Size of the picture in pixels, for effects of the picture")
        ->option_text("WIDTHxHEIGHT")
        ->check([options](std::string const & text) { return readGeometry(text, *options); });
    command
        ->add_option("--duration", options->params.video.duration,
            "Length of the clip in microseconds, for effects of the picture")
        ->option_text("TIME")
        ->check(CLI::Range(std::int64_t(0), std::numeric_limits<std::int64_t>::max()));
    command
        ->add_option("--sample-rate", options->params.audio.sampleRate,
            "Of the sound in hertz, for effects of the sound; 48000 unless given")
        ->option_text("RATE")
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()));
    command->add_flag("--report", options->params.isReported,
        "Add what became of each parameter and each file: exact, narrowed, replaced, ignored, missing or broken");
    addJson(*command, *options, "; for --class, the object alone");
    setExamples(*command,
        "  effectctl convert blur.json\n"
        "  effectctl convert --class Effect::Blur --set intensity=20\n"
        "  effectctl convert --report --video 1920x1080 --duration 5000000 blur.json\n"
        "  effectctl convert --class Effect::WhiteBalance --set color=#00c800\n"
        "  effectctl convert --json stock/ColorFilters 'more/*.json'\n"
        "  effectctl show --class Effect::Crop --json | effectctl convert -\n"
        "  echo '{\"class\": \"Effect::Blur\", \"object\": {\"intensity\": 20}}' | effectctl convert --batch");
    command->callback([options] { convert(*options); });
}

} // namespace Host
