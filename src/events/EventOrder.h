#pragma once

#include "events/EventModel.h"

#include <QtCore/QSortFilterProxyModel>

#include <optional>

namespace TARN {

/// The rows of a list of events that the user wants to see, in the order that they want: as the
/// list has them, or sorted by a column, then without the heading, which has no place there.
class EventOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit EventOrder(EventModel& list, QObject* parent = nullptr);

    /// Only rows of which a cell holds this text, in capitals or not, all for an empty one, and
    /// which are of this severity, any without one.
    void setFilter(const QString& text, std::optional<int> state);

    /// Column -1 is the list's own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// Row of the latest event at or before \p time (seconds) of those that are shown, in the
    /// list's own order; -1 when there is none.
    int rowAt(double time) const;

    /// All rows as text with a line of titles, cells parted by tabs, as a spreadsheet takes them.
    QString text() const;

Q_SIGNALS:
    // Other rows are shown, or others first.

    void changing();
    void changed();

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    /// What has no value comes last in either order.
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    void rebuild();

    EventModel& mList;
    QString mText;
    std::optional<int> mState;
};

} // namespace TARN
