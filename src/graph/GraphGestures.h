#pragma once

#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"
#include "graph/MarkerEnds.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QTimer>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace TARN {

/// What keys and the mouse do to a graph: cursor, markers, pan, zoom, modes.
class GraphGestures : public QObject
{
    Q_OBJECT

public:
    /// \p model lives as long.
    explicit GraphGestures(GraphModel& model, QObject* parent = nullptr);

    /// The cursor that keys and the middle button move.
    const KeyCursor& keyCursor() const { return mKeyCursor; }
    /// Other curves: it starts at the first.
    void resetKeyCursor() { mKeyCursor.curve = 0; }
    void hideKeyCursor();

    /// Whether the window is being dragged along.
    bool isPanning() const { return mIsPanning; }

    /// A key that is not the graph's is ignored.
    void press(QKeyEvent& event);
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    /// The end of the marked range that a press there takes hold of.
    std::optional<MarkerEnd> endAt(QPointF position) const;
    void release(const QMouseEvent& event);
    void turn(const QWheelEvent& event);
    /// Moves cursor and current time there, and says so.
    void goTo(double time);

Q_SIGNALS:
    void cursorMoved(float time, double value);
    void markersMoved(float start, float stop);
    void panned();
    /// The reference flight was dragged by so many seconds.
    void nudged(double seconds);
    /// The key cursor came, moved or went.
    void keyCursorChanged();

private:
    bool changeByKey(int key, Qt::KeyboardModifiers modifiers);
    void panTo(double min, double max);
    void moveCursorX(double pixels);
    void moveCursorY(double pixels);
    void reportCursor();
    void setCursorFrom(QPointF position);
    void reportMarkers();
    void pan(double x);

    GraphModel& mModel;
    KeyCursor mKeyCursor;
    QTimer mCursorTimer;             ///< until it goes by itself
    std::optional<MarkerEnd> mHeld;  ///< by the left button
    std::optional<QPointF> mPressed; ///< of the left button, while it has not moved
    bool mIsMarking = false;         ///< the left button was pressed here, not on something else
    std::optional<double> mNudgeX;   ///< where the mouse was that drags the reference
    bool mIsPanning = false;
    double mPanX = 0.0;   ///< where a pan began
    double mPanMin = 0.0; ///< the window then
    double mPanMax = 0.0;
    QElapsedTimer mSinceZoom; ///< the last step of the wheel
};

} // namespace TARN
