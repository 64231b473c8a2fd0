#include "events/DialogEventList.h"

#include "events/EventModel.h"
#include "flight/EmptyText.h"
#include "widgets/DataTableView.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>

namespace TARN {

DialogEventList::DialogEventList(Session& session, const QString& title, bool hasEpisodes,
                                 QWidget* parent)
    : QWidget(parent), mSession(session), mModel(new EventModel(title, hasEpisodes, this)),
      mTable(new DataTableView)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable, 0, 0);
    mTable->setModel(mModel);
    mTable->setObjectName("events");
    mTable->setAccessibleName(title);
    mTable->verticalHeader()->hide();
    mTable->horizontalHeader()->setSectionResizeMode(EventModel::TextColumn, QHeaderView::Stretch);
    setFocusProxy(mTable);
    connect(mTable, &DataTableView::rowPicked, this, &DialogEventList::slotSelect);
    connect(mTable, &DataTableView::signalLink, this, &DialogEventList::signalLink);
    connect(&mSession, &Session::profileChanged, this, &DialogEventList::showFlight);
    connect(&mSession, &Session::flightChanged, this, &DialogEventList::showFlight);
    connect(&mSession, &Session::timeChanged, this, &DialogEventList::showTime);
    connect(&mSession.loading(), &Switch::turned, this, &DialogEventList::updateEmptyText);
    connect(&mSession.allDigits(), &Switch::turned, this, &DialogEventList::updateDigits);
}

int DialogEventList::rowCount() const
{
    return mModel->rowCount();
}

void DialogEventList::showFlight()
{
    const auto flight = mSession.flight();
    mModel->setEvents(flight, flight != nullptr ? &eventsOf(flight->events()) : nullptr);
    mTable->fitColumns();
    updateEmptyText();
    showCurrentTime();
}

void DialogEventList::updateDigits()
{
    mModel->setAllDigits(mSession.allDigits().isOn());
    showCurrentTime();
}

void DialogEventList::updateEmptyText()
{
    const QString general = emptyTextOfAll(mSession);
    mTable->setEmptyText(general.isEmpty() ? allWell(mSession.flight()->events()) : general);
}

void DialogEventList::showTime(double time, const QObject* source)
{
    if (source != this) {
        mTable->showRow(mModel->rowAt(time));
    }
}

void DialogEventList::slotSelect(int row)
{
    const QVariant milliseconds = mModel->index(row, EventModel::TimeColumn).data(Qt::UserRole);
    if (milliseconds.isValid()) {
        mSession.setTime(milliseconds.toInt() * 0.001, this);
    }
}

} // namespace TARN
