#include "faults/DialogEventList.h"

#include "faults/EventModel.h"
#include "widgets/DataTableView.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>

namespace TARN {

DialogEventList::DialogEventList(Events events, const QString& title, const QString& allWell,
                                 QWidget* parent)
    : QWidget(parent), mEvents(events), mAllWell(allWell), mModel(new EventModel(title, this)),
      mTable(new DataTableView)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable, 0, 0);
    mTable->setModel(mModel);
    mTable->setObjectName("events");
    mTable->setAccessibleName(title);
    mTable->verticalHeader()->hide();
    mTable->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    setFocusProxy(mTable);
    connect(mTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DialogEventList::slotSelect);
    updateRecord(nullptr);
}

void DialogEventList::updateRecord(Record* record)
{
    const QScopedValueRollback updating(mUpdating, true);
    mModel->setEvents(record != nullptr ? &(record->recordData().*mEvents) : nullptr);
    mTable->setEmptyText(record != nullptr
                             ? mAllWell
                             : tr("No recording is loaded.\nOpen a card and pick one or more "
                                  "recordings in the list on the left."));
    if (record != nullptr) {
        setTime(record->recordInfo().startTime);
    }
}

void DialogEventList::setTime(double time)
{
    const QScopedValueRollback updating(mUpdating, true);
    const QModelIndex cell = mModel->index(mModel->rowAt(time), 0);
    if (cell.isValid()) {
        mTable->selectRow(cell.row());
        mTable->scrollTo(cell, QAbstractItemView::PositionAtCenter);
    }
}

void DialogEventList::slotSelect()
{
    if (mUpdating) {
        return;
    }
    for (const QModelIndex& index : mTable->selectionModel()->selectedRows()) {
        Q_EMIT signalTime(index.data(Qt::UserRole).toInt() * 0.001);
    }
}

DialogDataLimit::DialogDataLimit(QWidget* parent)
    : DialogEventList(&RecordData::limits, tr("Warning/Limit Exceed"),
                      tr("No parameter left its normal range in this recording."), parent)
{}

DialogDataWarning::DialogDataWarning(QWidget* parent)
    : DialogEventList(&RecordData::warnings, tr("Warning Lamps"),
                      tr("No warning lamp came on in this recording."), parent)
{}

} // namespace TARN
