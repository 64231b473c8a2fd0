#pragma once

#include <QtGui/QColor>

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

    static GraphColor of(const QColor& color)
    {
        return {color.redF(), color.greenF(), color.blueF()};
    }
    QColor toColor() const { return QColor::fromRgbF(red, green, blue); }

    friend bool operator==(const GraphColor&, const GraphColor&) = default;
};

} // namespace TARN
