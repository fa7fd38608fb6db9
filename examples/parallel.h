// examples/parallel.h: independent pieces of work on several threads.
#pragma once

#include <atomic>
#include <future>
#include <vector>

namespace demo {

// Calls work(i, thread) for i below count; `thread` is below `threads` and tells the caller's and the other threads apart.
template <class Work>
void forEachOnThreads(int count, int threads, const Work& work) {
    std::atomic<int> next = 0;
    const auto worker = [&](int thread) {
        for (int i; (i = next++) < count;) work(i, thread);
    };
    std::vector<std::future<void>> others;
    for (int t = 1; t < std::min(threads, count); ++t) others.push_back(std::async(std::launch::async, worker, t));
    worker(0);
    for (auto& other : others) other.get();
}

}  // namespace demo
