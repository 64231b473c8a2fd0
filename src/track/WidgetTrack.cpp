#include "track/WidgetTrack.h"

#include "base/ClockTime.h"
#include "track/Graticule.h"
#include "track/HeightDrawing.h"
#include "track/PaintedTrack.h"
#include "track/TrackSymbols.h"
#include "widgets/EmptyPlace.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double WheelStep = 1.25;
constexpr double Reach = 12.0; ///< pixels from the path that a click may be

} // namespace

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

void WidgetTrack::zoom(double factor)
{
    mIsFitted = false;
    mView.zoom(factor, mView.area.center());
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

/// Of what is there: a mark, the path, the heights.
std::optional<double> WidgetTrack::timeAt(const QPointF& pixel) const
{
    if (mScene.empty()) {
        return std::nullopt;
    }
    const PositionTrack& track = mScene.ground->track;
    if (!mView.area.contains(pixel)) {
        return mHeights.isShown() ? std::optional(mHeights.timeAt(track, pixel.x())) : std::nullopt;
    }
    const auto marks = marksNear(mScene, mView, pixel);
    if (!marks.empty()) {
        return marks.front()->time;
    }
    const auto hit = mScene.ground->path.nearest(mView, pixel, Reach);
    if (!hit) {
        return std::nullopt;
    }
    const double from = track.time(hit->index);
    return hit->share > 0.0 ? from + hit->share * (track.time(hit->index + 1) - from) : from;
}

void WidgetTrack::pick(const QPointF& pixel)
{
    if (const auto time = timeAt(pixel)) {
        setTime(*time);
        Q_EMIT picked(*time);
    }
}

QString WidgetTrack::tipAt(const QPointF& pixel) const
{
    constexpr std::size_t Most = 6;
    const auto time = timeAt(pixel);
    if (!time) {
        return {};
    }
    QStringList lines;
    const auto marks = mView.area.contains(pixel) ? marksNear(mScene, mView, pixel)
                                                  : marksNear(mScene, mHeights, pixel.x());
    for (const TrackMark* mark : marks) {
        if (lines.size() < qsizetype(Most)) {
            lines += mark->text;
        }
    }
    if (marks.size() > Most) {
        lines += tr("and %1 more").arg(marks.size() - Most);
    }
    const PositionTrack& track = mScene.ground->track;
    QString line = clockText(*time);
    if (const auto place = track.at(*time)) {
        line += "  " + degreesText(place->point.latitude, false) + "  " +
                degreesText(place->point.longitude, true);
        if (std::isfinite(place->altitude)) {
            line += QString("  %1 %2").arg(place->altitude, 0, 'f', 0).arg(track.altitudeUnit());
        }
        line += QString("  %1 km").arg(place->metres / 1000.0, 0, 'f', 1);
    }
    lines += line;
    return lines.join('\n');
}

bool WidgetTrack::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString tip = tipAt(help->pos());
        QToolTip::showText(help->globalPos(), tip, this);
        return true;
    }
    if (event->type() == QEvent::FontChange) {
        redraw();
    }
    return QWidget::event(event);
}

void WidgetTrack::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        mPressed = event->position();
        mLast = event->position();
        mIsPanning = false;
        if (!mView.area.contains(event->position())) {
            pick(event->position()); // and along, while it is dragged
        }
    }
}

void WidgetTrack::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF pixel = event->position();
    if (!mPressed || !(event->buttons() & Qt::LeftButton)) {
        const bool isHit = mView.area.contains(pixel) && timeAt(pixel).has_value();
        setCursor(isHit ? Qt::PointingHandCursor : Qt::ArrowCursor);
        return;
    }
    if (!mView.area.contains(*mPressed)) {
        pick({pixel.x(), mPressed->y()});
        return;
    }
    mIsPanning =
        mIsPanning || (pixel - *mPressed).manhattanLength() >= QApplication::startDragDistance();
    if (mIsPanning) {
        setCursor(Qt::ClosedHandCursor);
        pan(pixel - mLast);
        mLast = pixel;
    }
}

void WidgetTrack::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !mPressed) {
        return;
    }
    if (!mIsPanning && mView.area.contains(*mPressed)) {
        pick(event->position());
    }
    unsetCursor();
    mPressed.reset();
    mIsPanning = false;
}

void WidgetTrack::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && mView.area.contains(event->position())) {
        fit();
    }
}

void WidgetTrack::wheelEvent(QWheelEvent* event)
{
    constexpr double Notch = 120.0;
    if (!mScene.empty() && mView.area.contains(event->position())) {
        mIsFitted = false;
        mView.zoom(std::pow(WheelStep, -event->angleDelta().y() / Notch), event->position());
        redraw();
    }
    event->accept();
}

/// Along the path, by positions.
void WidgetTrack::step(int positions)
{
    if (mScene.empty()) {
        return;
    }
    const PositionTrack& track = mScene.ground->track;
    const auto place = track.at(mTime);
    const auto last = static_cast<qint64>(track.size()) - 1;
    const qint64 now = place ? static_cast<qint64>(place->index) : 0;
    const auto next = static_cast<std::size_t>(std::clamp<qint64>(now + positions, 0, last));
    setTime(track.time(next));
    Q_EMIT picked(track.time(next));
}

void WidgetTrack::keyPressEvent(QKeyEvent* event)
{
    constexpr double Pan = 60.0; // pixels
    constexpr int Hundredth = 100;
    const int stride =
        mScene.empty() ? 1 : std::max(1, int(mScene.ground->track.size()) / Hundredth);
    switch (event->key()) {
    case Qt::Key_Home:
    case Qt::Key_F:
        return fit();
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(1.0 / WheelStep);
    case Qt::Key_Minus:
        return zoom(WheelStep);
    case Qt::Key_Left:
        return pan({Pan, 0.0});
    case Qt::Key_Right:
        return pan({-Pan, 0.0});
    case Qt::Key_Up:
        return pan({0.0, Pan});
    case Qt::Key_Down:
        return pan({0.0, -Pan});
    case Qt::Key_PageUp:
        return step(-stride);
    case Qt::Key_PageDown:
        return step(stride);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace TARN
