#include "support/parallel.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace zdt {
namespace {

TEST(ParallelFor, EveryIndexIsDoneOnceAndProgressEndsAtOne) {
    constexpr std::size_t count = 500;
    std::vector<std::atomic<int>> calls(count);
    const std::thread::id here = std::this_thread::get_id();
    double last = 0;
    std::size_t heard = 0;
    EXPECT_TRUE(parallelFor(
        count,
        [&](std::size_t index) {
            ++calls[index];
            return true;
        },
        [&](double done) {
            EXPECT_EQ(std::this_thread::get_id(), here);
            EXPECT_GT(done, last);
            last = done;
            ++heard;
        }));
    for (const std::atomic<int>& call : calls)
        EXPECT_EQ(call, 1);
    EXPECT_EQ(last, 1.0);
    EXPECT_EQ(heard, count);
}

TEST(ParallelFor, FailureBeginsNoMore) {
    std::atomic<std::size_t> begun = 0;
    EXPECT_FALSE(parallelFor(1'000'000, [&](std::size_t index) {
        ++begun;
        if (index != 3)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return index != 3;
    }));
    EXPECT_LT(begun, 1'000'000U);
}

TEST(ParallelFor, NothingToDoSucceeds) {
    EXPECT_TRUE(parallelFor(0, [](std::size_t) { return false; }));
}

} // namespace
} // namespace zdt
