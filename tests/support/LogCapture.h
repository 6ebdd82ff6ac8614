/// @file
/// What the code under test logs.
#pragma once

#include <string>
#include <vector>

#include <glog/logging.h>

/// Collects the texts logged at severities ERROR and WARNING during its lifetime, by any thread.
class LogCapture : public google::LogSink
{
public:
    LogCapture() { google::AddLogSink(this); }
    ~LogCapture() override { google::RemoveLogSink(this); }
    LogCapture(LogCapture const &) = delete;
    LogCapture & operator=(LogCapture const &) = delete;

    std::vector<std::string> const & errors() const { return m_errors; }
    std::vector<std::string> const & warnings() const { return m_warnings; }

    /// glog calls its sinks under a lock of its own.
    void send(google::LogSeverity severity, char const *, char const *, int, google::LogMessageTime const &,
        char const * message, std::size_t length) override
    {
        if (severity == google::GLOG_ERROR)
            m_errors.emplace_back(message, length);
        if (severity == google::GLOG_WARNING)
            m_warnings.emplace_back(message, length);
    }

private:
    std::vector<std::string> m_errors;
    std::vector<std::string> m_warnings;
};
