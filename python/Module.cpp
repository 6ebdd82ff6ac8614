// Before Qt, whose macros take names that Python uses.
#include <pybind11/pybind11.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <inspect/ClassDescription.h>
#include <inspect/Conversion.h>
#include <inspect/Differences.h>
#include <inspect/Documents.h>
#include <inspect/EffectFile.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Findings.h>
#include <inspect/JsonSchema.h>
#include <inspect/Messages.h>

#include <glog/logging.h>

#include "EffectType.h"
#include "Errors.h"
#include "Lut.h"
#include "Session.h"
#include "Values.h"

#include <QString>
#include <QtGlobal>

namespace EffectsPython {

namespace py = pybind11;
using nlohmann::json;

namespace {

/// What the library logs outside conversions and catalogues, which collect it.
void writeMessage(std::string_view message)
{
    std::fprintf(stderr, "editoreffects: %.*s\n", static_cast<int>(message.size()), message.data());
}

Effect::Schema::Class const & classNamed(std::string const & name)
{
    try {
        return Effect::Inspect::classNamed(name);
    } catch (Effect::Inspect::Failure const & failure) {
        raise("UnknownClass", failure.what());
    }
}

py::list describeAll()
{
    py::list all;
    for (Effect::Schema::Class const * const info : Effect::Schema::classes())
        all.append(toPython(Effect::Inspect::describe(*info)));
    return all;
}

py::object describe(std::string const & name)
{
    return toPython(Effect::Inspect::describe(classNamed(name)));
}

/// @param name  empty for any effect
py::object schema(std::string const & name)
{
    Effect::Inspect::SchemaOptions options;
    if (!name.empty())
        options.classes = {&classNamed(name)};
    return toPython(Effect::Inspect::jsonSchema(options));
}

py::object convertEffect(EffectHandle const & effect, std::int64_t width, std::int64_t height, std::int64_t duration,
    std::int32_t sampleRate)
{
    Effect::Inspect::RenderParams params;
    params.video = {{width, height}, duration};
    params.audio.sampleRate = sampleRate;
    return toPython(effect.unlocked([&] { return convert(*effect.usable(), params); }));
}

py::list checkFiles(std::string const & path)
{
    std::vector<FileFindings> files;
    {
        py::gil_scoped_release const released;
        files = check(path);
    }
    py::list findings;
    for (FileFindings const & file : files)
        for (Effect::Archive::Finding const & finding : file.findings) {
            py::dict described = toPython(Effect::Inspect::toJson(finding));
            described["file"] = py::bytes(file.file);
            findings.append(described);
        }
    return findings;
}

Effect::Inspect::EffectFile fileOf(EffectHandle const & effect)
{
    return Effect::Inspect::EffectFile::parse(effect.file(), effect.toBytes());
}

py::object diff(EffectHandle const & left, EffectHandle const & right)
{
    // One after the other: both may be in one file, and a change that waits for the first would block the second.
    auto const from = left.unlocked([&] { return fileOf(left); });
    auto const to = right.unlocked([&] { return fileOf(right); });
    json patch;
    {
        py::gil_scoped_release const released;
        patch = Effect::Inspect::patchFrom(from, to);
    }
    return toPython(patch);
}

py::dict toPython(CatalogueItem const & item)
{
    using namespace py::literals;
    py::list categories;
    for (std::string const & category : item.categories)
        categories.append(text(category));
    return py::dict("effect"_a = std::make_shared<EffectHandle>(item.effect), "collection"_a = text(item.collection),
        "file"_a = py::bytes(item.file), "categories"_a = py::tuple(categories), "user"_a = item.isUsers);
}

/// @param progress  None, or called with two numbers
py::tuple catalogue(std::string const & stock, std::string const & user, py::object const & progress)
{
    auto const report = [&](std::size_t read, std::size_t found) {
        py::gil_scoped_acquire const acquired;
        if (PyErr_CheckSignals() != 0)
            throw py::error_already_set();
        if (!progress.is_none())
            progress(read, found);
    };
    CatalogueContent content;
    {
        py::gil_scoped_release const released;
        content = readCatalogue(stock, user, report);
    }
    py::list items;
    for (CatalogueItem const & item : content.items)
        items.append(toPython(item));
    py::list problems;
    for (std::string const & problem : content.problems)
        problems.append(text(problem));
    return py::make_tuple(items, problems);
}

void writeFile(std::string const & path, std::string const & content)
{
    try {
        py::gil_scoped_release const released;
        Effect::Inspect::writeFile(path, content);
    } catch (Effect::Inspect::Failure const & failure) {
        raise("FileError", failure.what());
    }
}

QtMessageHandler othersHandler = nullptr;

/// Drops Qt's message about a folder that only sessions with a display have.
void handleMessage(QtMsgType type, QMessageLogContext const & context, QString const & message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: ")))
        othersHandler(type, context, message);
}

} // namespace

PYBIND11_MODULE(_editoreffects, module)
{
    using namespace py::literals;
    module.doc() = "The compiled part of editoreffects. Import that instead.";
    py::options options;
    options.disable_function_signatures();
    Effect::Inspect::keepFileNames();
    if (!google::IsGoogleLoggingInitialized()) // by another module
        Effect::Inspect::startMessages("editoreffects", writeMessage);
    othersHandler = qInstallMessageHandler(handleMessage);
    translateErrors();
    addEffectType(module);
    addLut(module);
    module.def("create", create, "name"_a);
    module.def("read", read, "content"_a, "file"_a = py::bytes());
    module.def("read_form", readForm, "content"_a, "is_binary"_a);
    module.def("write_file", writeFile, "path"_a, "content"_a);
    module.def("classes", describeAll);
    module.def("describe", describe, "name"_a);
    module.def("schema", schema, "name"_a);
    module.def("convert", convertEffect, "effect"_a, "width"_a, "height"_a, "duration"_a, "sample_rate"_a);
    module.def("check", checkFiles, "path"_a);
    module.def("diff", diff, "left"_a, "right"_a);
    module.def("catalogue", catalogue, "stock"_a, "user"_a, "progress"_a);
}

} // namespace EffectsPython
