#include "Values.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

#include <EditorSerialization/JsonArchive.h>

#include <QByteArray>
#include <QString>

namespace EffectsPython {

namespace py = pybind11;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;

namespace {

constexpr std::uint32_t opaque = 0xFF000000;

template <class Json> py::object generic(Json const & value)
{
    switch (value.type()) {
    case Json::value_t::null:
    case Json::value_t::discarded:
    case Json::value_t::binary:
        break;
    case Json::value_t::boolean:
        return py::bool_(value.template get<bool>());
    case Json::value_t::number_integer:
        return py::int_(value.template get<std::int64_t>());
    case Json::value_t::number_unsigned:
        return py::int_(value.template get<std::uint64_t>());
    case Json::value_t::number_float:
        return py::float_(value.template get<double>());
    case Json::value_t::string:
        return text(value.template get_ref<std::string const &>());
    case Json::value_t::array: {
        py::list list(value.size());
        for (std::size_t index = 0; index < value.size(); ++index)
            list[index] = generic(value[index]);
        return list;
    }
    case Json::value_t::object: {
        py::dict dict;
        for (auto const & [key, item] : value.items())
            dict[text(key)] = generic(item);
        return dict;
    }
    }
    return py::none();
}

py::object checked(PyObject * object)
{
    if (!object)
        throw py::error_already_set();
    return py::reinterpret_steal<py::object>(object);
}

double realOf(json const & value)
{
    double number = 0;
    Serialize::Json::Detail::load(value, number);
    return number;
}

/// A text, which need not be Unicode in the model.
py::object textOf(json const & value)
{
    if (value.is_string())
        return text(value.get_ref<std::string const &>());
    if (value.is_null())
        return py::none();
    QString units;
    Serialize::Json::Detail::load(value, units);
    int order = 0; // of this machine
    return checked(PyUnicode_DecodeUTF16(reinterpret_cast<char const *>(units.utf16()),
        static_cast<py::ssize_t>(units.size()) * 2, "surrogatepass", &order));
}

/// Bytes, which need not be UTF-8.
py::object bytesOf(json const & value)
{
    if (!value.is_object())
        return textOf(value);
    std::string bytes;
    Serialize::Json::Detail::load(value, bytes);
    return py::bytes(bytes);
}

py::object colorOf(json const & value)
{
    auto const color = value.get<std::uint32_t>();
    char text[sizeof "#aarrggbb"];
    bool const isOpaque = (color & opaque) == opaque;
    std::snprintf(text, sizeof text, isOpaque ? "#%06x" : "#%08x", isOpaque ? color & ~opaque : color);
    return py::str(text);
}

py::object transformOf(json const & value)
{
    json const & numbers = value.at("m");
    py::tuple rows(3);
    for (std::size_t row = 0; row < 3; ++row)
        rows[row] =
            py::make_tuple(realOf(numbers[3 * row]), realOf(numbers[3 * row + 1]), realOf(numbers[3 * row + 2]));
    return rows;
}

py::object recordOf(Effect::Schema::Class const & info, json const & value)
{
    py::dict dict;
    for (Parameter const & parameter : info.parameters) {
        json::json_pointer const pointer(parameter.pointer);
        dict[text(parameter.key)] = toPython(
            parameter, value.contains(pointer) ? value.at(pointer) : json()); // an optional record may be absent
    }
    return dict;
}

py::object resourceOf(json const & value)
{
    py::dict dict;
    dict["name"] = textOf(value.at("name"));
    dict["type"] = generic(value.at("type"));
    return dict;
}

py::object listOf(Parameter const & parameter, json const & value)
{
    py::list list(value.size());
    for (std::size_t index = 0; index < value.size(); ++index)
        list[index] =
            parameter.elements ? recordOf(*parameter.elements, value[index]) : py::float_(realOf(value[index]));
    return list;
}

json textToJson(py::handle value)
{
    if (py::ssize_t size = 0; char const * const utf8 = PyUnicode_AsUTF8AndSize(value.ptr(), &size))
        return std::string(utf8, static_cast<std::size_t>(size));
    PyErr_Clear(); // it has surrogates without their counterparts
    py::bytes const bytes(value.attr("encode")("utf-16-le", "surrogatepass"));
    auto const units = static_cast<std::string_view>(bytes);
    json result;
    Serialize::Json::Detail::save(
        result, QString(reinterpret_cast<QChar const *>(units.data()), static_cast<int>(units.size() / 2)));
    return result;
}

json integerToJson(py::handle value)
{
    py::object const number = checked(PyNumber_Index(value.ptr()));
    int overflow = 0;
    long long const small = PyLong_AsLongLongAndOverflow(number.ptr(), &overflow);
    if (overflow == 0)
        return static_cast<std::int64_t>(small);
    // No integer of a parameter is as large; as a real number it may still be one's value.
    double const real = PyLong_AsDouble(number.ptr());
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return overflow * std::numeric_limits<double>::infinity();
    }
    return real;
}

/// The items of a mapping or a sequence may hold themselves.
class Nesting
{
public:
    Nesting()
    {
        if (Py_EnterRecursiveCall(" while a value is converted"))
            throw py::error_already_set();
    }
    ~Nesting() { Py_LeaveRecursiveCall(); }
    Nesting(Nesting const &) = delete;
    Nesting & operator=(Nesting const &) = delete;
};

} // namespace

py::str text(std::string_view utf8)
{
    return py::reinterpret_steal<py::str>(
        checked(PyUnicode_DecodeUTF8(utf8.data(), static_cast<py::ssize_t>(utf8.size()), "replace")).release());
}

py::object toPython(json const & value)
{
    return generic(value);
}

py::object toPython(nlohmann::ordered_json const & value)
{
    return generic(value);
}

py::object toPython(Parameter const & parameter, json const & value)
{
    switch (parameter.kind) {
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Time:
        return generic(value);
    case Kind::Real:
        return py::float_(realOf(value));
    case Kind::Text:
        return parameter.type == "std::string" ? bytesOf(value) : textOf(value);
    case Kind::Color:
        return colorOf(value);
    case Kind::Enumeration:
        for (Effect::Choice const & choice : parameter.choices)
            if (value == choice.value)
                return py::str(choice.name);
        return generic(value);
    case Kind::Transform:
        return transformOf(value);
    case Kind::Resource:
        return resourceOf(value);
    case Kind::Record:
        return value.is_null() ? py::none() : recordOf(*parameter.elements, value);
    case Kind::List:
        break;
    }
    return listOf(parameter, value);
}

json toJson(py::handle value)
{
    if (PyFloat_Check(value.ptr()))
        return PyFloat_AS_DOUBLE(value.ptr());
    if (PyBool_Check(value.ptr()))
        return value.ptr() == Py_True;
    if (PyLong_Check(value.ptr()))
        return integerToJson(value);
    if (PyUnicode_Check(value.ptr()))
        return textToJson(value);
    if (value.is_none())
        return nullptr;
    if (PyBytes_Check(value.ptr())) {
        json result;
        Serialize::Json::Detail::save(result, py::cast<std::string>(value));
        return result;
    }
    Nesting const nesting;
    if (py::hasattr(value, "tolist")) // an array, or a number of numpy
        return toJson(value.attr("tolist")());
    if (PyIndex_Check(value.ptr()))
        return integerToJson(value);
    if (py::hasattr(value, "keys")) {
        json object = json::object();
        for (py::handle const key : value.attr("keys")())
            object[py::cast<std::string>(py::str(key))] = toJson(value[key]);
        return object;
    }
    if (!PySequence_Check(value.ptr()))
        throw py::type_error(std::string("an object of the type ") + Py_TYPE(value.ptr())->tp_name + " is no value");
    json array = json::array();
    for (py::handle const item : value)
        array.push_back(toJson(item));
    return array;
}

} // namespace EffectsPython
