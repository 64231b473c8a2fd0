#include "graph/CurveDecoder.h"

#include <algorithm>
#include <vector>

namespace TARN {

namespace {

/// Places in the list, of samples to be decoded.
struct Part
{
    std::size_t begin;
    std::size_t end;
};

/// The samples inside a range and one more on each side, so that lines run out of it.
Part partOf(const Series& series, const TimeRange& range)
{
    if (!series.isInOrder()) {
        return {0, series.size()};
    }
    const std::size_t begin = series.firstNotBefore(range.start);
    const std::size_t end = series.firstAfter(range.stop);
    return {begin == 0 ? 0 : begin - 1, std::min(end + 1, series.size())};
}

DecodedCurve decode(const std::shared_ptr<const Flight>& flight, Series series, const Part& part,
                    double offset, Progress& progress)
{
    constexpr std::size_t Chunk = 4096; // samples decoded at once, which stay in the cache
    auto samples = std::make_shared<CurveSamples>();
    samples->reserve(part.end - part.begin);
    DecodedCurve curve;
    QuickRhythm rhythm; // of all samples, whatever is shown
    std::vector<double> times(std::min(Chunk, series.size()));
    std::vector<double> values(times.size());
    const auto entries = series.entries();
    for (std::size_t begin = 0; begin < series.size(); begin += Chunk) {
        if (progress.stopRequested()) {
            return {};
        }
        const std::size_t end = std::min(begin + Chunk, series.size());
        series.timesOf(entries.subspan(begin, end - begin), times.data());
        rhythm.add(std::span(times).first(end - begin));
        const std::size_t from = std::max(begin, part.begin);
        const std::size_t to = std::min(end, part.end);
        if (from < to) {
            series.decoder().toDoubles(entries.subspan(from, to - from), true, values.data());
            curve.leftOut += samples->putSeries(std::span(times).subspan(from - begin, to - from),
                                                std::span(values).first(to - from));
        }
        progress.report(end, series.size());
    }
    samples->setGapRule(rhythm.isProven() ? QuickRhythm::rule() : series.gapRule([&] {
        return flight->silences(offset);
    }));
    const bool isAll = part.end - part.begin == series.size();
    if (isAll && curve.leftOut == 0 &&
        (samples->size() < 2 || samples->time(0) <= samples->time(1))) {
        series.setInOrder();
    }
    curve.facts = std::make_shared<CurveFacts>(flight, std::move(series), samples->gapRule());
    curve.samples = std::move(samples);
    return curve;
}

} // namespace

DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, Progress& progress)
{
    Series series = flight->series(parameter, offset);
    const Part all{0, series.size()};
    return decode(flight, std::move(series), all, offset, progress);
}

DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, const TimeRange& range,
                         Progress& progress)
{
    Series series = flight->series(parameter, offset);
    const Part part = partOf(series, range);
    return decode(flight, std::move(series), part, offset, progress);
}

} // namespace TARN
