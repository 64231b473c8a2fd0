#include "cli/ReferenceInput.h"

#include "base/ClockTime.h"
#include "flight/Alignment.h"
#include "flight/Comparison.h"

#include <charconv>
#include <cmath>
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
    Alignment alignment;
    alignment.by = align == "start" ? Alignment::Start : Alignment::Clock;
    return TARN::shiftOf(alignment, flight, reference, none).value_or(0.0);
}

std::string wordsOf(const TimeRange& range)
{
    return (clockTextWithMilliseconds(range.start) + " to " + clockTextWithMilliseconds(range.stop))
        .toStdString();
}

} // namespace

std::string alignmentFault(const std::string& text)
{
    return text == "start" || momentsOf(text)
               ? std::string()
               : "\"" + text + "\" is neither \"start\" nor two seconds with a colon between";
}

ExportReference referenceOf(const ReferenceArguments& arguments, const Flight& flight,
                            double offset)
{
    ExportReference reference;
    reference.flight = Flight::make(loadRecord(arguments.files), flight.profile());
    reference.offset = reference.flight->record()->offset();
    reference.shift =
        shiftOf(arguments.align, {flight, offset}, {*reference.flight, reference.offset});
    return reference;
}

TimeRange commonTimeOf(const TimeRange& range, const ExportReference& reference)
{
    TimeRange other = reference.flight->range(reference.offset);
    const TimeRange common = commonRange(range, other, reference.shift);
    if (common.stop < common.start) {
        other = {other.start + reference.shift, other.stop + reference.shift};
        throw CommandFailure("the flights have no time in common: " + wordsOf(range) + ", with " +
                             wordsOf(other) + "; --align start lays their starts together");
    }
    return common;
}

} // namespace TARN
