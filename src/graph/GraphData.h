#pragma once

#include "graph/GraphStyle.h"

#include <QtCore/QString>

namespace TARN {

/// What a plot's or a picture's colours are.
enum class GraphTheme : int
{
    Dark,
    Light,
    Desktop, ///< dark or light as everything else there
    AsGraph  ///< of a picture: as the plot's
};

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

    // Remembered from session to session.
    GraphTheme theme = GraphTheme::Dark;
    GraphTheme pictureTheme = GraphTheme::AsGraph;
    bool thresholdsOn = true;
    bool eventsOn = true;
    bool lanesOn = true;
    bool wordsOn = true;

    /// Takes what is remembered from the settings, and puts it there.
    void load();
    void store() const;
};

/// Whether a theme, which is not AsGraph, is a light one now.
bool isLight(GraphTheme theme);

} // namespace TARN
