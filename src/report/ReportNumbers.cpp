#include "report/ReportNumbers.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "flight/StatisticsWords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct NumberTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportNumbers)
};

ReportText numberOf(const std::optional<double>& number)
{
    constexpr int Digits = 5; // as the width of a page allows
    return number ? ReportText{numberWords(*number, Digits), {}, *number} : ReportText{"---"};
}

ReportText countOf(std::size_t count)
{
    return {countText(static_cast<qint64>(count)), {}, static_cast<double>(count)};
}

void addMoment(const std::optional<Statistics::Moment>& moment, std::vector<ReportText>& row)
{
    if (!moment) {
        row.insert(row.end(), {{"---"}, {"---"}});
        return;
    }
    row.push_back({numberWords(moment->value), {}, moment->value});
    row.push_back({clockText(moment->time), {}, moment->time});
}

/// What a rate adds up to, and how long values were out of range.
QString besides(const ProfileParameter& parameter, const Statistics& found)
{
    QStringList parts;
    if (found.integral && isRate(parameter.unit)) {
        parts +=
            NumberTexts::tr("adds up to %1").arg(integralWords(*found.integral, parameter.unit));
    }
    // Those that are left upwards: what is above a lower one is no news.
    const auto lastOk = std::ranges::find(found.above.rbegin(), found.above.rend(), int(StateOk),
                                          &Statistics::Above::state);
    for (auto level = lastOk.base(); level != found.above.end(); ++level) {
        if (level->seconds > 0.0) {
            parts += aboveWords(*level);
        }
    }
    return parts.join(", ");
}

std::vector<ReportText> rowOf(const ProfileParameter& parameter, const Statistics& found)
{
    std::vector<ReportText> row = {{parameter.title()}, countOf(found.samples)};
    addMoment(found.min, row);
    addMoment(found.max, row);
    for (const auto& number : {found.mean, found.stddev, found.timeMean}) {
        row.push_back(numberOf(number));
    }
    row.push_back(countOf(found.gaps));
    row.push_back({besides(parameter, found)});
    return row;
}

} // namespace

void writeNumbers(const ReportMatter& matter, ReportPages& pages, Progress& progress)
{
    pages.heading(NumberTexts::tr("Statistics"));
    const auto parameters = matter.parameters();
    if (parameters.empty()) {
        pages.say(NumberTexts::tr("No parameter is selected."));
        return;
    }
    ReportTable table;
    const QString when = NumberTexts::tr("at");
    table.titles = {NumberTexts::tr("Parameter"), NumberTexts::tr("Samples"),
                    NumberTexts::tr("Min"),       when,
                    NumberTexts::tr("Max"),       when,
                    NumberTexts::tr("Mean"),      NumberTexts::tr("Std. Dev."),
                    NumberTexts::tr("Time Mean"), NumberTexts::tr("Gaps"),
                    NumberTexts::tr("Besides")};
    table.shares = {16, 8, 8, 9, 8, 9, 8, 8, 8, 6, 12};
    for (const auto& index :
         makeIndexes(matter.shown.flight, parameters, matter.shown.offset, progress)) {
        table.rows.push_back(rowOf(index->parameter(), index->range(matter.range)));
    }
    pages.table(table);
}

} // namespace TARN
