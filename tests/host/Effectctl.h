/// @file
/// Running the command-line host as its users do.
#pragma once

#include <string>

#include <QByteArray>
#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace Testing {

/// What a run of the program came to.
struct Run
{
    int status = -1; ///< -1 when it did not end by itself
    std::string output;
    std::string errors;
};

inline Run effectctl(QStringList const & arguments, QByteArray const & input = {})
{
    constexpr int timeout = 60000; // milliseconds
    QProcess process;
    process.start(QStringLiteral(EFFECTCTL), arguments);
    EXPECT_TRUE(process.waitForStarted(timeout)) << process.errorString().toStdString();
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(timeout)) << process.errorString().toStdString();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

} // namespace Testing
