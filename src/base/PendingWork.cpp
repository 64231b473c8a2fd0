#include "base/PendingWork.h"

#include <atomic>

namespace TARN {

namespace {

std::atomic<int> pending = 0;

} // namespace

int pendingWork()
{
    return pending;
}

void countPendingWork(int difference)
{
    pending += difference;
}

} // namespace TARN
