#include "display/WidgetGraph.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>

#include <algorithm>

using namespace TARN;

void WidgetGraph::keyPressEvent(QKeyEvent* event)
{
    constexpr double FastPixels = 10.0;
    const double pixels = event->modifiers().testFlag(Qt::ShiftModifier) ? FastPixels : 1.0;
    switch (event->key()) {
    case Qt::Key_Left:
        moveCursorX(-pixels);
        break;
    case Qt::Key_Right:
        moveCursorX(pixels);
        break;
    case Qt::Key_Up:
        moveCursorY(pixels);
        break;
    case Qt::Key_Down:
        moveCursorY(-pixels);
        break;
    default:
        // With these held a letter is a command of the window, and some letters here lose data.
        if (!(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) {
            changeByKey(event->key());
        }
        break;
    }
}

void WidgetGraph::keyReleaseEvent(QKeyEvent*)
{
    // The keys that are held come with each event; none is passed on.
}

void WidgetGraph::changeByKey(int key)
{
    switch (key) {
    case Qt::Key_F2:
        setDisplayMode(DisplaySingle);
        break;
    case Qt::Key_F3:
        setDisplayMode(DisplaySplit);
        break;
    case Qt::Key_A:
        setGraphMode(GraphAutomatic);
        break;
    case Qt::Key_C:
        setCursorMode(CursorCenter);
        break;
    case Qt::Key_R:
        clear();
        setGraphMode(GraphAutomatic);
        setDisplayMode(DisplaySingle);
        break;
    case Qt::Key_X:
        clear();
        break;
    case Qt::Key_Z:
        zoomToMarker();
        break;
    default:
        return;
    }
    Q_EMIT signalKeyMode();
}

void WidgetGraph::moveCursorX(double pixels)
{
    const GraphView& view = mModel.view();
    const auto pixel = static_cast<float>((view.xmax - view.xmin) / width());
    mModel.setCursorPosition(mModel.cursor() + pixels * pixel);
    reportCursor();
}

void WidgetGraph::moveCursorY(double pixels)
{
    const GraphView& view = mModel.view();
    const double y = keyCursorY() + pixels;
    if (mModel.displayMode() == DisplaySplit) {
        if (const ParStruct* curve = mModel.getParaFromPos(y)) {
            mKeyCurve = static_cast<unsigned>(curve - mModel.curves().data());
            mKeyCursor = view.viewportToY(*curve, y);
        }
    } else {
        mKeyCursor = view.viewportToY(y);
    }
    reportCursor();
}

void WidgetGraph::reportCursor()
{
    mKeyCursorShown = true;
    mCursorTimer.start();
    update();
    Q_EMIT signalCursor(static_cast<float>(mModel.cursor()), mKeyCursor);
}

double WidgetGraph::timeAt(QPointF position) const
{
    return mModel.view().viewportToX(position.x());
}

void WidgetGraph::mousePressEvent(QMouseEvent* event)
{
    const double time = timeAt(event->position());
    switch (event->button()) {
    case Qt::LeftButton:
        if (event->modifiers().testFlag(Qt::ShiftModifier)) {
            moveNearerMarker(time);
        } else {
            setMarker(time, time);
        }
        Q_EMIT signalMarker(static_cast<float>(mModel.markStart()),
                            static_cast<float>(mModel.markStop()));
        break;
    case Qt::MiddleButton:
        setCursorFrom(event->position());
        break;
    case Qt::RightButton:
        mPanX = event->position().x();
        mPanMin = mModel.view().xmin;
        mPanMax = mModel.view().xmax;
        break;
    default:
        break;
    }
}

void WidgetGraph::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        moveNearerMarker(timeAt(event->position()));
        const auto start = static_cast<float>(mModel.markStart());
        const auto stop = static_cast<float>(mModel.markStop());
        Q_EMIT signalMarker(start, stop);
        update();
        Q_EMIT signalMarker(start, stop);
    }
    if (event->buttons().testFlag(Qt::MiddleButton)) {
        setCursorFrom(event->position());
    }
    if (event->buttons().testFlag(Qt::RightButton)) {
        pan(event->position().x());
    }
}

void WidgetGraph::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && mModel.markStop() < mModel.markStart()) {
        setMarker(mModel.markStop(), mModel.markStart());
    } else if (event->button() == Qt::MiddleButton) {
        mKeyCursorShown = false;
        update();
    }
}

void WidgetGraph::moveNearerMarker(double time)
{
    const double middle = (mModel.markStart() + mModel.markStop()) / 2.0;
    if (time >= middle) {
        setMarker(mModel.markStart(), time);
    } else {
        setMarker(time, mModel.markStop());
    }
}

void WidgetGraph::setCursorFrom(QPointF position)
{
    const double y = height() - position.y();
    const GraphView& view = mModel.view();
    mKeyCursor = view.viewportToY(y);
    if (mModel.displayMode() == DisplaySplit) {
        if (const ParStruct* curve = mModel.getParaFromPos(y)) {
            mKeyCurve = static_cast<unsigned>(curve - mModel.curves().data());
            mKeyCursor = view.viewportToY(*curve, y);
        }
    }
    mModel.setCursor(timeAt(position)); // a window that followed would run away from the mouse
    mKeyCursorShown = true;
    mCursorTimer.stop(); // shown for as long as the button is held
    update();
    Q_EMIT signalCursor(static_cast<float>(mModel.cursor()), mKeyCursor);
}

void WidgetGraph::pan(double x)
{
    const double shift = (mPanX - x) * mModel.view().pixelTime();
    mModel.setWindow(mPanMin + shift, mPanMax + shift);
    setGraphMode(GraphManual);
    Q_EMIT signalManMode();
}

void WidgetGraph::wheelEvent(QWheelEvent* event)
{
    constexpr double Step = 0.9;
    const int delta = event->angleDelta().y();
    if (delta == 0) {
        return; // a touchpad's sideways move
    }
    mModel.zoomAbout(timeAt(event->position()), delta > 0 ? Step : 1.0 / Step);
    // A burst of steps costs one rebuild.
    if (!mRecalcTimer.isActive()) {
        mRecalcTimer.start();
    }
    update();
}
