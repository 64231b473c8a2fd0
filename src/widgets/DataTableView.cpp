#include "widgets/DataTableView.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>

namespace TARN {

DataTableView::DataTableView(QWidget* parent) : QTableView(parent)
{
    constexpr int RowHeight = 15;
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
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(RowHeight);
}

void DataTableView::setEmptyText(const QString& text)
{
    mEmptyText = text;
    viewport()->update();
}

void DataTableView::widenColumns()
{
    constexpr int Padding = 8;
    for (int column = 0; column < model()->columnCount(); ++column) {
        const int wanted = sizeHintForColumn(column) + Padding;
        if (wanted > columnWidth(column)) {
            setColumnWidth(column, wanted);
        }
    }
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
