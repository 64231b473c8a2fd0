#include "cli/StatsCommand.h"

#include "cli/Json.h"
#include "flight/Statistics.h"

#include <ostream>

namespace TARN {

namespace {

Json numberOf(const std::optional<double>& number)
{
    return number ? Json(*number) : Json(nullptr);
}

Json fieldOf(const std::optional<Statistics::Moment>& moment, double Statistics::Moment::*field)
{
    return moment ? Json((*moment).*field) : Json(nullptr);
}

Json listOf(const std::vector<Statistics::Above>& all)
{
    Json list = Json::array();
    for (const Statistics::Above& above : all) {
        list.push_back(Json{{"value", above.value},
                            {"color", jsonOf(above.color)},
                            {"state", above.state},
                            {"seconds", above.seconds}});
    }
    return list;
}

void print(const ProfileDevice& device, const ProfileParameter& parameter, const Statistics& found,
           std::ostream& out)
{
    using Moment = Statistics::Moment;
    const Json line = {{"device", device.name.toStdString()},
                       {"parameter", parameter.name.toStdString()},
                       {"channel", static_cast<unsigned>(parameter.channel)},
                       {"id", static_cast<unsigned>(parameter.id)},
                       {"unit", parameter.unit.toStdString()},
                       {"samples", found.samples},
                       {"invalid", found.invalid},
                       {"first", numberOf(found.first)},
                       {"last", numberOf(found.last)},
                       {"min", fieldOf(found.min, &Moment::value)},
                       {"minTime", fieldOf(found.min, &Moment::time)},
                       {"max", fieldOf(found.max, &Moment::value)},
                       {"maxTime", fieldOf(found.max, &Moment::time)},
                       {"mean", numberOf(found.mean)},
                       {"stddev", numberOf(found.stddev)},
                       {"timeMean", numberOf(found.timeMean)},
                       {"integral", numberOf(found.integral)},
                       {"gaps", found.gaps},
                       {"gapSeconds", found.gapSeconds},
                       {"gapLimit", numberOf(found.gapLimit)},
                       {"above", listOf(found.above)}};
    out << line.dump() << '\n';
}

} // namespace

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
            print(*device, *parameter, index.range(range), out);
        }
    }
}

} // namespace TARN
