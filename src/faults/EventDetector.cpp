#include "faults/EventDetector.h"

#include "base/ClockTime.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <algorithm>
#include <array>

namespace TARN {

namespace {

/// A parameter with its samples and its decoder.
struct Source
{
    const ProfileDevice& device;
    const ProfileParameter& parameter;
    const Decoder decoder;
    const RecordIdList& list;
};

RecordEvent eventAt(const Source& source, const RecordEntry& entry)
{
    std::string value;
    RecordEvent event;
    event.color = source.decoder.appendDisplay(entry, value);
    event.time = entry.time();
    const QString name = source.device.name + " " + source.parameter.name;
    event.name = name.toStdString();
    event.value = value + " " + source.parameter.unit.toStdString();
    event.text = name + " " + QString::fromStdString(event.value);
    event.tenths = tenthsOf(event.time);
    return event;
}

void collectLimits(const Source& source, std::vector<RecordLimit>& limits)
{
    constexpr std::size_t Piece = 1024; // stays in the processor's cache
    std::array<int, Piece> states;
    int previous = StateLimit; // so that a range that is left already is not entered
    for (std::size_t begin = 0; begin < source.list.entries.size(); begin += Piece) {
        const auto piece =
            source.list.entries.subspan(begin, std::min(Piece, source.list.entries.size() - begin));
        source.decoder.states(piece, states.data());
        for (std::size_t i = 0; i < piece.size(); ++i) {
            if ((previous == StateOk && states[i] != StateOk) ||
                (previous == StateWarning && states[i] == StateLimit)) {
                limits.push_back(eventAt(source, piece[i]));
            }
            previous = states[i];
        }
    }
}

void collectWarnings(const Source& source, std::vector<RecordWarning>& warnings)
{
    int previous = 0;
    for (const RecordEntry& entry : source.list.entries) {
        const int value = source.decoder.toInt(entry);
        if (value == 0 || value == previous) {
            continue;
        }
        previous = value;
        RecordEvent event = eventAt(source, entry);
        if (value == 1) {
            event.color = QColor(255, 150, 100);
        } else if (value == 2) {
            event.color = QColor(255, 100, 100);
        }
        warnings.push_back(event);
    }
}

bool isLampEnum(const ProfileEnum& enumeration)
{
    return enumeration.name == "WarningLamp";
}

bool isLamp(const ProfileInfo& profile, const ProfileParameter& parameter)
{
    const auto found = profile.enums.find(parameter.enumId);
    return found != profile.enums.end() && isLampEnum(found->second);
}

} // namespace

bool hasWarningLamps(const ProfileInfo& profile)
{
    return std::ranges::any_of(profile.enums,
                               [](const auto& item) { return isLampEnum(item.second); });
}

void detectEvents(Record& record, const Profile& profile)
{
    RecordData& data = record.recordData();
    data.limits.clear();
    data.warnings.clear();
    for (const auto& [deviceId, device] : profile.data().devices) {
        for (const auto& [uid, parameter] : device.parameters) {
            const bool lamp = isLamp(profile.data(), parameter);
            const bool limited = profile.data().thresholds.contains(parameter.thresholdId);
            const RecordIdList* list = lamp || limited
                                           ? data.find(static_cast<unsigned>(parameter.channel),
                                                       static_cast<unsigned>(parameter.id))
                                           : nullptr;
            if (list == nullptr) {
                continue;
            }
            const Source source{device, parameter, Decoder(profile.data(), parameter), *list};
            if (limited) {
                collectLimits(source, data.limits);
            }
            if (lamp) {
                collectWarnings(source, data.warnings);
            }
        }
    }
    std::ranges::stable_sort(data.limits, {}, &RecordLimit::time);
    std::ranges::stable_sort(data.warnings, {}, &RecordWarning::time);
}

} // namespace TARN
