#pragma once

#include "export/ExportOptions.h"

namespace TARN {

/// What the CSV and the CAN export are told.
struct CsvExportOptions : ExportOptions
{
    enum FileType
    {
        Csv = 0,
        Can = 1
    };

    int fileType = Csv;
    char separator = ';';
    bool allParameters = false; ///< every parameter of the profile, not only the selected ones
    int resolution = 100;       ///< grid step in milliseconds: 100, 10 or 1

    // The user's last choices. What can't be meant, a damaged setting, takes its default.
    void load(const Property& settings);
    void store(Property& settings) const;

    /// Gives the file name the extension of the file type; the default name where it is empty.
    void completeFileName();
};

} // namespace TARN
