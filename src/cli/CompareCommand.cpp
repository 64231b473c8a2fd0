#include "cli/CompareCommand.h"

#include "base/ClockTime.h"
#include "cli/StatsJson.h"
#include "flight/Alignment.h"
#include "flight/Comparison.h"

#include <charconv>
#include <cmath>
#include <ostream>
#include <utility>

namespace TARN {

namespace {

/// The two moments of "T:T"; nothing where it is none.
std::optional<std::pair<double, double>> momentsOf(const std::string& text)
{
    const auto numberOf = [](std::string_view part) -> std::optional<double> {
        double number = 0.0;
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
        const bool isWhole = error == std::errc() && end == part.data() + part.size();
        return isWhole && std::isfinite(number) ? std::optional(number) : std::nullopt;
    };
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) {
        return std::nullopt;
    }
    const auto own = numberOf(std::string_view(text).substr(0, colon));
    const auto other = numberOf(std::string_view(text).substr(colon + 1));
    return own && other ? std::optional(std::pair(*own, *other)) : std::nullopt;
}

double shiftOf(const std::string& align, const FlightClock& flight, const FlightClock& reference)
{
    if (const auto moments = momentsOf(align)) {
        return moments->first - moments->second;
    }
    Progress none;
    const Alignment alignment{align == "start" ? Alignment::Start : Alignment::Clock};
    return TARN::shiftOf(alignment, flight, reference, none).value_or(0.0);
}

std::string wordsOf(const TimeRange& range)
{
    return (clockTextWithMilliseconds(range.start) + " to " + clockTextWithMilliseconds(range.stop))
        .toStdString();
}

/// Fails where there is none.
TimeRange rangeOf(const Range& wanted, const FlightClock& flight, const FlightClock& reference,
                  double shift)
{
    const TimeRange own = flight.flight.range(flight.offset);
    TimeRange other = reference.flight.range(reference.offset);
    TimeRange common = commonRange(own, other, shift);
    if (common.stop < common.start) {
        other = {other.start + shift, other.stop + shift};
        throw CommandFailure("the flights have no time in common: " + wordsOf(own) + ", with " +
                             wordsOf(other) + "; --align start lays their starts together");
    }
    common.start = std::max(common.start, wanted.start.value_or(common.start));
    common.stop = std::min(common.stop, wanted.stop.value_or(common.stop));
    return common;
}

} // namespace

std::string alignmentFault(const std::string& text)
{
    return text == "start" || momentsOf(text)
               ? std::string()
               : "\"" + text + "\" is neither \"start\" nor two seconds with a colon between";
}

void runCompare(const CompareArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const auto reference = Flight::make(loadRecord(arguments.with), flight->profile());
    const Selection selection = selectionOf(arguments.selection, *flight->profile());
    const FlightClock own{*flight, flight->record()->offset()};
    const FlightClock other{*reference, reference->record()->offset()};
    const double shift = shiftOf(arguments.align, own, other);
    const TimeRange range = rangeOf(arguments.range, own, other, shift);
    Progress none;
    const auto indexOf = [&](const std::shared_ptr<const Flight>& of, double offset,
                             const ProfileParameter& parameter) {
        return std::make_shared<const StatisticsIndex>(of, parameter, offset, none);
    };
    for (const auto& [device, parameter] : flight->profile()->parameters()) {
        if (!selection.contains(*parameter)) {
            continue;
        }
        const ComparisonIndex index(indexOf(flight, own.offset, *parameter),
                                    indexOf(reference, other.offset, *parameter), shift, none);
        const Comparison found = index.range(range);
        const Json line = {{"device", device->name.toStdString()},
                           {"parameter", parameter->name.toStdString()},
                           {"shift", shift},
                           {"flight", statisticsLine(*device, *parameter, found.flight)},
                           {"reference", statisticsLine(*device, *parameter, found.reference)},
                           {"difference", differenceOf(found.difference)}};
        out << line.dump() << '\n';
    }
}

} // namespace TARN
