#pragma once

#include "record/Record.h"
#include "widgets/DataView.h"

#include <QtWidgets/QWidget>

namespace TARN {

class DataTableView;
class EventModel;

/// A list of events by time. Selecting one reports its time; moving the time selects the latest
/// event at or before it.
class DialogEventList : public QWidget, public DataView
{
    Q_OBJECT

public:
    void updateProfile() override {}
    void updateRecord(Record* record) override;
    void updateOffset(Record*) override {}
    void setTime(double time) override;

Q_SIGNALS:
    /// The user selected an event of this time, seconds in whole milliseconds.
    void signalTime(double time);

protected:
    /// The list of a recording that the view shows.
    using Events = std::vector<RecordEvent> RecordData::*;

    /// \p title of the event column; \p allWell is shown when a recording has no event.
    DialogEventList(Events events, const QString& title, const QString& allWell, QWidget* parent);

private Q_SLOTS:
    void slotSelect();

private:
    Events mEvents;
    QString mAllWell;
    EventModel* mModel;
    DataTableView* mTable;
    bool mUpdating = false; ///< the selection is not the user's
};

/// Every moment at which a parameter entered its warning or limit range.
class DialogDataLimit : public DialogEventList
{
    Q_OBJECT

public:
    explicit DialogDataLimit(QWidget* parent = nullptr);
};

/// Every moment at which a warning lamp was switched on.
class DialogDataWarning : public DialogEventList
{
    Q_OBJECT

public:
    explicit DialogDataWarning(QWidget* parent = nullptr);
};

} // namespace TARN
