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

EventMark markOf(const FaultHistory& history, const FaultChange& change)
{
    const FaultMatrix& matrix = history.matrix();
    QStringList words;
    if (change.came != 0) {
        words += MarkTexts::tr("%1 came").arg(history.namesOf(change.came));
    }
    if (change.went != 0) {
        words += MarkTexts::tr("%1 went").arg(history.namesOf(change.went));
    }
    const bool isFault = ((change.came | change.went) & history.bitsOfType(ErrorFault)) != 0;
    return {change.time, EventMark::Fault, matrix.name + ": " + words.join("; "),
            errorColor(isFault ? ErrorFault : ErrorWarning), history.shift(1.0) != 0.0};
}

} // namespace

EventMarks::EventMarks(const RecordData& samples, const Events& events,
                       const std::vector<FaultHistory>& faults)
{
    const auto add = [&](const std::vector<RecordEvent>& list, EventMark::Kind kind) {
        for (const RecordEvent& event : list) {
            const RecordIdList* entries =
                samples.find(static_cast<unsigned>(event.parameter->channel),
                             static_cast<unsigned>(event.parameter->id));
            mMarks.push_back({event.time, kind, event.shortText, event.color,
                              entries != nullptr && entries->highFile});
        }
    };
    add(events.limits, EventMark::Limit);
    add(events.warnings, EventMark::Lamp);
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
