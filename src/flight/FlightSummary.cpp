#include "flight/FlightSummary.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "faults/EventDetector.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct SummaryTexts
{
    Q_DECLARE_TR_FUNCTIONS(FlightSummary)
};

/// Parameters of types that have states, with a threshold that has some.
Watched watchedIn(const Flight& flight, double offset, const TimeRange& range)
{
    Watched watched;
    const TimeRange whole = flight.range(offset);
    const bool isAll = range.start <= whole.start && range.stop >= whole.stop;
    const ProfileInfo& profile = flight.profile()->data();
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        const auto threshold = profile.thresholds.find(parameter->thresholdId);
        if (threshold == profile.thresholds.end() || !isWatched(threshold->second)) {
            continue;
        }
        const Series series = flight.series(*parameter, offset);
        const std::size_t begin = isAll ? 0 : series.firstNotBefore(range.start);
        const std::size_t end = isAll ? series.size() : series.firstAfter(range.stop);
        if (series.decoder().isNumeric() && begin < end) {
            ++watched.parameters;
            watched.samples += end - begin;
        }
    }
    return watched;
}

QString numberOf(std::size_t count)
{
    return countText(static_cast<qint64>(count));
}

} // namespace

void FlightSummary::Count::add(double time)
{
    first = times == 0 ? time : first;
    ++times;
}

std::vector<FlightSummary::Part> FlightSummary::parts() const
{
    std::vector<Part> parts = {
        {Part::Words, SummaryTexts::tr("Duration %1").arg(clockText(duration))}};
    const auto say = [&](const QString& words) { parts.push_back({Part::Words, words}); };
    const auto add = [&](const Count& count, Part::Kind kind, const char* color,
                         const QString& words) {
        if (count.times > 0) {
            parts.push_back({kind, words.arg(numberOf(count.times)), count.first, QColor(color)});
        }
    };
    if (!hasProfile) {
        say(SummaryTexts::tr("no profile, so nothing was checked"));
    }
    add(limits, Part::Exceedances, "#ff9a9a", SummaryTexts::tr("%1 at the limit"));
    add(warnings, Part::Exceedances, "#ffe28a", SummaryTexts::tr("%1 in warning"));
    add(lamps, Part::Lamps, "#ffc896", SummaryTexts::tr("Lamps: %1"));
    add(faults, Part::Faults, "#ff9696", SummaryTexts::tr("Faults and warnings: %1"));
    if (limits.times + warnings.times == 0 && watched.parameters > 0) {
        say(SummaryTexts::tr("nothing out of range in %1 samples of %2 watched parameters")
                .arg(numberOf(watched.samples), numberOf(watched.parameters)));
    } else if (watched.parameters == 0 && hasProfile) {
        say(SummaryTexts::tr("no parameter was watched for limits"));
    }
    if (remarks > 0) {
        parts.push_back({Part::Remarks, SummaryTexts::tr("Remarks: %1").arg(numberOf(remarks)), 0.0,
                         QColor("#d0d0d0")});
    }
    return parts;
}

FlightSummary summaryOf(const Flight& flight, double offset, const Troubles& troubles,
                        const TimeRange& range)
{
    FlightSummary summary;
    summary.duration = range.stop - range.start;
    summary.hasProfile = flight.profile()->isLoaded();
    // The first that an event tells of is what a reader wants to see; engines start out of range.
    for (const bool isAnnounced : {true, false}) {
        for (const Episode& episode : troubles.limits) {
            if (episode.isAnnounced() == isAnnounced && episode.touches(range)) {
                FlightSummary::Count& count =
                    episode.state == StateLimit ? summary.limits : summary.warnings;
                count.add(episode.start);
            }
        }
    }
    for (const Episode& lamp : troubles.lamps) {
        if (lamp.touches(range)) {
            summary.lamps.add(lamp.start);
        }
    }
    for (const Episode& fault : troubles.faults) {
        if (fault.state != StateOk && fault.touches(range)) {
            summary.faults.add(fault.start);
        }
    }
    summary.watched = watchedIn(flight, offset, range);
    summary.remarks = static_cast<std::size_t>(flight.remarks().size());
    return summary;
}

FlightSummary summaryOf(const Flight& flight, double offset, const Troubles& troubles)
{
    return summaryOf(flight, offset, troubles, flight.range(offset));
}

} // namespace TARN
