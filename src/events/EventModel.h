#pragma once

#include "events/EventRows.h"
#include "flight/Flight.h"

#include <QtCore/QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

namespace TARN {

/// A list of events as a table, time and text in front, then what their episodes tell; see
/// EventRows for what stands where. Times of errors carry no time offset, as the matrices do not.
/// What the reference flight had is grey.
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

    /// Shows the reference flight's between them; see EventRows.
    void setReference(std::shared_ptr<const void> keeper, std::vector<EventRows::Other> others);

    /// Values of events with all their digits instead of the shortest text.
    void setAllDigits(bool on);

    const EventRows& rows() const { return mRows; }

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
    QString textAt(int row, int column) const;
    QString episodeText(const Episode& episode, int column, double shift) const;
    QString headlineOf(const Episode& episode) const;
    QVariant color(int row, int column, int role) const;
    QVariant sortKey(int row, int column) const;

    EventKind mKind;
    QString mTitle;
    QStringList mSeverities;
    bool mAllDigits = false;
    std::shared_ptr<const void> mOwner;
    EventRows mRows;
};

} // namespace TARN
