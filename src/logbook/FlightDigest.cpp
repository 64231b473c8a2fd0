#include "logbook/FlightDigest.h"

#include "flight/FlightSummary.h"
#include "flight/SteadyStretch.h"
#include "record/RecordStart.h"

#include <algorithm>

namespace TARN {

namespace {

KeptEpisode keptOf(const Episode& episode)
{
    KeptEpisode kept;
    kept.name = episode.name;
    kept.state = episode.state;
    kept.start = episode.start;
    kept.end = episode.end;
    kept.samples = episode.samples;
    kept.isAnnounced = episode.isAnnounced();
    return kept;
}

KeptEpisode keptLimit(const Episode& episode)
{
    KeptEpisode kept = keptOf(episode);
    kept.device = episode.device->name;
    kept.name = episode.parameter->name;
    kept.peak = episode.peak;
    return kept;
}

void keepTroubles(const Troubles& troubles, FlightEntry& entry)
{
    std::ranges::transform(troubles.limits, std::back_inserter(entry.episodes), keptLimit);
    std::ranges::transform(troubles.lamps, std::back_inserter(entry.lamps), keptOf);
    std::ranges::transform(troubles.faults, std::back_inserter(entry.faults), keptOf);
}

int worstOf(const FlightEntry& entry)
{
    int worst = StateOk;
    for (const auto* list : {&entry.episodes, &entry.lamps, &entry.faults}) {
        for (const KeptEpisode& episode : *list) {
            worst = std::max(worst, episode.state);
        }
    }
    return worst;
}

void keepSummary(const FlightSummary& summary, FlightEntry& entry)
{
    FlightHead& head = entry.head;
    head.limits = summary.limits.times;
    head.warnings = summary.warnings.times;
    head.lamps = summary.lamps.times;
    head.faults = summary.faults.times;
    head.remarks = summary.remarks;
    head.worst = worstOf(entry);
}

void keepStart(const RecordStart& start, FlightHead& head)
{
    constexpr const char* Sources[] = {"none", "data", "header"};
    head.startSource = Sources[start.source];
    if (start.source != RecordStart::Unknown) {
        head.start = start.seconds;
    }
}

void keepHeader(const Flight& flight, FlightEntry& entry)
{
    const RecordInfo& info = flight.info();
    const auto& files = flight.record()->integrity().files;
    const QDateTime header = files.empty() ? info.dateTime : files.front().info.dateTime;
    keepStart(recordStart(*flight.record()), entry.head);
    entry.headerDate = header.toString("yyyy-MM-ddTHH:mm:ss");
    entry.head.engineType = info.engineType;
    entry.busType = info.busType;
    entry.ecuSerialNumber = info.ecuSerialNumber;
    entry.ecuType = info.ecuType;
    entry.softwarePartA = info.softwarePartA;
    entry.softwarePartB = info.softwarePartB;
    entry.emuSwVersion = info.emuSwVersion;
}

void keepRecordings(const Flight& flight, FlightEntry& entry)
{
    const RecordIntegrity& integrity = flight.record()->integrity();
    for (const FileIntegrity& file : integrity.files) {
        entry.head.samples += static_cast<qint64>(file.samples);
        entry.recordings.push_back({file.info.fileName, static_cast<qint64>(file.samples),
                                    file.info.missingHeaderBytes, file.info.ignoredBytes,
                                    file.otherChannels, file.found});
    }
    entry.remarks = flight.remarks();
}

KeptStatistics keptStatistics(const Profile::Entry& of, int place, bool isSteady,
                              Statistics&& found)
{
    const auto& [device, parameter] = of;
    KeptStatistics kept{isSteady,
                        place,
                        device->name,
                        parameter->name,
                        parameter->unit,
                        parameter->channel,
                        parameter->id,
                        std::move(found),
                        {}};
    kept.warningSeconds = secondsInWarning(kept.found);
    return kept;
}

void keepStatistics(const std::shared_ptr<const Flight>& flight, FlightEntry& entry,
                    Progress& progress)
{
    const TimeRange whole = flight->range(entry.offset);
    int place = 0;
    for (const Profile::Entry& of : flight->profile()->parameters()) {
        const StatisticsIndex index(flight, *of.parameter, entry.offset, progress);
        entry.statistics.push_back(keptStatistics(of, place, false, index.range(whole)));
        if (entry.steady) {
            entry.statistics.push_back(keptStatistics(of, place, true, index.range(*entry.steady)));
        }
        ++place;
    }
}

} // namespace

std::optional<FlightEntry> digestOf(const std::shared_ptr<const Flight>& flight,
                                    const QString& profile, Progress& progress)
{
    FlightEntry entry;
    entry.offset = flight->record()->offset();
    entry.head.profile = profile;
    const TimeRange range = flight->range(entry.offset);
    entry.head.startTime = range.start;
    entry.head.stopTime = range.stop;
    keepHeader(*flight, entry);
    keepRecordings(*flight, entry);
    const Troubles troubles = flight->troubles(entry.offset, progress);
    keepTroubles(troubles, entry);
    keepSummary(summaryOf(*flight, entry.offset, troubles), entry);
    entry.steady = steadyStretch(*flight, entry.offset, progress);
    keepStatistics(flight, entry, progress);
    return progress.stopRequested() ? std::nullopt : std::optional(std::move(entry));
}

std::optional<double> secondsInWarning(const Statistics& statistics)
{
    std::optional<double> seconds;
    for (const Statistics::Above& above : statistics.above) {
        if (above.state == StateOk) {
            seconds.reset();
        } else if (above.state == StateWarning && !seconds) {
            seconds = above.seconds;
        }
    }
    return seconds;
}

} // namespace TARN
