#include "graph/WidgetGraph.h"

#include "base/Property.h"
#include "graph/CurveText.h"
#include "graph/GraphActions.h"
#include "graph/GraphContext.h"
#include "graph/GraphPicture.h"

#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtOpenGL/QOpenGLPaintDevice>
#include <QtWidgets/QToolTip>

#include <utility>

using namespace TARN;

WidgetGraph::WidgetGraph(QWidget* parent)
    : QOpenGLWidget(parent), mFeed(mModel), mGestures(mModel), mLegend(mModel),
      mTexts(QFontMetricsF(graphFont())), mSpots(mModel, mStyle, mTexts), mEmpty(font())
{
    constexpr int RepaintInterval = 30; // ms
    constexpr int RecalcDelay = 50;
    constexpr int LongestHold = 60;
    setFormat(graphFormat());
    setFont(graphFont());
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Graph of the selected parameters"));
    setMinimumSize(200, 120);
    setMaxParameters(6);
    connect(&mModel, &GraphModel::changed, this, [this] {
        if (!mHeld.isActive()) {
            release();
        }
    });
    mHeld.setSingleShot(true);
    mHeld.setInterval(LongestHold);
    connect(&mHeld, &QTimer::timeout, this, &WidgetGraph::release);
    connect(&mGestures, &GraphGestures::cursorMoved, this, &WidgetGraph::signalCursor);
    connect(&mGestures, &GraphGestures::markersMoved, this, &WidgetGraph::signalMarker);
    connect(&mGestures, &GraphGestures::panned, this, &WidgetGraph::signalManMode);
    connect(&mGestures, &GraphGestures::keyCursorChanged, this, qOverload<>(&QWidget::update));
    connect(&mRepaintTimer, &QTimer::timeout, this, &WidgetGraph::slotTimeout);
    mRepaintTimer.start(RepaintInterval);
    mRecalcTimer.setSingleShot(true);
    mRecalcTimer.setInterval(RecalcDelay);
    connect(&mRecalcTimer, &QTimer::timeout, this, &WidgetGraph::slotTimeoutRecalc);
    mSinceRedraw.start();
}

void WidgetGraph::release()
{
    mHeld.stop();
    if (QAccessible::isActive()) {
        setAccessibleDescription(emptyText().isEmpty() ? spokenText(mModel, mStyle)
                                                       : mEmpty.spokenText());
    }
    update();
}

void WidgetGraph::setGraphStyle(const GraphStyle& style)
{
    mStyle = style;
    update();
}

void WidgetGraph::setEmptyText(const QString& text)
{
    if (text == mEmpty.text()) {
        return; // a repaint for nothing
    }
    mEmpty.setText(text);
    if (!mHeld.isActive()) {
        release();
    }
}

QString WidgetGraph::emptyText() const
{
    return mModel.curves().hasSamples() ? QString() : mEmpty.text();
}

void WidgetGraph::setMaxParameters(unsigned n)
{
    mModel.curves() = CurveSet(n);
    mGestures.resetKeyCursor();
    for (unsigned i = 0; i < mModel.curves().count(); ++i) {
        const std::string key = "GraphColor" + std::to_string(i);
        const auto name = QString::fromStdString(Property::instance()->getString(key, ""));
        if (QColor::isValidColor(name)) {
            mModel.curves().curve(i)->color = GraphColor::of(QColor(name));
        }
    }
    mModel.curvesChanged();
}

void WidgetGraph::setParameterName(unsigned i, const QString& name)
{
    if (ParStruct* curve = mModel.curves().curve(i)) {
        curve->name = name;
        update();
    }
}

void WidgetGraph::setParameterColor(unsigned i, float red, float green, float blue)
{
    if (ParStruct* curve = mModel.curves().curve(i)) {
        curve->color = {red, green, blue};
        update();
    }
}

void WidgetGraph::activateSamples(unsigned i, bool on)
{
    if (ParStruct* curve = mModel.curves().curve(i)) {
        curve->showSamples = on;
        update();
    }
}

void WidgetGraph::setActive(unsigned i, bool active)
{
    if (ParStruct* curve = mModel.curves().curve(i)) {
        curve->active = active;
        mModel.curvesChanged(); // frames are kept for active curves only
    }
}

bool WidgetGraph::getValue(unsigned i, double time, double& value) const
{
    value = 0.0;
    const ParStruct* curve = mModel.curves().curve(i);
    return curve != nullptr && curve->samples().valueAt(time, value);
}

void WidgetGraph::getParameterRangeX(unsigned i, double& first, double& last) const
{
    if (const ParStruct* curve = mModel.curves().curve(i)) {
        const CurveSamples& samples = curve->samples();
        first = samples.empty() ? 0.0 : samples.firstTime();
        last = samples.empty() ? 0.0 : samples.lastTime();
    }
}

void WidgetGraph::getParameterRangeY(unsigned i, double& min, double& max) const
{
    if (const ParStruct* curve = mModel.curves().curve(i)) {
        min = curve->samples().dataMin();
        max = curve->samples().dataMax();
    }
}

void WidgetGraph::setT0(float time)
{
    mModel.window().shiftTo(time);
    mModel.windowChanged();
}

void WidgetGraph::setXmin(float time)
{
    mModel.window().set(time, mModel.window().max());
    mModel.windowChanged();
}

void WidgetGraph::setXmax(float time)
{
    mModel.window().set(mModel.window().min(), time);
    mModel.windowChanged();
}

void WidgetGraph::setXrange(float width)
{
    mModel.window().setWidth(width, mModel.graphMode() == GraphAutomatic);
    mModel.windowChanged();
}

void WidgetGraph::setYmin(float value)
{
    mModel.layout().setValues(value, mModel.layout().view().ymax);
    update();
}

void WidgetGraph::setYmax(float value)
{
    mModel.layout().setValues(mModel.layout().view().ymin, value);
    update();
}

void WidgetGraph::setAutoScaleY(bool on)
{
    mModel.layout().setAutoScaleY(on);
    update();
}

void WidgetGraph::resizeGL(int width, int height)
{
    mModel.layout().setSize(width, height);
    release();
}

void WidgetGraph::paintGL()
{
    mFeed.holdLastValues();
    mCanvas.begin(size(), devicePixelRatioF(), mStyle.labelBack);
    drawGraph(mModel, mStyle, mGestures.keyCursor(), mCanvas, mTexts);
    mCanvas.end();
    // On the frame buffer, not on this widget: while a window is grabbed, painters on its widgets
    // are led elsewhere.
    QOpenGLPaintDevice device(size() * devicePixelRatioF());
    device.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&device);
    paintTexts(painter, mTexts, mStyle);
    if (!emptyText().isEmpty()) {
        // Not a label on top: taking one away would paint the window below it, which is slow.
        mEmpty.paint(painter, plot(), emptyColor(), mStyle.back.toColor());
    }
}

QRectF WidgetGraph::plot() const
{
    constexpr double Margin = 24.0;
    const GraphView& view = mModel.layout().view();
    const QRectF plot(view.x0, height() - view.y0 - view.height, view.width, view.height);
    return plot.adjusted(Margin, Margin, -Margin, -Margin);
}

/// On the colour of the plot.
QColor WidgetGraph::emptyColor() const
{
    return mStyle.back.toColor().lightness() < 128 ? Qt::lightGray : Qt::darkGray;
}

void WidgetGraph::showEvent(QShowEvent* event)
{
    QOpenGLWidget::showEvent(event);
    mRecalcTimer.start();
}

void WidgetGraph::slotTimeout()
{
    constexpr double Pixels = 0.7; // that the window moves between two redraws at least
    const double seconds = Pixels * mModel.layout().view().pixelTime();
    const qint64 elapsed = mSinceRedraw.elapsed();
    // Without new samples there is nothing to redraw, and a processor to be spared.
    if (isVisible() && mFeed.timeChanged() && static_cast<double>(elapsed) > seconds * 1000.0) {
        mSinceRedraw.restart();
        update();
    }
}

void WidgetGraph::slotTimeoutRecalc()
{
    mModel.windowChanged();
}

void WidgetGraph::slotTimeoutCursor()
{
    mGestures.hideKeyCursor();
}

void WidgetGraph::keyPressEvent(QKeyEvent* event)
{
    mGestures.press(*event);
}

void WidgetGraph::mousePressEvent(QMouseEvent* event)
{
    const QPointF place = event->position();
    mRightPressed = place;
    mPressedLink = event->button() == Qt::LeftButton ? linkAt(place) : QString();
    if (!mPressedLink.isEmpty()) {
        return;
    }
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
        if (const auto legend = mSpots.legendAt(place)) {
            setPointed(mModel, legend);
            mLegend.press(*legend, place);
            return;
        }
        const auto notes = mSpots.notesAt(place);
        if (!notes.empty()) {
            mGestures.goTo(notes.front().time);
            return;
        }
    }
    mGestures.press(*event);
}

void WidgetGraph::mouseMoveEvent(QMouseEvent* event)
{
    if (mLegend.isHeld()) {
        mLegend.move(event->position(), mSpots.curveAt(event->position()));
    } else {
        mGestures.move(*event);
    }
    updateMouse(event->position());
}

void WidgetGraph::mouseReleaseEvent(QMouseEvent* event)
{
    constexpr double Still = 3.0; // pixels that no hand keeps from moving
    if (const QString link = std::exchange(mPressedLink, {}); !link.isEmpty()) {
        if (link == linkAt(event->position())) {
            Q_EMIT signalLink(link);
        }
        return;
    }
    if (mLegend.isHeld()) {
        mLegend.release();
    } else {
        mGestures.release(*event);
    }
    if (event->button() == Qt::RightButton &&
        (event->position() - mRightPressed).manhattanLength() <= Still) {
        if (const auto curve = mSpots.curveAt(event->position())) {
            setPointed(mModel, curve);
        }
        Q_EMIT signalMenu(event->globalPosition().toPoint());
    }
    updateMouse(event->position());
}

/// What was clicked, and half a minute around it.
void WidgetGraph::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto notes = mSpots.notesAt(event->position());
    if (event->button() == Qt::LeftButton && !notes.empty()) {
        zoomToMinute(mModel, notes.front().time);
    } else {
        mousePressEvent(event);
    }
}

/// A press of the mouse may become a pan, so its menu waits for the release.
void WidgetGraph::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT signalMenu(mapToGlobal(rect().center()));
    }
}

bool WidgetGraph::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QOpenGLWidget::event(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), mSpots.toolTipAt(help.pos()), this);
    return true;
}

QString WidgetGraph::linkAt(QPointF place) const
{
    return emptyText().isEmpty() ? QString() : mEmpty.linkAt(place);
}

/// The shape of the mouse says what a press would do.
void WidgetGraph::updateMouse(QPointF position)
{
    const GraphView& view = mModel.layout().view();
    if (mModel.layout().displayMode() == DisplaySingle) {
        pointAt(mModel, view.viewportToX(position.x()), height() - position.y());
    }
    const bool isHand = mSpots.isForClicks(position) || !linkAt(position).isEmpty();
    setCursor(mLegend.isDragging()        ? Qt::ClosedHandCursor
              : isHand                    ? Qt::PointingHandCursor
              : mGestures.endAt(position) ? Qt::SplitHCursor
                                          : Qt::ArrowCursor);
}

void WidgetGraph::wheelEvent(QWheelEvent* event)
{
    mGestures.turn(*event);
}
