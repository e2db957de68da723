// The HTTP server's workers: a fixed number of threads and a bounded queue of connections.
// When the queue is full the accepting thread waits, so a flood backs up into the kernel's
// listen queue instead of into memory.
#pragma once

#include <httplib.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace griglione {

class BoundedPool final : public httplib::TaskQueue {
public:
    BoundedPool(int threads, std::size_t queued);
    ~BoundedPool() override;

    void enqueue(std::function<void()> task) override;
    void shutdown() override;

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
