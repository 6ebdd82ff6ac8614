#include "Errors.h"

#include <exception>
#include <stdexcept>

#include <EditorSerialization/Error.h>
#include <inspect/Failure.h>
#include <inspect/Findings.h>

#include "Source.h"
#include "Values.h"

namespace EffectsPython {

namespace py = pybind11;
using Effect::Archive::Finding;

namespace {

py::object classNamed(char const * name)
{
    return py::module_::import("editoreffects.errors").attr(name);
}

void set(py::object const & type, py::object const & exception)
{
    PyErr_SetObject(type.ptr(), exception.ptr());
}

void set(char const * name, std::string const & message)
{
    py::object const type = classNamed(name);
    set(type, type(text(message)));
}

template <class Value> py::object orNone(std::optional<Value> const & value)
{
    return value ? py::object(py::cast(*value)) : py::none();
}

void set(Finding const & finding, std::string const & file)
{
    using namespace py::literals;
    py::object const type = classNamed(finding.code == "unknown-class" ? "UnknownClass" : "ArchiveError");
    std::string const place = file.empty() ? "" : Effect::Inspect::placeIn(file, finding) + ": ";
    set(type,
        type(text(place + Effect::Inspect::toText(finding)), "code"_a = finding.code,
            "pointer"_a = orNone(finding.pointer), "offset"_a = orNone(finding.offset), "line"_a = orNone(finding.line),
            "column"_a = orNone(finding.column), "file"_a = file.empty() ? py::none() : py::object(text(file))));
}

/// Other exceptions go on to the caller.
void translate(std::exception_ptr exception)
{
    try {
        std::rethrow_exception(std::move(exception));
    } catch (ReadError const & error) {
        set(error.finding(), {});
    } catch (Effect::Inspect::Failure const & failure) {
        set("Error", failure.what());
    } catch (boost::archive::archive_exception const & error) {
        set("ArchiveError", error.what());
    } catch (std::invalid_argument const & error) {
        set("ParameterError", error.what());
    }
}

} // namespace

void raise(char const * name, std::string const & message)
{
    set(name, message);
    throw py::error_already_set();
}

void raise(Finding const & finding, std::string const & file)
{
    set(finding, file);
    throw py::error_already_set();
}

void setError() noexcept
{
    try {
        try {
            throw;
        } catch (py::error_already_set & error) {
            error.restore();
        } catch (py::builtin_exception const & error) {
            error.set_error();
        } catch (...) {
            translate(std::current_exception());
        }
    } catch (py::error_already_set & error) {
        error.restore();
    } catch (std::bad_alloc const &) {
        PyErr_NoMemory();
    } catch (std::exception const & error) {
        PyErr_SetString(PyExc_RuntimeError, error.what());
    }
}

void translateErrors()
{
    py::register_exception_translator([](std::exception_ptr exception) {
        if (exception)
            translate(std::move(exception));
    });
}

void refuseCreation(PyHeapTypeObject * type)
{
    // pybind11 would make an object without anything in it, and fill that with arbitrary bytes when it is used.
    type->ht_type.tp_new = [](PyTypeObject * self, PyObject *, PyObject *) -> PyObject * {
        PyErr_Format(PyExc_TypeError, "objects of %s cannot be made by calling it", self->tp_name);
        return nullptr;
    };
}

} // namespace EffectsPython
