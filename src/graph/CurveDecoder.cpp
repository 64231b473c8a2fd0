#include "graph/CurveDecoder.h"

#include <algorithm>
#include <vector>

namespace TARN {

DecodedCurve decodeCurve(const Flight& flight, const ProfileParameter& parameter, double offset,
                         Progress& progress)
{
    constexpr std::size_t Chunk = 65536; // samples decoded at once
    const Series series = flight.series(parameter, offset);
    auto samples = std::make_shared<CurveSamples>();
    DecodedCurve curve;
    std::vector<double> times(std::min(Chunk, series.size()));
    std::vector<double> values(times.size());
    for (auto rest = series.entries(); !rest.empty();) {
        if (progress.stopRequested()) {
            return {};
        }
        const auto entries = rest.first(std::min(Chunk, rest.size()));
        series.timesOf(entries, times.data());
        series.decoder().toDoubles(entries, true, values.data());
        curve.leftOut += samples->putSeries(std::span(times).first(entries.size()),
                                            std::span(values).first(entries.size()));
        rest = rest.subspan(entries.size());
        progress.report(series.size() - rest.size(), series.size());
    }
    samples->setGapRule(series.gapRule(flight.silences(offset)));
    curve.samples = std::move(samples);
    return curve;
}

} // namespace TARN
