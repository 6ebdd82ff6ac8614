#include <Settings/Trace.h>

#include <unordered_map>
#include <utility>

#include "MemberTable.h"

namespace Quoril::Proc {

std::atomic<int> Settings::s_openTraces{0};

/// What one thread's open traces have seen. It lives from the opening of the first to the closing of the last.
class TraceRecorder : public std::enable_shared_from_this<TraceRecorder>
{
public:
    struct Entry
    {
        std::uint64_t number;
        Trace::Call call;
    };

    static TraceRecorder * current() { return s_current; }

    TraceRecorder() { s_current = this; }
    ~TraceRecorder() { s_current = nullptr; }
    TraceRecorder(TraceRecorder const &) = delete;
    TraceRecorder & operator=(TraceRecorder const &) = delete;

    std::uint64_t next() const { return m_next; }

    void record(Settings const & settings, Trace::Call call)
    {
        m_entries[&settings].push_back({m_next++, std::move(call)});
    }
    void copy(Settings const & source, Settings const & target)
    {
        if (auto const found = m_entries.find(&source); found != m_entries.end()) {
            auto entries = found->second;
            m_entries[&target] = std::move(entries);
        } else {
            drop(target);
        }
    }
    void drop(Settings const & settings) noexcept { m_entries.erase(&settings); }

    std::vector<Trace::Call> calls(Settings const & settings, std::uint64_t start) const
    {
        std::vector<Trace::Call> calls;
        if (auto const found = m_entries.find(&settings); found != m_entries.end()) {
            for (Entry const & entry : found->second) {
                if (entry.number >= start) {
                    calls.push_back(entry.call);
                }
            }
        }
        return calls;
    }

private:
    // A plain pointer, so that settings objects that are destroyed late in a thread's end still find it valid.
    static thread_local TraceRecorder * s_current;

    std::unordered_map<Settings const *, std::vector<Entry>> m_entries;
    std::uint64_t m_next = 0;
};

thread_local TraceRecorder * TraceRecorder::s_current = nullptr;

namespace {

Value describeWith(Settings const & settings, std::vector<Trace::Call> const & calls)
{
    Value::List list;
    list.reserve(calls.size());
    for (Trace::Call const & call : calls) {
        Value::List entry{call.setter};
        entry.insert(entry.end(), call.arguments.begin(), call.arguments.end());
        list.emplace_back(std::move(entry));
    }
    return Value::Object{
        {"class", settings.GetClassId()}, {"calls", std::move(list)}, {"fields", settings.GetFields()}};
}

} // namespace

Value describeTraced(Settings const & settings)
{
    auto const * const recorder = TraceRecorder::current();
    return describeWith(settings, recorder != nullptr ? recorder->calls(settings, 0) : std::vector<Trace::Call>());
}

Trace::Trace()
    : m_recorder(TraceRecorder::current() != nullptr ? TraceRecorder::current()->shared_from_this()
                                                     : std::make_shared<TraceRecorder>())
    , m_start(m_recorder->next())
{
    Settings::s_openTraces.fetch_add(1, std::memory_order_relaxed);
}

Trace::~Trace()
{
    Settings::s_openTraces.fetch_sub(1, std::memory_order_relaxed);
}

std::vector<Trace::Call> Trace::calls(Settings const & settings) const
{
    return m_recorder->calls(settings, m_start);
}

Value Trace::describe(Settings const & settings) const
{
    return describeWith(settings, calls(settings));
}

void Settings::recordCall(char const * setting) const
{
    if (auto * const recorder = TraceRecorder::current()) {
        Value const arguments = members().find(setting)->toValue(*this);
        recorder->record(*this, {std::string("Set") + setting, *arguments.as<Value::List>()});
    }
}

void Settings::copyRecord(Settings const & source) const
{
    if (auto * const recorder = TraceRecorder::current()) {
        recorder->copy(source, *this);
    }
}

void Settings::dropRecord() const noexcept
{
    if (auto * const recorder = TraceRecorder::current()) {
        recorder->drop(*this);
    }
}

} // namespace Quoril::Proc
