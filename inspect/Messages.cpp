#include <inspect/Messages.h>

#include <atomic>

#include <glog/logging.h>

namespace Effect::Inspect {

namespace {

std::atomic<bool> areCollected{false};
std::atomic<std::size_t> passed{0};

class Passing final : public google::LogSink
{
public:
    explicit Passing(void (*write)(std::string_view))
        : m_write(write)
    {}

private:
    void send(google::LogSeverity severity, char const *, char const *, int, tm const *, char const * message,
        std::size_t length) override
    {
        if (severity < google::GLOG_WARNING || areCollected)
            return;
        ++passed;
        m_write({message, length});
    }

    void (*m_write)(std::string_view);
};

} // namespace

class Messages::Sink final : public google::LogSink
{
public:
    explicit Sink(Messages & messages)
        : m_messages(messages)
    {
        google::AddLogSink(this);
    }
    ~Sink() override { google::RemoveLogSink(this); }

private:
    void send(google::LogSeverity severity, char const *, char const *, int, tm const *, char const * message,
        std::size_t length) override
    {
        if (severity >= google::GLOG_WARNING)
            (severity == google::GLOG_WARNING ? m_messages.warnings : m_messages.errors)
                .push_back(std::string(message, length));
    }

    Messages & m_messages;
};

void startMessages(char const * program, void (*write)(std::string_view message))
{
    google::InitGoogleLogging(program);
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, "");
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    FLAGS_minloglevel = 0; // the environment may have raised it, and what is below reaches no sink
    static Passing passing(write);
    google::AddLogSink(&passing);
}

std::size_t messageCount()
{
    return passed;
}

Messages::Messages()
    : m_sink(std::make_unique<Sink>(*this))
{
    areCollected = true;
}

Messages::~Messages()
{
    areCollected = false;
}

} // namespace Effect::Inspect
