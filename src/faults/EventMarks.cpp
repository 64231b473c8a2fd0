#include "faults/EventMarks.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct MarkTexts
{
    Q_DECLARE_TR_FUNCTIONS(EventMarks)
};

/// Views tell times in milliseconds, rounded.
constexpr double SameMoment = 0.001;

QString namesOf(const FaultMatrix& matrix, std::uint32_t bits)
{
    QStringList names;
    for (const auto& [bit, parameter] : matrix.parameters) {
        if ((bits >> bit & 1U) != 0) {
            names += parameter.name;
        }
    }
    return names.join(", ");
}

EventMark markOf(const FaultHistory& history, const FaultChange& change)
{
    const FaultMatrix& matrix = history.matrix();
    QStringList words;
    if (change.came != 0) {
        words += MarkTexts::tr("%1 came").arg(namesOf(matrix, change.came));
    }
    if (change.went != 0) {
        words += MarkTexts::tr("%1 went").arg(namesOf(matrix, change.went));
    }
    const bool isFault = ((change.came | change.went) & history.bitsOfType(ErrorFault)) != 0;
    return {change.time, EventMark::Fault, matrix.name + ": " + words.join("; "),
            errorColor(isFault ? ErrorFault : ErrorWarning)};
}

} // namespace

EventMarks::EventMarks(const Events& events, const std::vector<FaultHistory>& faults)
{
    for (const RecordLimit& event : events.limits) {
        mMarks.push_back({event.time, EventMark::Limit, event.shortText, event.color});
    }
    for (const RecordWarning& event : events.warnings) {
        mMarks.push_back({event.time, EventMark::Lamp, event.shortText, event.color});
    }
    for (const FaultHistory& history : faults) {
        const auto bits = history.bitsOfType(ErrorWarning) | history.bitsOfType(ErrorFault);
        for (const FaultChange& change : history.changes(bits)) {
            mMarks.push_back(markOf(history, change));
        }
    }
    std::ranges::stable_sort(mMarks, {}, &EventMark::time);
}

std::span<const EventMark> EventMarks::next(double time) const
{
    const auto first = std::ranges::upper_bound(mMarks, time + SameMoment, {}, &EventMark::time);
    if (first == mMarks.end()) {
        return {};
    }
    return {first, std::ranges::upper_bound(first, mMarks.end(), first->time + SameMoment, {},
                                            &EventMark::time)};
}

std::span<const EventMark> EventMarks::previous(double time) const
{
    const auto end = std::ranges::lower_bound(mMarks, time - SameMoment, {}, &EventMark::time);
    if (end == mMarks.begin()) {
        return {};
    }
    const double last = std::prev(end)->time;
    return {std::ranges::lower_bound(mMarks.begin(), end, last - SameMoment, {}, &EventMark::time),
            end};
}

} // namespace TARN
