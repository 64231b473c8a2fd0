#pragma once

#include "record/TimeRange.h"

#include <QtCore/QString>

#include <string>

namespace TARN {

class Property;

/// What every export is told.
struct ExportOptions
{
    std::string directory = ".";
    std::string fileName;
    double startTime = 0.0;   ///< seconds on the recording's clock
    double stopTime = 0.0;    ///< seconds on the recording's clock
    double currentTime = 0.0; ///< the data window's current time, for who chooses the range

    QString path() const { return QString::fromStdString(directory + "/" + fileName); }
    void setTimes(const ExportOptions& other)
    {
        startTime = other.startTime;
        stopTime = other.stopTime;
        currentTime = other.currentTime;
    }
    TimeRange range() const { return {startTime, stopTime}; }
};

} // namespace TARN
