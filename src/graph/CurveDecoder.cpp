#include "graph/CurveDecoder.h"

#include <algorithm>
#include <vector>

namespace TARN {

namespace {

constexpr std::size_t Chunk = 4096; // samples decoded at once, which stay in the cache

/// Puts samples of a list, from \p begin to before \p end, to a curve; how many are left out
/// because their time falls. \p seen is told their times.
template <typename Seen>
std::size_t putAll(const Series& series, std::size_t begin, std::size_t end, CurveSamples& samples,
                   Progress& progress, Seen seen)
{
    std::size_t leftOut = 0;
    std::vector<double> times(std::min(Chunk, end - begin));
    std::vector<double> values(times.size());
    for (auto rest = series.entries().subspan(begin, end - begin);
         !rest.empty() && !progress.stopRequested();) {
        const auto entries = rest.first(std::min(Chunk, rest.size()));
        const auto timesOfThem = std::span(times).first(entries.size());
        series.timesOf(entries, times.data());
        seen(timesOfThem);
        series.decoder().toDoubles(entries, true, values.data());
        leftOut += samples.putSeries(timesOfThem, std::span(values).first(entries.size()));
        rest = rest.subspan(entries.size());
        progress.report(end - begin - rest.size(), end - begin);
    }
    return leftOut;
}

DecodedCurve curveOf(const std::shared_ptr<const Flight>& flight, Series series,
                     std::shared_ptr<CurveSamples> samples, std::size_t leftOut)
{
    auto facts = std::make_shared<CurveFacts>(flight, std::move(series), samples->gapRule());
    return {std::move(samples), leftOut, std::move(facts)};
}

} // namespace

DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, Progress& progress)
{
    Series series = flight->series(parameter, offset);
    auto samples = std::make_shared<CurveSamples>();
    samples->reserve(series.size());
    StepRange steps;
    double before = series.empty() ? 0.0 : series.timeOf(series.entries().front());
    const std::size_t leftOut =
        putAll(series, 0, series.size(), *samples, progress, [&](std::span<const double> times) {
            const double first = times.front() - before;
            const auto [shortest, longest] = stepsOf(times);
            steps.shortest = std::min({steps.shortest, first, shortest});
            steps.longest = std::max({steps.longest, first, longest});
            before = times.back();
        });
    if (progress.stopRequested()) {
        return {};
    }
    if (steps.shortest >= 0.0) {
        series.setInOrder();
    }
    // Mostly no step is long enough for any rule, and none has to be found.
    const bool mayHaveGaps = steps.shortest < 0.0 || steps.longest > GapRule::ShortestLimit;
    samples->setGapRule(mayHaveGaps ? series.gapRule([&] { return flight->silences(offset); })
                                    : GapRule());
    return curveOf(flight, std::move(series), std::move(samples), leftOut);
}

const CurveWindows::Known& CurveWindows::knownOf(const Series& series)
{
    const auto found = mKnown.find(&series.parameter());
    if (found != mKnown.end()) {
        return found->second;
    }
    const GapRule gaps = series.gapRule([this] { return mFlight->silences(mOffset); });
    return mKnown.emplace(&series.parameter(), Known{gaps, series.isInOrder()}).first->second;
}

DecodedCurve CurveWindows::decode(const ProfileParameter& parameter, const TimeRange& range,
                                  Progress& progress)
{
    Series series = mFlight->series(parameter, mOffset);
    const Known& known = knownOf(series);
    std::size_t begin = 0;
    std::size_t end = series.size();
    if (known.isInOrder) {
        series.setInOrder();
        begin = series.firstNotBefore(range.start);
        begin -= begin > 0 ? 1 : 0;
        end = std::min(series.firstAfter(range.stop) + 1, series.size());
    }
    auto samples = std::make_shared<CurveSamples>();
    samples->reserve(end - begin);
    samples->setGapRule(known.gaps);
    const std::size_t leftOut =
        putAll(series, begin, end, *samples, progress, [](std::span<const double>) {});
    return progress.stopRequested()
               ? DecodedCurve()
               : curveOf(mFlight, std::move(series), std::move(samples), leftOut);
}

} // namespace TARN
