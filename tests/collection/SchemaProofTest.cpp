// The descriptions, held to the conversions: every parameter of every class that is converted is set to its bounds,
// beyond them, to its choices and to numbers that are none, among random settings of the others, and the record must be
// the one that the description promises.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <EditorSerialization/Layout.h>
#include <effects/Schema.h>
#include <support/Conversion.h>
#include <support/Images.h>
#include <support/Resources.h>
#include <support/Tracks.h>
#include <support/Variations.h>

#include <glog/logging.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QGuiApplication>

namespace {

using namespace Effect;
using nlohmann::json;
using Schema::Class;
using Schema::Kind;
using Schema::Parameter;
using Serialize::ISerializable;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int settingCount = 16; ///< of the other parameters

// --- Values ----------------------------------------------------------------------------------------------------------

bool isUnending(json const & value)
{
    return value.is_number_float() && !std::isfinite(value.get<double>());
}

std::string textOf(json const & value)
{
    return isUnending(value) ? std::to_string(value.get<double>()) : value.dump();
}

/// Sets any value, also a number that is not finite, as an archive can hold it.
void put(ISerializable & object, Parameter const & parameter, json const & value)
{
    if (isUnending(value))
        *static_cast<double *>(parameter.layout->address(object)) = value.get<double>();
    else
        setValue(object, parameter, value);
}

bool isReal(Parameter const & parameter)
{
    return parameter.kind == Kind::Real;
}

/// The lowest and the highest integer of the parameter's type.
std::pair<std::int64_t, std::int64_t> typeLimits(Parameter const & parameter)
{
    if (parameter.type == "uint32")
        return {0, std::numeric_limits<std::uint32_t>::max()};
    if (parameter.type == "int64")
        return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
}

/// A number as a value of the parameter.
json numberFor(Parameter const & parameter, double number)
{
    return isReal(parameter) ? json(number) : json(static_cast<std::int64_t>(number));
}

bool isChoice(Parameter const & parameter, std::int64_t number)
{
    return std::any_of(parameter.choices.begin(), parameter.choices.end(),
        [&](Choice const & choice) { return choice.value == number; });
}

/// Just beyond a bound, beyond it and far beyond it. Some conversions narrow, so the nearest single-precision number
/// is the first that surely is another one.
std::vector<json> beyondBound(Parameter const & parameter, double bound, int direction)
{
    if (isReal(parameter))
        return {std::nextafterf(static_cast<float>(bound), static_cast<float>(direction * infinity)), bound + direction,
            bound + direction * 1e6, direction * 1e300, direction * infinity};
    auto const [lowest, highest] = typeLimits(parameter);
    auto const number = static_cast<std::int64_t>(bound);
    std::vector<json> values;
    for (std::int64_t const step : {1, 2, 1000, 1000000})
        if (direction < 0 ? number - step >= lowest : number + step <= highest)
            values.emplace_back(number + direction * step);
    values.emplace_back(direction < 0 ? lowest : highest);
    return values;
}

/// Values beyond the bounds, and numbers that are no choices.
std::vector<json> beyondValues(Parameter const & parameter)
{
    std::vector<json> values;
    auto const add = [&](std::vector<json> const & more) { values.insert(values.end(), more.begin(), more.end()); };
    if (parameter.minimum)
        add(beyondBound(parameter, *parameter.minimum, -1));
    if (parameter.maximum)
        add(beyondBound(parameter, *parameter.maximum, 1));
    if (isReal(parameter) && !values.empty())
        values.emplace_back(notANumber);
    if (!parameter.choices.empty()) {
        std::int64_t const first = parameter.choices.front().value;
        std::int64_t const last = parameter.choices.back().value;
        for (std::int64_t number = first - 1; number <= last + 1; ++number)
            if (!isChoice(parameter, number))
                values.emplace_back(number);
        auto const [lowest, highest] = typeLimits(parameter);
        add({lowest, highest});
    }
    return values;
}

/// The bound that a number counts as where numbers are clamped; what is no number counts as the minimum, if there is
/// one.
double nearerBound(Parameter const & parameter, double number)
{
    if (parameter.minimum && !(number >= *parameter.minimum))
        return *parameter.minimum;
    return parameter.maximum && !(number <= *parameter.maximum) ? *parameter.maximum : number;
}

double nearestChoice(Parameter const & parameter, double number)
{
    return std::min_element(parameter.choices.begin(), parameter.choices.end(),
        [&](Choice const & a, Choice const & b) { return std::abs(a.value - number) < std::abs(b.value - number); })
        ->value;
}

// --- Random settings -------------------------------------------------------------------------------------------------

/// Names of the files, pictures and tracks that the tests have, and of some that there are not.
char const * const texts[] = {
    "", "warm", "cold", "glow", "haze", "plain", "large", "small", "left", "right", "nowhere"};

class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {}

    std::size_t below(std::size_t count) { return m_engine() % count; }

    double between(double least, double most)
    {
        return least + (most - least) * (static_cast<double>(m_engine()) / 4294967296.0);
    }

    /// Paths of shader files, for texts.
    std::vector<std::string> paths;

    double number(Parameter const & parameter)
    {
        double const least = parameter.suggestedMinimum.value_or(parameter.minimum.value_or(-1));
        double const most = parameter.suggestedMaximum.value_or(parameter.maximum.value_or(least + 2));
        switch (below(6)) {
        case 0:
            return parameter.defaultValue().get<double>();
        case 1:
            return std::array{0.0, 1.0, -1.0, 0.5, 100.0}[below(5)];
        case 2:
            return between(-1000, 1000);
        default:
            return between(least, most);
        }
    }

    json transform()
    {
        if (below(6) == 0)
            return {1, 0, 0, 0, 1, 0, 0, 0, 1};
        json numbers = json::array();
        for (double const middle : {1, 0, 0, 0, 1, 0, 0, 0, 1})
            numbers.push_back(middle + (below(2) ? between(-0.75, 0.75) : 0));
        return numbers;
    }

    std::string text()
    {
        std::size_t const index = below(std::size(texts) + paths.size());
        return index < std::size(texts) ? texts[index] : paths[index - std::size(texts)];
    }

    /// A value of any parameter but a list.
    json value(Parameter const & parameter)
    {
        switch (parameter.kind) {
        case Kind::Boolean:
            return below(2) == 0;
        case Kind::Real:
            return number(parameter);
        case Kind::Integer:
        case Kind::Time: {
            auto const [lowest, highest] = typeLimits(parameter);
            auto const rounded = static_cast<std::int64_t>(std::round(number(parameter)));
            return std::clamp(rounded, lowest, highest);
        }
        case Kind::Color:
            return static_cast<std::uint32_t>(m_engine());
        case Kind::Enumeration:
            return below(8) ? parameter.choices[below(parameter.choices.size())].value
                            : std::array{-1, 99, -1000}[below(3)];
        case Kind::Transform:
            return transform();
        case Kind::Resource:
            return {{"name", text()}, {"type", below(5)}};
        case Kind::Record:
            return below(2) ? json() : json{{"start", below(1000)}, {"length", below(4000000)}};
        case Kind::Text:
        case Kind::List:
            break;
        }
        return text();
    }

    /// Sets all parameters but the identifier. @param elementCount  of each list; 0 to 3 when there is none
    void set(ISerializable & object, Class const & info, std::optional<std::size_t> elementCount = {})
    {
        for (Parameter const & parameter : info.parameters)
            if (parameter.kind == Kind::List)
                setList(object, parameter, elementCount.value_or(below(4)));
            else if (parameter.key != "id")
                put(object, parameter, value(parameter));
    }

    void setList(ISerializable & object, Parameter const & list, std::size_t count)
    {
        setValue(object, list, json(count, json::object()));
        for (std::size_t index = 0; index < count; ++index)
            set(*element(object, list, index), *list.elements);
    }

private:
    std::mt19937 m_engine;
};

// --- One parameter ---------------------------------------------------------------------------------------------------

/// What the engine would be given: the calls and fields of all settings, with the step that executes them.
std::string recordOf(Object const & effect)
{
    Factory::SettingsFactory const factory; // caches would answer for files by name
    try {
        Factory::VideoParams video;
        video.frameGeometry = {1920, 1080};
        video.duration = 4000000;
        Factory::AudioParams audio;
        audio.sampleRate = 44100;
        auto const converted =
            effect.type() == Type::Audio ? Testing::convert(effect, audio) : Testing::convert(effect, video);
        std::string text = std::to_string(converted.stageCode) + ' ' + converted.implementation;
        for (std::string const & settings : converted.settings)
            text += '\n' + settings;
        return text;
    } catch (std::exception const & error) {
        return std::string("throws ") + error.what();
    }
}

/// A parameter of an effect or of the elements in one of its lists, among random settings of the others.
class Subject
{
public:
    /// @param list  null for a parameter of the effect itself
    Subject(Class const & info, Parameter const * list, Parameter const & parameter, Random & random)
        : m_name(info.name + (list ? list->pointer + "/*" : "") + parameter.pointer)
        , m_parameter(parameter)
    {
        for (std::size_t index = 0; index < settingCount; ++index) {
            auto object = info.create();
            auto * const effect = &dynamic_cast<Object &>(*object);
            object.release();
            m_effects.emplace_back(effect);
            std::size_t const elements = 2 + index % 2;
            random.set(*effect, info, list ? std::optional(elements) : std::nullopt);
            m_targets.push_back(list ? element(*effect, *list, index % elements) : effect);
        }
    }

    /// The records with that value of the parameter, for each setting of the others.
    std::vector<std::string> const & records(json const & value)
    {
        auto const [found, isNew] = m_records.try_emplace(textOf(value));
        if (isNew)
            for (std::size_t index = 0; index < m_effects.size(); ++index) {
                put(*m_targets[index], m_parameter, value);
                found->second.push_back(recordOf(*m_effects[index]));
            }
        return found->second;
    }

    bool isSame(json const & value, json const & other) { return records(value) == records(other); }

    /// Fails unless both values make the same record in every setting.
    bool expectSame(json const & value, json const & other, char const * claim)
    {
        auto const & given = records(value);
        auto const & expected = records(other);
        auto const [differs, expectedRecord] = std::mismatch(given.begin(), given.end(), expected.begin());
        if (differs == given.end())
            return true;
        ADD_FAILURE() << m_name << " is " << claim << ", but " << textOf(value) << " makes the record\n"
                      << *differs << "\nand " << textOf(other) << " the record\n"
                      << *expectedRecord;
        return false;
    }

    /// Fails unless the values make different records in some setting.
    bool expectDifferent(json const & value, json const & other, char const * claim)
    {
        if (!isSame(value, other))
            return true;
        ADD_FAILURE() << m_name << " is " << claim << ", but " << textOf(value) << " and " << textOf(other)
                      << " always make the same record, such as\n"
                      << records(value).front();
        return false;
    }

    Parameter const & parameter() const { return m_parameter; }
    std::string const & name() const { return m_name; }

private:
    std::string m_name;
    Parameter const & m_parameter;
    std::vector<std::unique_ptr<Object>> m_effects;
    std::vector<ISerializable *> m_targets;
    std::map<std::string, std::vector<std::string>> m_records;
};

/// Values of all sorts, by which to see whether the parameter does anything.
std::vector<json> anyValues(Parameter const & parameter, Random & random)
{
    std::vector<json> values;
    if (parameter.kind == Kind::Boolean)
        return {false, true};
    if (parameter.kind == Kind::List) {
        for (std::size_t const count : {0, 1, 2, 3}) {
            auto const object = parameter.classInfo->create();
            random.setList(*object, parameter, count);
            values.push_back(value(*object, parameter));
        }
        return values;
    }
    if (parameter.kind == Kind::Text) {
        values.assign(std::begin(texts), std::end(texts));
        values.insert(values.end(), random.paths.begin(), random.paths.end());
        values.push_back(parameter.defaultValue()); // of the identifier, the one that is known
        return values;
    }
    for (int count = 0; count < 6; ++count)
        values.push_back(random.value(parameter));
    if (parameter.kind == Kind::Resource)
        for (char const * const name : texts)
            values.push_back({{"name", name}, {"type", 4}});
    if (isReal(parameter))
        for (double const number : {0.0, 1.0, -1.0, 20.0, -1e300, infinity, -infinity, notANumber})
            values.emplace_back(number);
    if (parameter.kind == Kind::Integer || parameter.kind == Kind::Time || parameter.kind == Kind::Enumeration) {
        auto const [lowest, highest] = typeLimits(parameter);
        for (std::int64_t const number : {std::int64_t(0), std::int64_t(1), std::int64_t(90), lowest, highest})
            values.emplace_back(number);
    }
    for (Choice const & choice : parameter.choices)
        values.emplace_back(choice.value);
    return values;
}

void proveEffectiveness(Subject & subject, Random & random)
{
    Parameter const & parameter = subject.parameter();
    std::vector<json> const values = anyValues(parameter, random);
    for (json const & value : values)
        if (!*parameter.isEffective) {
            if (!subject.expectSame(value, values.front(), "ineffective"))
                return;
        } else if (!subject.isSame(value, values.front())) {
            return;
        }
    if (*parameter.isEffective)
        ADD_FAILURE() << subject.name() << " is effective, but no value changes the record\n"
                      << subject.records(values.front()).front();
}

/// The value that the description says counts instead of one that lies beyond; nothing where it is the value itself.
std::optional<double> counterpart(Parameter const & parameter, double number)
{
    switch (*parameter.beyond) {
    case Beyond::Clamped:
        return nearerBound(parameter, number);
    case Beyond::Nearest:
        return nearestChoice(parameter, number);
    case Beyond::Fallback:
        return parameter.fallback;
    case Beyond::Passed:
    case Beyond::Refused:
        break;
    }
    return std::nullopt;
}

void proveRefusal(Subject const & subject, Class const & info, json const & value)
{
    auto const object = info.create();
    EXPECT_THROW(setValue(*object, subject.parameter(), value), std::invalid_argument)
        << subject.name() << ' ' << textOf(value);
    put(*object, subject.parameter(), value);
    EXPECT_ANY_THROW(Testing::objectOf(Testing::documentOf(*object))) << subject.name() << ' ' << textOf(value);
}

/// Values beyond make the records that the description says.
void proveBeyond(Subject & subject)
{
    Parameter const & parameter = subject.parameter();
    char const * const claim = Schema::toString(*parameter.beyond);
    for (json const & value : beyondValues(parameter)) {
        double const number = value.get<double>();
        if (*parameter.beyond == Beyond::Refused) {
            proveRefusal(subject, *parameter.classInfo, value);
        } else if (*parameter.beyond == Beyond::Passed) {
            double const other =
                parameter.choices.empty() ? nearerBound(parameter, number) : nearestChoice(parameter, number);
            if (!subject.expectDifferent(value, numberFor(parameter, other), claim))
                return;
        } else if (!subject.expectSame(value, numberFor(parameter, *counterpart(parameter, number)), claim)) {
            return;
        }
    }
}

/// Where values beyond a bound count as the bound, values well within must not: half or twice as far from zero.
void proveBounds(Subject & subject)
{
    Parameter const & parameter = subject.parameter();
    auto const proveBound = [&](double bound, int inwards) {
        double const within = bound == 0 ? inwards : bound * inwards > 0 ? bound * 2 : bound / 2;
        double const rounded = isReal(parameter) ? within : inwards > 0 ? std::ceil(within) : std::floor(within);
        subject.expectDifferent(numberFor(parameter, rounded), numberFor(parameter, bound), "clamped at a bound");
    };
    if (parameter.minimum)
        proveBound(*parameter.minimum, 1);
    if (parameter.maximum)
        proveBound(*parameter.maximum, -1);
}

/// Each choice makes a record of its own, other than that of the fallback unless it is the fallback.
void proveChoices(Subject & subject)
{
    Parameter const & parameter = subject.parameter();
    std::set<json> values;
    for (Choice const & choice : parameter.choices)
        values.insert(choice.value);
    if (parameter.fallback)
        values.insert(numberFor(parameter, *parameter.fallback));
    for (auto value = values.begin(); value != values.end(); ++value)
        for (auto other = values.begin(); other != value; ++other)
            if (!subject.expectDifferent(*value, *other, "a choice"))
                return;
}

void prove(Subject subject, Random & random)
{
    Parameter const & parameter = subject.parameter();
    SCOPED_TRACE(subject.name());
    bool const isBounded = parameter.minimum || parameter.maximum;
    ASSERT_TRUE(parameter.isEffective.has_value());
    ASSERT_EQ(parameter.beyond.has_value(), isBounded || !parameter.choices.empty());
    ASSERT_TRUE(!parameter.beyond || parameter.kind == Kind::Integer || parameter.kind == Kind::Real ||
                parameter.kind == Kind::Time || parameter.kind == Kind::Enumeration);
    proveEffectiveness(subject, random);
    if (!parameter.beyond)
        return;
    proveBeyond(subject);
    if (*parameter.isEffective && *parameter.beyond == Beyond::Clamped)
        proveBounds(subject);
    if (*parameter.isEffective)
        proveChoices(subject);
}

// --- Every class -----------------------------------------------------------------------------------------------------

bool isProven(Class const & info)
{
    return info.isConverted && info.isEffect;
}

std::vector<Class const *> provenClasses()
{
    std::vector<Class const *> classes;
    for (Class const * info : Schema::classes())
        if (isProven(*info))
            classes.push_back(info);
    return classes;
}

std::string track(double left)
{
    return R"({"frames": [{"time": 0, "rect": [)" + std::to_string(left) + R"(, 0.2, 0.75, 0.5]}, )" +
           R"({"time": 4000000, "rect": [0.25, 0.5, 0.875, 0.75]}]})";
}

class SchemaProof : public testing::TestWithParam<Class const *>
{
protected:
    SchemaProof()
    {
        FLAGS_minloglevel = google::FATAL; // records without settings are errors, and many
    }
    ~SchemaProof() override { FLAGS_minloglevel = m_minimumLogLevel; }

    void SetUp() override
    {
        writeImages();
        writeResources();
        random.paths = {resources.path("glow.fs").toStdString(), resources.path("haze.fs").toStdString(),
            resources.folder().toStdString()};
    }

    Testing::TemporaryResources resources;
    Random random{20};

private:
    /// Pictures are read as their sizes in a record: no two are alike.
    void writeImages()
    {
        int width = 1;
        for (char const * const mask :
            {"bang", "blossom", "bokeh", "butterfly", "clover", "diamonds", "heart", "ice", "star"})
            Testing::writeImage(::Settings::stockBlurMasksPath() + '/' + mask + ".png", width++, 1);
        for (char const * const object :
            {"leaf2", "baloon", "bunny", "cupid2", "gift box", "ghost2", "heart", "envelope2", "paper plane",
                "umbrella", "rose2", "flower1", "star", "air baloon", "snowflake3", "snowflake2"})
            Testing::writeImage(::Settings::stockFlyingObjectsPath() + '/' + object + ".png", width++, 1);
    }

    /// Files of every kind by names of `texts`.
    void writeResources()
    {
        resources.write("warm.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
        resources.write("cold.cube", "LUT_1D_SIZE 3\n0 0 0\n0.5 0.5 0.5\n1 1 1\n");
        resources.write("glow.fs", "/*{}*/void main() { gl_FragColor = vec4(1.0); }\n");
        resources.write("haze.fs", "/*{\"CREDIT\": \"us\"}*/void main() { gl_FragColor = vec4(0.5); }\n");
        resources.write("haze.vs", "void main() { isf_vertShaderInit(); }\n");
        resources.write("plain.frag", "void main() {}\n");
        Testing::writeImage(resources.path("large.png"), 9, 7);
        Testing::writeImage(resources.path("small.png"), 3, 2);
        for (auto const & [name, file] : {std::pair{"warm", "warm.cube"}, {"cold", "cold.cube"}, {"glow", "glow.fs"},
                 {"haze", "haze.fs"}, {"plain", "plain.frag"}})
            resources.add(name, file);
        for (auto const & [name, file] : {std::pair{"large", "large.png"}, {"small", "small.png"}})
            resources.add(name, file, Resource::Type::Image);
    }

    int const m_minimumLogLevel = FLAGS_minloglevel;
    int m_count = 1;
    char m_name[6] = "tests";
    char * m_arguments[2] = {m_name, nullptr};
    QGuiApplication m_application{m_count, m_arguments}; // pictures cannot be made without
    Testing::TemporaryStock m_stock;
    Testing::TemporaryTrack m_left{"left", track(0.125)};
    Testing::TemporaryTrack m_right{"right", track(0.375)};
};

INSTANTIATE_TEST_SUITE_P(EveryClass, SchemaProof, testing::ValuesIn(provenClasses()),
    [](testing::TestParamInfo<Class const *> const & test) { return test.param->name.substr(sizeof "Effect::" - 1); });

TEST_P(SchemaProof, HoldsForEachParameter)
{
    Class const & info = *GetParam();
    for (Parameter const & parameter : info.parameters) {
        prove(Subject(info, nullptr, parameter, random), random);
        if (parameter.kind == Kind::List)
            for (Parameter const & ofElement : parameter.elements->parameters)
                prove(Subject(info, &parameter, ofElement, random), random);
    }
}

// None is left out: a class is either proven, or an element in a list of one that is, or never converted.
TEST(SchemaProofClasses, AreAllThatAreConverted)
{
    std::set<Class const *> reached;
    for (Class const * info : provenClasses()) {
        reached.insert(info);
        for (Parameter const & parameter : info->parameters)
            if (parameter.kind == Kind::List)
                reached.insert(parameter.elements);
    }
    for (Class const * info : Schema::classes())
        EXPECT_EQ(info->isConverted, reached.count(info) != 0) << info->name;
}

TEST(SchemaProofClasses, ThatAreNotConvertedMakeNoRecord)
{
    std::string const empty = "0 ";
    for (Class const * info : Schema::classes())
        if (info->isEffect && !info->isConverted) {
            auto const object = info->create();
            EXPECT_EQ(recordOf(dynamic_cast<Object const &>(*object)), empty) << info->name;
        }
}

} // namespace
