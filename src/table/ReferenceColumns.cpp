#include "table/ReferenceColumns.h"

#include "flight/StatisticsWords.h"
#include "flight/ValueReader.h"

#include <algorithm>
#include <cmath>

namespace TARN {

ReferenceColumns::ReferenceColumns(std::shared_ptr<const Flight> flight, const Selection& selection,
                                   double offset, Progress& progress)
    : mFlight(std::move(flight))
{
    for (const ProfileParameter* parameter : selection.parameters(*mFlight->profile())) {
        if (progress.stopRequested()) {
            return;
        }
        Series series = mFlight->series(*parameter, offset);
        GapRule gaps = series.gapRule([&] { return mFlight->silences(offset); });
        series.isInOrder(); // is found out now
        mColumns.push_back({std::move(series), std::move(gaps)});
    }
}

QString ReferenceColumns::textOf(const Series& series, std::size_t k, bool allDigits)
{
    std::string text;
    allDigits ? series.decoder().appendText(series.entry(k), text)
              : series.decoder().appendShort(series.entry(k), text);
    return QString::fromStdString(text);
}

QString ReferenceColumns::textAt(std::size_t column, double time, bool allDigits) const
{
    if (column >= mColumns.size()) {
        return {};
    }
    const auto& [series, gaps] = mColumns[column];
    const std::size_t k = series.firstNotBefore(time - HalfTick);
    if (k < series.size() && series.time(k) <= time + HalfTick) {
        return textOf(series, k, allDigits);
    }
    return k == 0 || k == series.size() || gaps.isGap(series.time(k - 1), series.time(k))
               ? QString()
               : betweenText(mColumns[column], k, time, allDigits);
}

QString ReferenceColumns::betweenText(const Column& column, std::size_t after, double time,
                                      bool allDigits)
{
    constexpr int AllDigits = 12;
    const QString before = textOf(column.series, after - 1, false);
    if (betweenOf(column.series) == Between::Held) {
        return before;
    }
    ValueReader<SeriesSamples> reader({column.series, column.gaps}, Between::Line);
    const double value = reader.at(time);
    const int decimals =
        std::max(decimalsOf(before), decimalsOf(textOf(column.series, after, false)));
    return std::isnan(value)                         ? QString()
           : allDigits || !(std::fabs(value) < 1e12) ? numberWords(value, AllDigits)
                                                     : QString::number(value, 'f', decimals);
}

} // namespace TARN
