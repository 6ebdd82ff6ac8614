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

/// What one processing step of the render engine is told. A settings object keeps what its setters were given; a
/// setting that was never given, and a public data member left as it was constructed, stand for the engine's default.
///
/// Settings classes are values: copyable, and comparable through IsEqualTo. One object must not be used by two threads
/// at the same time while one of them writes.
class SETTINGS_EXPORT Settings
{
public:
    virtual ~Settings();

    /// A copy with the dynamic type of this object.
    virtual std::unique_ptr<Settings> Clone() const = 0;

    /// The class's name without its namespace.
    virtual std::string GetClassId() const = 0;

    /// Same class, same settings given, same values. Numbers compare exactly, a NaN as equal to itself; images, tables
    /// and functions compare by identity, which copies share.
    virtual bool IsEqualTo(Settings const & other) const;

    /// True while no setter was called and all public data members are as constructed.
    virtual bool IsEmpty() const;

    /// Takes settings and public data members by name: "Scale" for SetScale, a list where a setter takes several
    /// arguments. Names that this class does not know are passed over.
    /// @throws std::invalid_argument when a value has the wrong form, or belongs to a member that has none (images,
    /// tables, functions); the object is then as it was.
    virtual void Deserialize(Record const & record);

    /// The public data members with their values, in the order of their declaration.
    Record GetFields() const;

protected:
    // Addresses are used again, so that a record must not outlive its object. It is dropped with the object, and on
    // construction too, in case another thread than the tracing one destroyed the last object that lived here.
    Settings() noexcept
    {
        if (isAnyTraceOpen()) {
            dropRecord();
        }
    }
    /// A trace's record goes along.
    Settings(Settings const & other)
    {
        if (isAnyTraceOpen()) {
            copyRecord(other);
        }
    }
    /// A trace's record goes along.
    Settings & operator=(Settings const & other)
    {
        if (isAnyTraceOpen()) {
            copyRecord(other);
        }
        return *this;
    }

    /// For setters: tells an open trace of this thread that the setting of that name was just given.
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

    // Of all threads: a setter looks no further while it is zero.
    static std::atomic<int> s_openTraces;
};

} // namespace Quoril::Proc
