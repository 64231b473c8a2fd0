#pragma once

#include "events/EventWords.h"
#include "faults/RecordEvent.h"
#include "flight/Flight.h"

#include <QtCore/QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

namespace TARN {

/// A list of events as a table, time and text in front, then what their episodes tell. Below them
/// stand, under a heading, the episodes that no event announced. Errors have no events: their list
/// is one of episodes, whose times carry no time offset, as the matrices do not.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        TimeColumn,
        TextColumn,
        SeverityColumn,
        UntilColumn,
        DurationColumn,
        PeakColumn, ///< this and the next of limits only
        ThresholdColumn
    };

    /// Beside those of the toolkit.
    enum Role
    {
        TimeRole = Qt::UserRole, ///< of the time column in milliseconds, a double; none of headings
        SortRole,                ///< what a column is sorted by
        StateRole                ///< severity as a number; none while it is not known
    };

    /// \p title of the event column.
    EventModel(EventKind kind, const QString& title, QObject* parent = nullptr);

    EventKind kind() const { return mKind; }

    /// Shows a list sorted by time; null shows none. \p owner keeps it alive. Episodes are gone.
    void setEvents(std::shared_ptr<const void> owner, const std::vector<RecordEvent>* events);

    /// Shows these too; times of those without an event carry the time offset. Null shows none.
    void setEpisodes(std::shared_ptr<const std::vector<Episode>> episodes);

    /// Values of events with all their digits instead of the shortest text.
    void setAllDigits(bool on);

    /// Row of the latest event, in a list without events of the latest episode, at or before
    /// \p time (seconds, compared in tenths); of several in one tenth the last. 0 when there is
    /// none.
    int rowAt(double time) const;
    /// Whether a row is the heading over those without an event.
    bool isHeading(int row) const
    {
        return mKind != EventKind::Faults && static_cast<std::size_t>(row) == eventCount();
    }

    /// Where a row lies in the flight.
    struct Place
    {
        const ProfileParameter* parameter; ///< null of an error
        double start;                      ///< seconds with the time offset
        std::optional<double> peak;        ///< nothing where there is none
    };

    /// Nothing for the heading. \p offset in force.
    std::optional<Place> placeOf(int row, const Flight& flight, double offset) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// The tool tip of an event has all its digits.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::size_t eventCount() const { return mEvents != nullptr ? mEvents->size() : 0; }
    /// Row of the first episode without an event.
    std::size_t firstUnannounced() const
    {
        return mKind == EventKind::Faults ? 0 : eventCount() + 1; // below the heading
    }
    const RecordEvent* eventAt(int row) const;
    const Episode* unannouncedAt(int row) const;
    const Episode* episodeOf(int row) const;
    QString textAt(int row, int column) const;
    QString episodeText(const Episode& episode, int column, double shift) const;
    double shownShift(const Episode& episode) const;
    QString unannouncedText(const Episode& episode) const;
    QVariant color(int row, int column, int role) const;
    QVariant sortKey(int row, int column) const;

    EventKind mKind;
    QString mTitle;
    QStringList mSeverities;
    bool mAllDigits = false;
    std::shared_ptr<const void> mOwner;
    const std::vector<RecordEvent>* mEvents = nullptr;
    std::shared_ptr<const std::vector<Episode>> mEpisodes;
    std::vector<const Episode*> mUnannounced;
    std::vector<const Episode*> mOfEvents; ///< the episode of each event, null where there is none
};

} // namespace TARN
