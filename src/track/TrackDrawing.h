#pragma once

#include "track/TrackCanvas.h"
#include "track/TrackScene.h"

namespace TARN {

struct GraticuleLine;

/// Draws the chart of a track: graticule, path, marks, and what a reader needs to read them.
class TrackDrawing
{
public:
    /// All outlive the drawing.
    TrackDrawing(const TrackScene& scene, const TrackStyle& style, TrackCanvas& canvas);

    /// All but the current time.
    void draw(const TrackView& view);

    /// What the symbols mean, in a row.
    void drawKey(const QRectF& row);

    /// The aircraft where it was at a time, hollow and with words where nobody knows.
    void drawAircraft(const TrackView& view, double time);

private:
    void drawGraticule(const TrackView& view);
    bool labelLine(const TrackView& view, const GraticuleLine& line);
    void drawPath(const TrackView& view);
    void drawPart(const TrackView& view, std::size_t begin, std::size_t end, bool isFaded);
    void drawArrows(const QPolygonF& line, const QColor& color);
    void drawBands(const TrackView& view);
    void drawSymbols(const TrackView& view);
    bool labelMark(const TrackView& view, const QString& name, const QPointF& pixel);
    void drawNames(const TrackView& view);
    void drawScale(const TrackView& view);
    void drawNorth(const TrackView& view);
    void drawLegend();
    void placeCorners(const TrackView& view);
    QRectF corner(const TrackView& view, const QSizeF& size,
                  std::initializer_list<Qt::Corner> corners);
    bool isOnPath(const TrackView& view, const QRectF& box) const;
    void plate(const QRectF& box);
    /// A text on a plate where nothing stands yet; false where something does.
    bool label(const QString& text, const QPointF& topLeft, const QColor& color);
    bool isFree(const QRectF& box) const;

    const TrackScene& mScene;
    const TrackStyle& mStyle;
    TrackCanvas& mCanvas;
    std::vector<QRectF> mTaken;
    QRectF mNorth;
    QRectF mScale;
    QRectF mLegend;           ///< null without one
    double mUntilArrow = 0.0; ///< pixels
    int mArrows = 0;
};

/// The symbol of a mark around a place.
QPolygonF symbolOf(const TrackMark& mark, const QPointF& place);

/// Marks whose symbols are near a pixel, the worst first.
std::vector<const TrackMark*> marksNear(const TrackScene& scene, const TrackView& view,
                                        const QPointF& pixel);

} // namespace TARN
