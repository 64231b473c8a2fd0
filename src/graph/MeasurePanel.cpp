#include "graph/MeasurePanel.h"

#include "base/ClockTime.h"
#include "base/Property.h"
#include "flight/TimeScale.h"
#include "graph/MeasureModel.h"
#include "graph/WidgetGraph.h"
#include "widgets/ClockEdit.h"
#include "widgets/TextLine.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

namespace {

constexpr const char* HiddenKey = "MeasureHidden"; ///< columns, as bits

QString wordsAt(const ParStruct& curve, double time)
{
    const bool isState = curve.facts != nullptr && curve.facts->hasWords();
    return isState ? curve.facts->wordsAt(time) : QString();
}

ComparedCurve comparedAt(const ComparisonIndex& index, const TimeRange& range)
{
    return {index.referenceAt(range.start),  index.referenceAt(range.stop),
            index.differenceAt(range.start), index.differenceAt(range.stop),
            index.reference(range),          index.difference(range)};
}

} // namespace

MeasurePanel::MeasurePanel(Session& session, WidgetGraph& graph, QWidget* parent)
    : QWidget(parent), mSession(session), mGraph(graph), mModel(new MeasureModel(this)),
      mSorted(new QSortFilterProxyModel(this)), mTable(createTable()),
      mStart(createTime(MarkerEnd::A, tr("Time of A, recording clock"))),
      mStop(createTime(MarkerEnd::B, tr("Time of B, recording clock"))), mSpan(new TextLine),
      mComparer(session)
{
    constexpr int Delay = 100; // ms
    setObjectName("measuringPanel");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(createTimes());
    layout->addWidget(mTable);
    mTimer.setSingleShot(true);
    mTimer.setInterval(Delay);
    connect(&mTimer, &QTimer::timeout, this, &MeasurePanel::load);
    mFit.setSingleShot(true);
    mFit.setInterval(Delay);
    connect(&mFit, &QTimer::timeout, this, &MeasurePanel::fitColumns);
    followSession();
    reload();
}

void MeasurePanel::followSession()
{
    connect(&mSession, &Session::profileChanged, this, &MeasurePanel::reload);
    connect(&mSession, &Session::flightChanged, this, &MeasurePanel::reload);
    connect(&mSession, &Session::selectionChanged, this, &MeasurePanel::reload);
    connect(&mSession, &Session::offsetChanged, this, &MeasurePanel::reload);
    connect(&mSession, &Session::marksChanged, this, &MeasurePanel::measure);
    connect(&mSession.looks(), &Looks::changed, this, &MeasurePanel::measure);
    connect(&mSession.reference(), &Reference::flightChanged, this,
            [this] { showColumns(*mTable); });
    connect(&mComparer, &Comparer::changed, this, &MeasurePanel::measure);
}

QWidget* MeasurePanel::createTimes()
{
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& [name, field] : {std::pair("A", mStart), std::pair("B", mStop)}) {
        auto* label = new QLabel(name);
        label->setBuddy(field);
        layout->addWidget(label);
        layout->addWidget(field);
    }
    layout->addWidget(mSpan, 1);
    auto* close = new QToolButton;
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close the measuring panel"));
    close->setAccessibleName(close->toolTip());
    connect(close, &QToolButton::clicked, this, &MeasurePanel::closed);
    layout->addWidget(close);
    return bar;
}

ClockEdit* MeasurePanel::createTime(MarkerEnd end, const QString& name)
{
    auto* field = new ClockEdit("hh:mm:ss.zzz");
    field->setToolTip(name);
    field->setAccessibleName(name);
    field->setKeyboardTracking(false);
    connect(field, &QTimeEdit::timeChanged, this, [this, end](QTime time) {
        const TimeRange whole = mSession.flight()->range(mSession.offset());
        TimeRange now = rangeOf(mSession);
        const double typed =
            timeInRange(time.msecsSinceStartOfDay() * 0.001, whole, endOf(now, end));
        const TimeRange marks = withEnd(mSession.marks(), whole, end, typed);
        mGraph.model().setMarker(marks.start, marks.stop);
    });
    return field;
}

QTableView* MeasurePanel::createTable()
{
    mSorted->setSourceModel(mModel);
    mSorted->setSortRole(Qt::UserRole);
    auto* table = new QTableView;
    table->setObjectName("measures");
    table->setAccessibleName(tr("What is measured of the curves"));
    table->setModel(mSorted);
    table->setSortingEnabled(true);
    table->sortByColumn(MeasureModel::NameColumn, Qt::AscendingOrder);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setWordWrap(false);
    // The names stay in sight while the table is scrolled sideways.
    table->setColumnHidden(MeasureModel::NameColumn, true);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
    table->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setHighlightSections(false);
    connect(table, &QTableView::clicked, this, &MeasurePanel::goTo);
    connect(table, &QTableView::activated, this, &MeasurePanel::goTo);
    auto* copying = new QAction(tr("Copy with Headers"), table);
    copying->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Insert)});
    copying->setShortcutContext(Qt::WidgetShortcut);
    connect(copying, &QAction::triggered, this, &MeasurePanel::copy);
    table->addAction(copying);
    auto* unsorted = new QAction(tr("Sort as the Curves"), table);
    connect(unsorted, &QAction::triggered, table,
            [table] { table->sortByColumn(MeasureModel::NameColumn, Qt::AscendingOrder); });
    table->addAction(unsorted);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    createColumnMenu(*table);
    return table;
}

/// What compares with a reference stands in front: it is what was asked for.
void MeasurePanel::createColumnMenu(QTableView& table)
{
    const int hidden = Property::instance()->getInt(HiddenKey, 0);
    QHeaderView* header = table.horizontalHeader();
    for (int column = 1; column < MeasureModel::ColumnCount; ++column) {
        if (column > MeasureModel::AboveColumn) {
            header->moveSection(column, column - MeasureModel::AboveColumn);
        }
        header->addAction(createChoice(column, (hidden >> column & 1) == 0));
    }
    header->setContextMenuPolicy(Qt::ActionsContextMenu);
    showColumns(table);
}

QAction* MeasurePanel::createChoice(int column, bool isShown)
{
    auto* action =
        new QAction(mModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), this);
    action->setCheckable(true);
    action->setChecked(isShown);
    connect(action, &QAction::toggled, this, [this, column](bool isOn) {
        const int before = Property::instance()->getInt(HiddenKey, 0);
        const int bit = 1 << column;
        Property::instance()->setInt(HiddenKey, isOn ? before & ~bit : before | bit);
        showColumns(*mTable);
    });
    return action;
}

/// Those that compare are there only while there is something to compare with.
void MeasurePanel::showColumns(QTableView& table) const
{
    const int hidden = Property::instance()->getInt(HiddenKey, 0);
    const bool isComparing = mSession.reference().flight() != nullptr;
    const QList<QAction*> choices = table.horizontalHeader()->actions();
    for (int column = 1; column < MeasureModel::ColumnCount; ++column) {
        const bool isOfUse = column <= MeasureModel::AboveColumn || isComparing;
        table.setColumnHidden(column, !isOfUse || (hidden >> column & 1) != 0);
        choices[column - 1]->setVisible(isOfUse);
    }
}

void MeasurePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (mIsStale) {
        mTimer.start();
    }
}

/// What was measured belongs to other curves.
void MeasurePanel::reload()
{
    mJob.cancel();
    mIsStale = true;
    mIndexes.clear();
    mComparer.compare({});
    measure();
    if (isVisible()) {
        mTimer.start();
    }
}

void MeasurePanel::load()
{
    mIsStale = false;
    if (mSession.flight() == nullptr) {
        return;
    }
    auto parameters = mSession.selection().parameters(*mSession.profile());
    parameters.resize(std::min<std::size_t>(parameters.size(), CurveSet::MaxCurves));
    mJob.start(
        [flight = mSession.flight(), parameters, offset = mSession.offset()](Progress& progress) {
            return makeIndexes(flight, parameters, offset, progress);
        },
        [this](StatisticsIndexes made) {
            mIndexes = std::move(made);
            mComparer.compare(mIndexes);
            mTable->resizeColumnsToContents();
            measure();
            fitColumns();
        });
}

void MeasurePanel::measure()
{
    const bool isEmpty = mSession.flight() == nullptr;
    const TimeRange range = isEmpty ? TimeRange() : rangeOf(mSession);
    for (const auto& [field, time] :
         {std::pair(mStart, range.start), std::pair(mStop, range.stop)}) {
        const QSignalBlocker quiet(field);
        field->setTime(clockTime(millisecondsOf(time)));
        field->setEnabled(!isEmpty);
    }
    mSpan->setText(isEmpty ? QString()
                   : mSession.marks().hasExtent()
                       ? tr("B \u2212 A: %1 s").arg(range.stop - range.start, 0, 'f', 3)
                       : tr("Nothing is marked: the whole flight"));
    std::vector<MeasuredCurve> curves;
    for (const unsigned k : mGraph.model().curves().order()) {
        if (k >= mIndexes.size()) {
            continue;
        }
        const StatisticsIndex& index = *mIndexes[k];
        const ParStruct& curve = *mGraph.model().curves().curve(k);
        curves.push_back({&index.parameter(), curve.color.toColor(), index.valueAt(range.start),
                          index.valueAt(range.stop), wordsAt(curve, range.start),
                          wordsAt(curve, range.stop), index.range(range),
                          k < mComparer.indexes().size()
                              ? std::optional(comparedAt(*mComparer.indexes()[k], range))
                              : std::nullopt});
    }
    mModel->setCurves(std::move(curves), range);
    mFit.start();
}

/// Columns grow with what stands in them, and never shrink: nothing jumps.
void MeasurePanel::fitColumns()
{
    for (int column = 0; column < MeasureModel::ColumnCount; ++column) {
        const int before = mTable->columnWidth(column);
        mTable->resizeColumnToContents(column);
        if (mTable->columnWidth(column) < before) {
            mTable->setColumnWidth(column, before);
        }
    }
}

void MeasurePanel::goTo(const QModelIndex& index)
{
    if (const auto time = mModel->timeOf(mSorted->mapToSource(index))) {
        mSession.setTime(*time);
    }
}

/// The rows that are picked, all of them when none is, as a spreadsheet takes them.
void MeasurePanel::copy() const
{
    QStringList lines;
    const QItemSelectionModel* picked = mTable->selectionModel();
    for (int row = -1; row < mSorted->rowCount(); ++row) {
        QStringList cells;
        for (int place = 0; place < MeasureModel::ColumnCount; ++place) {
            const int column = mTable->horizontalHeader()->logicalIndex(place);
            if (column == MeasureModel::NameColumn || !mTable->isColumnHidden(column)) {
                cells += row < 0 ? mSorted->headerData(column, Qt::Horizontal).toString()
                                 : mSorted->index(row, column).data().toString();
            }
        }
        if (row < 0 || !picked->hasSelection() || picked->isRowSelected(row)) {
            lines += cells.join('\t');
        }
    }
    QGuiApplication::clipboard()->setText(lines.join('\n') + "\n");
}

} // namespace TARN
