#include "graph/CurveDifference.h"

#include <algorithm>

namespace TARN {

namespace {

/// Times carry a shift, gaps are found without it.
struct ShiftedSamples
{
    const CurveSamples* samples;
    double shift;

    std::size_t size() const { return samples->size(); }
    double time(std::size_t k) const { return samples->time(k) + shift; }
    double value(std::size_t k) const { return samples->value(k); }
    bool isGapBefore(std::size_t k) const { return samples->isGapBefore(k); }
};

} // namespace

std::shared_ptr<const CurveSamples> differenceOf(const CurveSamples& flight,
                                                 const CurveSamples& reference, Between between,
                                                 double shift, Progress& progress)
{
    constexpr std::size_t Chunk = 4096; // samples, which stay in the cache
    auto difference = std::make_shared<CurveSamples>();
    difference->reserve(flight.size());
    ValueReader<ShiftedSamples> reader({&reference, shift}, between);
    std::vector<double> times;
    std::vector<double> values;
    for (std::size_t begin = 0; begin < flight.size(); begin += Chunk) {
        if (progress.stopRequested()) {
            return nullptr;
        }
        progress.report(begin, flight.size());
        times.clear();
        values.clear();
        readDifference(ShiftedSamples{&flight, 0.0}, reader, begin,
                       std::min(begin + Chunk, flight.size()), times, values);
        difference->putSeries(times, values);
    }
    return difference;
}

} // namespace TARN
