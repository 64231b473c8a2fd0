#pragma once

#include "track/TrackDrawing.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace TARN {

class EmptyPlace;

/// The chart of a track with its heights below. The wheel, + and - zoom about the pointer or the
/// middle, a drag and the arrow keys pan, Home, F and a double click show all of it. A click on the
/// path, on a mark or into the heights picks the time at which the aircraft was there; Page Up and
/// Page Down go along the path.
class WidgetTrack : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetTrack(QWidget* parent = nullptr);

    /// Fits the chart to another ground.
    void setScene(const TrackScene& scene);
    const TrackScene& scene() const { return mScene; }
    /// Seconds with the time offset.
    void setTime(double time);
    void setLight(bool isLight);
    void setAxis(HeightProfile::Axis axis);
    /// What stands there while there is no position; may hold a link.
    void setEmptyText(const QString& text);
    QString emptyText() const;

    const TrackView& view() const { return mView; }
    const HeightChart& heights() const { return mHeights; }

    void fit();
    /// Smaller by a factor, about the middle.
    void zoom(double factor);

    /// The tool tip of a place; empty where there is nothing.
    QString tipAt(const QPointF& pixel) const;

Q_SIGNALS:
    /// The user wants to see this time.
    void picked(double time);
    void signalLink(const QString& link);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void lay();
    void redraw();
    void updateEmptyPlace();
    std::optional<double> timeAt(const QPointF& pixel) const;
    void pick(const QPointF& pixel);
    void step(int positions);
    void pan(const QPointF& pixels);

    TrackScene mScene;
    TrackStyle mStyle;
    TrackPanes mPanes;
    TrackView mView;
    HeightProfile::Axis mAxis = HeightProfile::Time;
    HeightChart mHeights;
    double mTime = 0.0;
    bool mIsFitted = true; ///< follows the size of the widget
    QPixmap mStill;        ///< all but the current time; null where it has to be drawn
    EmptyPlace* mEmpty;
    std::optional<QPointF> mPressed;
    QPointF mLast;
    bool mIsPanning = false;
};

} // namespace TARN
