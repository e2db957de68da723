// The workers: threads that take tasks from a queue with a ceiling.
#include "server/bounded_pool.h"

namespace griglione {

BoundedPool::BoundedPool(int threads, std::size_t queued) : m_limit(queued) {
    for (int i = 0; i < threads; ++i)
        m_threads.emplace_back([this] { work(); });
}

BoundedPool::~BoundedPool() {
    shutdown();
}

void BoundedPool::enqueue(std::function<void()> task) {
    {
        std::unique_lock lock(m_mutex);
        m_room.wait(lock, [this] { return m_stopping || m_tasks.size() < m_limit; });
        m_tasks.push_back(std::move(task));
    }
    m_ready.notify_one();
}

void BoundedPool::shutdown() {
    {
        std::lock_guard lock(m_mutex);
        if (m_stopping && m_threads.empty()) return;
        m_stopping = true;
    }
    m_ready.notify_all();
    m_room.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
    m_threads.clear();
}

void BoundedPool::work() {
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock lock(m_mutex);
            m_ready.wait(lock, [this] { return m_stopping || !m_tasks.empty(); });
            // Queued tasks still run on the way out: each one answers a waiting request.
            if (m_tasks.empty()) return;
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        m_room.notify_one();
        task();
    }
}

} // namespace griglione
