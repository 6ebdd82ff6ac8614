#include <inspect/Bounds.h>

#include <algorithm>
#include <cmath>

#include <EditorSerialization/JsonArchive.h>

namespace Effect::Inspect {

using nlohmann::json;
using Schema::Kind;
using Schema::Parameter;

std::optional<double> numberIn(json const & value)
{
    double number = 0;
    try {
        Serialize::Json::Detail::load(value, number);
    } catch (std::exception const &) {
        return std::nullopt;
    }
    return number;
}

bool isChoice(double number, Parameter const & parameter)
{
    return parameter.choices.empty() || std::any_of(parameter.choices.begin(), parameter.choices.end(),
                                            [number](Choice const & choice) { return choice.value == number; });
}

double nearestChoice(double number, Parameter const & parameter)
{
    return std::min_element(parameter.choices.begin(), parameter.choices.end(),
        [number](Choice const & left, Choice const & right) {
            return std::abs(left.value - number) < std::abs(right.value - number);
        })
        ->value;
}

std::optional<double> boundBefore(double number, Parameter const & parameter)
{
    if (!parameter.minimum && !parameter.maximum)
        return std::nullopt;
    if (std::isnan(number))
        return number;
    if (parameter.minimum && number < *parameter.minimum)
        return parameter.minimum;
    return parameter.maximum && number > *parameter.maximum ? parameter.maximum : std::nullopt;
}

bool isBeyond(double number, Parameter const & parameter)
{
    return parameter.kind == Kind::Enumeration ? !isChoice(number, parameter)
                                               : boundBefore(number, parameter).has_value();
}

} // namespace Effect::Inspect
