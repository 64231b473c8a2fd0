#pragma once

#include "display/CurveBuffer.h"

#include <QtCore/QString>

namespace TARN {

enum eGraphMode : int
{
    GraphManual = 0,   ///< the time window stays where the user put it
    GraphAutomatic = 1 ///< the time window ends at the current time
};

enum eDisplayMode : int
{
    DisplaySingle = 0, ///< all curves share one Y range and the whole plot
    DisplaySplit = 1   ///< each active curve has a strip and a Y axis of its own
};

enum eCursorMode : int
{
    CursorFloating = 0, ///< the cursor moves, the window stays
    CursorCenter = 1,   ///< the window is centred on the cursor
    CursorEnd = 2       ///< as floating
};

/// Parts from 0 to 1.
struct GraphColor
{
    float red = 1.0F;
    float green = 1.0F;
    float blue = 1.0F;
};

/// One plotted curve: its samples, and how and where it is drawn. Pixels are counted from the
/// bottom of the widget.
struct ParStruct
{
    CurveBuffer buffer;
    bool active = false;
    bool valueSet = false; ///< a value was put since the time was last set
    double lastValue = 0.0;
    double visibleMin = 0.0; ///< of what was last drawn
    double visibleMax = 0.0;
    double rangeMin = 0.0; ///< Y range in which it is drawn
    double rangeMax = 0.0;
    double viewportY = 0.0; ///< its strip
    double viewportHeight = 0.0;
    GraphColor color;
    QString name = "NoName";
    bool showSamples = false;
};

/// The plot area in pixels from the lower left corner of the widget, and what it shows.
struct GraphView
{
    double x0 = 0.0;
    double y0 = 0.0;
    double width = 0.0;
    double height = 0.0;
    double xmin = 0.0; ///< seconds
    double xmax = 60.0;
    double ymin = -0.5; ///< of the Y range that curves share
    double ymax = 1.5;

    /// Seconds that one pixel stands for.
    double pixelTime() const { return (xmax - xmin) / width; }

    // Data to pixels and back. A plot or a range without extent has one place only.
    double xToViewport(double time) const;
    double yToViewport(double value) const;
    double yToViewport(const ParStruct& curve, double value) const;
    double viewportToX(double x) const;
    double viewportToY(double y) const;
    double viewportToY(const ParStruct& curve, double y) const;

    // Pixels as parts of the plot's extent, 0 to 1.
    double viewportToRelX(double x) const;
    double viewportToRelY(double y) const;
};

} // namespace TARN
