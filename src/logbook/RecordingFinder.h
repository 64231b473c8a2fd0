#pragma once

#include "base/Progress.h"
#include "logbook/FlightEntry.h"

namespace TARN {

/// The files that hold a flight.
struct FoundRecordings
{
    QStringList files; ///< empty where they were not found
    QString reason;    ///< why not; empty when it was asked to stop
};

/// Finds the recordings of a flight where they were read or, with a \p folder, by their names in it
/// and the folders in it. Cards give the same names to other flights, so only contents of the same
/// hash count.
FoundRecordings findRecordings(const FlightEntry& entry, const QString& folder, Progress& progress);

} // namespace TARN
