#include "graph/CurveDecoder.h"

#include <algorithm>
#include <vector>

namespace TARN {

DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, Progress& progress)
{
    constexpr std::size_t Chunk = 4096; // samples decoded at once, which stay in the cache
    Series series = flight->series(parameter, offset);
    auto samples = std::make_shared<CurveSamples>();
    samples->reserve(series.size());
    DecodedCurve curve;
    QuickRhythm rhythm;
    std::vector<double> times(std::min(Chunk, series.size()));
    std::vector<double> values(times.size());
    for (auto rest = series.entries(); !rest.empty();) {
        if (progress.stopRequested()) {
            return {};
        }
        const auto entries = rest.first(std::min(Chunk, rest.size()));
        series.timesOf(entries, times.data());
        rhythm.add(std::span(times).first(entries.size()));
        series.decoder().toDoubles(entries, true, values.data());
        curve.leftOut += samples->putSeries(std::span(times).first(entries.size()),
                                            std::span(values).first(entries.size()));
        rest = rest.subspan(entries.size());
        progress.report(series.size() - rest.size(), series.size());
    }
    samples->setGapRule(rhythm.isProven() ? QuickRhythm::rule() : series.gapRule([&] {
        return flight->silences(offset);
    }));
    if (curve.leftOut == 0 && (samples->size() < 2 || samples->time(0) <= samples->time(1))) {
        series.setInOrder();
    }
    curve.facts = std::make_shared<CurveFacts>(flight, std::move(series), samples->gapRule());
    curve.samples = std::move(samples);
    return curve;
}

} // namespace TARN
