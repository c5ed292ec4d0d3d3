// Work on many things in several threads whose results come out in the order of the things. Only a few
// results wait at any time, however many things there are.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace lodge {

/// Hands the indices of work out to threads and their results back in order.
template <typename Result>
class OrderedWork {
  public:
    OrderedWork(std::size_t count, std::size_t window) : count_(count), window_(window) {}

    /// The next index to work on, waiting while too many results are unread; nothing at the end of the work.
    std::optional<std::size_t> next() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return ended() || started_ < taken_ + window_; });
        return ended() ? std::nullopt : std::optional(started_++);
    }

    void done(std::size_t at, Result result) {
        const std::scoped_lock lock(mutex_);
        results_.emplace(at, std::move(result));
        changed_.notify_all();
    }

    /// Ends the work; `take` throws it on.
    void failed(std::exception_ptr failure) {
        const std::scoped_lock lock(mutex_);
        failure_ = std::move(failure);
        changed_.notify_all();
    }

    /// The result of index `at`, in order from 0.
    Result take(std::size_t at) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return failure_ != nullptr || results_.contains(at); });
        if (failure_ != nullptr) {
            std::rethrow_exception(failure_);
        }
        Result result = std::move(results_.extract(at).mapped());
        ++taken_;
        changed_.notify_all();
        return result;
    }

  private:
    [[nodiscard]] bool ended() const { return failure_ != nullptr || started_ == count_; }

    const std::size_t count_;
    const std::size_t window_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::size_t, Result> results_;
    std::size_t started_ = 0;
    std::size_t taken_ = 0;
    std::exception_ptr failure_;
};

/// Calls `take(index, result)` for 0 to `count` - 1 in this order, from the calling thread. `makeWorker`
/// makes a worker, a function from an index to its result, in each of at most `threads` threads; with one, no
/// thread is started. What a worker throws ends the work and is thrown on.
template <typename Result, typename MakeWorker, typename Take>
void inOrder(std::size_t count, std::size_t threads, const MakeWorker& makeWorker, const Take& take) {
    threads = std::min(threads, count);
    if (threads <= 1) {
        auto worker = makeWorker();
        for (std::size_t at = 0; at < count; ++at) {
            take(at, worker(at));
        }
        return;
    }
    constexpr std::size_t waitingPerThread = 4;
    OrderedWork<Result> work(count, threads * waitingPerThread);
    const auto run = [&] {
        try {
            auto worker = makeWorker();
            while (const auto at = work.next()) {
                work.done(*at, worker(*at));
            }
        } catch (...) {
            work.failed(std::current_exception());
        }
    };
    std::vector<std::jthread> pool;
    for (std::size_t i = 0; i < threads; ++i) {
        pool.emplace_back(run);
    }
    try {
        for (std::size_t at = 0; at < count; ++at) {
            take(at, work.take(at));
        }
    } catch (...) {
        work.failed(std::current_exception()); // the threads must end before `work` does
        throw;
    }
}

} // namespace lodge
