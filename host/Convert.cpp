#include <iostream>
#include <optional>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/MotionTracking.h>
#include <EditorModel/Resource.h>
#include <EditorSerialization/JsonArchive.h>
#include <Settings/Trace.h>
#include <utils/EffectUtils.h>

#include "Command.h"
#include "Documents.h"
#include "FileNames.h"
#include "Files.h"
#include "Output.h"
#include "RenderHost.h"

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
    bool batch = false;
};

/// A text "NAME=VALUE" in its two halves.
std::pair<std::string, std::string> halves(std::string const & text)
{
    std::size_t const sign = text.find('=');
    return {text.substr(0, sign), text.substr(sign + 1)};
}

std::string checkPair(std::string const & text)
{
    std::size_t const sign = text.find('=');
    return sign == 0 || sign == text.npos ? text + " is not of the form NAME=VALUE" : std::string();
}

/// Sets one key, the class's own or one of `Effect::Object`, to a JSON value; what is no JSON is a text.
void change(json & document, std::string const & pair)
{
    auto const [key, text] = halves(pair);
    json value = json::parse(text, nullptr, false);
    if (value.is_discarded())
        value = text;
    try {
        setField(document, key, value);
    } catch (Failure const & failure) {
        try {
            setObjectField(document, key, value);
        } catch (Failure const &) {
            throw failure;
        }
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
    for (json const & line : record["log"])
        std::cout << "  " << line.get<std::string>() << '\n';
}

/// The records of the effects inside a holder, each on its own.
void convertInside(RenderHost & host, json const & holder, json & records)
{
    for (json const & inside : heldEffects(holder))
        records.push_back(inside.is_null() ? json() : host.convert(*effectOf(inside), {}));
}

/// The record of an effect; that of a holder has those of the effects inside as well.
json recordOf(RenderHost & host, Effect::Object const & effect)
{
    json record = host.convert(effect, {});
    json const archived = document(effect);
    if (isHolder(archived))
        convertInside(host, archived, record["effects"] = json::array());
    return record;
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
            printRecord(inside);
    }
}

void convertFiles(RenderHost & host, Options const & options)
{
    auto const files = expand(options.arguments, effectSuffixes);
    auto const describe = [&host](std::string const & file) {
        auto const effect = readEffect(file);
        // As the catalogue does with its items. A file that was given for the resource comes first.
        Effect::Utils::registerEffectResource(*effect);
        try {
            return recordOf(host, *effect);
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
    json archived = document(*createEffect(options.className));
    for (std::string const & pair : options.changes)
        change(archived, pair);
    json const record = recordOf(host, *effectOf(archived));
    if (options.asJson)
        printJson(record);
    else
        printRecords(record);
}

template <class Number> void take(json const & object, char const * key, Number & number)
{
    if (auto const found = object.find(key); found != object.end())
        Serialize::Json::Detail::load(*found, number);
}

RenderParams paramsOf(json const & request)
{
    RenderParams params;
    if (auto const video = request.find("video"); video != request.end()) {
        if (!video->is_object())
            throw Failure("\"video\" is no object");
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
        take(*audio, "sampleRate", params.audio.sampleRate);
    }
    if (auto const as = request.find("as"); as != request.end()) {
        if (*as != "video" && *as != "audio")
            throw Failure("\"as\" is neither \"video\" nor \"audio\"");
        params.as = *as == "audio" ? Effect::Type::Audio : Effect::Type::Video;
    }
    return params;
}

json convertRequest(RenderHost & host, json const & request)
{
    if (!request.is_object() || !request.contains("class") || !request["class"].is_string())
        throw Failure("the request names no class");
    json archived = document(*createEffect(request["class"]));
    auto const replace = [&](char const * part, auto const & set) {
        auto const changes = request.find(part);
        if (changes == request.end())
            return;
        if (!changes->is_object())
            throw Failure(std::string("\"") + part + "\" is no object");
        for (auto const & [key, value] : changes->items())
            set(archived, key, value);
    };
    replace("fields", setField);
    replace("object", setObjectField);
    return host.convert(*effectOf(archived), paramsOf(request));
}

/// A request a line, an answer a line. A line that cannot be done is answered with an error, and the batch goes on.
void convertBatch(RenderHost & host)
{
    std::string line;
    while (std::cout && std::getline(std::cin, line)) {
        if (line.find_first_not_of(" \t\r") == line.npos)
            continue;
        json answer;
        json request;
        try {
            request = Serialize::Json::parse(line);
            answer = convertRequest(host, request);
        } catch (std::exception const & error) {
            answer = {{"class", request.is_object() && request.contains("class") ? request["class"] : json()},
                {"error", error.what()}};
        }
        // Flushed, since the sender may wait for the answer to one request before it sends the next.
        std::cout << toText(answer) << std::endl;
    }
}

void convert(Options const & options)
{
    RenderHost host;
    for (std::string const & pair : options.resources) {
        auto const [name, file] = halves(pair);
        Resource::registerResource(Resource::ID(QString::fromStdString(name), Resource::Type::Blob), fileName(file), 0,
            MTime(), Resource::Timing());
    }
    for (std::string const & pair : options.tracks) {
        auto const [id, file] = halves(pair);
        MotionTracking::registerTrack(QString::fromStdString(id), fileName(file));
    }
    if (options.batch)
        convertBatch(host);
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
    command->add_option("--set", options->changes, "Change a field of the default effect of --class")
        ->option_text("KEY=VALUE ...")
        ->needs(byClass)
        ->check(checkPair);
    command->add_option("--resource", options->resources, "Make a file the resource of that name, whatever asks for it")
        ->option_text("NAME=FILE ...")
        ->check(checkPair);
    command->add_option("--track", options->tracks, "Make a file the motion track of that identifier")
        ->option_text("ID=FILE ...")
        ->check(checkPair);
    command->add_flag("--json", options->asJson, std::string(filesAsJson) + "; for --class, the object alone");
    setExamples(*command,
        "  effectctl convert blur.json\n"
        "  effectctl convert --class Effect::Blur --set intensity=20\n"
        "  effectctl convert --json stock/ColorFilters 'more/*.json'\n"
        "  effectctl show --class Effect::Crop --json | effectctl convert -\n"
        "  echo '{\"class\": \"Effect::Blur\", \"object\": {\"intensity\": 20}}' | effectctl convert --batch");
    command->callback([options] { convert(*options); });
}

} // namespace Host
