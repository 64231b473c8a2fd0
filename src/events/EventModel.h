#pragma once

#include "faults/Episode.h"
#include "faults/RecordEvent.h"
#include "flight/Flight.h"

#include <QtCore/QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

namespace TARN {

/// A list of events as a table, time and text in front. Below them may stand, under a heading of
/// their own, the episodes that no event announced.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        TimeColumn,
        TextColumn,
        UntilColumn,
        DurationColumn,
        PeakColumn,
        ThresholdColumn
    };

    /// \p title of the event column; \p hasEpisodes adds the columns that tell of episodes.
    EventModel(const QString& title, bool hasEpisodes, QObject* parent = nullptr);

    /// Shows a list sorted by time; null shows none. \p owner keeps it alive. Episodes are gone.
    void setEvents(std::shared_ptr<const void> owner, const std::vector<RecordEvent>* events);

    /// Shows these too; their times carry the time offset, where those of the events do not.
    void setEpisodes(std::shared_ptr<const std::vector<Episode>> episodes);

    /// Values of events with all their digits instead of the shortest text.
    void setAllDigits(bool on);

    /// Row of the latest event at or before \p time (seconds, compared in tenths); of several in
    /// one tenth the last. 0 when there is none.
    int rowAt(double time) const;

    /// Where a row lies in the flight.
    struct Place
    {
        const ProfileParameter* parameter;
        double start;               ///< seconds with the time offset
        std::optional<double> peak; ///< nothing where there is none
    };

    /// Nothing for the heading. \p offset in force.
    std::optional<Place> placeOf(int row, const Flight& flight, double offset) const;

    /// Rows as text with a line of titles, cells parted by tabs, as a spreadsheet takes them.
    QString textOf(const std::vector<int>& rows) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// Qt::UserRole of the time column is the time in milliseconds, a double; of the heading none.
    /// The tool tip of an event has all its digits.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::size_t eventCount() const { return mEvents != nullptr ? mEvents->size() : 0; }
    bool isHeading(int row) const;
    const RecordEvent* eventAt(int row) const;
    const Episode* unannouncedAt(int row) const;
    const Episode* episodeOf(int row) const;
    QString textAt(int row, int column) const;
    QString episodeText(const Episode& episode, int column, double shift) const;
    QVariant color(int row, int column, int role) const;

    QString mTitle;
    bool mHasEpisodes;
    bool mAllDigits = false;
    std::shared_ptr<const void> mOwner;
    const std::vector<RecordEvent>* mEvents = nullptr;
    std::shared_ptr<const std::vector<Episode>> mEpisodes;
    std::vector<const Episode*> mUnannounced;
    std::vector<const Episode*> mOfEvents; ///< the episode of each event, null where there is none
};

} // namespace TARN
