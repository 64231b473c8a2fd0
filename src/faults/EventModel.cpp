#include "faults/EventModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"

#include <QtGui/QFont>

#include <algorithm>

namespace TARN {

EventModel::EventModel(const QString& title, QObject* parent)
    : QAbstractTableModel(parent), mTitle(title)
{}

void EventModel::setEvents(const std::vector<RecordEvent>* events)
{
    beginResetModel();
    mEvents = events;
    endResetModel();
}

int EventModel::rowAt(double time) const
{
    if (mEvents == nullptr) {
        return 0;
    }
    const auto after =
        std::ranges::upper_bound(*mEvents, timeKeyOf(time), {}, [](const RecordEvent& event) {
            return static_cast<std::uint32_t>(event.tenths);
        });
    return after == mEvents->begin() ? 0 : static_cast<int>(after - mEvents->begin() - 1);
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || mEvents == nullptr ? 0 : static_cast<int>(mEvents->size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant EventModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const RecordEvent& event = (*mEvents)[static_cast<std::size_t>(index.row())];
    const bool isTime = index.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
        return isTime ? clockTime(millisecondsOf(event.time)).toString("hh:mm:ss.zzz") : event.text;
    case Qt::UserRole:
        return isTime ? QVariant(event.time * 1000.0) : QVariant();
    case Qt::BackgroundRole:
        return backgroundOf(isTime ? TimeCellColor : event.color);
    case Qt::ForegroundRole:
        return foregroundOn(isTime ? TimeCellColor : event.color);
    default:
        return {};
    }
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return section == 0 ? tr("Time") : mTitle;
    }
    if (orientation == Qt::Horizontal && role == Qt::FontRole) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

} // namespace TARN
