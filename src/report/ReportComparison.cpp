#include "report/ReportComparison.h"

#include "base/ClockTime.h"
#include "flight/Comparison.h"
#include "flight/StatisticsWords.h"
#include "flight/SteadyStretch.h"
#include "record/UtcDetector.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ComparisonTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportComparison)
};

/// What is compared, on the clock of the flight.
struct ComparedPart
{
    TimeRange range; ///< stop before start where there is none
    bool isSteady;   ///< in both flights
};

struct Change
{
    const ProfileParameter* parameter;
    std::optional<double> flight; ///< time means
    std::optional<double> reference;
    double difference;
    double deviations; ///< of the reference, that make it; infinite where that stays as it is
};

ComparedPart partOf(const ReportMatter& matter, Progress& progress)
{
    const ExportReference& other = *matter.shown.reference;
    const auto commonOf = [&](const TimeRange& flight, const TimeRange& reference) {
        return commonRange(matter.range, commonRange(flight, reference, other.shift), 0.0);
    };
    const auto steady = steadyStretch(matter.flight(), matter.shown.offset, progress);
    const auto otherSteady =
        steady ? steadyStretch(*other.flight, other.offset, progress) : std::nullopt;
    if (steady && otherSteady && isLongEnough(commonOf(*steady, *otherSteady))) {
        return {commonOf(*steady, *otherSteady), true};
    }
    return {commonOf(matter.flight().range(matter.shown.offset), other.flight->range(other.offset)),
            false};
}

QString referenceName(const Flight& reference)
{
    const auto& files = reference.record()->integrity().files;
    if (files.empty()) {
        return {};
    }
    const RecordInfo& info = files.front().info;
    QStringList parts = {QFileInfo(info.fileName).fileName(), info.dateTimeText()};
    parts.removeAll(QString());
    return parts.join(", ");
}

void writeWhat(const ReportMatter& matter, const ComparedPart& part, ReportPages& pages)
{
    constexpr int Digits = 9;
    const ExportReference& other = *matter.shown.reference;
    const QString words =
        part.isSteady ? ComparisonTexts::tr("Reference: %1, shifted by %2 s. Compared from %3 to "
                                            "%4, while both flights are steady.")
                      : ComparisonTexts::tr("Reference: %1, shifted by %2 s. Compared from %3 to "
                                            "%4: there is no common steady part.");
    pages.say(words.arg(referenceName(*other.flight), numberWords(other.shift, Digits),
                        clockText(part.range.start), clockText(part.range.stop)));
}

/// Of a parameter whose difference has a time mean.
Change changeOf(const ProfileParameter& parameter, const Comparison& found)
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const Statistics& reference = found.reference;
    const double difference = *found.difference.timeMean;
    if (difference == 0.0) {
        return Change{&parameter, found.flight.timeMean, reference.timeMean, 0.0, 0.0};
    }
    // Sums of equal values may leave a trace of a deviation.
    const bool isConstant = reference.min->value == reference.max->value;
    const double deviations = isConstant || *reference.stddev == 0.0
                                  ? std::copysign(Infinity, difference)
                                  : difference / *reference.stddev;
    return Change{&parameter, found.flight.timeMean, reference.timeMean, difference, deviations};
}

/// Of the messages that say when it was: those of two flights always differ.
bool isDate(const ProfileParameter& parameter)
{
    return parameter.id == int(UtcDetector::TimeId) || parameter.id == int(UtcDetector::DateId);
}

/// Numbers that both flights have recorded.
std::vector<const ProfileParameter*> comparable(const ReportMatter& matter)
{
    const ExportReference& other = *matter.shown.reference;
    std::vector<const ProfileParameter*> parameters;
    for (const auto& [device, parameter] : matter.profile().parameters()) {
        const Series series = matter.shown.series(*parameter);
        if (betweenOf(series) == Between::Line && !series.empty() && !isDate(*parameter) &&
            !other.flight->series(*parameter, other.offset).empty()) {
            parameters.push_back(parameter);
        }
    }
    return parameters;
}

/// Of all that was compared, the greatest first.
std::vector<Change> changesOf(const ReportMatter& matter, const TimeRange& range,
                              Progress& progress)
{
    const ExportReference& other = *matter.shown.reference;
    const auto parameters = comparable(matter);
    const auto own = makeIndexes(matter.shown.flight, parameters, matter.shown.offset, progress);
    const auto others = makeIndexes(other.flight, parameters, other.offset, progress);
    std::vector<Change> changes;
    for (std::size_t k = 0; k < parameters.size() && !progress.stopRequested(); ++k) {
        const ComparisonIndex index(own[k], others[k], other.shift, progress);
        const Comparison found = index.range(range);
        if (found.difference.timeMean && found.reference.stddev) {
            changes.push_back(changeOf(*parameters[k], found));
        }
    }
    std::ranges::stable_sort(changes, std::ranges::greater(),
                             [](const Change& change) { return std::fabs(change.deviations); });
    return changes;
}

ReportText cellOf(const std::optional<double>& number)
{
    return number ? ReportText{numberWords(*number), {}, *number} : ReportText{"---"};
}

ReportText deviationsCell(double deviations)
{
    constexpr int Digits = 4;
    const QString sign = deviations < 0.0 ? "-" : "";
    return {
        std::isinf(deviations) ? sign + "\u221E" : numberWords(deviations, Digits), {}, deviations};
}

/// Those that changed, not too many of them.
void keepGreatest(std::vector<Change>& changes)
{
    constexpr std::size_t Most = 20;
    std::erase_if(changes, [](const Change& change) { return change.difference == 0.0; });
    changes.erase(changes.begin() + std::ptrdiff_t(std::min(Most, changes.size())), changes.end());
}

void writeChanges(const std::vector<Change>& changes, ReportPages& pages)
{
    ReportTable table;
    table.titles = {ComparisonTexts::tr("Parameter"), ComparisonTexts::tr("Time mean, flight"),
                    ComparisonTexts::tr("Time mean, reference"), ComparisonTexts::tr("Difference"),
                    ComparisonTexts::tr("Standard deviations")};
    table.shares = {36, 16, 16, 16, 16};
    for (const Change& change : changes) {
        table.rows.push_back({{change.parameter->title()},
                              cellOf(change.flight),
                              cellOf(change.reference),
                              cellOf(change.difference),
                              deviationsCell(change.deviations)});
    }
    pages.subheading(
        ComparisonTexts::tr("What changed most, in standard deviations of the reference"));
    pages.table(table);
}

void writeFirst(const std::vector<Change>& changes, const TimeRange& range, ReportCharts& charts)
{
    constexpr std::size_t Most = 3;
    std::vector<const ProfileParameter*> parameters;
    for (std::size_t k = 0; k < std::min(Most, changes.size()); ++k) {
        parameters.push_back(changes[k].parameter);
    }
    charts.writeCompared(parameters, range);
}

} // namespace

void writeComparison(const ReportMatter& matter, ReportCharts& charts, ReportPages& pages,
                     Progress& progress)
{
    if (!matter.shown.reference) {
        return;
    }
    const ComparedPart part = partOf(matter, progress);
    pages.heading(ComparisonTexts::tr("Compared with the reference"));
    if (part.range.stop < part.range.start) {
        pages.say(ComparisonTexts::tr("Reference: %1. It has no time in common with this range.")
                      .arg(referenceName(*matter.shown.reference->flight)));
        return;
    }
    writeWhat(matter, part, pages);
    std::vector<Change> changes = changesOf(matter, part.range, progress);
    const std::size_t compared = changes.size();
    keepGreatest(changes);
    if (progress.stopRequested()) {
        return;
    }
    if (changes.empty()) {
        pages.say(compared == 0
                      ? ComparisonTexts::tr("No parameter has values in both flights there.")
                      : ComparisonTexts::tr("None of %1 parameters has changed.").arg(compared));
        return;
    }
    writeChanges(changes, pages);
    writeFirst(changes, part.range, charts);
}

} // namespace TARN
