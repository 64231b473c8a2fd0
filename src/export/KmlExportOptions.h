#pragma once

#include "record/RecordInfo.h"

#include <string>

namespace TARN {

/// What the KML export is told. Colours are six hexadecimal digits: red, green, blue.
struct KmlExportOptions
{
    std::string directory = ".";
    std::string fileName;
    int timeStamp = 100; ///< width of a position slot in milliseconds
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
    RecordInfo info;          ///< header of the recording
    double startTime = 0.0;   ///< seconds on the recording's clock
    double stopTime = 0.0;    ///< seconds on the recording's clock
    double currentTime = 0.0; ///< the data window's current time

    QString path() const { return QString::fromStdString(directory + "/" + fileName); }
};

} // namespace TARN
