#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointF>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace TARN {

class WidgetTrack;

/// How the chart of a track is used. The wheel, + and - zoom about the pointer or the middle, a
/// drag and the arrow keys pan, Home, F and a double click show all of it. A click on the path, on
/// a mark or into the heights picks the time at which the aircraft was there; Page Up and Page Down
/// go along the path.
class TrackGestures : public QObject
{
    Q_OBJECT

public:
    explicit TrackGestures(WidgetTrack& track);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void turn(const QWheelEvent& event);
    bool type(const QKeyEvent& event);

    WidgetTrack& mTrack;
    std::optional<QPointF> mPressed;
    QPointF mLast;
    bool mIsPanning = false;
};

} // namespace TARN
