#include "events/WidgetErrorItem.h"

#include "faults/FaultHistory.h"

#include <QtGui/QPainter>

WidgetErrorItem::WidgetErrorItem(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    setMinimumSize(15, 150);
}

void WidgetErrorItem::setType(int type)
{
    mType = type;
}

void WidgetErrorItem::setErrorState(bool state)
{
    if (mErrorState != state) {
        mErrorState = state;
        update();
    }
}

void WidgetErrorItem::setText(const QString& text)
{
    mText = text;
}

void WidgetErrorItem::paintEvent(QPaintEvent*)
{
    const QColor inactive = mType == TARN::ErrorNone ? QColor(Qt::white) : QColor(220, 255, 220);
    const QColor color = mErrorState ? TARN::errorColor(mType) : inactive;
    QPainter painter(this);
    if (color.isValid()) {
        painter.fillRect(QRect(QPoint(1, 1), QPoint(width() - 2, height() - 2)), color);
    }
    if (mType == TARN::ErrorNone) {
        return;
    }
    QFont small = painter.font();
    small.setPixelSize(10);
    painter.setFont(small);
    painter.setPen(Qt::black);
    painter.rotate(-90);
    painter.drawText(5 - height(), width() - 4, mText);
}
