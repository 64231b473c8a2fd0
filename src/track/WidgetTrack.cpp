#include "track/WidgetTrack.h"

#include "base/PlainTip.h"
#include "track/HeightDrawing.h"
#include "track/PaintedTrack.h"
#include "track/TrackGestures.h"
#include "track/TrackHits.h"
#include "track/TrackSymbols.h"
#include "widgets/EmptyPlace.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <cmath>

namespace TARN {

WidgetTrack::WidgetTrack(QWidget* parent) : QWidget(parent), mEmpty(new EmptyPlace(this))
{
    setObjectName("track");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(240, 200);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Track"));
    setAccessibleDescription(tr("The path of the flight from above, and its height below"));
    connect(mEmpty, &QLabel::linkActivated, this, &WidgetTrack::signalLink);
    new TrackGestures(*this);
}

void WidgetTrack::setScene(const TrackScene& scene)
{
    const bool isOther = scene.ground != mScene.ground;
    mScene = scene;
    if (isOther) {
        lay();
        fit();
    }
    updateEmptyPlace();
    redraw();
}

void WidgetTrack::setTime(double time)
{
    mTime = time;
    update();
}

void WidgetTrack::setLight(bool isLight)
{
    mStyle = TrackStyle::of(isLight);
    mEmpty->setTextColor(isLight ? Qt::darkGray : Qt::lightGray);
    redraw();
}

void WidgetTrack::setAxis(HeightProfile::Axis axis)
{
    mAxis = axis;
    lay();
}

void WidgetTrack::setEmptyText(const QString& text)
{
    mEmpty->setText(text);
    updateEmptyPlace();
}

QString WidgetTrack::emptyText() const
{
    return mEmpty->isVisibleTo(this) ? mEmpty->text() : QString();
}

void WidgetTrack::updateEmptyPlace()
{
    constexpr int Margin = 24;
    mEmpty->setGeometry(rect().adjusted(Margin, Margin, -Margin, -Margin));
    mEmpty->setVisible(mScene.empty() && !mEmpty->text().isEmpty());
}

/// What stands where, and the heights in it.
void WidgetTrack::lay()
{
    bool hasHeights = false;
    if (!mScene.empty()) {
        const PositionTrack& track = mScene.ground->track;
        for (std::size_t k = 0; k < track.size() && !hasHeights; ++k) {
            hasHeights = std::isfinite(track.altitude(k));
        }
    }
    mPanes = {size(), hasHeights};
    mView.area = mPanes.chart;
    mHeights = {mScene, mAxis, mPanes.heights};
    redraw();
}

void WidgetTrack::redraw()
{
    mStill = {};
    update();
}

void WidgetTrack::fit()
{
    mIsFitted = true;
    if (!mScene.empty()) {
        mView.fit(mScene.ground->path.bounds());
    }
    redraw();
}

void WidgetTrack::zoom(double factor, const std::optional<QPointF>& about)
{
    mIsFitted = false;
    mView.zoom(factor, about.value_or(mView.area.center()));
    redraw();
}

void WidgetTrack::pan(const QPointF& pixels)
{
    mIsFitted = false;
    mView.pan(pixels);
    redraw();
}

void WidgetTrack::resizeEvent(QResizeEvent*)
{
    lay();
    updateEmptyPlace();
    if (mIsFitted) {
        fit();
    }
}

void WidgetTrack::paintEvent(QPaintEvent*)
{
    if (mStill.isNull()) {
        mStill = QPixmap(size() * devicePixelRatioF());
        mStill.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&mStill);
        PaintedTrack canvas(painter, font());
        TrackDrawing drawing(mScene, mStyle, canvas);
        drawing.draw(mView);
        drawKey(mScene, mStyle, mPanes.key, canvas);
        HeightDrawing(mScene, mStyle, mHeights, canvas)
            .draw({0.0, mPanes.key.bottom(), double(width()), height() - mPanes.key.bottom()});
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, mStill);
    if (!mScene.empty()) {
        PaintedTrack canvas(painter, font());
        HeightDrawing(mScene, mStyle, mHeights, canvas).drawMoment(mTime);
        TrackDrawing(mScene, mStyle, canvas).drawAircraft(mView, mTime);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

bool WidgetTrack::isOnChart(const QPointF& pixel) const
{
    return !mScene.empty() && mView.area.contains(pixel);
}

void WidgetTrack::pick(const QPointF& pixel)
{
    if (const auto time = timeAt(places(), pixel)) {
        setTime(*time);
        Q_EMIT picked(*time);
    }
}

bool WidgetTrack::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString tip = tipAt(places(), help->pos());
        QToolTip::showText(help->globalPos(), plainTip(tip), this);
        return true;
    }
    if (event->type() == QEvent::FontChange) {
        redraw();
    }
    return QWidget::event(event);
}

void WidgetTrack::step(int hundredths)
{
    if (mScene.empty()) {
        return;
    }
    const PositionTrack& track = mScene.ground->track;
    const qint64 positions =
        hundredths * std::max<qint64>(1, static_cast<qint64>(track.size()) / 100);
    const auto place = track.at(mTime);
    const auto last = static_cast<qint64>(track.size()) - 1;
    const qint64 now = place ? static_cast<qint64>(place->index) : 0;
    const auto next = static_cast<std::size_t>(std::clamp<qint64>(now + positions, 0, last));
    setTime(track.time(next));
    Q_EMIT picked(track.time(next));
}

} // namespace TARN
