#include "export/KmlMarks.h"

#include "base/ClockTime.h"
#include "base/Diagnostics.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"

namespace TARN {

namespace {

/// Marks while they are collected: the last sample of each parameter, by its uid. Only what stays
/// is turned into text.
struct Collected
{
    PathPosition position;
    std::map<int, const RecordEntry*> items;
};

void collect(int uid, const RecordIdList& list, double offset, const FlightPath& path, int interval,
             std::map<int, Collected>& marks)
{
    // Neighbouring samples mostly lie in one slot, and its mark need not be searched again.
    int lastSlot = 0;
    int lastNumber = 0;
    const RecordEntry** last = nullptr;
    for (const RecordEntry& entry : list.entries) {
        const double time = (entry.time() + list.shift(offset)) / path.slotWidth();
        const int slot = truncatedTo<int>(time);
        const int number = truncatedTo<int>(time / interval);
        if (last == nullptr || slot != lastSlot || number != lastNumber) {
            const PathPosition* position = path.position(slot);
            if (position == nullptr) {
                marks.erase(number);
                last = nullptr;
                continue;
            }
            Collected& mark = marks[number];
            mark.position = *position;
            last = &mark.items[uid];
            lastSlot = slot;
            lastNumber = number;
        }
        *last = &entry;
    }
}

/// Single precision: the names of marks have always been made from it.
QString markTime(int number, double slotWidth, int interval)
{
    const auto milliseconds = static_cast<float>(number * slotWidth * interval * 1000);
    return clockTime(truncatedTo<std::int64_t>(milliseconds)).toString("hh:mm:ss");
}

} // namespace

KmlMarks placeMarks(const Profile& profile, const RecordData& data, const FlightPath& path,
                    const KmlExportOptions& options, const ExportProgress& progress)
{
    KmlMarks marks;
    if (!options.placeMarkOn) {
        return marks;
    }
    std::map<int, Collected> collected;
    std::map<int, std::pair<std::string, Decoder>> sources; // by the parameter's uid
    const std::vector<const ProfileParameter*> parameters = profile.selectedParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const ProfileParameter* parameter = parameters[i];
        const RecordIdList* list = data.find(static_cast<unsigned>(parameter->channel),
                                             static_cast<unsigned>(parameter->id));
        if (list != nullptr) {
            collect(parameter->uid, *list, data.offset, path, options.placeMarkInterval, collected);
            sources.try_emplace(parameter->uid, parameter->title().toStdString(),
                                Decoder(profile.data(), *parameter));
        }
        if (progress) {
            progress(static_cast<int>(100 * (i + 1) / parameters.size()));
        }
    }
    for (const auto& [number, mark] : collected) {
        KmlMark& out = marks[number];
        out.position = mark.position;
        out.time = markTime(number, path.slotWidth(), options.placeMarkInterval);
        for (const auto& [uid, entry] : mark.items) {
            const auto& [name, decoder] = sources.at(uid);
            decoder.appendText(*entry, out.items.emplace_back(name).value);
        }
    }
    diagnose("mExportPlacemark size %zu step %d\n", marks.size(), options.placeMarkInterval);
    return marks;
}

KmlMarks errorMarks(const std::vector<RecordEvent>& events, const FlightPath& path)
{
    KmlMarks marks;
    for (const RecordEvent& event : events) {
        const int slot = path.slotOf(event.time);
        const PathPosition* position = path.position(slot);
        if (position == nullptr) {
            continue;
        }
        KmlMark& mark = marks[slot];
        mark.position = *position;
        mark.time = clockText(slot * path.slotWidth());
        mark.items.push_back({event.name, event.value});
    }
    return marks;
}

} // namespace TARN
