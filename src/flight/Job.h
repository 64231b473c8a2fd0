#pragma once

#include "base/PendingWork.h"
#include "base/Progress.h"

#include <QtCore/QFutureWatcher>
#include <QtCore/QPromise>
#include <QtCore/QThreadPool>

#include <atomic>
#include <chrono>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <thread>
#include <utility>

namespace TARN {

/// The threads that jobs run on. They are never waited for: one may hang in a file system that
/// does not answer, and the program must be able to end all the same.
QThreadPool& jobThreads();

/// A piece of work on another thread. It is a function of things that do not change meanwhile; its
/// result arrives in the event loop of the thread that the job lives in. A job that is cancelled,
/// started anew or destroyed gives no result any more, and need not have ended then.
template <typename Result>
class Job
{
public:
    using Work = std::function<Result(Progress&)>;
    using Done = std::function<void(Result)>;

    Job() = default;
    ~Job() { cancel(); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Told in the event loop how far it is, at most some 25 times a second.
    void setListener(Progress::Listener listener) { mListener = std::move(listener); }

    /// Told in the event loop, in place of a result, when there was not enough memory.
    void setOutOfMemory(std::function<void()> told) { mOutOfMemory = std::move(told); }

    void start(Work work, Done done)
    {
        cancel();
        mStop = std::stop_source();
        mWatcher = std::make_unique<QFutureWatcher<void>>();
        mOutcome = std::make_shared<Outcome>();
        QObject::connect(mWatcher.get(), &QFutureWatcherBase::progressValueChanged, mWatcher.get(),
                         [this](int count) {
                             if (mListener && count > 0) {
                                 const auto [percent, task] = mOutcome->told();
                                 mListener(percent, task);
                             }
                         });
        QObject::connect(mWatcher.get(), &QFutureWatcherBase::finished, mWatcher.get(),
                         [this, done = std::move(done)] { finish(done); });
        auto task = std::make_unique<Task>(std::move(work), mStop.get_token(), mOutcome);
        mWatcher->setFuture(task->future());
        task->isReady = true;
        jobThreads().start(task.release());
    }

    void cancel()
    {
        mStop.request_stop();
        if (mWatcher != nullptr) {
            mWatcher->disconnect();
            mWatcher.release()->deleteLater(); // it may be what is calling
        }
    }

    /// Asks it to stop; a result arrives all the same.
    void stop() { mStop.request_stop(); }

    bool isRunning() const { return mWatcher != nullptr; }

    /// Waits for the end of the work, at most so long; for the end of the program only. The
    /// result does not arrive by that.
    void waitForEnd(std::chrono::milliseconds longest) const
    {
        constexpr std::chrono::milliseconds Step(5);
        for (; mWatcher != nullptr && !mWatcher->isFinished() && longest.count() > 0;
             longest -= Step) {
            std::this_thread::sleep_for(Step);
        }
    }

private:
    struct Outcome
    {
        std::optional<Result> result; ///< nothing when memory did not suffice
        std::atomic<bool> isComplete = false;

        void tell(int percent, const QString& task)
        {
            const std::lock_guard lock(mGuard);
            mTold = {percent, task};
        }
        std::pair<int, QString> told()
        {
            const std::lock_guard lock(mGuard);
            return mTold;
        }

    private:
        std::mutex mGuard;
        std::pair<int, QString> mTold; ///< how far it is
    };

    /// The work, handed over through flags of its own: no tool that looks for races sees into the
    /// queue of the threads.
    class Task : public QRunnable
    {
    public:
        Task(Work work, std::stop_token stop, std::shared_ptr<Outcome> outcome)
            : mWork(std::move(work)), mStop(std::move(stop)), mOutcome(std::move(outcome))
        {
            countPendingWork(1);
            mPromise.start();
        }
        ~Task() override { countPendingWork(-1); }

        QFuture<void> future() const { return mPromise.future(); }

        void run() override
        {
            isReady.wait(false);
            // What is told may begin anew; a promise hears nothing of what does not grow.
            mPromise.setProgressRange(0, std::numeric_limits<int>::max());
            int count = 0;
            Progress progress(
                [&](int percent, const QString& task) {
                    mOutcome->tell(percent, task);
                    mPromise.setProgressValue(++count);
                },
                mStop);
            try {
                mOutcome->result.emplace(mWork(progress));
            } catch (const std::bad_alloc&) {
                mOutcome->result.reset();
            }
            mOutcome->isComplete = true;
            mPromise.finish();
        }

        std::atomic<bool> isReady = false;

    private:
        Work mWork;
        std::stop_token mStop;
        std::shared_ptr<Outcome> mOutcome;
        QPromise<void> mPromise;
    };

    void finish(const Done& done)
    {
        mWatcher.release()->deleteLater(); // it is what is calling
        const Done call = done;            // what is called may start the job anew
        const std::shared_ptr<Outcome> outcome = std::move(mOutcome);
        outcome->isComplete.wait(false);
        if (outcome->result.has_value()) {
            call(std::move(*outcome->result));
        } else if (mOutOfMemory) {
            mOutOfMemory();
        }
    }

    std::unique_ptr<QFutureWatcher<void>> mWatcher; ///< null when nothing runs
    std::shared_ptr<Outcome> mOutcome;
    std::stop_source mStop;
    Progress::Listener mListener;
    std::function<void()> mOutOfMemory;
};

} // namespace TARN
