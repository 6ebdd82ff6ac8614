#include <utils/LutUtils.h>

#include <ParserLUT/LUTTable.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>

namespace {

using Effect::Utils::parseLutEffect;
using Effect::Utils::validateLutEffect;

QByteArray const table = "LUT_1D_SIZE 2\n0 0 0\n1 0.5 0.25\n";
QString const untouched = "untouched";

TEST(ParseLutEffect, GivesTheTable)
{
    QString error = untouched;
    auto const parsed = parseLutEffect(table, &error);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->format, "cube");
    EXPECT_EQ(parsed->size, (std::array{2, 1, 1}));
    EXPECT_EQ(parsed->entries.at(1), (Quoril::Proc::LUT::Color{1, 0.5F, 0.25F}));
    EXPECT_EQ(error, untouched);
    EXPECT_TRUE(parseLutEffect(table, nullptr));
    EXPECT_TRUE(validateLutEffect(table, &error));
    EXPECT_TRUE(validateLutEffect(table, nullptr));
    EXPECT_EQ(error, untouched);
}

TEST(ParseLutEffect, TellsWhatIsWrong)
{
    QByteArray const bad = "LUT_1D_SIZE 2\n0 0 0\n1 oops 0.25\n";
    QString error = untouched;
    EXPECT_FALSE(parseLutEffect(bad, &error));
    EXPECT_TRUE(error.contains("line 3")) << error.toStdString();
    EXPECT_TRUE(error.contains("oops")) << error.toStdString();
    EXPECT_FALSE(parseLutEffect(bad, nullptr));

    QString sameError;
    EXPECT_FALSE(validateLutEffect(bad, &sameError));
    EXPECT_EQ(sameError, error);
    EXPECT_FALSE(validateLutEffect(bad, nullptr));
}

TEST(ParseLutEffect, HasNothingToSayOfATextInNoFormat)
{
    for (QByteArray const & text : {QByteArray("no table at all"), QByteArray(""), QByteArray(), QByteArray(" \r\n\t"),
             QByteArray(16, '\0'), QByteArray("\xFF\xFE\x00\x80", 4)}) {
        QString error = untouched;
        EXPECT_FALSE(parseLutEffect(text, &error));
        EXPECT_FALSE(validateLutEffect(text, &error));
        EXPECT_EQ(error, untouched);
        EXPECT_FALSE(parseLutEffect(text, nullptr));
    }
}

TEST(ParseLutEffect, WhiteSpaceAroundTheTextIsAsGoodAsAbsent)
{
    QString error;
    EXPECT_TRUE(parseLutEffect("\n \r\n\t\n\v\f" + table + "\f\v\n \t\r\n", &error)) << error.toStdString();
}

TEST(ParseLutEffect, CountsTheLinesOfTheWholeText)
{
    // With blank lines ahead of it, and a byte order mark before or behind those.
    QString const problem = "expected three finite numbers, found \"oops\"";
    struct Row
    {
        char const * ahead;
        int line;
    };
    for (Row const row : {Row{"", 2}, Row{"\n\n\n", 5}, Row{" \r\n\t\r\v\n", 5}, Row{"# comment\n\n", 4},
             Row{"\xEF\xBB\xBF\n\n", 4}, Row{"\n\n\xEF\xBB\xBF", 4}}) {
        QString error = untouched;
        EXPECT_FALSE(parseLutEffect(QByteArray(row.ahead) + "LUT_1D_SIZE 2\n0 oops 0\n", &error));
        EXPECT_EQ(error, QString("line %1: %2").arg(row.line).arg(problem));
        EXPECT_TRUE(parseLutEffect(row.ahead + table, nullptr)) << row.line;
    }
}

TEST(ParseLutEffect, TakesTheWholeArrayZeroBytesAndAll)
{
    QString error;
    EXPECT_FALSE(parseLutEffect(table + '\0' + "whatever", &error));
    EXPECT_TRUE(error.contains("line 4")) << error.toStdString();
    EXPECT_FALSE(validateLutEffect(table + QByteArray(1, '\0'), nullptr));
    // An array that is a part of another one has no zero byte behind it.
    QByteArray const longer = table + "whatever";
    EXPECT_TRUE(parseLutEffect(QByteArray::fromRawData(longer.constData(), table.size()), &error));
}

} // namespace
