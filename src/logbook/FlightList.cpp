#include "logbook/FlightList.h"

#include "widgets/DataTableView.h"

#include <QtCore/QSet>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

namespace {

constexpr int WidestEngine = 36; // characters; serial numbers come from anywhere

} // namespace

FlightList::FlightList(QWidget* parent)
    : QWidget(parent), mEngine(new QComboBox), mText(new QLineEdit), mTable(new DataTableView)
{
    mEngine->setObjectName("engine");
    mEngine->setToolTip(tr("Show the flights of this engine only"));
    mEngine->setAccessibleName(tr("Engine"));
    mEngine->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mEngine->setMaximumWidth(WidestEngine * mEngine->fontMetrics().averageCharWidth());
    mText->setObjectName("filter");
    mText->setPlaceholderText(tr("Filter (Ctrl+F)"));
    mText->setToolTip(tr("Show only flights that hold this text"));
    mText->setAccessibleName(tr("Filter text"));
    mText->setClearButtonEnabled(true);
    mTable->setObjectName("flights");
    mTable->setAccessibleName(tr("Flights"));
    mTable->setModel(&mModel);
    mTable->verticalHeader()->hide();
    mTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    mTable->setStretched(FlightListModel::EngineColumn);
    mTable->horizontalHeader()->setSortIndicator(FlightListModel::StartColumn, Qt::DescendingOrder);
    mTable->setSortingEnabled(true);
    mTable->fitColumns();
    auto* line = new QHBoxLayout;
    line->addWidget(mEngine);
    line->addWidget(mText, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(mTable, 1);
    connect(mEngine, &QComboBox::activated, this, &FlightList::applyFilter);
    connect(mText, &QLineEdit::textChanged, this, &FlightList::applyFilter);
    connect(mText, &QLineEdit::returnPressed, mTable, qOverload<>(&QWidget::setFocus));
    connect(mTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        // Also what the right button selects, which commands are then asked of.
        for (const QModelIndex& index : mTable->selectionModel()->selectedRows()) {
            chooseRow(index.row());
        }
    });
    connect(mTable, &DataTableView::signalLink, this, &FlightList::signalLink);
    connect(mTable->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            [this] { choose(mChosen); });
    connect(mTable, &QAbstractItemView::doubleClicked, this, [this] {
        const bool asReference = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
        Q_EMIT flightWanted(mChosen, asReference);
    });
    createCommands();
}

void FlightList::createCommands()
{
    const auto add = [this](const QString& text, const QList<QKeySequence>& keys, auto&& run) {
        auto* action = new QAction(text, mTable);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, [this, run] {
            if (!mChosen.isEmpty()) {
                run();
            }
        });
        mTable->addAction(action);
    };
    add(tr("&Open"), {Qt::Key_Return, Qt::Key_Enter},
        [this] { Q_EMIT flightWanted(mChosen, false); });
    add(tr("Open as &Reference"), {Qt::SHIFT | Qt::Key_Return, Qt::SHIFT | Qt::Key_Enter},
        [this] { Q_EMIT flightWanted(mChosen, true); });
    add(tr("&Remove from the Logbook..."), {Qt::Key_Delete}, [this] { Q_EMIT removeWanted(); });
}

void FlightList::setEmptyText(const QString& text)
{
    mEmptyText = text;
    applyFilter();
}

void FlightList::setFlights(std::shared_ptr<const std::vector<FlightHead>> flights)
{
    const int before = mModel.rowOf(mChosen);
    mModel.setFlights(std::move(flights));
    showEngines();
    filter();
    chooseNear(before);
}

/// The one that was chosen stays, where it still has a flight.
void FlightList::showEngines()
{
    QSet<QString> all;
    for (const FlightHead& flight : mModel.flights()) {
        all.insert(flight.aircraft);
    }
    QStringList engines(all.begin(), all.end());
    engines.sort();
    const QVariant before = mEngine->currentData();
    const QSignalBlocker blocker(mEngine);
    mEngine->clear();
    mEngine->addItem(tr("All engines (%1)").arg(engines.size()));
    for (const QString& engine : engines) {
        mEngine->addItem(engineWords(engine), engine);
    }
    mEngine->setCurrentIndex(before.isValid() ? std::max(0, mEngine->findData(before)) : 0);
}

void FlightList::applyFilter()
{
    filter();
    chooseNear(0);
}

void FlightList::filter()
{
    const QVariant engine = mEngine->currentData();
    mModel.setFilter(engine.isValid() ? std::optional(engine.toString()) : std::nullopt,
                     mText->text());
    mTable->setEmptyText(
        mModel.flights().empty()
            ? mEmptyText
            : tr("No flight of %1 holds \"%2\".").arg(mModel.flights().size()).arg(mText->text()));
}

/// The flight that was chosen stays; for one that is gone the one that took its row is.
void FlightList::chooseNear(int row)
{
    const int last = mModel.rowCount() - 1;
    choose(mModel.rowOf(mChosen) >= 0 ? mChosen
           : last >= 0                ? mModel.flight(std::clamp(row, 0, last)).flight
                                      : QString());
}

void FlightList::choose(const QString& flight)
{
    mTable->showRow(mModel.rowOf(flight));
    if (mChosen != flight) {
        mChosen = flight;
        Q_EMIT chosenChanged();
    }
}

void FlightList::chooseRow(int row)
{
    if (mChosen != mModel.flight(row).flight) {
        mChosen = mModel.flight(row).flight;
        Q_EMIT chosenChanged();
    }
}

const FlightHead* FlightList::find(const QString& flight) const
{
    const auto found = std::ranges::find(mModel.flights(), flight, &FlightHead::flight);
    return found == mModel.flights().end() ? nullptr : &*found;
}

const FlightHead* FlightList::chosen() const
{
    return find(mChosen);
}

void FlightList::beginFilter()
{
    mText->setFocus(Qt::ShortcutFocusReason);
    mText->selectAll();
}

} // namespace TARN
