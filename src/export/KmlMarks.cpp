#include "export/KmlMarks.h"

#include "base/ClockTime.h"
#include "base/Diagnostics.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"

namespace TARN {

namespace {

/// Marks while they are collected: items by parameter.
struct Collected
{
    PathPosition position;
    std::map<int, KmlMark::Item> items; ///< by the parameter's uid
};

void collect(const Decoder& decoder, const ProfileParameter& parameter, const RecordIdList& list,
             double offset, const FlightPath& path, int interval, std::map<int, Collected>& marks)
{
    const std::string name = parameter.title().toStdString();
    for (const RecordEntry& entry : list.entries) {
        const double slot = (entry.time() + list.shift(offset)) / path.slotWidth();
        const int number = truncatedTo<int>(slot / interval);
        const PathPosition* position = path.position(truncatedTo<int>(slot));
        if (position == nullptr) {
            marks.erase(number);
            continue;
        }
        Collected& mark = marks[number];
        mark.position = *position;
        KmlMark::Item& item = mark.items[parameter.uid];
        item.name = name;
        item.value.clear();
        decoder.appendText(entry, item.value);
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
                    const KmlExportOptions& options)
{
    KmlMarks marks;
    if (!options.placeMarkOn) {
        return marks;
    }
    std::map<int, Collected> collected;
    for (const ProfileParameter* parameter : profile.selectedParameters()) {
        const RecordIdList* list = data.find(static_cast<unsigned>(parameter->channel),
                                             static_cast<unsigned>(parameter->id));
        if (list != nullptr) {
            collect(Decoder(profile.data(), *parameter), *parameter, *list, data.offset, path,
                    options.placeMarkInterval, collected);
        }
    }
    for (auto& [number, mark] : collected) {
        KmlMark& out = marks[number];
        out.position = mark.position;
        out.time = markTime(number, path.slotWidth(), options.placeMarkInterval);
        for (auto& [uid, item] : mark.items) {
            out.items.push_back(std::move(item));
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
