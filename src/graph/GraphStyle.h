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
    bool gridOn = true;
    bool cursorOn = true;
    bool legendOn = true;
    bool allDigits = false; ///< values with all the digits that they are recorded with
};

/// The cursor that keys and the middle mouse button move.
struct KeyCursor
{
    double value = 0.0;
    bool isShown = false;
    unsigned curve = 0;        ///< whose strip the value belongs to, in split mode
    double reportedTime = 0.0; ///< as other views were told it, seconds
};

} // namespace TARN
