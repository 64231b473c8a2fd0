#include "table/DialogDataTable.h"

#include "flight/EmptyText.h"
#include "table/TableModel.h"
#include "widgets/DataTableView.h"

#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogDataTable::DialogDataTable(Session& session, QWidget* parent)
    : QWidget(parent), mSession(session), mModel(new TableModel(this)), mTable(new DataTableView)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable);
    mTable->setObjectName("values");
    mTable->setModel(mModel);
    mTable->setAccessibleName(tr("Values of the selected parameters"));
    setFocusProxy(mTable);
    connect(mTable, &DataTableView::rowPicked, this, &DialogDataTable::slotSelect);
    connect(mTable, &DataTableView::signalLink, this, &DialogDataTable::signalLink);
    mJob.setOutOfMemory([this] {
        mIsShort = true;
        updateEmptyText();
    });
    mReferenceJob.setOutOfMemory([this] { mSession.reference().memoryShort().turn(true); });
    followSession();
    showColumns();
}

void DialogDataTable::followSession()
{
    connect(&mSession, &Session::profileChanged, this, &DialogDataTable::showColumns);
    connect(&mSession, &Session::selectionChanged, this, &DialogDataTable::showColumns);
    connect(&mSession, &Session::flightChanged, this, &DialogDataTable::showColumns);
    connect(&mSession, &Session::offsetChanged, this, &DialogDataTable::fill);
    connect(&mSession, &Session::timeChanged, this, &DialogDataTable::showTime);
    connect(&mSession.loading(), &Switch::turned, this, &DialogDataTable::updateEmptyText);
    connect(&mSession.allDigits(), &Switch::turned, this, &DialogDataTable::updateDigits);
    const Reference& reference = mSession.reference();
    connect(&mSession, &Session::profileChanged, this, &DialogDataTable::loadReference);
    connect(&mSession, &Session::selectionChanged, this, &DialogDataTable::loadReference);
    connect(&reference, &Reference::flightChanged, this, &DialogDataTable::loadReference);
    connect(&reference, &Reference::shiftChanged, this, &DialogDataTable::showReference);
    connect(&reference.columnsShown(), &Switch::turned, this, &DialogDataTable::showReference);
}

/// The columns of the selection at once, their rows when they are found.
void DialogDataTable::showColumns()
{
    mModel->setRows(std::make_shared<TableRows>(mSession.profile(), mSession.selection()));
    fitColumns();
    fill();
}

void DialogDataTable::fitColumns()
{
    constexpr int TimeColumnWidth = 80;
    mTable->fitColumns();
    mTable->setColumnWidth(0, TimeColumnWidth);
}

void DialogDataTable::fill()
{
    mIsShort = false;
    updateEmptyText();
    mJob.cancel();
    mSeenFirst.cancel();
    if (mSession.flight() == nullptr || mSession.selection().empty()) {
        return;
    }
    mSeenFirst.run([this] {
        mJob.start(
            [flight = mSession.flight(), selection = mSession.selection(),
             offset = mSession.offset()](Progress& progress) -> std::shared_ptr<const TableRows> {
                return std::make_shared<TableRows>(flight, selection, offset, progress);
            },
            [this](std::shared_ptr<const TableRows> rows) { showRows(std::move(rows)); });
    });
}

void DialogDataTable::loadReference()
{
    const Reference& reference = mSession.reference();
    mReferenceJob.cancel();
    mReference.reset();
    showReference();
    if (reference.flight() == nullptr) {
        return;
    }
    mReferenceJob.start(
        [flight = reference.flight(), selection = mSession.selection(),
         offset = reference.offset()](Progress& progress) {
            return std::shared_ptr<const ReferenceColumns>(
                std::make_shared<ReferenceColumns>(flight, selection, offset, progress));
        },
        [this](std::shared_ptr<const ReferenceColumns> made) {
            mReference = std::move(made);
            showReference();
        });
}

/// Rows stay where they are; columns may come or go.
void DialogDataTable::showReference()
{
    const int columns = mModel->columnCount();
    const Reference& reference = mSession.reference();
    mModel->setReference(mReference, reference.shift(), reference.columnsShown().isOn());
    if (mModel->columnCount() != columns) {
        fitColumns();
    }
    showTime(mSession.time(), nullptr);
}

void DialogDataTable::showRows(std::shared_ptr<const TableRows> rows)
{
    mModel->setRows(std::move(rows));
    updateEmptyText();
    showTime(mSession.time(), nullptr);
}

void DialogDataTable::showTime(double time, const QObject* source)
{
    if (source != this) {
        mTable->showRow(mModel->rowAt(time));
    }
}

void DialogDataTable::slotSelect(int row)
{
    const auto milliseconds = mModel->index(row, 0).data(Qt::UserRole).toLongLong();
    mSession.setTime(static_cast<double>(milliseconds) * 0.001, this);
}

void DialogDataTable::updateDigits()
{
    mModel->setAllDigits(mSession.allDigits().isOn());
    mTable->fitColumns();
    showTime(mSession.time(), nullptr);
}

void DialogDataTable::updateEmptyText()
{
    const QString general = emptyTextOf(mSession);
    mTable->setEmptyText(
        !general.isEmpty() ? general
        : mIsShort         ? tr("There is not enough memory for this table; load fewer recordings.")
        : mJob.isRunning() || mSeenFirst.isWaiting()
            ? tr("The table is being filled.")
            : tr("The recording holds no sample of the selected parameters."));
}

} // namespace TARN
