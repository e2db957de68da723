// The workers that run what may wait on the database: a fixed number of threads and a bounded
// queue of tasks. When the queue is full the caller waits, so a flood backs up into the
// connections already held instead of into memory.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace griglione {

class BoundedPool final {
public:
    BoundedPool(int threads, std::size_t queued);
    ~BoundedPool();

    void enqueue(std::function<void()> task);
    // Runs what is queued, then ends the threads.
    void shutdown();

private:
    void work();

    std::size_t m_limit;
    std::mutex m_mutex;
    std::condition_variable m_ready;
    std::condition_variable m_room;
    std::deque<std::function<void()>> m_tasks;
    bool m_stopping = false;
    std::vector<std::thread> m_threads;
};

} // namespace griglione
