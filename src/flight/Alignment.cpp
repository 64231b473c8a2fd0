#include "flight/Alignment.h"

#include <algorithm>
#include <cmath>

namespace TARN {

std::optional<double> firstPassing(const FlightClock& clock, const ProfileParameter& parameter,
                                   double value, Progress& progress)
{
    const Series series = clock.flight.series(parameter, clock.offset);
    std::optional<bool> wasAbove;
    for (std::size_t k = 0; k < series.size() && !progress.stopRequested(); ++k) {
        const double now = series.value(k);
        if (std::isnan(now)) {
            continue;
        }
        const bool isAbove = now >= value;
        if (wasAbove && isAbove != *wasAbove) {
            return series.time(k);
        }
        wasAbove = isAbove;
    }
    return std::nullopt;
}

namespace {

std::optional<double> passingShift(const Alignment& alignment, const FlightClock& flight,
                                   const FlightClock& reference, Progress& progress)
{
    const auto& parameters = flight.flight.profile()->parameters();
    const auto found = std::ranges::find_if(parameters, [&](const Profile::Entry& entry) {
        return entry.parameter->fullName == alignment.parameter;
    });
    if (found == parameters.end()) {
        return std::nullopt;
    }
    const auto own = firstPassing(flight, *found->parameter, alignment.value, progress);
    const auto other = firstPassing(reference, *found->parameter, alignment.value, progress);
    return own && other ? std::optional(*own - *other) : std::nullopt;
}

} // namespace

std::optional<double> shiftOf(const Alignment& alignment, const FlightClock& flight,
                              const FlightClock& reference, Progress& progress)
{
    switch (alignment.by) {
    case Alignment::Clock:
        return 0.0;
    case Alignment::Start:
        return flight.flight.range(flight.offset).start -
               reference.flight.range(reference.offset).start;
    case Alignment::Passing:
        return passingShift(alignment, flight, reference, progress);
    default:
        return std::nullopt;
    }
}

} // namespace TARN
