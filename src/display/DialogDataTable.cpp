#include "display/DialogDataTable.h"

#include "display/TableModel.h"
#include "widgets/DataTableView.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogDataTable::DialogDataTable(QWidget* parent)
    : QWidget(parent), mModel(new TableModel(this)), mTable(new DataTableView)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable);
    mTable->setObjectName("values");
    mTable->setModel(mModel);
    mTable->setAccessibleName(tr("Values of the selected parameters"));
    setFocusProxy(mTable);
    connect(mTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DialogDataTable::slotSelect);
    updateEmptyText();
}

void DialogDataTable::updateProfile()
{
    constexpr int TimeColumnWidth = 80;
    {
        const QScopedValueRollback updating(mUpdating, true);
        mModel->updateProfile(*Profile::instance());
        mTable->fitColumns();
        mTable->setColumnWidth(0, TimeColumnWidth);
    }
    updateRecord(mRecord);
}

void DialogDataTable::updateRecord(Record* record)
{
    const QScopedValueRollback updating(mUpdating, true);
    mRecord = record;
    mModel->updateRecord(record);
    updateEmptyText();
    if (record != nullptr) {
        mTable->widenColumns();
        setTime(record->recordInfo().startTime);
    }
}

void DialogDataTable::setTime(double time)
{
    const QScopedValueRollback updating(mUpdating, true);
    const QModelIndex cell = mModel->index(mModel->rowAt(time), 0);
    if (cell.isValid()) {
        mTable->selectRow(cell.row());
        mTable->scrollTo(cell, QAbstractItemView::PositionAtCenter);
    }
}

void DialogDataTable::slotSelect()
{
    if (mUpdating) {
        return;
    }
    for (const QModelIndex& index : mTable->selectionModel()->selectedRows()) {
        Q_EMIT signalTime(static_cast<double>(index.data(Qt::UserRole).toLongLong()) * 0.001);
    }
}

void DialogDataTable::updateEmptyText()
{
    if (mModel->columnCount() <= 1) {
        mTable->setEmptyText(tr("No parameter is selected.\nTick parameters in the list on the "
                                "left and press \"Confirm Selection\"."));
    } else if (mRecord == nullptr) {
        mTable->setEmptyText(tr("No recording is loaded.\nOpen a card and pick one or more "
                                "recordings in the list on the left."));
    } else {
        mTable->setEmptyText(tr("The recording holds no sample of the selected parameters."));
    }
}

} // namespace TARN
