#include "events/WidgetFaultMatrix.h"

#include "events/WidgetErrorItem.h"
#include "events/WidgetErrorTime.h"

#include <QtGui/QResizeEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

namespace {

constexpr int Bits = FaultMatrix::Bits;
constexpr int NarrowestColumn = 15;
constexpr int RowHeight = 150;

} // namespace

WidgetFaultMatrix::WidgetFaultMatrix(QWidget* parent)
    : QFrame(parent), mTitle(new QLabel), mTimeline(new WidgetErrorTime),
      mTable(new QTableWidget(1, Bits))
{
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QFont font = mTitle->font();
    font.setPixelSize(16);
    font.setBold(true);
    mTitle->setFont(font);
    mTitle->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    createTable();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mTitle);
    layout->addWidget(mTimeline);
    layout->addWidget(mTable);
    connect(mTimeline, &WidgetErrorTime::signalTime, this, &WidgetFaultMatrix::signalTime);
}

void WidgetFaultMatrix::createTable()
{
    QStringList labels;
    for (int column = 0; column < Bits; ++column) {
        labels << QString::number(Bits - 1 - column);
    }
    QFont small = mTable->font();
    small.setPixelSize(8);
    QHeaderView* header = mTable->horizontalHeader();
    mTable->setStyleSheet("selection-background-color: rgba(100, 100, 255, 255);");
    header->setFont(small);
    header->setMinimumSectionSize(NarrowestColumn);
    header->setDefaultSectionSize(NarrowestColumn);
    header->setSectionResizeMode(QHeaderView::Fixed);
    mTable->setHorizontalHeaderLabels(labels);
    mTable->verticalHeader()->hide();
    mTable->verticalHeader()->setDefaultSectionSize(RowHeight);
    mTable->setRowHeight(0, RowHeight);
    mTable->setMinimumHeight(180);
    mTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mTable->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    mTable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    mTable->setTabKeyNavigation(false);
    mTable->setFocusPolicy(Qt::NoFocus); // nothing to choose in a row of lamps
    mTable->viewport()->installEventFilter(this);
}

void WidgetFaultMatrix::setData(const FaultMatrix& matrix)
{
    mTitle->setText(matrix.name);
    mTable->setAccessibleName(matrix.name);
    for (int bit = 0; bit < Bits; ++bit) {
        auto* cell = new WidgetErrorItem;
        const auto found = matrix.parameters.find(bit);
        if (found != matrix.parameters.end()) {
            cell->setText(found->second.name);
            cell->setType(found->second.errorType);
            cell->setToolTip(QString("%1: %2").arg(bit).arg(found->second.name));
        }
        cell->setErrorState(false);
        mCells[static_cast<std::size_t>(bit)] = cell;
        mTable->setCellWidget(0, Bits - 1 - bit, cell);
    }
}

void WidgetFaultMatrix::setFlight(std::shared_ptr<const Flight> flight, std::size_t matrix)
{
    mFlight = std::move(flight);
    mMatrix = matrix;
    mTimeline->setFlight(mFlight, matrix);
}

void WidgetFaultMatrix::setTime(double time)
{
    mTimeline->setTime(time);
    const std::uint32_t bits = mFlight != nullptr ? mFlight->faults()[mMatrix].bitsAt(time) : 0;
    for (std::size_t bit = 0; bit < mCells.size(); ++bit) {
        if (mCells[bit] != nullptr) {
            mCells[bit]->setErrorState((bits >> bit & 1U) != 0);
        }
    }
}

bool WidgetFaultMatrix::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        const int width = static_cast<QResizeEvent*>(event)->size().width();
        for (int column = 0; column < Bits; ++column) {
            mTable->setColumnWidth(column, std::max(width / Bits, NarrowestColumn));
        }
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace TARN
