#pragma once

#include "track/TrackDrawing.h"
#include "track/TrackHits.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace TARN {

class EmptyPlace;

/// The chart of a track with its heights below, see TrackGestures for how it is used.
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
    TrackPlaces places() const { return {mScene, mView, mHeights}; }

    void fit();
    /// Smaller by a factor, about a place or the middle.
    void zoom(double factor, const std::optional<QPointF>& about = {});
    void pan(const QPointF& pixels);

    bool isOnChart(const QPointF& pixel) const;
    void pick(const QPointF& pixel);
    /// Along the path, by hundredths of its positions.
    void step(int hundredths);

Q_SIGNALS:
    /// The user wants to see this time.
    void picked(double time);
    void signalLink(const QString& link);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void lay();
    void redraw();
    void updateEmptyPlace();

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
};

} // namespace TARN
