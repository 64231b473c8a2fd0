#pragma once

#include "export/ExportResult.h"
#include "export/FlightPath.h"
#include "export/KmlExportOptions.h"
#include "record/Record.h"

#include <QtCore/QString>

#include <map>
#include <string>
#include <vector>

namespace TARN {

/// A mark on the flight path with the values that it carries.
struct KmlMark
{
    struct Item
    {
        std::string name;
        std::string value;
    };

    PathPosition position;
    QString time; ///< "hh:mm:ss"
    std::vector<Item> items;
};

using KmlMarks = std::map<int, KmlMark>;

/// A mark at every interval of slots, with the last value of each selected parameter in it. A
/// sample in a slot without a position takes its mark away again. \p progress hears how many
/// percent of the parameters are done.
KmlMarks placeMarks(const Profile& profile, const RecordData& data, const FlightPath& path,
                    const KmlExportOptions& options, const ExportProgress& progress = {});

/// A mark for each slot with events that has a position.
KmlMarks errorMarks(const std::vector<RecordEvent>& events, const FlightPath& path);

} // namespace TARN
