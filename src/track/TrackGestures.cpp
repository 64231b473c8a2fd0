#include "track/TrackGestures.h"

#include "track/WidgetTrack.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

#include <cmath>

namespace TARN {

namespace {

constexpr double Step = 1.25; // of the wheel and of a key

} // namespace

TrackGestures::TrackGestures(WidgetTrack& track) : QObject(&track), mTrack(track)
{
    track.installEventFilter(this);
}

bool TrackGestures::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick: {
        const auto* click = static_cast<QMouseEvent*>(event);
        if (click->button() == Qt::LeftButton && mTrack.isOnChart(click->position())) {
            mTrack.fit();
        }
        return true;
    }
    case QEvent::Wheel:
        turn(*static_cast<QWheelEvent*>(event));
        event->accept();
        return true;
    case QEvent::KeyPress:
        return type(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

bool TrackGestures::press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    mPressed = event.position();
    mLast = event.position();
    mIsPanning = false;
    if (!mTrack.isOnChart(event.position())) {
        mTrack.pick(event.position()); // and along, while it is dragged
    }
    return true;
}

void TrackGestures::move(const QMouseEvent& event)
{
    const QPointF pixel = event.position();
    if (!mPressed || !(event.buttons() & Qt::LeftButton)) {
        const bool isHit = mTrack.isOnChart(pixel) && timeAt(mTrack.places(), pixel).has_value();
        mTrack.setCursor(isHit ? Qt::PointingHandCursor : Qt::ArrowCursor);
        return;
    }
    if (!mTrack.isOnChart(*mPressed)) {
        mTrack.pick({pixel.x(), mPressed->y()});
        return;
    }
    mIsPanning =
        mIsPanning || (pixel - *mPressed).manhattanLength() >= QApplication::startDragDistance();
    if (mIsPanning) {
        mTrack.setCursor(Qt::ClosedHandCursor);
        mTrack.pan(pixel - mLast);
        mLast = pixel;
    }
}

bool TrackGestures::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !mPressed) {
        return false;
    }
    if (!mIsPanning && mTrack.isOnChart(*mPressed)) {
        mTrack.pick(event.position());
    }
    mTrack.unsetCursor();
    mPressed.reset();
    mIsPanning = false;
    return true;
}

void TrackGestures::turn(const QWheelEvent& event)
{
    constexpr double Notch = 120.0;
    if (mTrack.isOnChart(event.position())) {
        mTrack.zoom(std::pow(Step, -event.angleDelta().y() / Notch), event.position());
    }
}

bool TrackGestures::type(const QKeyEvent& event)
{
    constexpr double Pan = 60.0; // pixels
    switch (event.key()) {
    case Qt::Key_Home:
    case Qt::Key_F:
        mTrack.fit();
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        mTrack.zoom(1.0 / Step);
        return true;
    case Qt::Key_Minus:
        mTrack.zoom(Step);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        mTrack.pan({event.key() == Qt::Key_Left ? Pan : -Pan, 0.0});
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        mTrack.pan({0.0, event.key() == Qt::Key_Up ? Pan : -Pan});
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        mTrack.step(event.key() == Qt::Key_PageDown ? 1 : -1);
        return true;
    default:
        return false;
    }
}

} // namespace TARN
