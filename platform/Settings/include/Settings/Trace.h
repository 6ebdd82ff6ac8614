/// @file
/// Records the setter calls of settings objects.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <Settings/Export.h>
#include <Settings/Value.h>

namespace Quoril::Proc {

class Settings;
class TraceRecorder;

/// While a Trace is open, the setter calls that its thread makes are recorded, per settings object, in the order made.
/// Writes to public data members are not calls and are read from the object instead (Settings::GetFields).
///
/// Traces nest: each has the calls made since it was opened. A trace is opened, read and closed on one thread. The
/// record of a settings object goes along with its copies and is forgotten with the object. While no trace is open, a
/// setter pays one branch.
class SETTINGS_EXPORT Trace
{
public:
    /// One call of a setter.
    struct Call
    {
        std::string setter;           ///< with its prefix: "SetScale"
        std::vector<Value> arguments; ///< as they were when the call was made
    };

    Trace();
    ~Trace();
    Trace(Trace const &) = delete;
    Trace & operator=(Trace const &) = delete;

    /// The calls on `settings` since this trace was opened; none when it had none, or lives in another thread's trace.
    std::vector<Call> calls(Settings const & settings) const;

    /// An object with the keys "class", "calls" (lists of the setter's name and its arguments) and "fields" (the public
    /// data members). An argument that is itself a settings object has this form, too.
    Value describe(Settings const & settings) const;

private:
    std::shared_ptr<TraceRecorder> m_recorder; // one per thread, shared by its open traces
    std::uint64_t m_start;                     // calls numbered below this were made before
};

} // namespace Quoril::Proc
