#include "Messages.h"

#include <atomic>

#include <glog/logging.h>

namespace Host {

namespace {

std::atomic<bool> areTaken{false};

class Teller final : public google::LogSink
{
public:
    explicit Teller(void (*tell)(std::string_view))
        : m_tell(tell)
    {}

private:
    void send(google::LogSeverity severity, char const *, char const *, int, tm const *, char const * message,
        std::size_t length) override
    {
        if (severity >= google::GLOG_ERROR && !areTaken)
            m_tell({message, length});
    }

    void (*m_tell)(std::string_view);
};

} // namespace

class Messages::Sink final : public google::LogSink
{
public:
    explicit Sink(nlohmann::json & lines)
        : m_lines(lines)
    {
        google::AddLogSink(this);
    }
    ~Sink() override { google::RemoveLogSink(this); }

private:
    void send(google::LogSeverity severity, char const *, char const *, int, tm const *, char const * message,
        std::size_t length) override
    {
        if (severity >= google::GLOG_ERROR)
            m_lines.push_back(std::string(message, length));
    }

    nlohmann::json & m_lines;
};

void startMessages(char const * program, void (*tell)(std::string_view message))
{
    google::InitGoogleLogging(program);
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, "");
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    static Teller teller(tell);
    google::AddLogSink(&teller);
}

Messages::Messages()
    : m_sink(std::make_unique<Sink>(lines))
{
    areTaken = true;
}

Messages::~Messages()
{
    areTaken = false;
}

} // namespace Host
