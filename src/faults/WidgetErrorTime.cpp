#include "faults/WidgetErrorTime.h"

#include "faults/WidgetErrorItem.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace TARN {

WidgetErrorTime::WidgetErrorTime(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    setFixedHeight(30);
    setToolTip(
        tr("When errors were active: from the top info, warning, fault. Click to go there."));
    setAccessibleName(tr("Fault timeline"));
}

void WidgetErrorTime::setHistory(const Record* record, const FaultHistory* history)
{
    mRecord = record;
    mHistory = history;
    update();
}

void WidgetErrorTime::setTime(double time)
{
    mTime = time;
    update();
}

int WidgetErrorTime::getX(float time) const
{
    if (mRecord == nullptr) {
        return 0;
    }
    const RecordInfo& info = mRecord->recordInfo();
    return FaultHistory::timelineX(time, info.startTime, info.stopTime, width());
}

void WidgetErrorTime::paintEvent(QPaintEvent*)
{
    const int band = height() / 3;
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(1, 1), QPoint(width() - 2, height() - 2)), Qt::white);
    if (mHistory != nullptr) {
        paintBands(painter, band);
    }
    painter.setPen(QColor(200, 200, 200));
    painter.drawLine(0, band, width() - 1, band);
    painter.drawLine(0, 2 * band, width() - 1, 2 * band);
    painter.drawRect(QRect(QPoint(0, 0), QPoint(width() - 3, height() - 3)));
    painter.setPen(Qt::black);
    const int x = getX(static_cast<float>(mTime));
    painter.drawLine(x, 0, x, height());
}

void WidgetErrorTime::paintBands(QPainter& painter, int band) const
{
    int top = 0;
    int type = ErrorInfo;
    for (const auto* points : {&mHistory->info(), &mHistory->warning(), &mHistory->fault()}) {
        for (std::size_t i = 1; i < points->size(); ++i) {
            const FaultPoint& from = (*points)[i - 1];
            const QRect segment(QPoint(getX(from.time), top),
                                QPoint(getX((*points)[i].time) - 1, top + band - 1));
            painter.fillRect(segment, from.state ? errorColor(type) : QColor(Qt::white));
        }
        top += band;
        ++type;
    }
}

void WidgetErrorTime::mousePressEvent(QMouseEvent* event)
{
    pick(event->position().toPoint().x());
}

void WidgetErrorTime::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        pick(event->position().toPoint().x());
    }
}

void WidgetErrorTime::pick(int x)
{
    if (mRecord == nullptr) {
        return;
    }
    const RecordInfo& info = mRecord->recordInfo();
    const double position = std::clamp(static_cast<double>(x) / std::max(1, width()), 0.0, 1.0);
    Q_EMIT signalTime(info.startTime + position * (info.stopTime - info.startTime));
}

} // namespace TARN
