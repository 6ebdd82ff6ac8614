/// @file
/// Runs a fuzz target without libFuzzer: over the files of its corpus, and over mutations of them that a seed
/// determines.
///
///     NameFuzzer [--runs N] [--seconds S] [--seed S] [file or folder ...]
///
/// An input that crashes, hangs or trips a sanitizer is left behind in the file "crash-input" of the working folder; to
/// run it again, name that file with --runs 0.
#ifndef EDITOR_LIBFUZZER

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size);

// There with the sanitizers' runtime only.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

/// GCC's undefined-behaviour sanitizer has a runtime without callbacks, so let it abort.
extern "C" __attribute__((visibility("default"))) char const * __ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}

namespace {

using Input = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;

/// Mutations do not grow an input beyond this, unless the corpus has a longer one.
constexpr std::size_t usualLimit = 64 * 1024;

/// An input that takes longer than this counts as a hang.
constexpr unsigned hangSeconds = 60;

// What a handler of signals may look at: the input that is running.
std::uint8_t const * currentData = nullptr;
std::size_t currentSize = 0;

void SaveCurrent()
{
    // Only what is safe in a handler of signals.
    int const file = open("crash-input", O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0)
        return;
    for (std::size_t done = 0; done < currentSize;) {
        auto const written = write(file, currentData + done, currentSize - done);
        if (written <= 0)
            break;
        done += static_cast<std::size_t>(written);
    }
    close(file);
    constexpr std::string_view message = "fuzz driver: the input is in ./crash-input\n";
    if (write(STDERR_FILENO, message.data(), message.size()) < 0)
        return;
}

extern "C" void HandleSignal(int signal)
{
    SaveCurrent();
    // The handler is gone by now (SA_RESETHAND), so this ends the process as the signal would have.
    raise(signal);
}

void InstallHandlers()
{
    // A sanitizer reports segmentation faults and the like itself, and then calls back.
    std::vector<int> signals = {SIGABRT, SIGALRM};
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback(&SaveCurrent);
    else
        signals.insert(signals.end(), {SIGSEGV, SIGBUS, SIGFPE, SIGILL});

    // A stack of its own, for the signal that an overflow of the stack raises.
    static std::array<char, 64 * 1024> handlerStack;
    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    sigaltstack(&stack, nullptr);

    struct sigaction action
    {};
    action.sa_handler = &HandleSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
    for (int const signal : signals)
        sigaction(signal, &action, nullptr);
}

void Run(Input const & input)
{
    // In a block of exactly its size, so that a sanitizer sees a read behind its end.
    Input const copy(input.begin(), input.end());
    currentData = copy.data();
    currentSize = copy.size();
    alarm(hangSeconds);
    try {
        LLVMFuzzerTestOneInput(copy.data(), copy.size());
    } catch (...) {
        SaveCurrent();
        throw;
    }
    alarm(0);
}

/// Makes inputs out of others. The results of the standard's distributions differ between libraries, so it draws from
/// the engine itself: a seed gives the same inputs everywhere.
class Mutator
{
public:
    Mutator(std::vector<Input> const & corpus, std::uint64_t seed)
        : m_corpus(corpus)
        , m_random(seed)
    {
        for (auto const & input : corpus)
            m_limit = std::max(m_limit, input.size());
    }

    /// An input of the corpus after one to eight mutations.
    Input Next()
    {
        Input input = Any();
        for (auto rounds = Below(8) + 1; rounds != 0; --rounds)
            Mutate(input);
        if (input.size() > m_limit)
            input.resize(m_limit);
        return input;
    }

private:
    std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }
    std::uint8_t Byte() { return static_cast<std::uint8_t>(m_random()); }
    Input const & Any() { return m_corpus[Below(m_corpus.size())]; }

    /// A place in the input where something may be inserted.
    Input::iterator Place(Input & input)
    {
        return input.begin() + static_cast<std::ptrdiff_t>(Below(input.size() + 1));
    }

    struct Chunk
    {
        Input::const_iterator begin;
        Input::const_iterator end;
    };

    /// A part of the input, mostly a short one. The input must not be empty.
    Chunk PartOf(Input const & input)
    {
        auto const first = Below(input.size());
        auto const left = input.size() - first;
        auto const length = 1 + Below(Below(4) == 0 ? left : std::min<std::size_t>(left, 16));
        auto const begin = input.begin() + static_cast<std::ptrdiff_t>(first);
        return {begin, begin + static_cast<std::ptrdiff_t>(length)};
    }

    template <typename Bytes> void Put(Input & input, Bytes const & bytes)
    {
        // Over what is there or in between, as chance has it.
        auto at = Place(input);
        if (Below(2) == 0)
            at = input.erase(at, at + std::min(input.end() - at, static_cast<std::ptrdiff_t>(std::size(bytes))));
        input.insert(at, std::begin(bytes), std::end(bytes));
    }

    void Mutate(Input & input)
    {
        enum
        {
            flipBit,
            setByte,
            insertBytes,
            erase,
            truncate,
            repeat,
            move,
            splice,
            putNumber,
            putText,
            kinds
        };
        auto const kind = Below(kinds);
        if (input.empty() && kind <= move && kind != insertBytes)
            return;
        switch (kind) {
        case flipBit:
            input[Below(input.size())] ^= static_cast<std::uint8_t>(1u << Below(8));
            break;
        case setByte:
            input[Below(input.size())] = Byte();
            break;
        case insertBytes: {
            Input bytes(1 + Below(8));
            std::generate(bytes.begin(), bytes.end(), [&] { return Byte(); });
            input.insert(Place(input), bytes.begin(), bytes.end());
            break;
        }
        case erase: {
            auto const part = PartOf(input);
            input.erase(part.begin, part.end);
            break;
        }
        case truncate:
            input.resize(Below(input.size()));
            break;
        case repeat: {
            auto const part = PartOf(input);
            Input const bytes(part.begin, part.end);
            for (auto count = 1 + Below(4); count != 0 && input.size() < m_limit; --count)
                input.insert(Place(input), bytes.begin(), bytes.end());
            break;
        }
        case move: {
            auto const part = PartOf(input);
            Input const bytes(part.begin, part.end);
            input.erase(part.begin, part.end);
            input.insert(Place(input), bytes.begin(), bytes.end());
            break;
        }
        case splice: {
            auto const & other = Any();
            if (other.empty())
                return;
            auto const part = PartOf(other);
            Put(input, Input(part.begin, part.end));
            break;
        }
        case putNumber:
            PutNumber(input);
            break;
        case putText:
            PutText(input);
            break;
        default:
            break;
        }
    }

    /// A number as binary formats have it, of one to eight bytes, in either byte order.
    void PutNumber(Input & input)
    {
        static constexpr std::uint64_t numbers[] = {0, 1, 2, 7, 8, 16, 100, 127, 128, 255, 256, 1000, 32767, 32768,
            65535, 65536, 1'000'000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF, 0x100000000, 0x7FF0000000000000,
            0x7FF8000000000000, 0x7FFFFFFFFFFFFFFF, 0x8000000000000000, 0xFFFFFFFFFFFFFFFF};
        auto const number = numbers[Below(std::size(numbers))];
        Input bytes(std::size_t(1) << Below(4));
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
        if (Below(2) == 0)
            std::reverse(bytes.begin(), bytes.end());
        Put(input, bytes);
    }

    /// A number or a mark as text formats have it.
    void PutText(Input & input)
    {
        static constexpr std::string_view texts[] = {"0", "-1", "1", "2", "3", "255", "256", "257", "65535", "65536",
            "1000000", "2147483647", "2147483648", "-2147483649", "4294967296", "9223372036854775807",
            "18446744073709551616", "0.5", "-0.0", "1e38", "1e39", "-1e308", "1e309", "1e-46", "1e-400", "nan", "inf",
            "-inf", ".", "+", "-", "e", "\"", "\\", "\\u0000", "\xEF\xBB\xBF", "\n", "\r", "\r\n", "\t", " ", "#", "{",
            "}", "[", "]", "[[[[[[[[", ",", ":", "null", "true", "{}", "[]", "/*", "*/", ";"};
        Put(input, texts[Below(std::size(texts))]);
    }

    std::vector<Input> const & m_corpus;
    std::mt19937_64 m_random;
    std::size_t m_limit = usualLimit;
};

struct Options
{
    std::uint64_t runs = 0;
    bool runsGiven = false;
    std::chrono::seconds time{0};
    std::uint64_t seed = 1;
    std::vector<std::filesystem::path> corpus;
};

[[noreturn]] void Usage(char const * program)
{
    std::fprintf(stderr, "usage: %s [--runs N] [--seconds S] [--seed S] [file or folder ...]\n", program);
    std::exit(2);
}

Options ReadOptions(int count, char ** arguments)
{
    Options options;
    for (int i = 1; i < count; ++i) {
        std::string_view const argument = arguments[i];
        if (argument.substr(0, 2) != "--") {
            options.corpus.emplace_back(argument);
            continue;
        }
        if (++i == count)
            Usage(arguments[0]);
        char * end = nullptr;
        auto const value = std::strtoull(arguments[i], &end, 10);
        if (end == arguments[i] || *end != '\0')
            Usage(arguments[0]);
        if (argument == "--runs") {
            options.runs = value;
            options.runsGiven = true;
        } else if (argument == "--seconds")
            options.time = std::chrono::seconds(value);
        else if (argument == "--seed")
            options.seed = value;
        else
            Usage(arguments[0]);
    }
    return options;
}

Input Load(std::filesystem::path const & path)
{
    std::ifstream file(path, std::ios::binary);
    Input input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file)
        throw std::runtime_error("cannot read " + path.string());
    return input;
}

/// The files that the paths name, in the order of their names: the mutations depend on it.
std::vector<Input> LoadCorpus(std::vector<std::filesystem::path> const & paths)
{
    std::vector<std::filesystem::path> files;
    for (auto const & path : paths) {
        if (!std::filesystem::is_directory(path)) {
            files.push_back(path);
            continue;
        }
        auto const first = static_cast<std::ptrdiff_t>(files.size());
        for (auto const & entry : std::filesystem::recursive_directory_iterator(path))
            if (entry.is_regular_file())
                files.push_back(entry.path());
        std::sort(files.begin() + first, files.end());
    }
    std::vector<Input> corpus;
    for (auto const & file : files)
        corpus.push_back(Load(file));
    return corpus;
}

} // namespace

int main(int count, char ** arguments)
{
    try {
        auto const options = ReadOptions(count, arguments);
        auto corpus = LoadCorpus(options.corpus);
        InstallHandlers();
        for (auto const & input : corpus)
            Run(input);
        auto const files = corpus.size();
        if (corpus.empty())
            corpus.emplace_back();

        Mutator mutator(corpus, options.seed);
        auto const start = Clock::now();
        std::uint64_t runs = 0;
        auto const wanted = [&] {
            if (options.time.count() != 0 && Clock::now() - start >= options.time)
                return false;
            return options.runsGiven ? runs < options.runs : options.time.count() != 0;
        };
        for (; wanted(); ++runs)
            Run(mutator.Next());

        std::chrono::duration<double> const elapsed = Clock::now() - start;
        std::printf("%s: %zu corpus files and %llu mutations (seed %llu) in %.1f s, no failure\n",
            std::filesystem::path(arguments[0]).filename().c_str(), files, static_cast<unsigned long long>(runs),
            static_cast<unsigned long long>(options.seed), elapsed.count());
        return 0;
    } catch (std::exception const & error) {
        // Of the driver itself, or one that the target let out.
        std::fprintf(stderr, "%s: %s\n", arguments[0], error.what());
        return 1;
    }
}

#endif
