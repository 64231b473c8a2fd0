#pragma once

#include "flight/Job.h"
#include "logbook/FlightAdder.h"
#include "logbook/Logbook.h"
#include "logbook/RecordingFinder.h"

#include <QtCore/QObject>

namespace TARN {

/// The flights of a logbook at one moment, the latest first; never null.
using FlightHeads = std::shared_ptr<const std::vector<FlightHead>>;

/// A figure of all parameters of an engine.
struct EngineTrends
{
    QString aircraft;
    Figure figure = Figure::SteadyMean;
    std::vector<ParameterTrend> trends;
    std::vector<MaintenanceMark> notes; ///< by date
};

/// What a window asks of a logbook, beside the event loop. What is asked for again takes the place
/// of what was asked for before. A file that is not there is an empty logbook, which the first
/// flight makes.
class LogbookAccess : public QObject
{
    Q_OBJECT

public:
    explicit LogbookAccess(QObject* parent = nullptr);

    /// See logbookPlace; nothing is asked of the one before any more.
    void setUrl(const QString& url);
    const QString& url() const { return mUrl; }

    void readFlights();
    void readTrends(const QString& aircraft, Figure figure);
    /// See findRecordings.
    void find(const FlightHead& head, const QString& folder);

    // What changes it. Whoever adds waits for the end before they add more.

    void addFolders(const QStringList& folders, std::shared_ptr<const Profile> profile);
    void addFlightsOf(const QStringList& recordings, std::shared_ptr<const Profile> profile);
    void stopAdding();
    bool isAdding() const { return mAdding.isRunning(); }
    void addMark(const MaintenanceMark& mark);
    void remove(const FlightHead& head);

Q_SIGNALS:
    void flightsRead(const TARN::FlightHeads& flights);
    void trendsRead(const TARN::EngineTrends& trends);
    void found(const TARN::FlightHead& head, const TARN::FoundRecordings& recordings);
    void progressed(int percent, const QString& task);
    /// Flights were added, or not; the reasons of those that are damaged.
    void added(const TARN::AddTotals& totals, const QStringList& damaged);
    /// What is in it has changed.
    void changed();
    /// Why something could not be done.
    void failed(const QString& reason);

private:
    /// A result, or why there is none.
    template <typename Result>
    struct Answer
    {
        Result result{};
        QString error;
    };
    struct Added
    {
        AddTotals totals;
        QStringList damaged;
    };

    template <typename Result>
    void ask(Job<Answer<Result>>& job, std::function<Result(Progress&)> work,
             std::function<void(const Result&)> done);
    void change(const std::function<void(Logbook&)>& work);
    void add(std::function<AddTotals(const AddListener&, Progress&)> work);

    QString mUrl;
    Job<Answer<FlightHeads>> mReading;
    Job<Answer<EngineTrends>> mTrends;
    Job<Answer<FoundRecordings>> mFinding;
    Job<Answer<Added>> mAdding;
    Job<Answer<bool>> mChanging;
};

} // namespace TARN
