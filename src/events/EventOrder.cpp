#include "events/EventOrder.h"

namespace TARN {

EventOrder::EventOrder(EventModel& list, QObject* parent)
    : QSortFilterProxyModel(parent), mList(list)
{
    setSortRole(EventModel::SortRole);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&list);
}

void EventOrder::setFilter(const QString& text, std::optional<int> state)
{
    mText = text;
    mState = state;
    rebuild();
}

void EventOrder::sort(int column, Qt::SortOrder order)
{
    Q_EMIT changing();
    QSortFilterProxyModel::sort(column, order);
    rebuild(); // the heading comes or goes
}

/// At once: rows that come and go one by one take time with each other.
void EventOrder::rebuild()
{
    Q_EMIT changing();
    invalidate();
    Q_EMIT changed();
}

int EventOrder::rowAt(double time) const
{
    for (int row = mList.rows().rowAt(time); row >= 0; --row) {
        if (row < mList.rowCount() && mList.rows().isOfReference(row)) {
            continue;
        }
        const QModelIndex shown = mapFromSource(mList.index(row, 0));
        if (shown.isValid()) {
            return shown.row();
        }
    }
    return -1;
}

QString EventOrder::text() const
{
    QStringList lines;
    const auto add = [&](const auto& cellOf) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column) {
            cells += cellOf(column).toString().trimmed();
        }
        lines += cells.join('\t');
    };
    add([&](int column) { return headerData(column, Qt::Horizontal, Qt::DisplayRole); });
    for (int row = 0; row < rowCount(); ++row) {
        add([&](int column) { return index(row, column).data(); });
    }
    return lines.join('\n') + "\n";
}

bool EventOrder::filterAcceptsRow(int row, const QModelIndex&) const
{
    if (mList.rows().isHeading(row)) {
        return sortColumn() < 0 && mText.isEmpty() && !mState;
    }
    const QVariant state = mList.index(row, EventModel::SeverityColumn).data(EventModel::StateRole);
    if (mState && state.isValid() && state != *mState) { // what is not known may be it
        return false;
    }
    if (mText.isEmpty()) {
        return true;
    }
    for (int column = 0; column < mList.columnCount(); ++column) {
        if (mList.index(row, column).data().toString().contains(mText, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

bool EventOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const bool hasLeft = left.data(sortRole()).isValid();
    const bool hasRight = right.data(sortRole()).isValid();
    return hasLeft && hasRight
               ? QSortFilterProxyModel::lessThan(left, right)
               : hasLeft != hasRight && hasLeft == (sortOrder() == Qt::AscendingOrder);
}

} // namespace TARN
