#include "Lut.h"

#include <memory>
#include <string>
#include <vector>

#include <ParserLUT/LUTTable.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <utils/LutUtils.h>

#include <pybind11/stl.h>

#include "Errors.h"
#include "Values.h"

#include <QByteArray>
#include <QString>

namespace EffectsPython {

namespace py = pybind11;
namespace LUT = Quoril::Proc::LUT;

namespace {

/// The curve of one channel; the table that it is in lives as long.
struct Curve
{
    std::shared_ptr<LUT::LUTTable const> table;
    LUT::Curve const & knots;
};

static_assert(sizeof(LUT::Knot) == 2 * sizeof(float) && sizeof(LUT::Color) == 3 * sizeof(float));

/// Numbers that nothing changes, the last axis being the fastest.
py::buffer_info numbers(float const * first, std::vector<py::ssize_t> const & shape)
{
    std::vector<py::ssize_t> strides(shape.size(), sizeof(float));
    for (std::size_t axis = shape.size() - 1; axis > 0; --axis)
        strides[axis - 1] = strides[axis] * shape[axis];
    static float const nothing = 0; // an empty buffer has an address, too
    return {const_cast<float *>(first ? first : &nothing), sizeof(float), py::format_descriptor<float>::format(),
        static_cast<py::ssize_t>(shape.size()), shape, strides, true};
}

py::buffer_info entriesOf(LUT::LUTTable const & table)
{
    float const * const first = table.entries.front().data();
    auto const [red, green, blue] = table.size;
    return table.Is1D() ? numbers(first, {red, 3}) : numbers(first, {blue, green, red, 3});
}

py::buffer_info knotsOf(Curve const & curve)
{
    return numbers(
        curve.knots.empty() ? nullptr : &curve.knots.front().input, {static_cast<py::ssize_t>(curve.knots.size()), 2});
}

py::tuple shaperOf(std::shared_ptr<LUT::LUTTable> const & table)
{
    py::tuple curves(table->shaper.size());
    for (std::size_t channel = 0; channel < table->shaper.size(); ++channel)
        curves[channel] = py::cast(Curve{table, table->shaper[channel]});
    return curves;
}

template <class Numbers> py::tuple tupleOf(Numbers const & numbers)
{
    return py::make_tuple(numbers[0], numbers[1], numbers[2]);
}

std::shared_ptr<LUT::LUTTable> readLut(py::bytes const & content, std::string const & file)
{
    QByteArray const bytes = QByteArray::fromStdString(content);
    QString error;
    std::shared_ptr<LUT::LUTTable> table;
    {
        py::gil_scoped_release const released;
        table = Effect::Utils::parseLutEffect(bytes, &error);
    }
    if (!table)
        raise("LutError", (file.empty() ? "" : file + ": ") +
                              (error.isEmpty() ? LUT::ParserLUTFactory::UnknownFormat() : error.toStdString()));
    return table;
}

} // namespace

void addLut(py::module_ & module)
{
    using namespace py::literals;
    using Table = LUT::LUTTable;
    py::class_<Curve>(module, "Curve", py::buffer_protocol(), py::is_final(), py::custom_type_setup(refuseCreation),
        "Straight lines between knots, which one channel passes through before the table; level beyond the first and\n"
        "the last. An empty curve changes nothing. Its buffer is a row (input, output) of float32 for each knot.")
        .def_buffer(knotsOf)
        .def("__len__", [](Curve const & curve) { return curve.knots.size(); })
        .def("__getitem__", [](Curve const & curve, std::size_t index) {
            if (index >= curve.knots.size())
                throw py::index_error("the curve has " + std::to_string(curve.knots.size()) + " knots");
            return py::make_tuple(curve.knots[index].input, curve.knots[index].output);
        });
    py::class_<Table, std::shared_ptr<Table>>(module, "Lut", py::buffer_protocol(), py::is_final(),
        py::custom_type_setup(refuseCreation),
        "A lookup table. Its buffer is float32, read-only: blue, green, red, channel of a three-dimensional table,\n"
        "entry, channel of a one-dimensional one. So memoryview(lut) and numpy.asarray(lut) copy nothing.")
        .def_buffer(entriesOf)
        .def_property_readonly(
            "format", [](Table const & table) { return text(table.format); },
            "What it was read from, such as \"cube\".")
        .def_property_readonly(
            "title", [](Table const & table) { return text(table.title); }, "As the file has it; empty if it has none.")
        .def_property_readonly(
            "size", [](Table const & table) { return tupleOf(table.size); },
            "Entries along the red, green and blue axis; a one-dimensional table has its length first, then 1, 1.")
        .def_property_readonly(
            "domain_min", [](Table const & table) { return tupleOf(table.domainMin); },
            "Red, green and blue of the first entries.")
        .def_property_readonly(
            "domain_max", [](Table const & table) { return tupleOf(table.domainMax); },
            "Red, green and blue of the last entries.")
        .def_property_readonly("shaper", shaperOf, "What red, green and blue pass through before the table: curves.")
        .def_readonly("video_range_input", &Table::videoRangeInput, "Whether it expects colours in video range.")
        .def_readonly("video_range_output", &Table::videoRangeOutput, "Whether it gives colours in video range.")
        .def("__repr__", [](Table const & table) {
            return "<editoreffects.Lut " + table.format + ' ' + std::string(py::repr(tupleOf(table.size))) + '>';
        });
    module.def("read_lut", readLut, "content"_a, "file"_a = "");
}

} // namespace EffectsPython
