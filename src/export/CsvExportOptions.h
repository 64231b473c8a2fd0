#pragma once

#include "record/RecordInfo.h"

#include <string>

namespace TARN {

/// What the CSV and the CAN export are told.
struct CsvExportOptions
{
    enum FileType
    {
        Csv = 0,
        Can = 1
    };

    std::string directory = ".";
    std::string fileName;
    int fileType = Csv;
    char separator = ';';
    bool allParameters = false; ///< every parameter of the profile, not only the selected ones
    RecordInfo info;            ///< header of the recording
    double startTime = 0.0;     ///< first time exported, seconds on the recording's clock
    double stopTime = 0.0;      ///< last time exported
    double currentTime = 0.0;   ///< the data window's current time
    int resolution = 100;       ///< grid step in milliseconds: 100, 10 or 1

    QString path() const { return QString::fromStdString(directory + "/" + fileName); }
};

} // namespace TARN
