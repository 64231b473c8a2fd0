#pragma once

#include "flight/Job.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <algorithm>
#include <vector>

namespace TARN::Bench {

inline double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Lets windows live for so long.
inline void live(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Until no job runs.
inline void liveUntilDone()
{
    constexpr int Turn = 20; // ms
    do {
        live(Turn);
    } while (pendingWork() > 0);
}

/// The longest time between two beats of a heart in the window's event loop, less the beat.
class Heartbeat
{
public:
    Heartbeat()
    {
        mTimer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&mTimer, &QTimer::timeout, [this] { beat(); });
        mTimer.start(Beat);
        mSince.start();
    }

    double longestHold() const { return mLongest; } ///< seconds

private:
    static constexpr int Beat = 5; // ms

    void beat()
    {
        const double passed = static_cast<double>(mSince.nsecsElapsed()) * 1e-9 - Beat * 1e-3;
        mLongest = std::max(mLongest, passed);
        mSince.restart();
    }

    QTimer mTimer;
    QElapsedTimer mSince;
    double mLongest = 0.0;
};

} // namespace TARN::Bench
