#pragma once

#include "export/ExportOptions.h"

namespace TARN {

/// What the KML export is told. Colours are six hexadecimal digits: red, green, blue.
struct KmlExportOptions : ExportOptions
{
    bool isTimed = false; ///< with times, to be played
    int timeStamp = 100;  ///< width of a position slot in milliseconds
    int lineWidth = 1;
    std::string lineColor = "ff0000";
    int lineAlpha = 255;
    bool polygonOn = true; ///< extrude the path to the ground
    std::string polygonColor = "0000ff";
    int polygonAlpha = 100;
    bool placeMarkOn = true;
    int placeMarkInterval = 10; ///< in position slots
    std::string placeMarkColor = "ffcc00";
    bool errorMarkOn = true;
    bool showLimit = true;
    bool showWarning = true;
    std::string errorMarkColor = "ff0000";

    // The user's last choices.
    void load(const Property& settings);
    void store(Property& settings) const;

    double slotWidth() const { return timeStamp * 0.001; } ///< seconds
};

} // namespace TARN
