#include "cli/StatsJson.h"

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

/// What is told of values and of differences alike.
void addMeasures(const Statistics& found, Json& line)
{
    using Moment = Statistics::Moment;
    line["min"] = fieldOf(found.min, &Moment::value);
    line["minTime"] = fieldOf(found.min, &Moment::time);
    line["max"] = fieldOf(found.max, &Moment::value);
    line["maxTime"] = fieldOf(found.max, &Moment::time);
    line["mean"] = numberOf(found.mean);
    line["stddev"] = numberOf(found.stddev);
    line["timeMean"] = numberOf(found.timeMean);
    line["integral"] = numberOf(found.integral);
}

} // namespace

Json statisticsLine(const ProfileDevice& device, const ProfileParameter& parameter,
                    const Statistics& found)
{
    Json line = {{"device", device.name.toStdString()},
                 {"parameter", parameter.name.toStdString()},
                 {"channel", static_cast<unsigned>(parameter.channel)},
                 {"id", static_cast<unsigned>(parameter.id)},
                 {"unit", parameter.unit.toStdString()},
                 {"samples", found.samples},
                 {"invalid", found.invalid},
                 {"first", numberOf(found.first)},
                 {"last", numberOf(found.last)}};
    addMeasures(found, line);
    line["gaps"] = found.gaps;
    line["gapSeconds"] = found.gapSeconds;
    line["gapLimit"] = numberOf(found.gapLimit);
    line["above"] = listOf(found.above);
    return line;
}

Json differenceOf(const Statistics& found)
{
    Json line = {{"samples", found.samples}};
    addMeasures(found, line);
    return line;
}

} // namespace TARN
