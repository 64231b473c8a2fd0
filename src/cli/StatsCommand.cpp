#include "cli/StatsCommand.h"

#include "cli/StatsJson.h"

#include <ostream>

namespace TARN {

void runStats(const StatsArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const Selection selection = selectionOf(arguments.selection, *flight->profile());
    const double offset = flight->record()->offset();
    TimeRange range = flight->range(offset);
    range.start = arguments.range.start.value_or(range.start);
    range.stop = arguments.range.stop.value_or(range.stop);
    Progress none;
    for (const auto& [device, parameter] : flight->profile()->parameters()) {
        if (selection.contains(*parameter)) {
            const StatisticsIndex index(flight, *parameter, offset, none);
            out << statisticsLine(*device, *parameter, index.range(range)).dump() << '\n';
        }
    }
}

} // namespace TARN
