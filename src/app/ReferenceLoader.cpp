#include "app/ReferenceLoader.h"

#include "record/MemoryNeed.h"

namespace TARN {

ReferenceLoader::ReferenceLoader(Session& session, QObject* parent)
    : QObject(parent), mSession(session)
{
    mReading.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
    mReading.setOutOfMemory([this] {
        Q_EMIT failed(tr("There is not enough memory for a reference beside the flight."));
    });
}

void ReferenceLoader::load(std::list<QString> files)
{
    files.remove(QString());
    if (files.empty()) {
        return;
    }
    mReading.cancel();
    Q_EMIT started(0.0);
    // A card that does not answer must not hold the window, so even sizes are asked for beside it.
    mMeasuring.start([files](Progress&) { return promisedSamples(files); },
                     [this, files](double samples) { read(files, samples); });
}

void ReferenceLoader::read(const std::list<QString>& files, double samples)
{
    if (!fitMemory(samples)) {
        Q_EMIT failed(tr("There is not enough memory for a reference beside the flight."));
        return;
    }
    Q_EMIT started(samples);
    mReading.start(
        [files, profile = mSession.profile(), task = tr("Looking for events")](Progress& progress) {
            return readFlight(files, 0.0, profile, task, progress);
        },
        [this](const ReadFlight& read) { take(read); });
}

void ReferenceLoader::take(const ReadFlight& read)
{
    if (read.flight == nullptr) {
        Q_EMIT failed(read.error);
    } else if (read.flight->profile() != mSession.profile()) {
        mReading.start([read, profile = mSession.profile()](
                           Progress& progress) { return understoodBy(profile, read, progress); },
                       [this](const ReadFlight& again) { take(again); });
    } else {
        mSession.reference().setFlight(read.flight);
        Q_EMIT finished();
    }
}

void ReferenceLoader::cancel()
{
    if (mMeasuring.isRunning() || mReading.isRunning()) {
        mMeasuring.cancel();
        mReading.cancel();
        Q_EMIT failed({});
    }
}

} // namespace TARN
