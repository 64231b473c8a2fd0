#include "graph/GraphGestures.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>

namespace TARN {

GraphGestures::GraphGestures(GraphModel& model, QObject* parent) : QObject(parent), mModel(model)
{
    constexpr int CursorDelay = 5000; // ms
    mCursorTimer.setSingleShot(true);
    mCursorTimer.setInterval(CursorDelay);
    connect(&mCursorTimer, &QTimer::timeout, this, &GraphGestures::hideKeyCursor);
}

void GraphGestures::hideKeyCursor()
{
    mKeyCursor.isShown = false;
    Q_EMIT keyCursorChanged();
}

void GraphGestures::reportMarkers()
{
    Q_EMIT markersMoved(static_cast<float>(mModel.markers().start),
                        static_cast<float>(mModel.markers().stop));
}

void GraphGestures::press(QKeyEvent& event)
{
    constexpr double FastPixels = 10.0;
    const double pixels = event.modifiers().testFlag(Qt::ShiftModifier) ? FastPixels : 1.0;
    switch (event.key()) {
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
        if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) ||
            !changeByKey(event.key())) {
            event.ignore();
        }
        break;
    }
}

/// Whether the key was one of the graph's.
bool GraphGestures::changeByKey(int key)
{
    switch (key) {
    case Qt::Key_F2:
        mModel.setDisplayMode(DisplaySingle);
        break;
    case Qt::Key_F3:
        mModel.setDisplayMode(DisplaySplit);
        break;
    case Qt::Key_A:
        mModel.setGraphMode(GraphAutomatic);
        break;
    case Qt::Key_C:
        mModel.setCursorMode(CursorCenter);
        break;
    case Qt::Key_R:
        mModel.clear();
        mModel.setGraphMode(GraphAutomatic);
        mModel.setDisplayMode(DisplaySingle);
        break;
    case Qt::Key_X:
        mModel.clear();
        break;
    case Qt::Key_Z:
        mModel.zoomToMarker();
        break;
    case Qt::Key_1:
    case Qt::Key_2: {
        const MarkerEnd end = key == Qt::Key_1 ? MarkerEnd::A : MarkerEnd::B;
        const TimeRange range =
            withEnd(mModel.markers(), mModel.window().whole(), end, mModel.cursor());
        mModel.setMarker(range.start, range.stop);
        reportMarkers();
        break;
    }
    case Qt::Key_Home:
        mModel.window().showAll();
        mModel.windowChanged();
        break;
    case Qt::Key_Backspace:
        if (mModel.window().back()) {
            mModel.windowChanged();
        }
        break;
    default:
        return false;
    }
    return true;
}

void GraphGestures::moveCursorX(double pixels)
{
    const auto pixel = static_cast<float>(mModel.window().width() / mSize.width());
    mModel.setCursorPosition(mModel.cursor() + pixels * pixel);
    mCursorTimer.start();
    reportCursor();
}

void GraphGestures::moveCursorY(double pixels)
{
    const ParStruct* curve = mModel.curves().curve(mKeyCursor.curve);
    const bool isOfStrip =
        mModel.layout().displayMode() == DisplaySplit && curve != nullptr && curve->active;
    const GraphView& view = mModel.layout().view();
    const double y = isOfStrip ? view.yToViewport(curve->strip, mKeyCursor.value)
                               : view.yToViewport(mKeyCursor.value);
    takeValueAt(y + pixels);
    mCursorTimer.start();
    reportCursor();
}

/// The value under a pixel row, in split mode of the strip that it lies in.
void GraphGestures::takeValueAt(double y)
{
    const GraphView& view = mModel.layout().view();
    const ParStruct* curve =
        mModel.layout().displayMode() == DisplaySplit ? mModel.curves().at(y) : nullptr;
    if (curve != nullptr) {
        mKeyCursor.curve = mModel.curves().indexOf(*curve);
        mKeyCursor.value = view.viewportToY(curve->strip, y);
    } else {
        mKeyCursor.value = view.viewportToY(y);
    }
}

/// The time is told in single precision; what is shown beside the cursor is what was told.
void GraphGestures::reportCursor()
{
    const auto time = static_cast<float>(mModel.cursor());
    mKeyCursor.isShown = true;
    mKeyCursor.reportedTime = time;
    Q_EMIT keyCursorChanged();
    Q_EMIT cursorMoved(time, mKeyCursor.value);
}

double GraphGestures::timeAt(QPointF position) const
{
    return mModel.layout().view().viewportToX(position.x());
}

void GraphGestures::press(const QMouseEvent& event)
{
    const double time = timeAt(event.position());
    switch (event.button()) {
    case Qt::LeftButton:
        mHeld = endAt(event.position());
        if (event.modifiers().testFlag(Qt::ShiftModifier)) {
            const TimeRange marks = withNearerEnd(mModel.markers(), time);
            mModel.setMarker(marks.start, marks.stop);
        } else if (!mHeld) {
            mModel.setMarker(time, time);
        }
        reportMarkers();
        break;
    case Qt::MiddleButton:
        setCursorFrom(event.position());
        break;
    case Qt::RightButton:
        mPanX = event.position().x();
        mPanMin = mModel.window().min();
        mPanMax = mModel.window().max();
        break;
    default:
        break;
    }
}

std::optional<MarkerEnd> GraphGestures::endAt(QPointF position) const
{
    constexpr double Reach = 4.0; // pixels
    return endNear(mModel.markers(), timeAt(position), Reach * mModel.layout().view().pixelTime());
}

void GraphGestures::move(const QMouseEvent& event)
{
    if (event.buttons().testFlag(Qt::LeftButton)) {
        const double time = timeAt(event.position());
        TimeRange marks = mModel.markers();
        if (mHeld) {
            endOf(marks, *mHeld) = time;
        } else {
            marks = withNearerEnd(marks, time);
        }
        mModel.setMarker(marks.start, marks.stop);
        reportMarkers();
        reportMarkers(); // once more, when it is drawn
    }
    if (event.buttons().testFlag(Qt::MiddleButton)) {
        setCursorFrom(event.position());
    }
    if (event.buttons().testFlag(Qt::RightButton)) {
        pan(event.position().x());
    }
}

void GraphGestures::release(const QMouseEvent& event)
{
    const TimeRange marks = mModel.markers();
    if (event.button() == Qt::LeftButton && marks.stop < marks.start) {
        mModel.setMarker(marks.stop, marks.start);
    } else if (event.button() == Qt::MiddleButton) {
        hideKeyCursor();
    }
}

void GraphGestures::setCursorFrom(QPointF position)
{
    takeValueAt(mSize.height() - position.y());
    mModel.setCursor(timeAt(position)); // a window that followed would run away from the mouse
    mCursorTimer.stop();                // shown for as long as the button is held
    reportCursor();
}

void GraphGestures::pan(double x)
{
    const double shift = (mPanX - x) * mModel.layout().view().pixelTime();
    mModel.window().set(mPanMin + shift, mPanMax + shift);
    mModel.windowChanged();
    mIsPanning = true;
    mModel.setGraphMode(GraphManual);
    mIsPanning = false;
    Q_EMIT panned();
}

void GraphGestures::turn(const QWheelEvent& event)
{
    constexpr double Step = 0.9;
    constexpr qint64 BurstPause = 1000; // ms
    const int delta = event.angleDelta().y();
    if (delta == 0) {
        return; // a touchpad's sideways move
    }
    if (!mSinceZoom.isValid() || mSinceZoom.elapsed() > BurstPause) {
        mModel.window().remember(); // a burst of steps is one zoom
    }
    mSinceZoom.start();
    mModel.window().zoomAbout(timeAt(event.position()), delta > 0 ? Step : 1.0 / Step);
    mModel.windowChanged();
}

} // namespace TARN
