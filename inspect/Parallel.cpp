#include <inspect/Parallel.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace Effect::Inspect {

void parallel(std::size_t count, std::function<void(std::size_t)> const & task)
{
    // One number at a time would make the threads compete for the counter.
    constexpr std::size_t batch = 16;
    std::atomic<std::size_t> next{0};
    std::mutex mutex;
    std::exception_ptr failure;
    auto const work = [&] {
        try {
            for (std::size_t begin = next.fetch_add(batch); begin < count; begin = next.fetch_add(batch))
                for (std::size_t index = begin; index < std::min(count, begin + batch); ++index)
                    task(index);
        } catch (...) {
            next = count;
            std::lock_guard const lock(mutex);
            if (!failure)
                failure = std::current_exception();
        }
    };
    std::size_t const cores = std::max(1U, std::thread::hardware_concurrency());
    std::size_t const needed = (count + batch - 1) / batch;
    std::vector<std::thread> threads;
    for (std::size_t index = 1; index < std::min(cores, needed); ++index)
        threads.emplace_back(work);
    work();
    for (std::thread & thread : threads)
        thread.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace Effect::Inspect
