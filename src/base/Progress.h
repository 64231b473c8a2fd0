#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <functional>
#include <stop_token>
#include <utility>

namespace TARN {

/// What a long piece of work reports to and obeys. It hears how much is done, each percentage
/// once, and may ask the work to stop; the work looks several times in fifty milliseconds and
/// then ends without a result. One that was made of nothing hears nothing and never stops. Each
/// belongs to one thread; the stop may be asked for from any.
class Progress
{
public:
    /// Told the percentage and a word for what is being done; empty when there is none.
    using Listener = std::function<void(int percent, const QString& task)>;

    Progress() = default;
    explicit Progress(Listener listener, std::stop_token stop = {})
        : mListener(std::move(listener)), mStop(std::move(stop))
    {}

    bool stopRequested() const { return mStop.stop_requested(); }
    const std::stop_token& stopToken() const { return mStop; }

    /// Names what follows. What was reported before does not count any more.
    void begin(const QString& task)
    {
        mTask = task;
        mPercent = -1;
    }

    void report(int percent)
    {
        if (percent != mPercent && mListener) {
            mListener(percent, mTask);
        }
        mPercent = percent;
    }

    void report(std::size_t done, std::size_t all)
    {
        report(all == 0 ? 100
                        : static_cast<int>(100.0 * static_cast<double>(done) /
                                           static_cast<double>(all)));
    }

private:
    Listener mListener;
    std::stop_token mStop;
    QString mTask;
    int mPercent = -1;
};

} // namespace TARN
