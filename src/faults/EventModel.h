#pragma once

#include "record/RecordEvent.h"

#include <QtCore/QAbstractTableModel>

#include <vector>

namespace TARN {

/// A list of events as a table of two columns, time and text.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// \p title of the event column.
    explicit EventModel(const QString& title, QObject* parent = nullptr);

    /// Shows a list sorted by time, not owned; null shows none.
    void setEvents(const std::vector<RecordEvent>* events);

    /// Row of the latest event at or before \p time (seconds, compared in tenths); of several in
    /// one tenth the last. 0 when there is none.
    int rowAt(double time) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// Qt::UserRole of the time column is the event's time in milliseconds, a double.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString mTitle;
    const std::vector<RecordEvent>* mEvents = nullptr;
};

} // namespace TARN
