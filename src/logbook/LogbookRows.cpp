#include "logbook/LogbookRows.h"

namespace TARN {

namespace {

QVariant numberOf(const std::optional<double>& value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariantList momentRow(const std::optional<Statistics::Moment>& moment)
{
    return moment ? QVariantList{moment->value, moment->time}
                  : QVariantList{QVariant(), QVariant()};
}

std::optional<Statistics::Moment> momentFrom(Row& row)
{
    const auto value = row.optional();
    const auto time = row.optional();
    return value ? std::optional(Statistics::Moment{*value, time.value_or(0.0)}) : std::nullopt;
}

} // namespace

std::optional<double> Row::optional()
{
    const QVariant value = next();
    return value.isNull() ? std::nullopt : std::optional(value.toDouble());
}

QVariant countValue(std::size_t count)
{
    return static_cast<qlonglong>(count);
}

QVariant colorValue(const QColor& color)
{
    return color.isValid() ? QVariant(color.name()) : QVariant();
}

QVariant textValue(const QString& text)
{
    return text.isNull() ? QString("") : text;
}

QVariantList keyOf(const FlightHead& head)
{
    return {textValue(head.aircraft), head.flight};
}

FlightHead headFrom(Row& row)
{
    FlightHead head;
    head.aircraft = row.text();
    head.flight = row.text();
    const QVariant start = row.next();
    head.start = start.isNull() ? std::nullopt : std::optional(start.toLongLong());
    head.startSource = row.text();
    head.startTime = row.real();
    head.stopTime = row.real();
    head.samples = row.integer();
    head.profile = row.text();
    head.limits = row.count();
    head.warnings = row.count();
    head.lamps = row.count();
    head.faults = row.count();
    head.remarks = row.count();
    head.worst = row.small();
    head.engineType = row.text();
    return head;
}

QVariantList headRow(const FlightHead& head)
{
    return keyOf(head) + QVariantList{head.start ? QVariant(*head.start) : QVariant(),
                                      head.startSource,
                                      head.startTime,
                                      head.stopTime,
                                      head.samples,
                                      textValue(head.profile),
                                      countValue(head.limits),
                                      countValue(head.warnings),
                                      countValue(head.lamps),
                                      countValue(head.faults),
                                      countValue(head.remarks),
                                      head.worst};
}

QVariantList headerRow(const FlightEntry& entry)
{
    const auto& steady = entry.steady;
    return {textValue(entry.headerDate),
            entry.offset,
            qlonglong(entry.busType),
            qlonglong(entry.ecuSerialNumber),
            textValue(entry.ecuType),
            textValue(entry.softwarePartA),
            textValue(entry.softwarePartB),
            textValue(entry.emuSwVersion),
            steady ? QVariant(steady->start) : QVariant(),
            steady ? QVariant(steady->stop) : QVariant()};
}

void headerFrom(Row& row, FlightEntry& entry)
{
    entry.headerDate = row.text();
    entry.offset = row.real();
    entry.busType = static_cast<std::uint32_t>(row.integer());
    entry.ecuSerialNumber = static_cast<std::uint32_t>(row.integer());
    entry.ecuType = row.text();
    entry.softwarePartA = row.text();
    entry.softwarePartB = row.text();
    entry.emuSwVersion = row.text();
    const auto start = row.optional();
    const auto stop = row.optional();
    if (start && stop) {
        entry.steady = TimeRange{*start, *stop};
    }
}

QVariantList recordingRow(const KeptRecording& recording)
{
    return {textValue(recording.path),           recording.samples,
            recording.missingHeaderBytes,        recording.ignoredBytes,
            countValue(recording.otherChannels), countValue(recording.found.impossibleTimes),
            countValue(recording.found.gaps),    recording.found.longestGap};
}

KeptRecording recordingFrom(Row& row)
{
    KeptRecording recording;
    recording.path = row.text();
    recording.samples = row.integer();
    recording.missingHeaderBytes = row.integer();
    recording.ignoredBytes = row.integer();
    recording.otherChannels = row.count();
    recording.found.impossibleTimes = row.count();
    recording.found.gaps = row.count();
    recording.found.longestGap = row.real();
    return recording;
}

QVariantList statisticsRow(const KeptStatistics& kept)
{
    const Statistics& found = kept.found;
    return QVariantList{kept.isSteady ? 1 : 0,        kept.place,
                        textValue(kept.device),       textValue(kept.parameter),
                        textValue(kept.unit),         kept.channel,
                        qlonglong(unsigned(kept.id)), countValue(found.samples),
                        countValue(found.invalid),    numberOf(found.first),
                        numberOf(found.last)} +
           momentRow(found.min) + momentRow(found.max) +
           QVariantList{numberOf(found.mean),     numberOf(found.stddev),
                        numberOf(found.timeMean), numberOf(found.integral),
                        countValue(found.gaps),   found.gapSeconds,
                        numberOf(found.gapLimit), numberOf(kept.warningSeconds)};
}

KeptStatistics statisticsFrom(Row& row)
{
    KeptStatistics kept;
    Statistics& found = kept.found;
    kept.isSteady = row.small() == 1;
    kept.place = row.small();
    kept.device = row.text();
    kept.parameter = row.text();
    kept.unit = row.text();
    kept.channel = row.small();
    kept.id = static_cast<int>(static_cast<unsigned>(row.integer()));
    found.samples = row.count();
    found.invalid = row.count();
    found.first = row.optional();
    found.last = row.optional();
    found.min = momentFrom(row);
    found.max = momentFrom(row);
    found.mean = row.optional();
    found.stddev = row.optional();
    found.timeMean = row.optional();
    found.integral = row.optional();
    found.gaps = row.count();
    found.gapSeconds = row.real();
    found.gapLimit = row.optional();
    kept.warningSeconds = row.optional();
    return kept;
}

QVariantList episodeRow(const KeptEpisode& episode)
{
    const auto& peak = episode.peak;
    return QVariantList{textValue(episode.device),
                        textValue(episode.name),
                        episode.state,
                        episode.start,
                        episode.end,
                        countValue(episode.samples),
                        episode.isAnnounced ? 1 : 0} +
           (peak ? QVariantList{peak->value, peak->time, peak->threshold, colorValue(peak->color)}
                 : QVariantList{QVariant(), QVariant(), QVariant(), QVariant()});
}

KeptEpisode episodeFrom(Row& row)
{
    KeptEpisode episode;
    episode.device = row.text();
    episode.name = row.text();
    episode.state = row.small();
    episode.start = row.real();
    episode.end = row.real();
    episode.samples = row.count();
    episode.isAnnounced = row.small() == 1;
    const auto value = row.optional();
    const double time = row.real();
    const double threshold = row.real();
    if (value) {
        episode.peak = Episode::Peak{*value, time, threshold, QColor(row.text()), {}};
    }
    return episode;
}

QVariantList faultRow(const KeptEpisode& fault)
{
    return {textValue(fault.name), fault.state, fault.start, fault.end};
}

KeptEpisode faultFrom(Row& row)
{
    KeptEpisode fault;
    fault.name = row.text();
    fault.state = row.small();
    fault.start = row.real();
    fault.end = row.real();
    return fault;
}

QVariantList lampRow(const KeptEpisode& lamp)
{
    return faultRow(lamp) + QVariantList{countValue(lamp.samples), lamp.isAnnounced ? 1 : 0};
}

KeptEpisode lampFrom(Row& row)
{
    KeptEpisode lamp = faultFrom(row);
    lamp.samples = row.count();
    lamp.isAnnounced = row.small() == 1;
    return lamp;
}

} // namespace TARN
