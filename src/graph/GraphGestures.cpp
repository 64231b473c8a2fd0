#include "graph/GraphGestures.h"

#include "graph/GraphActions.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>

#include <utility>

namespace TARN {

namespace {

double timeAt(QPointF position, const GraphModel& model)
{
    return model.layout().view().viewportToX(position.x());
}

/// Pixel row of the key cursor, from the bottom.
double rowOf(const KeyCursor& cursor, const GraphModel& model)
{
    const ParStruct* curve = model.curves().curve(cursor.curve);
    const bool isOfStrip =
        model.layout().displayMode() == DisplaySplit && curve != nullptr && curve->active;
    const GraphView& view = model.layout().view();
    return isOfStrip ? view.yToViewport(curve->stripOf(cursor.isOfDifference), cursor.value)
                     : view.yToViewport(cursor.value);
}

} // namespace

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
    const bool isSideways = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    if (isSideways && event.modifiers().testFlag(Qt::AltModifier) && mModel.hints().hasReference) {
        const double step = event.key() == Qt::Key_Left ? -pixels : pixels;
        Q_EMIT nudged(step * mModel.layout().view().pixelTime());
        return;
    }
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
            !changeByKey(event.key(), event.modifiers())) {
            event.ignore();
        }
        break;
    }
}

/// Whether the key was one of the graph's.
bool GraphGestures::changeByKey(int key, Qt::KeyboardModifiers modifiers)
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
        showAll(mModel);
        break;
    case Qt::Key_M:
        zoomToMinute(mModel, mModel.cursor());
        break;
    case Qt::Key_Backspace:
        (modifiers.testFlag(Qt::ShiftModifier) ? goForth : goBack)(mModel);
        break;
    default:
        return false;
    }
    return true;
}

void GraphGestures::moveCursorX(double pixels)
{
    const auto pixel = static_cast<float>(mModel.window().width() / mModel.layout().size().width());
    mModel.setCursorPosition(mModel.cursor() + pixels * pixel);
    mCursorTimer.start();
    reportCursor();
}

void GraphGestures::moveCursorY(double pixels)
{
    takeValueAt(rowOf(mKeyCursor, mModel) + pixels);
    pointAt(mModel, mModel.cursor(), rowOf(mKeyCursor, mModel));
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
        mKeyCursor.isOfDifference = curve->isDifferenceAt(y);
        mKeyCursor.value = view.viewportToY(curve->stripOf(mKeyCursor.isOfDifference), y);
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

void GraphGestures::press(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton && event.modifiers() == Qt::AltModifier &&
        mModel.hints().hasReference) {
        mNudgeX = event.position().x();
        return;
    }
    const double time = timeAt(event.position(), mModel);
    switch (event.button()) {
    case Qt::LeftButton:
        mIsMarking = true;
        mHeld = endAt(event.position());
        if (!mHeld && event.modifiers() == Qt::NoModifier) {
            mPressed = event.position();
        }
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
    case Qt::BackButton:
        goBack(mModel);
        break;
    case Qt::ForwardButton:
        goForth(mModel);
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
    return endNear(mModel.markers(), timeAt(position, mModel),
                   Reach * mModel.layout().view().pixelTime());
}

void GraphGestures::nudge(double x)
{
    const double before = std::exchange(mNudgeX, x).value_or(x);
    Q_EMIT nudged((x - before) * mModel.layout().view().pixelTime());
}

void GraphGestures::move(const QMouseEvent& event)
{
    if (mNudgeX && event.buttons().testFlag(Qt::LeftButton)) {
        nudge(event.position().x());
        return;
    }
    constexpr double Still = 3.0; // pixels that no hand keeps from moving
    if (mPressed && (event.position() - *mPressed).manhattanLength() > Still) {
        mPressed.reset();
    }
    if (mIsMarking && event.buttons().testFlag(Qt::LeftButton) && !mPressed) {
        const double time = timeAt(event.position(), mModel);
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
    if (event.button() == Qt::LeftButton && std::exchange(mNudgeX, std::nullopt)) {
        return;
    }
    const TimeRange marks = mModel.markers();
    mIsMarking = mIsMarking && event.button() != Qt::LeftButton;
    if (event.button() == Qt::LeftButton && std::exchange(mPressed, std::nullopt)) {
        const double y = mModel.layout().size().height() - event.position().y();
        pointAt(mModel, timeAt(event.position(), mModel), y);
        takeValueAt(y);
        goTo(timeAt(event.position(), mModel));
    } else if (event.button() == Qt::LeftButton && marks.stop < marks.start) {
        mModel.setMarker(marks.stop, marks.start);
    } else if (event.button() == Qt::MiddleButton) {
        hideKeyCursor();
    }
}

void GraphGestures::goTo(double time)
{
    mModel.setCursorPosition(time, false);
    mKeyCursor.reportedTime = static_cast<float>(time);
    Q_EMIT cursorMoved(static_cast<float>(time), mKeyCursor.value);
}

void GraphGestures::setCursorFrom(QPointF position)
{
    takeValueAt(mModel.layout().size().height() - position.y());
    mModel.setCursorPosition(timeAt(position, mModel),
                             false); // a window that followed would run away from the mouse
    mCursorTimer.stop();             // shown for as long as the button is held
    reportCursor();
}

void GraphGestures::pan(double x)
{
    const double shift = (mPanX - x) * mModel.layout().view().pixelTime();
    panTo(mPanMin + shift, mPanMax + shift);
}

void GraphGestures::panTo(double min, double max)
{
    mModel.window().set(min, max);
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
    constexpr double PanStep = 0.1;     // of the window
    constexpr double Notch = 120.0;     // of a wheel, as the toolkit counts
    const QPoint delta = event.angleDelta();
    const bool isSideways = delta.y() == 0; // of a touchpad
    if (isSideways || event.modifiers().testFlag(Qt::ShiftModifier)) {
        const double turned = isSideways ? delta.x() : delta.y();
        const double shift = -turned / Notch * PanStep * mModel.window().width();
        panTo(mModel.window().min() + shift, mModel.window().max() + shift);
        return;
    }
    const double factor = delta.y() > 0 ? Step : 1.0 / Step;
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        mModel.layout().zoomY(mModel.layout().size().height() - event.position().y(), factor);
        mModel.curvesChanged();
        return;
    }
    if (!mSinceZoom.isValid() || mSinceZoom.elapsed() > BurstPause) {
        mModel.window().remember(); // a burst of steps is one zoom
    }
    mSinceZoom.start();
    mModel.window().zoomAbout(timeAt(event.position(), mModel), factor);
    mModel.windowChanged();
}

} // namespace TARN
