// Work in several threads with its results in order.
#include "cli/in_order.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace lodge {
namespace {

/// The results of 0 to count - 1 as they came out.
template <typename Worker>
std::vector<std::size_t> results(std::size_t count, std::size_t threads, const Worker& worker) {
    std::vector<std::size_t> taken;
    inOrder<std::size_t>(
        count, threads, [&] { return worker; },
        [&](std::size_t at, std::size_t result) {
            EXPECT_EQ(at, taken.size());
            taken.push_back(result);
        });
    return taken;
}

std::vector<std::size_t> squares(std::size_t count) {
    std::vector<std::size_t> wanted;
    for (std::size_t i = 0; i < count; ++i)
        wanted.push_back(i * i);
    return wanted;
}

TEST(InOrder, ResultsComeInOrderHoweverLongEachTakes) {
    const auto slowAtFirst = [](std::size_t at) {
        if (at % 7 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return at * at;
    };
    for (const std::size_t threads : {1U, 2U, 5U, 64U})
        EXPECT_EQ(results(50, threads, slowAtFirst), squares(50)) << threads;
}

TEST(InOrder, NothingToDoIsDone) {
    EXPECT_TRUE(results(0, 4, [](std::size_t at) { return at; }).empty());
}

TEST(InOrder, FewResultsWaitAtATime) {
    std::atomic<std::size_t> made = 0;
    std::size_t taken = 0;
    std::size_t mostWaiting = 0;
    inOrder<std::size_t>(
        500, 2,
        [&] {
            return [&](std::size_t at) {
                ++made;
                return at;
            };
        },
        [&](std::size_t, std::size_t) {
            std::this_thread::sleep_for(std::chrono::microseconds(100));
            mostWaiting = std::max(mostWaiting, made - ++taken);
        });
    EXPECT_LE(mostWaiting, 2U * 4U);
}

TEST(InOrder, WhatAWorkerThrowsEndsTheWork) {
    const auto failing = [](std::size_t at) {
        if (at == 20) throw std::runtime_error("no more");
        return at;
    };
    EXPECT_THROW(results(1000, 3, failing), std::runtime_error);
    EXPECT_THROW(results(1000, 1, failing), std::runtime_error);
}

TEST(InOrder, WhatTheTakerThrowsEndsTheWork) {
    const auto take = [](std::size_t at, std::size_t) {
        if (at == 20) throw std::runtime_error("no more");
    };
    EXPECT_THROW(inOrder<std::size_t>(
                     1000, 3, [] { return [](std::size_t at) { return at; }; }, take),
        std::runtime_error);
}

} // namespace
} // namespace lodge
