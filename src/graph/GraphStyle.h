#pragma once

#include "graph/GraphTypes.h"

namespace TARN {

/// How a graph looks.
struct GraphStyle
{
    GraphColor back{0.0F, 0.0F, 0.0F}; ///< of the plot
    GraphColor grid{1.0F, 0.3F, 0.3F};
    GraphColor label{0.0F, 0.0F, 0.0F};     ///< of the axes
    GraphColor labelBack{0.8F, 0.8F, 0.8F}; ///< around the plot
    GraphColor fore{1.0F, 1.0F, 1.0F};      ///< outline, cursor and samples
    GraphColor marks{1.0F, 1.0F, 0.0F};     ///< the marked range
    bool gridOn = true;
    bool cursorOn = true;
    bool legendOn = true;
    bool valuesOn = true; ///< at the cursor, in the legend
    bool thresholdsOn = true;
    bool eventsOn = true;     ///< ticks over the plot and bars over the strips
    bool lanesOn = true;      ///< the error matrices
    bool wordsOn = true;      ///< states by their names
    double leastMargin = 0.0; ///< pixels left of the plot, so that it stands below another one
    bool allDigits = false;   ///< values with all the digits that they are recorded with

    bool isLight() const { return back.toColor().lightness() >= 128; }
    /// A curve's colour as it is drawn: dark enough on a light plot.
    GraphColor inkOf(const GraphColor& color) const;
};

/// A style with the colours of a dark or a light plot.
GraphStyle themed(GraphStyle style, bool isLight);

/// The cursor that keys and the middle mouse button move.
struct KeyCursor
{
    double value = 0.0;
    bool isShown = false;
    unsigned curve = 0;          ///< whose strip the value belongs to, in split mode
    double reportedTime = 0.0;   ///< as other views were told it, seconds
    bool isOfDifference = false; ///< the value, to the strip of the curve's difference
};

} // namespace TARN
