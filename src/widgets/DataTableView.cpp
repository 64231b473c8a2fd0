#include "widgets/DataTableView.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace TARN {

DataTableView::DataTableView(QWidget* parent) : QTableView(parent)
{
    constexpr int RowHeight = 15;
    constexpr int VisibleRowsOnly = 0;
    QFont font = this->font();
    font.setPixelSize(11); // fits the row height
    setFont(font);
    setStyleSheet("selection-background-color: rgba(100, 100, 255, 255);");
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
    mWidening.setSingleShot(true);
    connect(&mWidening, &QTimer::timeout, this, &DataTableView::widenVisible);
    // Measuring a cell costs more than showing it; a thousand rows of a hundred columns, as is
    // usual, would hold up every load by half a second.
    horizontalHeader()->setResizeContentsPrecision(VisibleRowsOnly);
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(RowHeight);
}

void DataTableView::setEmptyText(const QString& text)
{
    mEmptyText = text;
    viewport()->update();
}

void DataTableView::fitColumns()
{
    const QScopedValueRollback fitting(mFitting, true);
    mSizedByUser.clear();
    resizeColumnsToContents();
}

void DataTableView::widenColumns()
{
    for (int column = 0; column < model()->columnCount(); ++column) {
        widen(column, std::max(sizeHintForColumn(column), widthOfProbes(column)));
    }
}

void DataTableView::widenVisible()
{
    const int last = columnAt(viewport()->width() - 1);
    for (int column = std::max(0, columnAt(0));
         column < model()->columnCount() && (last < 0 || column <= last); ++column) {
        widen(column, sizeHintForColumn(column));
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

void DataTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    mWidening.start(); // when the scrolling is done: widths move what is scrolled
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

void DataTableView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() > 0) {
        return;
    }
    constexpr int Margin = 24;
    QPainter painter(viewport());
    QFont large = font();
    large.setPixelSize(15);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                     Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
}

} // namespace TARN
