/// @file
/// Runs the program as its users do.
#pragma once

#include <string>

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
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

/// Runs any program.
inline Run runProgram(QString const & program, QStringList const & arguments, QByteArray const & input = {})
{
    constexpr int timeout = 60000; // milliseconds
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted(timeout)) << process.errorString().toStdString();
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(timeout)) << process.errorString().toStdString();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

inline Run effectctl(QStringList const & arguments, QByteArray const & input = {})
{
    return runProgram(QStringLiteral(EFFECTCTL), arguments, input);
}

/// Runs a line of the shell, in which $effectctl is the program.
inline Run shell(QString const & line)
{
    return runProgram(QStringLiteral("bash"), {"-c", "effectctl=" EFFECTCTL "\n" + line});
}

} // namespace Testing
