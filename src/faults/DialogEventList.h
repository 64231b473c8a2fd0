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
    /// \p title of the event column; \p allWell is shown when a recording has no event.
    DialogEventList(const QString& title, const QString& allWell, QWidget* parent);

    /// The list of a recording that this view shows.
    virtual const std::vector<RecordEvent>& eventsOf(const RecordData& recording) const = 0;

private Q_SLOTS:
    void slotSelect();

private:
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

protected:
    const std::vector<RecordEvent>& eventsOf(const RecordData& recording) const override
    {
        return recording.limits;
    }
};

/// Every moment at which a warning lamp was switched on.
class DialogDataWarning : public DialogEventList
{
    Q_OBJECT

public:
    explicit DialogDataWarning(QWidget* parent = nullptr);

protected:
    const std::vector<RecordEvent>& eventsOf(const RecordData& recording) const override
    {
        return recording.warnings;
    }
};

} // namespace TARN
