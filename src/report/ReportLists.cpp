#include "report/ReportLists.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "events/EventLists.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <set>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ReportListTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportLists)
};

/// More lines than these nobody reads on paper; the worst are among them.
constexpr std::size_t MostRows = 1000;

ReportText timeText(double time)
{
    return {clockTextWithMilliseconds(time), {}, time};
}

std::vector<ReportText> rowOf(EventKind kind, const Episode& episode)
{
    std::vector<ReportText> row = {
        timeText(episode.start), timeText(episode.end),
        ReportText{durationWords(episode.duration()), {}, episode.duration()},
        ReportText{episode.name, episode.color}, ReportText{severityWords(kind).at(episode.state)}};
    if (kind != EventKind::Limits) {
        return row;
    }
    if (!episode.peak) {
        row.resize(row.size() + 3);
        return row;
    }
    const Episode::Peak& peak = *episode.peak;
    row.push_back({valueWords(*episode.parameter, peak.value), {}, peak.value});
    row.push_back(timeText(peak.time));
    row.push_back({thresholdWords(peak), {}, peak.below.value_or(peak.threshold)});
    return row;
}

QStringList titlesOf(EventKind kind)
{
    QStringList titles = {ReportListTexts::tr("From"), ReportListTexts::tr("Until"),
                          ReportListTexts::tr("Duration"),
                          kind == EventKind::Limits  ? ReportListTexts::tr("Parameter")
                          : kind == EventKind::Lamps ? ReportListTexts::tr("Lamp")
                                                     : ReportListTexts::tr("Error"),
                          ReportListTexts::tr("Severity")};
    if (kind == EventKind::Limits) {
        titles += {ReportListTexts::tr("Peak"), ReportListTexts::tr("Peak at"),
                   ReportListTexts::tr("Threshold")};
    }
    return titles;
}

/// By time; where there are too many, the worst of them.
void writeTable(EventKind kind, std::vector<const Episode*> episodes, ReportPages& pages)
{
    if (episodes.size() > MostRows) {
        pages.say(
            ReportListTexts::tr("The %1 worst of %2; \"orna-cli events --episodes\" lists all.")
                .arg(countText(qint64(MostRows)), countText(qint64(episodes.size()))));
        episodes.resize(MostRows);
    }
    std::ranges::stable_sort(episodes, {}, &Episode::start);
    ReportTable table;
    table.titles = titlesOf(kind);
    table.shares = kind == EventKind::Limits ? std::vector<double>{13, 13, 10, 18, 10, 11, 13, 12}
                                             : std::vector<double>{14, 14, 11, 46, 15};
    for (const Episode* episode : episodes) {
        table.rows.push_back(rowOf(kind, *episode));
    }
    pages.table(table);
}

/// Those that touch the range, the worst first.
std::vector<const Episode*> chosen(const std::vector<Episode>& all, const TimeRange& range,
                                   bool isAnnounced)
{
    std::vector<const Episode*> some;
    for (const Episode* episode : worstOf(all, all.size())) {
        if (episode->touches(range) && episode->isAnnounced() == isAnnounced) {
            some.push_back(episode);
        }
    }
    return some;
}

/// Limit events of parameters whose cells tell of no state, so that no time out of range was found.
ReportTable momentsIn(const ReportMatter& matter)
{
    using Place = std::pair<const ProfileParameter*, std::size_t>;
    std::set<Place> told;
    for (const Episode& episode : matter.troubles.limits) {
        for (const std::size_t place : episode.announcedBy) {
            told.insert({episode.parameter, place});
        }
    }
    ReportTable table;
    table.titles = {ReportListTexts::tr("Time"), ReportListTexts::tr("Event")};
    table.shares = {14, 86};
    for (const RecordLimit& event : matter.flight().events().limits) {
        const double time = event.time + matter.shown.series(*event.parameter).shift();
        if (!told.contains({event.parameter, event.place}) && matter.range.contains(time) &&
            table.rows.size() < MostRows) {
            table.rows.push_back({timeText(time), ReportText{event.shortText, event.color}});
        }
    }
    return table;
}

/// What is said where nothing of a kind was found in all of the flight.
QString nothingOf(EventKind kind, const ReportMatter& matter)
{
    const Watched& watched = matter.summary.watched;
    return kind == EventKind::Limits && watched.parameters > 0
               ? ReportListTexts::tr("Nothing out of range in %1 samples of %2 watched parameters.")
                     .arg(countText(qint64(watched.samples)), countText(qint64(watched.parameters)))
               : allWell(kind, matter.flight());
}

void writeList(EventKind kind, const QString& title, const QString& others,
               const ReportMatter& matter, ReportPages& pages)
{
    const std::vector<Episode>& all = episodesOf(kind, matter.troubles);
    pages.heading(title);
    const auto announced = chosen(all, matter.range, true);
    const auto unannounced = chosen(all, matter.range, false);
    const ReportTable moments = kind == EventKind::Limits ? momentsIn(matter) : ReportTable();
    if (announced.empty() && unannounced.empty() && moments.rows.empty()) {
        // What was looked at is all of the flight.
        pages.say(all.empty()
                      ? nothingOf(kind, matter)
                      : ReportListTexts::tr("None in this range; in the rest of the flight: %1.")
                            .arg(countText(qint64(all.size()))));
    }
    if (!announced.empty()) {
        writeTable(kind, announced, pages);
    }
    if (!moments.rows.empty()) {
        pages.table(moments);
    }
    if (!unannounced.empty()) {
        if (!others.isEmpty()) {
            pages.subheading(others);
        }
        writeTable(kind, unannounced, pages);
    }
}

} // namespace

void writeLists(const ReportMatter& matter, ReportPages& pages)
{
    if (!matter.profile().isLoaded() || matter.flight().samples().empty()) {
        return; // the answer says why
    }
    writeList(
        EventKind::Limits, ReportListTexts::tr("Out of range"),
        ReportListTexts::tr("Without an event: from the first sample on, after a gap, or of a kind "
                            "that is not watched"),
        matter, pages);
    writeList(EventKind::Lamps, ReportListTexts::tr("Warning lamps"),
              ReportListTexts::tr("On again without an event"), matter, pages);
    writeList(EventKind::Faults, ReportListTexts::tr("Error matrices"), {}, matter, pages);
}

} // namespace TARN
