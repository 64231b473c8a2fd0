#include "table/ReferenceColumns.h"

#include "flight/StatisticsWords.h"
#include "flight/ValueReader.h"

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

QString ReferenceColumns::textAt(std::size_t column, double time) const
{
    if (column >= mColumns.size()) {
        return {};
    }
    const auto& [series, gaps] = mColumns[column];
    if (series.decoder().isNumeric()) {
        ValueReader<SeriesSamples> reader({series, gaps}, betweenOf(series));
        const double value = reader.at(time);
        return std::isnan(value) ? QString() : numberWords(value);
    }
    const std::size_t after = series.firstAfter(time);
    const bool isKnown = after > 0 && (after < series.size()
                                           ? !gaps.isGap(series.time(after - 1), series.time(after))
                                           : series.time(after - 1) == time);
    std::string text;
    if (isKnown) {
        series.decoder().appendShort(series.entry(after - 1), text);
    }
    return QString::fromStdString(text);
}

} // namespace TARN
