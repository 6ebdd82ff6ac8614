// Options of convert: what effects are converted for, and the report.
#include "Effectctl.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using Testing::TemporaryFolder;

json converted(QStringList const & options, QByteArray const & input = {})
{
    auto const run = effectctl(QStringList{"convert"} + options, input);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.status == 0 ? json::parse(run.output) : json();
}

TEST(Convert, TheSizeAndTheSampleRateAreOptions)
{
    QStringList const video{"--json", "--class", "Effect::FixVertVideo"};
    EXPECT_EQ(converted(video)["settings"][0]["fields"]["geometry"], json({0, 0}));
    EXPECT_EQ(
        converted(video + QStringList{"--video", "720x1280"})["settings"][0]["fields"]["geometry"], json({720, 1280}));
    QStringList const audio{"--json", "--class", "Effect::AudioReverb", "--set", "frequency=30000"};
    auto const cutOff = [](json const & record) {
        for (json const & call : record["settings"][0]["calls"])
            if (call[0] == "SetSlpfFrequency")
                return call[1];
        return json();
    };
    EXPECT_EQ(cutOff(converted(audio)), 24000);
    EXPECT_EQ(cutOff(converted(audio + QStringList{"--sample-rate", "44100"})), 22050);
}

TEST(Convert, ARequestOverridesTheOptions)
{
    QByteArray const requests = "{\"class\": \"Effect::FixVertVideo\", \"video\": {\"frameGeometry\": [3, 4]}}\n"
                                "{\"class\": \"Effect::FixVertVideo\"}\n";
    auto const run = effectctl({"convert", "--batch", "--video", "1x2", "--report"}, requests);
    EXPECT_EQ(run.status, 0) << run.errors;
    std::istringstream lines(run.output);
    std::vector<json> geometries;
    for (std::string line; std::getline(lines, line);) {
        json const record = json::parse(line);
        geometries.push_back(record["settings"][0]["fields"]["geometry"]);
        EXPECT_TRUE(record["report"].contains("parameters"));
    }
    EXPECT_EQ(geometries, (std::vector<json>{{3, 4}, {1, 2}}));
}

TEST(Convert, OptionsThatAreNoNumbersAreWrongUsage)
{
    for (QStringList const & options : {QStringList{"--video", "10"}, {"--video", "10x"}, {"--video", "0x10"},
             {"--video", "10x-1"}, {"--video", "10x10x10"}, {"--video", "x10"}, {"--duration", "-1"},
             {"--duration", "long"}, {"--sample-rate", "0"}, {"--sample-rate", "4294967296"}}) {
        auto const run = effectctl(QStringList{"convert", "--class", "Effect::Blur"} + options);
        EXPECT_EQ(run.status, 2) << options.join(' ').toStdString();
        EXPECT_THAT(run.errors, HasSubstr(options[0].toStdString()));
    }
}

TEST(Convert, AReportIsPartOfTheRecord)
{
    TemporaryFolder const folder;
    QString const file = folder.write("a.json", R"({"$meta": {"class": "Effect::Mirror"}, "vertical": 7})");
    json const plain = converted({"--json", file});
    EXPECT_FALSE(plain[0].contains("report"));
    json record = converted({"--json", "--report", file})[0];
    bool isFound = false;
    for (json const & parameter : record["report"]["parameters"])
        if (parameter["pointer"] == "/vertical") {
            isFound = true;
            EXPECT_EQ(parameter, json({{"pointer", "/vertical"}, {"given", 7}, {"used", 0}, {"outcome", "fallback"}}));
        }
    EXPECT_TRUE(isFound);
    record.erase("report");
    EXPECT_EQ(record, plain[0]);
    EXPECT_THAT(effectctl({"convert", "--report", file}).output, HasSubstr("\n  fallback /vertical: 7, used 0\n"));
}

} // namespace
