#include <inspect/Findings.h>

#include <gmock/gmock.h>

namespace {

using Effect::Archive::Document;
using Effect::Archive::Finding;
using Effect::Archive::Severity;
using namespace Effect::Inspect;
using nlohmann::json;

TEST(Findings, EveryMemberHasAKey)
{
    Finding finding;
    finding.severity = Severity::Warning;
    finding.code = "unknown-key";
    finding.pointer = "/soze";
    finding.offset = 40;
    finding.line = 2;
    finding.column = 5;
    finding.message = "no such key";
    finding.suggestion = "size";
    json const whole{{"severity", "warning"}, {"code", "unknown-key"}, {"pointer", "/soze"}, {"offset", 40},
        {"line", 2}, {"column", 5}, {"message", "no such key"}, {"suggestion", "size"}};
    EXPECT_EQ(toJson(finding), whole);
    EXPECT_EQ(toLine("a.json", finding), "a.json:2:5: warning: no such key, at /soze; did you mean \"size\"?");
    EXPECT_EQ(toText(finding), "no such key, at /soze; did you mean \"size\"?");
    EXPECT_EQ(placeIn("a.json", finding), "a.json:2:5");
    EXPECT_EQ(placeIn("a.json", Finding()), "a.json");
    EXPECT_EQ(toJson(std::vector{finding, finding}), json::array({whole, whole}));
}

TEST(Findings, WhatDoesNotApplyIsNull)
{
    Finding finding;
    finding.severity = Severity::Note;
    finding.code = "no-effect";
    finding.message = "nothing changes";
    finding.pointer = "";
    EXPECT_EQ(toJson(finding),
        json({{"severity", "note"}, {"code", "no-effect"}, {"pointer", ""}, {"offset", nullptr}, {"line", nullptr},
            {"column", nullptr}, {"message", "nothing changes"}, {"suggestion", nullptr}}));
    EXPECT_EQ(toLine("a.bin", finding), "a.bin: note: nothing changes");
    finding.severity = Severity::Error;
    finding.pointer.reset();
    EXPECT_EQ(toJson(finding)["pointer"], nullptr);
    EXPECT_EQ(toLine("a.bin", finding), "a.bin: error: nothing changes");
}

} // namespace
