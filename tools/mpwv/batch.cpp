// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "batch.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace {

// How far the fastest thread may be ahead of the slowest job, in jobs a thread.
const int Ahead = 16;

class Schedule
{
public:
    Schedule(int count, int threads)
        : m_nCount(count)
        , m_nAhead(Ahead * threads)
        , m_done(static_cast<size_t>(count), false)
    {}

    // The next job, or -1 when there is none left.
    int take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_reportedMore.wait(
            lock, [this] { return m_nNext >= m_nCount || m_nNext < m_nReported + m_nAhead; });
        return m_nNext < m_nCount ? m_nNext++ : -1;
    }

    void finish(int job)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done[static_cast<size_t>(job)] = true;
        m_doneMore.notify_one();
    }

    void waitFor(int job)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_doneMore.wait(lock, [this, job] { return m_done[static_cast<size_t>(job)]; });
    }

    void reported()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_nReported;
        m_reportedMore.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_doneMore;
    std::condition_variable m_reportedMore;
    int m_nCount;
    int m_nAhead;
    int m_nNext = 0;
    int m_nReported = 0;
    std::vector<bool> m_done;
};

} // namespace

void runBatch(int count, int threads,
              const std::function<std::function<void(int job)>()>& makeWorker,
              const std::function<void(int job)>& report)
{
    Schedule schedule(count, threads);
    std::vector<std::thread> pool;
    pool.reserve(static_cast<size_t>(std::min(count, threads)));
    for (int i = 0; i < std::min(count, threads); ++i) {
        pool.emplace_back([&schedule, &makeWorker] {
            const std::function<void(int)> work = makeWorker();
            for (int job = schedule.take(); job >= 0; job = schedule.take()) {
                work(job);
                schedule.finish(job);
            }
        });
    }
    for (int job = 0; job < count; ++job) {
        schedule.waitFor(job);
        report(job);
        schedule.reported();
    }
    for (std::thread& thread : pool)
        thread.join();
}
