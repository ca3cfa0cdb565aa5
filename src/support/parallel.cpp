#include "support/parallel.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace zdt {

bool parallelFor(std::size_t count, const std::function<bool(std::size_t)>& work, const Progress& progress) {
    std::mutex mutex;
    std::condition_variable changed;
    std::size_t next = 0;
    std::size_t done = 0;
    std::size_t running = 0;
    bool good = true;

    const auto worker = [&] {
        std::unique_lock lock(mutex);
        while (good && next < count) {
            const std::size_t index = next++;
            lock.unlock();
            const bool succeeded = work(index);
            lock.lock();
            ++done;
            good = good && succeeded;
            changed.notify_one();
        }
        --running;
        changed.notify_one();
    };

    const std::size_t threadCount = std::min<std::size_t>(count, std::max(1U, std::thread::hardware_concurrency()));
    running = threadCount;
    std::vector<std::jthread> threads;
    for (std::size_t index = 0; index < threadCount; ++index)
        threads.emplace_back(worker);

    std::unique_lock lock(mutex);
    for (std::size_t told = 0; running > 0 || told < done;) {
        changed.wait(lock, [&] { return running == 0 || done > told; });
        if (told == done)
            break;
        ++told;
        if (progress) {
            lock.unlock();
            progress(static_cast<double>(told) / static_cast<double>(count));
            lock.lock();
        }
    }
    return good;
}

} // namespace zdt
