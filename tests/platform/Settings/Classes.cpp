#include "Classes.h"

#include <stdexcept>
#include <typeinfo>

namespace SettingsClasses {

namespace {

std::unique_ptr<Settings> make(Settings const & fresh, Row const & row)
{
    auto settings = fresh.Clone();
    row.expectStart(*settings);
    row.give(*settings);
    row.expectGiven(*settings);
    return settings;
}

void checkValue(Settings const & fresh, Row const & row)
{
    auto const settings = make(fresh, row);
    EXPECT_FALSE(settings->IsEmpty());
    EXPECT_FALSE(settings->IsEqualTo(fresh));
    EXPECT_FALSE(fresh.IsEqualTo(*settings));

    auto const clone = settings->Clone();
    Settings const & copy = *clone;
    EXPECT_TRUE(typeid(copy) == typeid(fresh));
    EXPECT_TRUE(clone->IsEqualTo(*settings));
    row.expectGiven(*clone);
}

void checkTrace(Settings const & fresh, Row const & row)
{
    Trace const trace;
    auto const calls = trace.calls(*make(fresh, row));
    if (row.isField) {
        EXPECT_TRUE(calls.empty());
        return;
    }
    auto const recorded = row.recorded();
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].setter, std::string("Set") + row.name);
    ASSERT_EQ(calls[0].arguments.size(), recorded.size());
    for (std::size_t index = 0; index < recorded.size(); ++index) {
        if (recorded[index] != Value()) {
            EXPECT_EQ(calls[0].arguments[index], recorded[index]);
        }
    }
}

/// A record says a setting by its argument, or by the list of its arguments, and a data member by its value.
Record recordOf(Settings const & fresh, Row const & row)
{
    Trace const trace;
    auto const settings = make(fresh, row);
    if (row.isField) {
        return settings->GetFields();
    }
    auto const arguments = trace.calls(*settings).at(0).arguments;
    return {{row.name, arguments.size() == 1 ? arguments[0] : Value(arguments)}};
}

void checkReading(Settings const & fresh, Row const & row)
{
    auto const read = fresh.Clone();
    read->Deserialize(recordOf(fresh, row));
    row.expectGiven(*read);
    EXPECT_TRUE(read->IsEqualTo(*make(fresh, row)));
    EXPECT_THROW(read->Deserialize({{row.name, Value::Object{{"no", "form"}}}}), std::invalid_argument);
}

void checkOrder(Settings const & fresh, std::vector<Row> const & rows)
{
    Trace const trace;
    auto const settings = fresh.Clone();
    std::vector<std::string> expectedCalls;
    std::vector<std::string> expectedFields;
    for (Row const & row : rows) {
        row.give(*settings);
        row.isField ? expectedFields.push_back(row.name) : expectedCalls.push_back(std::string("Set") + row.name);
    }

    std::vector<std::string> calls;
    for (Trace::Call const & call : trace.calls(*settings)) {
        calls.push_back(call.setter);
    }
    EXPECT_EQ(calls, expectedCalls);

    std::vector<std::string> fields;
    for (auto const & [name, value] : settings->GetFields()) {
        fields.push_back(name);
    }
    EXPECT_EQ(fields, expectedFields);
}

} // namespace

void check(char const * name, Settings const & fresh, std::vector<Row> const & rows)
{
    EXPECT_EQ(fresh.GetClassId(), name);
    EXPECT_TRUE(fresh.IsEmpty());
    EXPECT_TRUE(fresh.IsEqualTo(*fresh.Clone()));
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        checkValue(fresh, row);
        checkTrace(fresh, row);
        if (row.canBeRead) {
            checkReading(fresh, row);
        }
    }
    checkOrder(fresh, rows);
}

} // namespace SettingsClasses
