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

} // namespace

Json statisticsLine(const ProfileDevice& device, const ProfileParameter& parameter,
                    const Statistics& found)
{
    using Moment = Statistics::Moment;
    return {{"device", device.name.toStdString()},
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
}

Json differenceOf(const Statistics& found)
{
    using Moment = Statistics::Moment;
    return {{"samples", found.samples},
            {"min", fieldOf(found.min, &Moment::value)},
            {"minTime", fieldOf(found.min, &Moment::time)},
            {"max", fieldOf(found.max, &Moment::value)},
            {"maxTime", fieldOf(found.max, &Moment::time)},
            {"mean", numberOf(found.mean)},
            {"stddev", numberOf(found.stddev)},
            {"timeMean", numberOf(found.timeMean)},
            {"integral", numberOf(found.integral)}};
}

} // namespace TARN
