#include "faults/EventDetector.h"

#include "base/ClockTime.h"
#include "profile/Profile.h"
#include "profile/Series.h"

#include <algorithm>
#include <array>

namespace TARN {

namespace {

/// A parameter with its samples; event times carry no offset.
struct Source
{
    const ProfileDevice& device;
    const Series series;
};

RecordEvent eventAt(const Source& source, std::size_t place)
{
    const ProfileParameter& parameter = source.series.parameter();
    const RecordEntry& entry = source.series.entries()[place];
    std::string value;
    RecordEvent event;
    event.color = source.series.decoder().appendDisplay(entry, value);
    event.time = entry.time();
    const QString name = source.device.name + " " + parameter.name;
    event.name = name.toStdString();
    event.value = value + " " + parameter.unit.toStdString();
    event.text = name + " " + QString::fromStdString(event.value);
    std::string shortValue;
    source.series.decoder().appendShort(entry, shortValue);
    event.shortText = name + " " + QString::fromStdString(shortValue) + " " + parameter.unit;
    event.tenths = tenthsOf(event.time);
    event.parameter = &parameter;
    event.place = place;
    return event;
}

bool isWatchedMessage(const RecordEntry& entry)
{
    constexpr int TypeByte = 1;
    return entry.data[TypeByte] == DataType::Float;
}

void collectLimits(const Source& source, Events& events)
{
    constexpr std::size_t Piece = 1024; // stays in the processor's cache
    std::array<std::uint8_t, Piece> states;
    int previous = StateLimit;
    std::size_t watched = 0;
    const auto entries = source.series.entries();
    for (std::size_t begin = 0; begin < entries.size(); begin += Piece) {
        const auto piece = entries.subspan(begin, std::min(Piece, entries.size() - begin));
        source.series.decoder().states(piece, states.data());
        for (std::size_t i = 0; i < piece.size(); ++i) {
            if (isLimitEvent(previous, states[i])) {
                events.limits.push_back(eventAt(source, begin + i));
            }
            previous = states[i];
            watched += isWatchedMessage(piece[i]) ? 1 : 0;
        }
    }
    events.watchedLimits.samples += watched;
    events.watchedLimits.parameters += watched > 0 ? 1 : 0;
}

void collectWarnings(const Source& source, Events& events)
{
    int previous = 0;
    const auto entries = source.series.entries();
    for (std::size_t place = 0; place < entries.size(); ++place) {
        const int value = source.series.decoder().toInt(entries[place]);
        if (!isLampEvent(previous, value)) {
            continue;
        }
        RecordEvent event = eventAt(source, place);
        const QColor color = lampColor(value);
        event.color = color.isValid() ? color : event.color;
        events.warnings.push_back(event);
    }
    events.watchedLamps.samples += entries.size();
    events.watchedLamps.parameters += entries.empty() ? 0 : 1;
}

bool isLampEnum(const ProfileEnum& enumeration)
{
    return enumeration.name == "WarningLamp";
}

} // namespace

bool isLamp(const ProfileInfo& profile, const ProfileParameter& parameter)
{
    const auto found = profile.enums.find(parameter.enumId);
    return found != profile.enums.end() && isLampEnum(found->second);
}

bool isLampEvent(int& previous, int value)
{
    const bool isEvent = value != 0 && value != previous;
    previous = isEvent ? value : previous;
    return isEvent;
}

QColor lampColor(int value)
{
    return value == 1 ? QColor(255, 150, 100) : value == 2 ? QColor(255, 100, 100) : QColor();
}

bool hasWarningLamps(const ProfileInfo& profile)
{
    return std::ranges::any_of(profile.enums,
                               [](const auto& item) { return isLampEnum(item.second); });
}

bool isWatched(const ProfileThr& threshold)
{
    return std::ranges::any_of(threshold.values,
                               [](const ProfileThrValue& value) { return value.state != StateOk; });
}

Events detectEvents(const RecordData& data, const Profile& profile)
{
    Progress none;
    return detectEvents(data, profile, none);
}

Events detectEvents(const RecordData& data, const Profile& profile, Progress& progress)
{
    Events events;
    std::size_t done = 0;
    for (const auto& [device, parameter] : profile.parameters()) {
        progress.report(done++, profile.parameters().size());
        const bool lamp = isLamp(profile.data(), *parameter);
        const auto threshold = profile.data().thresholds.find(parameter->thresholdId);
        const bool limited =
            threshold != profile.data().thresholds.end() && isWatched(threshold->second);
        if (progress.stopRequested() || (!lamp && !limited)) {
            continue;
        }
        const Source source{*device, Series(data, profile, *parameter, 0.0)};
        if (limited) {
            collectLimits(source, events);
        }
        if (lamp) {
            collectWarnings(source, events);
        }
    }
    std::ranges::stable_sort(events.limits, {}, &RecordLimit::time);
    std::ranges::stable_sort(events.warnings, {}, &RecordWarning::time);
    return events;
}

} // namespace TARN
