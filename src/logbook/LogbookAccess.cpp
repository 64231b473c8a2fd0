#include "logbook/LogbookAccess.h"

#include "logbook/LogbookError.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

namespace {

/// Nothing for a file that is not there: nobody has kept a flight yet.
std::unique_ptr<Logbook> opened(const QString& url)
{
    const LogbookPlace place = logbookPlace(url);
    if (place.isFile() && !QFileInfo::exists(place.file)) {
        return nullptr;
    }
    return std::make_unique<Logbook>(url, SqlConnection::Create);
}

} // namespace

LogbookAccess::LogbookAccess(QObject* parent) : QObject(parent)
{
    mAdding.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
}

void LogbookAccess::setUrl(const QString& url)
{
    if (url == mUrl) {
        return;
    }
    mReading.cancel();
    mTrends.cancel();
    mFinding.cancel();
    mUrl = url;
}

template <typename Result>
void LogbookAccess::ask(Job<Answer<Result>>& job, std::function<Result(Progress&)> work,
                        std::function<void(const Result&)> done)
{
    job.setOutOfMemory([this] { Q_EMIT failed(tr("There is not enough memory.")); });
    job.start(
        [work = std::move(work)](Progress& progress) {
            Answer<Result> answer;
            try {
                answer.result = work(progress);
            } catch (const LogbookError& error) {
                answer.error = QString::fromUtf8(error.what());
            }
            return answer;
        },
        [this, done = std::move(done)](const Answer<Result>& answer) {
            if (!answer.error.isEmpty()) {
                Q_EMIT failed(answer.error);
            } else {
                done(answer.result);
            }
        });
}

void LogbookAccess::readFlights()
{
    ask<FlightHeads>(
        mReading,
        [url = mUrl](Progress&) -> FlightHeads {
            const auto logbook = opened(url);
            auto flights = logbook != nullptr ? logbook->flights() : std::vector<FlightHead>();
            std::ranges::reverse(flights); // as in a trend also those of one minute
            std::ranges::stable_sort(flights, std::greater(), &FlightHead::start);
            return std::make_shared<const std::vector<FlightHead>>(std::move(flights));
        },
        [this](const FlightHeads& flights) { Q_EMIT flightsRead(flights); });
}

void LogbookAccess::readTrends(const QString& aircraft, Figure figure)
{
    ask<EngineTrends>(
        mTrends,
        [url = mUrl, aircraft, figure](Progress&) {
            const auto logbook = opened(url);
            return logbook == nullptr
                       ? EngineTrends{aircraft, figure, {}, {}}
                       : EngineTrends{aircraft, figure, logbook->trends(aircraft, figure),
                                      logbook->marks(aircraft)};
        },
        [this](const EngineTrends& trends) { Q_EMIT trendsRead(trends); });
}

void LogbookAccess::find(const FlightHead& head, const QString& folder)
{
    ask<FoundRecordings>(
        mFinding,
        [url = mUrl, head, folder](Progress& progress) {
            return findRecordings(Logbook(url, SqlConnection::Refuse).entry(head), folder,
                                  progress);
        },
        [this, head](const FoundRecordings& recordings) { Q_EMIT found(head, recordings); });
}

void LogbookAccess::addFolders(const QStringList& folders, std::shared_ptr<const Profile> profile)
{
    add([url = mUrl, folders, profile](const AddListener& listener, Progress& progress) {
        return addFlights(folders, url, profile, 0, listener, progress);
    });
}

void LogbookAccess::addFlightsOf(const QStringList& recordings,
                                 std::shared_ptr<const Profile> profile)
{
    add([url = mUrl, recordings, profile](const AddListener& listener, Progress& progress) {
        return TARN::addFlightsOf(recordings, url, profile, listener, progress);
    });
}

void LogbookAccess::add(std::function<AddTotals(const AddListener&, Progress&)> work)
{
    ask<Added>(
        mAdding,
        [work = std::move(work), words = tr("%1 of %2 flights"),
         again = tr("Trying again: %1")](Progress& progress) {
            Added all;
            // The threads that add take turns, and this one waits for them.
            AddListener listener;
            listener.done = [&](const AddOutcome& outcome, const AddTotals& soFar) {
                if (outcome.kind == AddOutcome::Damaged) {
                    all.damaged += outcome.files.join(", ") + ": " + outcome.reason;
                }
                progress.begin(words.arg(soFar.done).arg(soFar.all));
                progress.report(soFar.done, soFar.all);
            };
            listener.connectionLost = [&](const QString& reason) {
                progress.begin(again.arg(reason));
                progress.report(0);
            };
            all.totals = work(listener, progress);
            return all;
        },
        [this](const Added& all) {
            Q_EMIT added(all.totals, all.damaged);
            if (all.totals.added > 0) {
                Q_EMIT changed();
            }
        });
}

/// The result arrives all the same: what was added until then.
void LogbookAccess::stopAdding()
{
    mAdding.stop();
}

void LogbookAccess::change(const std::function<void(Logbook&)>& work)
{
    ask<bool>(
        mChanging,
        [url = mUrl, work](Progress&) {
            Logbook logbook(url, SqlConnection::Refuse);
            work(logbook);
            return true;
        },
        [this](bool) { Q_EMIT changed(); });
}

void LogbookAccess::addMark(const MaintenanceMark& mark)
{
    change([mark](Logbook& logbook) { logbook.addMark(mark); });
}

void LogbookAccess::remove(const FlightHead& head)
{
    change([head](Logbook& logbook) { logbook.remove(head); });
}

} // namespace TARN
