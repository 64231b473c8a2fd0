#include "widgets/DataTableView.h"

#include "base/CellColor.h"
#include "widgets/EmptyPlace.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyledItemDelegate>

#include <algorithm>

namespace TARN {

namespace {

/// Shows that a row is selected without hiding the colour by which a cell tells that something is
/// wrong: such a cell keeps it between two lines.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const QVariant ground = index.data(Qt::BackgroundRole);
        const bool keeps = option.state.testFlag(QStyle::State_Selected) && ground.isValid() &&
                           ground.value<QBrush>().color() != TimeCellColor;
        if (!keeps) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionViewItem plain = option;
        plain.state.setFlag(QStyle::State_Selected, false);
        QStyledItemDelegate::paint(painter, plain, index);
        painter->setPen(SelectionColor);
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }

private:
    static constexpr QColor SelectionColor{100, 100, 255};
};

} // namespace

DataTableView::DataTableView(QWidget* parent)
    : QTableView(parent), mEmpty(new EmptyPlace(viewport()))
{
    constexpr int RowHeight = 15;
    constexpr int VisibleRowsOnly = 0;
    QFont font = this->font();
    font.setPixelSize(11); // fits the row height
    setFont(font);
    setItemDelegate(new RowDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setFont(font); // a style sheet keeps them from inheriting it
        header->setHighlightSections(false);
    }
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (!mFitting && QGuiApplication::mouseButtons() != Qt::NoButton) {
            mSizedByUser.insert(column);
        }
    });
    connect(mEmpty, &QLabel::linkActivated, this, &DataTableView::signalLink);
    mWidening.setSingleShot(true);
    connect(&mWidening, &QTimer::timeout, this, &DataTableView::widenVisible);
    // Measuring a cell costs more than showing it.
    horizontalHeader()->setResizeContentsPrecision(VisibleRowsOnly);
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(RowHeight);
}

void DataTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DataTableView::pickSelected);
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        mProbed.clear();
        updateEmptyPlace();
        mWidening.start();
    });
    connect(model, &QAbstractItemModel::layoutChanged, this, &DataTableView::updateEmptyPlace);
    connect(model, &QAbstractItemModel::rowsInserted, this, &DataTableView::updateEmptyPlace);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &DataTableView::updateEmptyPlace);
    updateEmptyPlace();
}

void DataTableView::setEmptyText(const QString& text)
{
    mEmpty->setText(text);
    updateEmptyPlace();
}

QString DataTableView::emptyText() const
{
    return mEmpty->text();
}

void DataTableView::updateEmptyPlace()
{
    constexpr int Margin = 24;
    mEmpty->setGeometry(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin));
    mEmpty->setVisible(model() == nullptr || model()->rowCount() == 0);
}

void DataTableView::fitColumns()
{
    const QScopedValueRollback fitting(mFitting, true);
    mSizedByUser.clear();
    for (int column = 0; column < model()->columnCount(); ++column) {
        setColumnWidth(column, horizontalHeader()->sectionSizeHint(column));
    }
    mWidening.start();
}

void DataTableView::showRow(int row)
{
    const QScopedValueRollback showing(mShowing, true);
    if (row < 0) {
        clearSelection();
    }
    if (row >= 0 && row < model()->rowCount()) {
        selectRow(row);
        scrollTo(model()->index(row, 0), QAbstractItemView::PositionAtCenter);
    }
}

void DataTableView::pickSelected()
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!mShowing && !mPressing && !rows.isEmpty()) {
        Q_EMIT rowPicked(rows.front().row());
    }
}

void DataTableView::mousePressEvent(QMouseEvent* event)
{
    {
        const QScopedValueRollback pressing(mPressing, true);
        QTableView::mousePressEvent(event);
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid()) {
        Q_EMIT rowPicked(index.row());
    }
}

void DataTableView::showEvent(QShowEvent* event)
{
    if (styleSheet().isEmpty()) { // it slows down what is done to a table that nobody sees
        setStyleSheet("selection-background-color: rgba(100, 100, 255, 255);");
    }
    QTableView::showEvent(event);
    mWidening.start();
}

void DataTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    updateEmptyPlace();
    mWidening.start();
}

void DataTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    mWidening.start(); // when the scrolling is done: widths move what is scrolled
}

void DataTableView::widenVisible()
{
    if (!isVisible() || model() == nullptr) {
        return; // measured when it is shown
    }
    const int last = columnAt(viewport()->width() - 1);
    for (int column = std::max(0, columnAt(0));
         column < model()->columnCount() && (last < 0 || column <= last); ++column) {
        const bool isNew = mProbed.insert(column).second;
        widen(column, std::max(sizeHintForColumn(column), isNew ? widthOfProbes(column) : 0));
    }
    layStretched();
}

void DataTableView::layStretched()
{
    if (mStretched < 0) {
        return;
    }
    QHeaderView* header = horizontalHeader();
    const int room = viewport()->width() - header->length() + header->sectionSize(mStretched);
    const int needed = std::max(sizeHintForColumn(mStretched), header->sectionSizeHint(mStretched));
    const QScopedValueRollback fitting(mFitting, true);
    header->setSectionResizeMode(mStretched,
                                 room >= needed ? QHeaderView::Stretch : QHeaderView::Interactive);
    if (room < needed) {
        header->resizeSection(mStretched, needed);
    }
}

void DataTableView::widen(int column, int width)
{
    constexpr int Padding = 8;
    const QScopedValueRollback fitting(mFitting, true);
    if (!mSizedByUser.contains(column) && width + Padding > columnWidth(column)) {
        setColumnWidth(column, width + Padding);
    }
}

/// What a column's values need, judged by some of them from beginning to end.
int DataTableView::widthOfProbes(int column) const
{
    constexpr qint64 Probes = 100;
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    int widest = 0;
    for (qint64 i = 0; i < Probes; ++i) {
        const auto row = static_cast<int>(i * model()->rowCount() / Probes);
        const QString text = model()->index(row, column).data().toString();
        widest = std::max(widest, fontMetrics().horizontalAdvance(text) + margin);
    }
    return widest;
}

} // namespace TARN
