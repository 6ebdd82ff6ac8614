#include "Configuration.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

#include <EditorExternalResourses/ShaderISFKeys.h>
#include <EditorSerialization/MessageText.h>

#include "Conversion.h"

namespace External::ShaderISF {

using Serialize::quotedText;
using Serialize::shortenedText;

namespace {

using Json = nlohmann::json;
using Output = nlohmann::ordered_json; // keeps the order in which keys are set

/// An object of the head, and its path.
class Node
{
public:
    /// `place` is the path of `object` within the head, such as "INPUTS[2]"; empty for the head itself.
    Node(Json const & object, std::string place)
        : m_object(object)
        , m_place(std::move(place))
    {
        if (!object.is_object())
            throw std::runtime_error((m_place.empty() ? "the head" : m_place) + " must be an object");
    }

    /// The value of `key`, or null. JSON's null counts as no value.
    Json const * find(Key key) const
    {
        for (std::string_view const form : {key.upper, key.lower}) {
            if (auto const found = m_object.find(form); found != m_object.end() && !found->is_null())
                return &*found;
        }
        return nullptr;
    }

    template <class T> std::optional<T> get(Key key) const
    {
        Json const * const value = find(key);
        if (!value)
            return {};
        std::optional<T> converted = Conversion<T>::from(*value);
        if (!converted)
            fail(key, "must be " + Conversion<T>::kind());
        return converted;
    }

    template <class T> T get(Key key, T fallback) const { return get<T>(key).value_or(std::move(fallback)); }

    std::string place(Key key) const { return (m_place.empty() ? "" : m_place + '.') + std::string(key.upper); }

    [[noreturn]] void fail(Key key, std::string const & problem) const
    {
        throw std::runtime_error(place(key) + ' ' + problem);
    }

private:
    Json const & m_object;
    std::string m_place;
};

/// Calls `visit(Node)` for each object in the array under `key`.
template <class Visit> void forEachObject(Node const & node, Key key, Visit visit)
{
    Json const * const array = node.find(key);
    if (!array)
        return;
    if (!array->is_array())
        node.fail(key, "must be an array of objects");
    std::string const place = node.place(key);
    std::size_t index = 0;
    for (Json const & object : *array)
        visit(Node(object, place + '[' + std::to_string(index++) + ']'));
}

template <class T> void setOptional(Output & output, Key key, std::optional<T> const & value)
{
    if (value)
        output[key.upper] = *value;
}

/// The shader declares a variable of this name.
bool isIdentifier(std::string_view text)
{
    auto const isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    auto const isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !text.empty() && isLetter(text[0]) &&
           std::all_of(text.begin(), text.end(), [&](char c) { return isLetter(c) || isDigit(c); });
}

/// The names of the variables that the inputs and imports declare.
class Names
{
public:
    /// Adds `name`, found at `place`; throws if it is not a valid or not a unique variable name.
    void add(std::string const & name, std::string const & place)
    {
        if (!isIdentifier(name))
            throw std::runtime_error(place + ": " + quotedText(name) + " is no name of a GLSL variable");
        if (!m_names.insert(name).second)
            throw std::runtime_error(place + ": the name " + quotedText(name) + " is used twice");
    }

private:
    std::set<std::string> m_names;
};

// Inputs. Each function sets the members of its input type besides name, type and label.

void fillNothing(Node const &, Output &) {}

void fillBool(Node const & input, Output & output)
{
    output[Keys::defaultValue.upper] = input.get(Keys::defaultValue, false);
    setOptional(output, Keys::identity, input.get<bool>(Keys::identity));
}

/// A menu if the file has values or labels, else a number.
void fillLong(Node const & input, Output & output)
{
    auto values = input.get<std::vector<std::int32_t>>(Keys::values);
    auto labels = input.get(Keys::labels, std::vector<std::string>());
    if (!values) {
        values.emplace(labels.size());
        for (std::size_t i = 0; i < labels.size(); ++i)
            (*values)[i] = static_cast<std::int32_t>(i);
    }
    labels.resize(std::min(labels.size(), values->size()));
    for (std::size_t i = labels.size(); i < values->size(); ++i)
        labels.push_back(std::to_string((*values)[i]));

    auto const minimum = input.get<std::int32_t>(Keys::minimum);
    auto const maximum = input.get<std::int32_t>(Keys::maximum);
    std::int32_t const first = values->empty() ? minimum.value_or(0) : values->front();
    output[Keys::defaultValue.upper] = input.get(Keys::defaultValue, first);
    setOptional(output, Keys::minimum, minimum);
    setOptional(output, Keys::maximum, maximum);
    setOptional(output, Keys::identity, input.get<std::int32_t>(Keys::identity));
    output[Keys::values.upper] = *values;
    output[Keys::labels.upper] = labels;
}

/// A missing bound is 0 or 1, or the other bound where that is outside.
void fillFloat(Node const & input, Output & output)
{
    auto const givenMinimum = input.get<double>(Keys::minimum);
    auto const givenMaximum = input.get<double>(Keys::maximum);
    double minimum = givenMinimum.value_or(std::min(0.0, givenMaximum.value_or(0.0)));
    double maximum = givenMaximum.value_or(std::max(1.0, givenMinimum.value_or(1.0)));
    if (minimum > maximum)
        std::swap(minimum, maximum);
    output[Keys::defaultValue.upper] = input.get(Keys::defaultValue, std::clamp(0.0, minimum, maximum));
    output[Keys::minimum.upper] = minimum;
    output[Keys::maximum.upper] = maximum;
    setOptional(output, Keys::identity, input.get<double>(Keys::identity));
}

/// A point has only the bounds that the file gives.
void fillPoint(Node const & input, Output & output)
{
    using Point = std::array<double, 2>;
    auto const minimum = input.get<Point>(Keys::minimum);
    auto const maximum = input.get<Point>(Keys::maximum);
    Point start{0.0, 0.0};
    for (std::size_t i = 0; i < start.size(); ++i) {
        if (minimum)
            start[i] = std::max(start[i], (*minimum)[i]);
        if (maximum)
            start[i] = std::min(start[i], (*maximum)[i]);
    }
    output[Keys::defaultValue.upper] = input.get(Keys::defaultValue, start);
    setOptional(output, Keys::minimum, minimum);
    setOptional(output, Keys::maximum, maximum);
    setOptional(output, Keys::identity, input.get<Point>(Keys::identity));
}

void fillColor(Node const & input, Output & output)
{
    using Color = std::array<double, 4>; // red, green, blue, alpha
    output[Keys::defaultValue.upper] = input.get(Keys::defaultValue, Color{0.0, 0.0, 0.0, 1.0});
    output[Keys::minimum.upper] = input.get(Keys::minimum, Color{0.0, 0.0, 0.0, 0.0});
    output[Keys::maximum.upper] = input.get(Keys::maximum, Color{1.0, 1.0, 1.0, 1.0});
    setOptional(output, Keys::identity, input.get<Color>(Keys::identity));
}

/// The maximum number of samples; without one, all samples are passed.
void fillAudio(Node const & input, Output & output)
{
    if (auto const samples = input.get<std::int32_t>(Keys::maximum); samples && *samples > 0)
        output[Keys::maximum.upper] = *samples;
}

struct InputType
{
    std::string_view name;
    void (*fill)(Node const & input, Output & output);
};

constexpr InputType inputTypes[] = {
    {"event", fillNothing},
    {"bool", fillBool},
    {"long", fillLong},
    {"float", fillFloat},
    {"point2D", fillPoint},
    {"color", fillColor},
    {"image", fillNothing},
    {"audio", fillAudio},
    {"audioFFT", fillAudio},
};

InputType const & findInputType(Node const & input)
{
    std::string const name = input.get(Keys::type, std::string());
    // Files differ in the case of "point2D" and "audioFFT".
    auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    for (InputType const & type : inputTypes) {
        if (std::equal(name.begin(), name.end(), type.name.begin(), type.name.end(),
                [&](char a, char b) { return lower(a) == lower(b); }))
            return type;
    }
    input.fail(Keys::type, name.empty() ? "is missing" : "is " + quotedText(name) + ", which is no type of inputs");
}

Output makeInputs(Node const & head, Names & names)
{
    Output inputs = Output::array();
    forEachObject(head, Keys::inputs, [&](Node const & input) {
        std::string const name = input.get(Keys::name, std::string());
        names.add(name, input.place(Keys::name));
        InputType const & type = findInputType(input);
        Output output;
        output[Keys::name.upper] = name;
        output[Keys::type.upper] = type.name;
        output[Keys::label.upper] = input.get(Keys::label, name);
        type.fill(input, output);
        inputs.push_back(std::move(output));
    });
    return inputs;
}

// Passes

/// The buffers that version 1 lists apart from the passes: an array of names, or an object with details by name.
std::map<std::string, Node> findPersistentBuffers(Node const & head)
{
    static Json const nothing = Json::object();
    std::map<std::string, Node> buffers;
    Json const * const list = head.find(Keys::persistentBuffers);
    if (!list)
        return buffers;
    std::string const place = head.place(Keys::persistentBuffers);
    if (list->is_object()) {
        for (auto const & [name, buffer] : list->items())
            buffers.emplace(name, Node(buffer, place + '.' + shortenedText(name)));
    } else {
        for (std::string const & name : head.get(Keys::persistentBuffers, std::vector<std::string>()))
            buffers.emplace(name, Node(nothing, place));
    }
    return buffers;
}

/// A number or a formula, as text; `whole` where there is none.
std::string getExtent(Node const & pass, Node const & buffer, Key key, std::string const & whole)
{
    for (Node const * node : {&pass, &buffer}) {
        if (std::string extent = node->get(key, std::string()); !extent.empty())
            return extent;
    }
    return whole;
}

Output makePass(Node const & pass, std::map<std::string, Node> const & buffers)
{
    std::string const target = pass.get(Keys::target, std::string());
    if (!target.empty() && !isIdentifier(target))
        pass.fail(Keys::target, "is " + quotedText(target) + ", which is no name of a GLSL variable");
    auto const found = buffers.find(target);
    bool const isListed = found != buffers.end();
    Node const & buffer = isListed ? found->second : pass;

    Output output;
    output[Keys::target.upper] = target;
    output[Keys::persistent.upper] = pass.get(Keys::persistent, false) || isListed;
    output[Keys::floatBuffer.upper] = pass.get(Keys::floatBuffer, false) || buffer.get(Keys::floatBuffer, false);
    output[Keys::width.upper] = getExtent(pass, buffer, Keys::width, "$WIDTH");
    output[Keys::height.upper] = getExtent(pass, buffer, Keys::height, "$HEIGHT");
    return output;
}

/// At least one pass: the one that draws the result.
Output makePasses(Node const & head)
{
    auto const buffers = findPersistentBuffers(head);
    Output passes = Output::array();
    forEachObject(head, Keys::passes, [&](Node const & pass) { passes.push_back(makePass(pass, buffers)); });
    if (passes.empty())
        passes.push_back(makePass(Node(Json::object(), {}), buffers));
    return passes;
}

// Imports

/// One path for a picture or six for a cube map, left, right, bottom, top, front and back.
Output makePath(Node const & import, ResolvePath const & resolvePath)
{
    constexpr std::size_t cubeSides = 6;
    Json const * const value = import.find(Keys::path);
    bool const isCube = value && value->is_array();
    std::vector<std::string> paths = isCube ? import.get(Keys::path, std::vector<std::string>())
                                            : std::vector{import.get(Keys::path, std::string())};
    if (isCube && paths.size() != cubeSides)
        import.fail(Keys::path, "must be one text, or six for a cube map");
    for (std::string & path : paths) {
        if (path.empty())
            import.fail(Keys::path, "is missing or empty");
        path = resolvePath(path);
    }
    return isCube ? Output(paths) : Output(paths.front());
}

Output makeImport(Node const & import, std::string const & name, ResolvePath const & resolvePath)
{
    Output output;
    output[Keys::name.upper] = name;
    output[Keys::path.upper] = makePath(import, resolvePath);
    return output;
}

/// Files write an array of imports, or an object of them by name.
Output makeImports(Node const & head, Names & names, ResolvePath const & resolvePath)
{
    Output imports = Output::array();
    Json const * const value = head.find(Keys::imported);
    if (!value || !value->is_object()) {
        forEachObject(head, Keys::imported, [&](Node const & import) {
            std::string const name = import.get(Keys::name, std::string());
            names.add(name, import.place(Keys::name));
            imports.push_back(makeImport(import, name, resolvePath));
        });
        return imports;
    }
    std::string const place = head.place(Keys::imported);
    for (auto const & [name, import] : value->items()) {
        names.add(name, place);
        imports.push_back(makeImport(Node(import, place + '.' + shortenedText(name)), name, resolvePath));
    }
    return imports;
}

} // namespace

std::string makeConfiguration(Json const & headObject, ResolvePath const & resolvePath)
{
    Node const head(headObject, {});
    Names names;
    Output output;
    output[Keys::isfVersion.upper] = head.get(Keys::isfVersion, std::string("1"));
    output[Keys::description.upper] = head.get(Keys::description, std::string());
    output[Keys::credit.upper] = head.get(Keys::credit, std::string());
    output[Keys::categories.upper] = head.get(Keys::categories, std::vector<std::string>());
    output[Keys::inputs.upper] = makeInputs(head, names);
    output[Keys::passes.upper] = makePasses(head);
    output[Keys::imported.upper] = makeImports(head, names, resolvePath);
    return output.dump();
}

} // namespace External::ShaderISF
