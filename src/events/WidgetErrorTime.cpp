#include "events/WidgetErrorTime.h"

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

void WidgetErrorTime::setFlight(std::shared_ptr<const Flight> flight, std::size_t matrix)
{
    mFlight = std::move(flight);
    mMatrix = matrix;
    update();
}

void WidgetErrorTime::setTime(double time)
{
    mTime = time;
    update();
}

int WidgetErrorTime::getX(float time) const
{
    if (mFlight == nullptr) {
        return 0;
    }
    const RecordInfo& info = mFlight->info();
    return FaultHistory::timelineX(time, info.startTime, info.stopTime, width());
}

void WidgetErrorTime::paintEvent(QPaintEvent*)
{
    const int band = height() / 3;
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(1, 1), QPoint(width() - 2, height() - 2)), Qt::white);
    if (mFlight != nullptr) {
        for (const int type : {ErrorInfo, ErrorWarning, ErrorFault}) {
            paintBand(painter, type, (type - ErrorInfo) * band, band);
        }
        if (!history().isKnown()) {
            painter.setPen(Qt::black);
            painter.drawText(rect(), Qt::AlignCenter,
                             tr("The recording holds no message of this matrix."));
        }
    }
    painter.setPen(QColor(200, 200, 200));
    painter.drawLine(0, band, width() - 1, band);
    painter.drawLine(0, 2 * band, width() - 1, 2 * band);
    painter.drawRect(QRect(QPoint(0, 0), QPoint(width() - 3, height() - 3)));
    painter.setPen(Qt::black);
    const int x = getX(static_cast<float>(mTime));
    painter.drawLine(x, 0, x, height());
}

/// The inactive stretches are white already; so an active one, however short, stays visible.
void WidgetErrorTime::paintBand(QPainter& painter, int type, int top, int height) const
{
    const std::vector<FaultPoint>& points = history().points(type);
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (points[i - 1].state) {
            const int left = getX(points[i - 1].time);
            const int right = std::max(left, getX(points[i].time) - 1);
            painter.fillRect(QRect(QPoint(left, top), QPoint(right, top + height - 1)),
                             errorColor(type));
        }
    }
}

void WidgetErrorTime::mousePressEvent(QMouseEvent* event)
{
    if (mFlight == nullptr) {
        return;
    }
    const RecordInfo& info = mFlight->info();
    const int x = event->position().toPoint().x();
    Q_EMIT signalTime(
        history().changeNear(x, info.startTime, info.stopTime, width()).value_or(timeAt(x)));
}

void WidgetErrorTime::mouseMoveEvent(QMouseEvent* event)
{
    if (mFlight != nullptr && event->buttons().testFlag(Qt::LeftButton)) {
        Q_EMIT signalTime(timeAt(event->position().toPoint().x()));
    }
}

double WidgetErrorTime::timeAt(int x) const
{
    const RecordInfo& info = mFlight->info();
    const double position = std::clamp(static_cast<double>(x) / std::max(1, width()), 0.0, 1.0);
    return info.startTime + position * (info.stopTime - info.startTime);
}

} // namespace TARN
