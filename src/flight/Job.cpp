#include "flight/Job.h"

namespace TARN {

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

} // namespace TARN
