#include "cli/LogbookJson.h"

#include "cli/StatsJson.h"

#include <QtCore/QDateTime>

#include <algorithm>

namespace TARN {

namespace {

template <typename Number>
Json orNull(const std::optional<Number>& number)
{
    return number ? Json(*number) : Json(nullptr);
}

Json timeOf(const std::optional<qint64>& seconds)
{
    return seconds ? Json(utcText(*seconds).toStdString()) : Json(nullptr);
}

Json headerOf(const FlightEntry& entry)
{
    return {{"headerDate", entry.headerDate.toStdString()},
            {"offset", entry.offset},
            {"busType", entry.busType},
            {"ecuSerialNumber", entry.ecuSerialNumber},
            {"ecuType", entry.ecuType.toStdString()},
            {"softwarePartA", entry.softwarePartA.toStdString()},
            {"softwarePartB", entry.softwarePartB.toStdString()},
            {"emuSwVersion", entry.emuSwVersion.toStdString()},
            {"steadyStart", entry.steady ? Json(entry.steady->start) : Json(nullptr)},
            {"steadyStop", entry.steady ? Json(entry.steady->stop) : Json(nullptr)}};
}

Json recordingOf(const KeptRecording& recording)
{
    return {{"file", recording.path.toStdString()},
            {"samples", recording.samples},
            {"missingHeaderBytes", recording.missingHeaderBytes},
            {"ignoredBytes", recording.ignoredBytes},
            {"otherChannels", recording.otherChannels},
            {"impossibleTimes", recording.found.impossibleTimes},
            {"gaps", recording.found.gaps},
            {"longestGap", recording.found.longestGap}};
}

/// As `stats` tells it, and over what.
Json keptStatisticsOf(const KeptStatistics& kept)
{
    ProfileDevice device;
    device.name = kept.device;
    ProfileParameter parameter;
    parameter.name = kept.parameter;
    parameter.unit = kept.unit;
    parameter.channel = kept.channel;
    parameter.id = kept.id;
    Json line{{"kind", "statistics"}, {"stretch", kept.isSteady ? "steady" : "flight"}};
    line.update(statisticsLine(device, parameter, kept.found));
    return line;
}

Json faultOf(const char* kind, const KeptEpisode& fault)
{
    return {{"kind", kind},
            {"name", fault.name.toStdString()},
            {"state", fault.state},
            {"start", fault.start},
            {"end", fault.end}};
}

Json lampOf(const KeptEpisode& lamp)
{
    Json line = faultOf("lamp", lamp);
    line.update({{"samples", lamp.samples}, {"announced", lamp.isAnnounced}});
    return line;
}

Json episodeOf(const KeptEpisode& episode)
{
    Json line = {{"kind", "episode"},
                 {"device", episode.device.toStdString()},
                 {"parameter", episode.name.toStdString()},
                 {"state", episode.state},
                 {"start", episode.start},
                 {"end", episode.end},
                 {"duration", episode.end - episode.start},
                 {"samples", episode.samples},
                 {"peak", nullptr},
                 {"peakTime", nullptr},
                 {"threshold", nullptr},
                 {"color", nullptr},
                 {"announced", episode.isAnnounced}};
    if (episode.peak) {
        line["peak"] = episode.peak->value;
        line["peakTime"] = episode.peak->time;
        line["threshold"] = episode.peak->threshold;
        line["color"] = jsonOf(episode.peak->color);
    }
    return line;
}

} // namespace

QString utcText(qint64 secondsSinceEpoch)
{
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::UTC).toString(Qt::ISODate);
}

Json flightLine(const FlightHead& head)
{
    return {{"flight", head.flight.toStdString()},
            {"aircraft", head.aircraft.toStdString()},
            {"engineType", head.engineType.toStdString()},
            {"start", timeOf(head.start)},
            {"startSource", head.startSource.toStdString()},
            {"startTime", head.startTime},
            {"stopTime", head.stopTime},
            {"duration", head.duration()},
            {"samples", head.samples},
            {"profile", head.profile.toStdString()},
            {"worst", head.worst},
            {"limits", head.limits},
            {"warnings", head.warnings},
            {"lamps", head.lamps},
            {"faults", head.faults},
            {"remarks", head.remarks}};
}

std::vector<Json> entryLines(const FlightEntry& entry)
{
    Json flight{{"kind", "flight"}};
    flight.update(flightLine(entry.head));
    flight.update(headerOf(entry));
    flight["recordings"] = Json::array();
    for (const KeptRecording& recording : entry.recordings) {
        flight["recordings"].push_back(recordingOf(recording));
    }
    std::vector<Json> lines = {flight};
    const auto add = [&](const auto& parts, const auto& lineOf) {
        std::ranges::transform(parts, std::back_inserter(lines), lineOf);
    };
    add(entry.statistics, keptStatisticsOf);
    add(entry.episodes, episodeOf);
    add(entry.lamps, lampOf);
    add(entry.faults, [](const KeptEpisode& fault) { return faultOf("fault", fault); });
    add(entry.remarks, [](const QString& remark) {
        return Json{{"kind", "remark"}, {"text", remark.toStdString()}};
    });
    return lines;
}

Json trendLine(const QString& aircraft, const TrendPoint& point)
{
    return {{"aircraft", aircraft.toStdString()},
            {"flight", point.flight.toStdString()},
            {"start", timeOf(point.start)},
            {"value", orNull(point.value)},
            {"median", orNull(point.median)},
            {"sigma", orNull(point.sigma)},
            {"marked", point.isMarked}};
}

} // namespace TARN
