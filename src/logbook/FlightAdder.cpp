#include "logbook/FlightAdder.h"

#include "logbook/ContentHash.h"
#include "logbook/FlightDigest.h"
#include "logbook/FolderWalk.h"
#include "logbook/Logbook.h"
#include "logbook/LogbookError.h"
#include "record/FlightGroups.h"
#include "record/MemoryNeed.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <new>
#include <set>
#include <thread>

namespace TARN {

namespace {

struct AdderTexts
{
    Q_DECLARE_TR_FUNCTIONS(FlightAdder)
};

/// Recordings of one flight, and whose they are.
struct Found
{
    QString aircraft;
    FlightGroup files;
};

/// The flights of folders, all or those that one of these recordings is of.
std::vector<Found> flightsIn(const std::set<QString>& folders,
                             const std::optional<QStringList>& recordings, Progress& progress)
{
    std::vector<Found> all;
    for (const QString& folder : folders) {
        const CardInfo card = readCard(folder, progress);
        if (progress.stopRequested()) {
            return {};
        }
        for (FlightGroup& group : flightGroups(card)) {
            const bool isWanted =
                !recordings || std::ranges::any_of(group, [&](const QString& path) {
                    return recordings->contains(path);
                });
            if (isWanted) {
                const QString serial = card.records.at(group.front()).engineSerialNr;
                all.push_back({serial.trimmed(), std::move(group)});
            }
        }
    }
    return all;
}

/// By what a change of files shows.
QStringList stateOf(const FlightGroup& files)
{
    QStringList state;
    for (const QString& path : files) {
        const QFileInfo file(path);
        state += QString("%1 %2").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
    }
    return state;
}

/// Where something is wrong with the recordings themselves.
struct Damage
{
    QString reason;
};

std::shared_ptr<const Record> read(const FlightGroup& files, Progress& progress)
{
    // With what others read at the same time, and what a window shows.
    if (!fitMemory(promisedSamples({files.begin(), files.end()}))) {
        throw std::bad_alloc();
    }
    auto record = std::make_shared<Record>();
    if (!record->readRecordData({files.begin(), files.end()}, 0.0, progress, 1)) {
        throw Damage{record->errorText()};
    }
    std::size_t samples = 0;
    for (const FileIntegrity& file : record->integrity().files) {
        samples += file.samples;
        if (file.unread > 0) {
            throw Damage{AdderTexts::tr("\"%1\" can't be read to its end").arg(file.info.fileName)};
        }
    }
    if (samples == 0) {
        throw Damage{AdderTexts::tr("there is no sample in it")};
    }
    return record;
}

/// Shared by the threads that add.
class Adding
{
public:
    Adding(std::vector<Found> found, const QString& url, std::shared_ptr<const Profile> profile,
           const AddListener& listener, const std::stop_token& stop)
        : mFound(std::move(found)), mUrl(url), mProfile(std::move(profile)), mListener(listener),
          mStop(stop)
    {
        mTotals.all = mFound.size();
    }

    AddTotals run(unsigned jobs)
    {
        {
            std::vector<std::jthread> threads;
            const std::size_t most = std::max<std::size_t>(1, mFound.size());
            for (std::size_t k = std::min<std::size_t>(jobs, most); k > 0; --k) {
                threads.emplace_back([this] { work(); });
            }
        }
        if (mFailure) {
            std::rethrow_exception(mFailure);
        }
        return mTotals;
    }

private:
    /// Each thread has a connection of its own.
    void work()
    {
        try {
            Logbook logbook(mUrl, SqlConnection::Create);
            logbook.setLostListener([this](const QString& reason) {
                const std::lock_guard lock(mGuard);
                mListener.connectionLost(reason);
            });
            Progress progress({}, mStop);
            for (std::size_t k = mNext++; k < mFound.size() && !isOver(); k = mNext++) {
                add(mFound[k], logbook, progress);
            }
        } catch (...) {
            const std::lock_guard lock(mGuard);
            mFailure = mFailure ? mFailure : std::current_exception();
            mIsOver = true;
        }
    }

    bool isOver() const { return mIsOver || mStop.stop_requested(); }

    void add(const Found& found, Logbook& logbook, Progress& progress)
    {
        AddOutcome outcome{AddOutcome::Damaged, found.aircraft, {}, {}, {}};
        outcome.files = QStringList(found.files.begin(), found.files.end());
        try {
            outcome.kind = tryToAdd(found, logbook, progress, outcome.flight);
        } catch (const Damage& damage) {
            outcome.reason = damage.reason;
        } catch (const std::bad_alloc&) {
            outcome.reason = AdderTexts::tr("there is not enough memory for it");
        }
        if (!progress.stopRequested() || outcome.kind != AddOutcome::Damaged) {
            tell(outcome);
        }
    }

    AddOutcome::Kind tryToAdd(const Found& found, Logbook& logbook, Progress& progress,
                              QString& flight)
    {
        const QStringList before = stateOf(found.files);
        const std::optional<QString> hash = contentHash(found.files, progress);
        if (!hash) {
            throw Damage{AdderTexts::tr("it can't be read")};
        }
        flight = *hash;
        if (logbook.knows(found.aircraft, *hash)) {
            return AddOutcome::Known;
        }
        const auto made = Flight::make(read(found.files, progress), mProfile, progress);
        auto entry = made != nullptr ? digestOf(made, nameOfProfile(), progress) : std::nullopt;
        if (!entry || stateOf(found.files) != before) {
            throw Damage{AdderTexts::tr("it changed while it was read")};
        }
        entry->head.aircraft = found.aircraft;
        entry->head.flight = *hash;
        return keep(*entry, logbook) ? AddOutcome::Added : AddOutcome::Known;
    }

    /// A file takes one writer at a time, who would wait for it in steps that are too long.
    bool keep(const FlightEntry& entry, Logbook& logbook)
    {
        std::unique_lock lock(mWriting, std::defer_lock);
        if (logbook.place().isFile()) {
            lock.lock();
        }
        return logbook.add(entry);
    }

    void tell(const AddOutcome& outcome)
    {
        const std::lock_guard lock(mGuard);
        ++mTotals.done;
        ++(outcome.kind == AddOutcome::Added   ? mTotals.added
           : outcome.kind == AddOutcome::Known ? mTotals.known
                                               : mTotals.damaged);
        mListener.done(outcome, mTotals);
    }

    QString nameOfProfile() const { return mProfile->fileName().section('/', -1); }

    std::vector<Found> mFound;
    QString mUrl;
    std::shared_ptr<const Profile> mProfile;
    const AddListener& mListener;
    std::stop_token mStop;
    std::atomic<std::size_t> mNext = 0;
    std::atomic<bool> mIsOver = false;
    std::mutex mWriting;
    std::mutex mGuard; ///< of what follows
    AddTotals mTotals;
    std::exception_ptr mFailure;
};

} // namespace

AddTotals addFlights(const QStringList& folders, const QString& url,
                     const std::shared_ptr<const Profile>& profile, unsigned jobs,
                     const AddListener& listener, Progress& progress)
{
    for (const QString& folder : folders) {
        if (!QFileInfo(folder).isDir()) {
            throw LogbookError(AdderTexts::tr("\"%1\" is no folder").arg(folder));
        }
    }
    Logbook(url, SqlConnection::Create); // what is wrong with it is told before all is looked at
    const unsigned threads = jobs > 0 ? jobs : std::max(1U, std::thread::hardware_concurrency());
    return Adding(flightsIn(foldersBelow(folders, progress), {}, progress), url, profile, listener,
                  progress.stopToken())
        .run(threads);
}

AddTotals addFlightsOf(const QStringList& recordings, const QString& url,
                       const std::shared_ptr<const Profile>& profile, const AddListener& listener,
                       Progress& progress)
{
    std::set<QString> folders;
    for (const QString& path : recordings) {
        folders.insert(QFileInfo(path).path());
    }
    return Adding(flightsIn(folders, recordings, progress), url, profile, listener,
                  progress.stopToken())
        .run(1);
}

} // namespace TARN
