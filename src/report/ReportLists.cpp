#include "report/ReportLists.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "events/EventLists.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

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

/// Those by time, where there are too many the worst of them.
void writeTable(EventKind kind, std::vector<const Episode*> episodes, ReportPages& pages)
{
    if (episodes.size() > MostRows) {
        pages.say(
            ReportListTexts::tr("The %1 worst of %2; \"orna-cli events --episodes\" lists all.")
                .arg(countText(qint64(MostRows)), countText(qint64(episodes.size()))));
        episodes.resize(MostRows);
        std::ranges::stable_sort(episodes, {}, &Episode::start);
    }
    ReportTable table;
    table.titles = titlesOf(kind);
    table.shares = kind == EventKind::Limits ? std::vector<double>{13, 13, 10, 18, 10, 11, 13, 12}
                                             : std::vector<double>{14, 14, 11, 46, 15};
    for (const Episode* episode : episodes) {
        table.rows.push_back(rowOf(kind, *episode));
    }
    pages.table(table);
}

/// Those that touch the range: the worst first where there are too many, otherwise by time.
std::vector<const Episode*> chosen(const std::vector<Episode>& all, const TimeRange& range,
                                   bool isAnnounced)
{
    std::vector<const Episode*> some;
    const bool isMany = all.size() > MostRows;
    for (const Episode* episode : isMany ? worstOf(all, all.size()) : pointersTo(all)) {
        if (episode->touches(range) && episode->isAnnounced() == isAnnounced) {
            some.push_back(episode);
        }
    }
    return some;
}

void writeList(EventKind kind, const QString& title, const QString& others,
               const ReportMatter& matter, ReportPages& pages)
{
    const std::vector<Episode>& all = episodesOf(kind, matter.troubles);
    pages.heading(title);
    const auto announced = chosen(all, matter.range, true);
    const auto unannounced = chosen(all, matter.range, false);
    if (announced.empty() && unannounced.empty()) {
        // What was looked at is all of the flight.
        pages.say(all.empty()
                      ? allWell(kind, matter.flight())
                      : ReportListTexts::tr("None in this range; in the rest of the flight: %1.")
                            .arg(countText(qint64(all.size()))));
    }
    if (!announced.empty()) {
        writeTable(kind, announced, pages);
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
