#include "events/DialogEventList.h"

#include "flight/EmptyText.h"
#include "widgets/DataTableView.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>

#include <numeric>

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
    createCommands();
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

void DialogEventList::createCommands()
{
    using List = DialogEventList;
    const auto add = [this](const QString& text, const QKeySequence& key, auto slot) {
        auto* action = new QAction(text, mTable);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        mTable->addAction(action);
    };
    add(tr("Go to the &Start"), {}, [this] { slotSelect(mTable->currentIndex().row()); });
    if (mModel->columnCount() > EventModel::PeakColumn) {
        add(tr("Go to the &Peak"), Qt::Key_M, &List::goToPeak);
    }
    add(tr("Show in the &Graph"), Qt::Key_G, &List::showInGraph);
    add(tr("&Copy All with Headers"), Qt::CTRL | Qt::Key_Insert, &List::copy);
    mTable->setContextMenuPolicy(Qt::ActionsContextMenu);
}

std::optional<EventModel::Place> DialogEventList::currentPlace() const
{
    return mSession.flight() != nullptr ? mModel->placeOf(mTable->currentIndex().row(),
                                                          *mSession.flight(), mSession.offset())
                                        : std::nullopt;
}

void DialogEventList::goToPeak()
{
    if (const auto place = currentPlace(); place && place->peak) {
        mSession.setTime(*place->peak, this);
    }
}

void DialogEventList::showInGraph()
{
    if (const auto place = currentPlace()) {
        Q_EMIT signalGraph(*place->parameter, place->start);
    }
}

void DialogEventList::copy() const
{
    std::vector<int> rows(static_cast<std::size_t>(rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    QGuiApplication::clipboard()->setText(mModel->textOf(rows));
}

} // namespace TARN
