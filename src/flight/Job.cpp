#include "flight/Job.h"

#include <algorithm>
#include <atomic>

namespace TARN {

namespace {

std::atomic<int> running = 0;

} // namespace

QThreadPool& jobThreads()
{
    // Threads that hang must not keep others from working.
    constexpr int SpareThreads = 32;
    static QThreadPool* pool = [] {
        auto* made = new QThreadPool; // never destroyed: that would wait for its threads
        made->setMaxThreadCount(QThread::idealThreadCount() + SpareThreads);
        return made;
    }();
    return *pool;
}

int runningJobs()
{
    return running;
}

void countJobs(int difference)
{
    running += difference;
}

} // namespace TARN
