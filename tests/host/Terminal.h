/// @file
/// Programs on a terminal.
#pragma once

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace Testing {

/// Why this process cannot open a pseudo-terminal; empty when it can. Containers often have none.
inline std::string whyNoTerminal()
{
    int ours = -1;
    int theirs = -1;
    if (::openpty(&ours, &theirs, nullptr, nullptr, nullptr) != 0)
        return std::string("a pseudo-terminal cannot be opened: ") + std::strerror(errno);
    ::close(ours);
    ::close(theirs);
    return {};
}

/// A program whose standard streams are a terminal of 80 columns, but for those led elsewhere.
class Terminal
{
public:
    struct Setup
    {
        std::map<std::string, std::string> environment; ///< beside the test's own
        std::string outputFile;                         ///< instead of the terminal, where it is not empty
    };

    /// Throws `std::system_error` where no pseudo-terminal can be opened.
    Terminal(std::vector<std::string> command, Setup const & setup)
    {
        winsize size{};
        size.ws_row = 24;
        size.ws_col = 80;
        m_child = forkpty(&m_descriptor, nullptr, nullptr, &size);
        if (m_child < 0)
            throw std::system_error(errno, std::generic_category(), "forkpty");
        if (m_child == 0)
            become(std::move(command), setup);
    }
    ~Terminal()
    {
        ::close(m_descriptor);
        finish();
    }
    Terminal(Terminal const &) = delete;
    Terminal & operator=(Terminal const &) = delete;

    void type(std::string const & keys)
    {
        EXPECT_EQ(::write(m_descriptor, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }

    /// Everything written so far, once `text` is in it or the program has ended. Lines end with CR LF.
    std::string const & readUntil(std::string const & text)
    {
        constexpr std::chrono::seconds patience(60);
        auto const end = std::chrono::steady_clock::now() + patience;
        while (m_output.find(text) == std::string::npos) {
            pollfd ready{m_descriptor, POLLIN, 0};
            char bytes[4096];
            if (::poll(&ready, 1, 1000) == 1) {
                ssize_t const count = ::read(m_descriptor, bytes, sizeof bytes);
                if (count <= 0)
                    break;
                m_output.append(bytes, static_cast<std::size_t>(count));
            }
            if (std::chrono::steady_clock::now() > end) {
                ADD_FAILURE() << "no \"" << text << "\" in: " << m_output;
                break;
            }
        }
        return m_output;
    }

    /// Everything written until the end.
    std::string const & readAll() { return readUntil(std::string("\0never", 6)); }

    /// The exit status; -1 when it did not end by itself.
    int finish()
    {
        int status = 0;
        if (m_child > 0 && ::waitpid(m_child, &status, 0) == m_child)
            m_status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        m_child = 0;
        return m_status;
    }

private:
    [[noreturn]] static void become(std::vector<std::string> command, Setup const & setup)
    {
        ::setenv("TERM", "xterm", 1);
        ::unsetenv("NO_COLOR");
        for (auto const & [name, value] : setup.environment)
            ::setenv(name.c_str(), value.c_str(), 1);
        if (!setup.outputFile.empty())
            ::dup2(::open(setup.outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
        std::vector<char *> arguments;
        for (std::string & argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        ::execvp(arguments[0], arguments.data());
        ::_exit(127);
    }

    int m_descriptor = -1;
    pid_t m_child = 0;
    int m_status = -1;
    std::string m_output;
};

/// What the program writes to a terminal.
inline std::string onTerminal(std::vector<std::string> arguments, Terminal::Setup const & setup = {})
{
    arguments.insert(arguments.begin(), EFFECTCTL);
    Terminal terminal(std::move(arguments), setup);
    return terminal.readAll();
}

} // namespace Testing
