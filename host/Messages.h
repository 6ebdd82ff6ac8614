/// @file
/// What the library logs.
#pragma once

#include <memory>
#include <string_view>

#include <nlohmann/json.hpp>

namespace Host {

/// Has every error that the library logs told by `tell`, on the thread that logs it, and nothing written into a file.
/// Called once, at the start of the program.
void startMessages(char const * program, void (*tell)(std::string_view message));

/// Takes the library's errors while it lives; they are told nowhere else then. One at a time.
class Messages
{
public:
    Messages();
    ~Messages();
    Messages(Messages const &) = delete;
    Messages & operator=(Messages const &) = delete;

    nlohmann::json lines = nlohmann::json::array();

private:
    class Sink;
    std::unique_ptr<Sink> m_sink;
};

} // namespace Host
