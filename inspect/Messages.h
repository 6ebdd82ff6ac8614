/// @file
/// What the library logs.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// Passes every warning and error that the library logs to `write`, on the thread that logs it, and keeps the log from
/// writing files. Called once, at the start of the program.
EFFECTS_INSPECT_API void startMessages(char const * program, void (*write)(std::string_view message));

/// How many were passed so far.
EFFECTS_INSPECT_API std::size_t messageCount();

/// Collects what the library logs while it lives, instead of passing it on. One at a time.
class EFFECTS_INSPECT_API Messages
{
public:
    /// @{
    /// Begins and ends to collect.
    Messages();
    ~Messages();
    /// @}
    Messages(Messages const &) = delete;
    Messages & operator=(Messages const &) = delete;

    nlohmann::json errors = nlohmann::json::array();   ///< texts
    nlohmann::json warnings = nlohmann::json::array(); ///< texts

private:
    class Sink;
    std::unique_ptr<Sink> m_sink;
};

} // namespace Effect::Inspect
