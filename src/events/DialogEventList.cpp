#include "events/DialogEventList.h"

#include "events/EventFilter.h"
#include "events/EventLists.h"
#include "flight/EmptyText.h"
#include "widgets/DataTableView.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

namespace {

/// What the offset is to the flight's own times of the same parameter or error.
double offsetOf(const Episode& episode, const Flight& flight, double offset)
{
    if (episode.parameter != nullptr) {
        return flight.series(*episode.parameter, offset).shift();
    }
    return episode.matrix < flight.faults().size() ? flight.faults()[episode.matrix].shift(offset)
                                                   : 0.0;
}

} // namespace

DialogEventList::DialogEventList(Session& session, EpisodeWatch& episodes, EventKind kind,
                                 const QString& title, QWidget* parent)
    : QWidget(parent), mSession(session), mEpisodes(episodes),
      mModel(new EventModel(kind, title, this)), mOrder(new EventOrder(*mModel, this)),
      mFilter(new EventFilter(*mOrder)), mTable(new DataTableView)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(mFilter);
    layout->addWidget(mTable);
    mTable->setModel(mOrder);
    mTable->setObjectName("events");
    mTable->setAccessibleName(title);
    mTable->verticalHeader()->hide();
    QHeaderView* header = mTable->horizontalHeader();
    header->setSectionResizeMode(EventModel::TextColumn, QHeaderView::Stretch);
    mTable->setStretched(EventModel::TextColumn);
    header->setSortIndicatorClearable(true); // a third click brings the list's own order back
    header->setSortIndicator(-1, Qt::AscendingOrder);
    mTable->setSortingEnabled(true);
    setFocusProxy(mTable);
    mFilter->follow(*mTable);
    createCommands();
    connect(mTable, &DataTableView::rowPicked, this, &DialogEventList::slotSelect);
    connect(mTable, &DataTableView::signalLink, this, &DialogEventList::signalLink);
    connect(mOrder, &EventOrder::changing, this, [this] { mTable->setPicking(false); });
    connect(mOrder, &EventOrder::changed, this, [this] {
        mTable->setPicking(true);
        updateEmptyText();
        showCurrentTime();
    });
    connect(mFilter, &EventFilter::left, mTable, qOverload<>(&QWidget::setFocus));
    connect(&mSession, &Session::profileChanged, this, &DialogEventList::showFlight);
    connect(&mSession, &Session::flightChanged, this, &DialogEventList::showFlight);
    connect(&mSession, &Session::timeChanged, this, &DialogEventList::showTime);
    connect(&mSession.loading(), &Switch::turned, this, &DialogEventList::updateEmptyText);
    connect(&mSession.allDigits(), &Switch::turned, this, &DialogEventList::updateDigits);
    connect(&mEpisodes, &EpisodeWatch::changed, this, &DialogEventList::showEpisodes);
    connect(&mEpisodes, &EpisodeWatch::referenceChanged, this, &DialogEventList::showReference);
    connect(&mSession.reference(), &Reference::shiftChanged, this, &DialogEventList::showReference);
    showFlight();
}

int DialogEventList::rowCount() const
{
    return mOrder->rowCount();
}

void DialogEventList::showFlight()
{
    const auto flight = mSession.flight();
    mModel->setEvents(flight,
                      flight != nullptr ? eventsOf(mModel->kind(), flight->events()) : nullptr);
    mTable->fitColumns();
    showEpisodes();
    showReference();
}

void DialogEventList::showEpisodes()
{
    const auto& troubles = mEpisodes.troubles();
    mModel->setEpisodes(troubles != nullptr ? std::shared_ptr<const std::vector<Episode>>(
                                                  troubles, &episodesOf(mModel->kind(), *troubles))
                                            : nullptr);
    updateEmptyText();
    showCurrentTime();
}

/// Its times are shown as those of the flight are: where events carry no offset, they do not.
void DialogEventList::showReference()
{
    const auto& troubles = mEpisodes.ofReference();
    const auto flight = mSession.flight();
    std::vector<EventRows::Other> others;
    if (troubles != nullptr && flight != nullptr) {
        for (const Episode& episode : episodesOf(mModel->kind(), *troubles)) {
            others.push_back({&episode, mSession.reference().shift(),
                              offsetOf(episode, *flight, mSession.offset())});
        }
    }
    mModel->setReference(troubles, std::move(others));
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
    const bool isFiltered = mModel->rowCount() > 0;
    const QString general = emptyTextOfAll(mSession);
    mFilter->setVisible(isFiltered);
    mTable->setEmptyText(
        isFiltered            ? tr("Nothing in the list fits the filter.")
        : !general.isEmpty()  ? general
        : mEpisodes.isShort() ? tr("There is not enough memory to look for what happened.")
        : mEpisodes.troubles() == nullptr ? tr("What happened is being looked for.")
                                          : allWell(mModel->kind(), *mSession.flight()));
}

void DialogEventList::showTime(double time, const QObject* source)
{
    if (source != this) {
        mTable->showRow(mOrder->rowAt(time));
    }
}

void DialogEventList::slotSelect(int row)
{
    const QVariant milliseconds =
        mOrder->index(row, EventModel::TimeColumn).data(EventModel::TimeRole);
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
        return action;
    };
    add(tr("Go to the &Start"), {}, [this] { slotSelect(mTable->currentIndex().row()); });
    if (mModel->kind() == EventKind::Limits) {
        add(tr("Go to the &Peak"), Qt::Key_M, &List::goToPeak);
    }
    if (mModel->kind() != EventKind::Faults) {
        add(tr("Show in the &Graph"), Qt::Key_G, &List::showInGraph);
    }
    // Wherever the focus is, as long as the list is seen.
    add(tr("&Filter"), Qt::CTRL | Qt::Key_F, [this] {
        mFilter->begin();
    })->setShortcutContext(Qt::WindowShortcut);
    add(tr("&Copy All with Headers"), Qt::CTRL | Qt::Key_Insert, &List::copy);
    mTable->setContextMenuPolicy(Qt::ActionsContextMenu);
}

std::optional<EventModel::Place> DialogEventList::currentPlace() const
{
    const QModelIndex index = mOrder->mapToSource(mTable->currentIndex());
    return mSession.flight() != nullptr && index.isValid()
               ? mModel->placeOf(index.row(), *mSession.flight(), mSession.offset())
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
    QGuiApplication::clipboard()->setText(mOrder->text());
}

} // namespace TARN
