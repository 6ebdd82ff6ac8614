/// @file
/// The base of the render engine's settings classes.
#pragma once

#include <atomic>
#include <memory>
#include <string>

#include <Settings/Export.h>
#include <Settings/Value.h>

namespace Quoril::Proc {

class MemberTable;

/// Parameters of one processing step of the render engine. A setting that was not set, and a public data member that
/// was not changed, mean the engine's default.
///
/// Settings classes are values: copyable, and comparable through IsEqualTo. One object must not be used by two threads
/// at the same time while one of them writes.
class SETTINGS_EXPORT Settings
{
public:
    virtual ~Settings();

    /// A copy of the dynamic type.
    virtual std::unique_ptr<Settings> Clone() const = 0;

    /// The class's name without its namespace.
    virtual std::string GetClassId() const = 0;

    /// Same class, same settings given, same values. Numbers compare exactly, a NaN as equal to itself; images, tables
    /// and functions compare by identity, which copies share.
    virtual bool IsEqualTo(Settings const & other) const;

    /// True while no setter was called and all public data members are as constructed.
    virtual bool IsEmpty() const;

    /// Takes settings and public data members by name: "Scale" for SetScale, a list where a setter takes several
    /// arguments. Unknown names are ignored.
    /// @throws std::invalid_argument when a value has the wrong form, or belongs to a member that has none (images,
    /// tables, functions); the object is then as it was.
    virtual void Deserialize(Record const & record);

    /// The public data members with their values, in the order of their declaration.
    Record GetFields() const;

protected:
    // Addresses are reused, so a trace must not keep the record of a destroyed object. It is dropped by the destructor,
    // and by the constructor in case a thread without the trace destroyed the previous object at this address.
    Settings() noexcept
    {
        if (isAnyTraceOpen()) {
            dropRecord();
        }
    }
    /// Moves or copies the record of a trace as well.
    Settings(Settings const & other)
    {
        if (isAnyTraceOpen()) {
            copyRecord(other);
        }
    }
    /// Moves or copies the record of a trace as well.
    Settings & operator=(Settings const & other)
    {
        if (isAnyTraceOpen()) {
            copyRecord(other);
        }
        return *this;
    }

    /// For setters: records the call in this thread's trace, if one is open.
    void traceCall(char const * setting) const
    {
        if (isAnyTraceOpen()) {
            recordCall(setting);
        }
    }

private:
    friend class Trace;

    /// The settings and public data members of the class. The base has none.
    virtual MemberTable const & members() const;

    static bool isAnyTraceOpen() noexcept { return s_openTraces.load(std::memory_order_relaxed) != 0; }
    void recordCall(char const * setting) const;
    void copyRecord(Settings const & source) const;
    void dropRecord() const noexcept;

    // Number of traces in all threads; zero lets setters skip the lookup.
    static std::atomic<int> s_openTraces;
};

} // namespace Quoril::Proc
