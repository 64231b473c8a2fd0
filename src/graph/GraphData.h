#pragma once

#include "graph/GraphStyle.h"

#include <QtCore/QString>

namespace TARN {

/// The settings of the graph window. Colours are names of a hash sign and six hexadecimal digits.
struct GraphData
{
    double xRange = 60.0; ///< width of the time window, seconds
    int displayMode = DisplaySplit;
    int graphMode = GraphAutomatic;
    int cursorMode = CursorCenter;
    QString backColor = "#000000";
    bool gridOn = true;
    QString gridColor = "#ff6666";
    QString labelColor = "#000000";
    QString labelBackColor = "#bbbbbb";
    bool cursorOn = true;
    bool legendOn = true;
    bool autoScale = true;
    double yMin = -100.0;
    double yMax = 100.0;
};

} // namespace TARN
