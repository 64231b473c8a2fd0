#pragma once

#include "export/ExportOptions.h"

namespace TARN {

/// What the GPX export is told.
struct GpxExportOptions : ExportOptions
{
    int timeStamp = 100;   ///< width of a position slot in milliseconds
    bool waypoints = true; ///< where limits were exceeded and lamps came on

    // The user's last choices.
    void load(const Property& settings);
    void store(Property& settings) const;

    double slotWidth() const { return timeStamp * 0.001; } ///< seconds
};

} // namespace TARN
