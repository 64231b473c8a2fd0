#pragma once

#include "export/Exporter.h"
#include "flight/FlightSummary.h"

namespace TARN {

/// What a report tells of. Times carry the time offset.
struct ReportMatter
{
    const ExportInput& shown;
    TimeRange range; ///< that is reported
    Troubles troubles;
    FlightSummary summary;

    const Flight& flight() const { return *shown.flight; }
    const Profile& profile() const { return *flight().profile(); }
    std::vector<const ProfileParameter*> parameters() const
    {
        return shown.selection.parameters(profile());
    }
};

} // namespace TARN
