#include "EffectType.h"

#include <string_view>
#include <unordered_map>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Nearest.h>
#include <effects/Schema.h>
#include <inspect/Documents.h>
#include <inspect/Failure.h>

#include "Errors.h"
#include "Values.h"

namespace EffectsPython {

namespace py = pybind11;
using Effect::Schema::Class;
using Effect::Schema::Parameter;

namespace {

std::string_view utf8Of(PyObject * text)
{
    py::ssize_t size = 0;
    char const * const utf8 = PyUnicode_AsUTF8AndSize(text, &size);
    if (!utf8)
        throw py::error_already_set();
    return {utf8, static_cast<std::size_t>(size)};
}

// --- Attributes ------------------------------------------------------------------------------------------------------

/// The parameters of a class by the address of their name: the interpreter keeps one text for each attribute's name.
class AttributeNames
{
public:
    explicit AttributeNames(Class const & info)
    {
        for (Parameter const & parameter : info.parameters)
            m_parameters[PyUnicode_InternFromString(parameter.key.c_str())] = info.find(parameter.key);
    }

    Parameter const * find(PyObject * name) const
    {
        auto const found = m_parameters.find(name);
        return found == m_parameters.end() ? nullptr : found->second;
    }

private:
    std::unordered_map<PyObject *, Parameter const *> m_parameters; // names are never freed
};

AttributeNames const & namesOf(Class const & info)
{
    static auto * const names = new std::unordered_map<Class const *, AttributeNames>; // outlives the interpreter
    auto const found = names->find(&info);
    return found == names->end() ? names->emplace(&info, info).first->second : found->second;
}

/// The parameter of that name; null for an unknown one.
Parameter const * parameterNamed(EffectHandle const & effect, PyObject * name)
{
    if (Parameter const * const parameter = namesOf(effect.info()).find(name))
        return parameter;
    if (PyUnicode_CHECK_INTERNED(name))
        return nullptr;
    return effect.info().find(utf8Of(name));
}

[[noreturn]] void failUnknown(EffectHandle const & effect, std::string const & name)
{
    std::vector<std::string> known;
    for (Parameter const & parameter : effect.info().parameters)
        known.push_back(parameter.key);
    raise("UnknownParameter",
        effect.info().name + " has no parameter \"" + name + '"' + Serialize::didYouMean(name, known));
}

/// The effect behind an object of the class; null for one that was made without it.
EffectHandle * handleIn(PyObject * self)
{
    return reinterpret_cast<py::detail::instance *>(self)->get_value_and_holder().value_ptr<EffectHandle>();
}

PyObject * getAttribute(PyObject * self, PyObject * name)
{
    EffectHandle * const effect = handleIn(self);
    if (!effect)
        return PyObject_GenericGetAttr(self, name);
    try {
        if (Parameter const * const parameter = parameterNamed(*effect, name))
            return effect->value(*parameter).release().ptr();
        PyObject * const found = PyObject_GenericGetAttr(self, name);
        if (found || !PyErr_ExceptionMatches(PyExc_AttributeError))
            return found;
        PyErr_Clear();
        failUnknown(*effect, std::string(utf8Of(name)));
    } catch (...) {
        setError();
        return nullptr;
    }
}

int setAttribute(PyObject * self, PyObject * name, PyObject * value)
{
    EffectHandle * const effect = handleIn(self);
    if (!effect)
        return PyObject_GenericSetAttr(self, name, value);
    try {
        Parameter const * const parameter = parameterNamed(*effect, name);
        if (!parameter)
            failUnknown(*effect, std::string(utf8Of(name)));
        if (!value)
            raise("ParameterError",
                "parameter \"" + parameter->key + "\" of " + effect->info().name + " cannot be deleted");
        effect->setValue(*parameter, value);
        return 0;
    } catch (...) {
        setError();
        return -1;
    }
}

// --- Items -----------------------------------------------------------------------------------------------------------

Parameter const & parameterAt(EffectHandle const & effect, std::string const & key)
{
    Parameter const * const parameter = effect.info().find(key);
    if (!parameter)
        failUnknown(effect, key);
    return *parameter;
}

py::list keysOf(EffectHandle const & effect)
{
    py::list keys;
    for (Parameter const & parameter : effect.info().parameters)
        keys.append(text(parameter.key));
    return keys;
}

py::dict parametersOf(EffectHandle & effect)
{
    py::dict values;
    for (Parameter const & parameter : effect.info().parameters)
        values[text(parameter.key)] = effect.value(parameter);
    return values;
}

py::list namesIn(py::object const & self)
{
    py::list names(py::module_::import("builtins").attr("object").attr("__dir__")(self));
    for (py::handle const key : keysOf(py::cast<EffectHandle const &>(self)))
        names.append(key);
    return names;
}

// --- Text ------------------------------------------------------------------------------------------------------------

py::str utf8(std::string const & document)
{
    return py::str(document);
}

/// The call that makes an equal effect, by what differs from a new one; empty where no such call does.
std::string creation(EffectHandle & effect)
{
    auto const made = create(effect.info().name);
    std::string call = "editoreffects.create(" + std::string(py::repr(text(effect.info().name)));
    try {
        for (Parameter const & parameter : effect.info().parameters) {
            if (Effect::Schema::value(effect.effect(), parameter) == Effect::Schema::value(made->effect(), parameter))
                continue;
            py::object const value = effect.value(parameter);
            made->setValue(parameter, value);
            call += ", " + parameter.key + '=' + std::string(py::repr(value));
        }
    } catch (std::invalid_argument const &) {
        return {}; // a value that only an archive can hold
    }
    return made->equals(effect) ? call + ')' : std::string();
}

std::string repr(EffectHandle & effect)
{
    std::string const call = effect.documentWithUnknown() ? std::string() : creation(effect);
    return call.empty() ? "editoreffects.from_json(" + std::string(py::repr(utf8(effect.toJson()))) + ')' : call;
}

constexpr char const * effectDocumentation = R"(An effect, which `create`, `load` and others return.

Its parameters are attributes and items by the keys that they have in the archives; an item takes a JSON pointer as well.
`describe` gives their units, bounds and choices. Values are `bool`, `int`, `float` and `str`, and

- of an enumeration, the name of the choice, or an integer where it has none;
- of a colour, "#rrggbb" or "#aarrggbb"; 0xAARRGGBB can be set, too;
- of a transform, three rows of three numbers; any nine numbers can be set;
- of a resource, {"name": str, "type": int};
- of a record, a dictionary by key, or None where it is absent;
- of a list, a list of records or of effects.

Dictionaries and lists are copies: change one and set it again. The effects in a list are those of the holder, though, and
changing one changes the holder. Setting a list of effects copies them; those that the holder had before go on by
themselves.

An unknown key raises `UnknownParameter`, a value that a parameter does not take `ParameterError`, and nothing changes.

Two effects are equal if their classes and all their parameters are. `repr` is an expression that makes an equal effect.
Effects can be copied and pickled. Threads may work side by side, each on effects of its own; a change of an effect that
another thread saves or converts waits until it is done.)";

} // namespace

std::shared_ptr<EffectHandle> create(std::string const & className)
{
    try {
        return std::make_shared<EffectHandle>(Source::of(Effect::Inspect::createEffect(className)));
    } catch (Effect::Inspect::Failure const & failure) {
        raise("UnknownClass", failure.what());
    }
}

std::shared_ptr<EffectHandle> read(py::bytes const & content, std::string const & file)
{
    auto bytes = std::make_shared<std::string const>(content);
    try {
        py::gil_scoped_release const released;
        auto source = Source::read(std::move(bytes), file);
        return std::make_shared<EffectHandle>(std::move(source));
    } catch (ReadError const & error) {
        raise(error.finding(), file);
    }
}

std::shared_ptr<EffectHandle> readForm(py::bytes const & content, bool isBinary)
{
    if (Effect::Archive::isBinary(static_cast<std::string_view>(content)) != isBinary)
        raise("ArchiveError", isBinary ? "this is no binary archive" : "this is a binary archive, and no JSON");
    return read(content, {});
}

void addEffectType(py::module_ & module)
{
    using namespace py::literals;
    auto const setSlots = [](PyHeapTypeObject * type) {
        refuseCreation(type);
        type->ht_type.tp_getattro = getAttribute;
        type->ht_type.tp_setattro = setAttribute;
    };
    py::class_<EffectHandle, std::shared_ptr<EffectHandle>>(
        module, "Effect", py::is_final(), py::custom_type_setup(setSlots), effectDocumentation)
        .def_property_readonly(
            "class_name", [](EffectHandle const & effect) { return text(effect.info().name); },
            "The name of the class in the archives, such as \"Effect::Blur\".")
        .def("parameters", parametersOf, "A dictionary of all parameters by key, in the order of the binary archive.")
        .def(
            "to_json",
            [](EffectHandle const & effect) { return utf8(effect.unlocked([&] { return effect.toJson(); })); },
            "The JSON archive. One that was read and not changed comes back as it was; of one that was changed, "
            "whatever\n"
            "this version does not know is kept. An item of the catalogue comes with its categories.")
        .def(
            "to_binary",
            [](EffectHandle const & effect) { return py::bytes(effect.unlocked([&] { return effect.toBinary(); })); },
            "The binary archive. Raises `ArchiveError` where it has no place for something that was read from JSON:\n"
            "what this version does not know, or the categories of an item.")
        .def("keys", keysOf, "The keys of the parameters, those of the bases first.")
        .def(
            "__getitem__",
            [](EffectHandle & effect, std::string const & key) { return effect.value(parameterAt(effect, key)); },
            "key"_a)
        .def(
            "__setitem__",
            [](EffectHandle & effect, std::string const & key, py::object const & value) {
                effect.setValue(parameterAt(effect, key), value);
            },
            "key"_a, "value"_a)
        .def("__contains__",
            [](EffectHandle const & effect, std::string const & key) { return effect.info().find(key) != nullptr; })
        .def("__iter__", [](EffectHandle const & effect) { return py::iter(keysOf(effect)); })
        .def("__len__", [](EffectHandle const & effect) { return effect.info().parameters.size(); })
        .def("__eq__", &EffectHandle::equals, py::is_operator())
        .def("__repr__", repr)
        .def("__dir__", namesIn)
        .def("__copy__", &EffectHandle::copy)
        .def("__deepcopy__", [](EffectHandle const & effect, py::dict const &) { return effect.copy(); })
        .def("__reduce__", [](EffectHandle const & effect) {
            py::bytes const content(effect.unlocked([&] { return effect.toBytes(); }));
            return py::make_tuple(py::module_::import("editoreffects").attr("_restored"),
                py::make_tuple(content, py::bytes(effect.file())));
        });
}

} // namespace EffectsPython
