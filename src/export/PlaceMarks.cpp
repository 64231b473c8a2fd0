#include "export/PlaceMarks.h"

#include "base/ClockTime.h"

#include <algorithm>
#include <limits>
#include <map>

namespace TARN {

namespace {

constexpr int NoNumber = std::numeric_limits<int>::max();

/// Single precision: the names of marks have always been made from it.
QString markTime(int number, double slotWidth, int interval)
{
    const auto milliseconds = static_cast<float>(number * slotWidth * interval * 1000);
    return clockTime(truncatedTo<std::int64_t>(milliseconds)).toString("hh:mm:ss");
}

} // namespace

PlaceMarks::PlaceMarks(const ExportInput& input, const FlightPath& path,
                       const KmlExportOptions& options)
    : mPath(path), mOptions(options)
{
    if (!options.placeMarkOn) {
        return;
    }
    for (const ProfileParameter* parameter : input.selection.parameters(*input.flight->profile())) {
        Column column{.series = input.series(*parameter), .name = parameter->title().toStdString()};
        if (!column.series.empty()) {
            mSamples += column.series.size();
            mColumns.push_back(std::move(column));
        }
    }
}

int PlaceMarks::numberOf(double time) const
{
    return truncatedTo<int>(time / mPath.slotWidth() / mOptions.placeMarkInterval);
}

bool PlaceMarks::next(KmlMark& mark, Progress& progress)
{
    const PathPosition* place = nullptr;
    int number = NoNumber;
    while (place == nullptr) {
        number = NoNumber;
        for (const Column& column : mColumns) {
            if (column.next < column.series.size()) {
                number = std::min(number, numberOf(column.series.time(column.next)));
            }
        }
        if (number == NoNumber || progress.stopRequested()) {
            return false;
        }
        for (std::size_t i = 0; i < mColumns.size(); ++i) {
            collect(mColumns[i], number, i, place);
        }
        progress.report(mDone, mSamples);
    }
    mark.position = *place;
    mark.time = markTime(number, mPath.slotWidth(), mOptions.placeMarkInterval);
    mark.items.clear();
    for (Column& column : mColumns) {
        if (column.item != nullptr) {
            column.series.decoder().appendText(*column.item,
                                               mark.items.emplace_back(column.name).value);
        }
    }
    return true;
}

/// Takes the samples of a mark in the order of their list. \p place is where the mark is, null
/// while it is not there.
void PlaceMarks::collect(Column& column, int number, std::size_t columnsBefore,
                         const PathPosition*& place)
{
    const Series& series = column.series;
    const std::size_t begin = column.next;
    while (column.next < series.size() && numberOf(series.time(column.next)) == number) {
        ++column.next;
    }
    mDone += column.next - begin;
    column.item = nullptr;
    if (series.isInOrder()) {
        for (std::size_t k = begin; k < column.next; ++k) {
            take(column, series.entry(k), place, columnsBefore);
        }
        return;
    }
    std::vector<std::size_t> places;
    for (std::size_t k = begin; k < column.next; ++k) {
        places.push_back(series.place(k));
    }
    std::ranges::sort(places);
    for (const std::size_t at : places) {
        take(column, series.entries()[at], place, columnsBefore);
    }
}

void PlaceMarks::take(Column& column, const RecordEntry& entry, const PathPosition*& place,
                      std::size_t columnsBefore)
{
    const double time = column.series.timeOf(entry);
    const int slot = mPath.slotOf(time);
    if (slot != mSlot || !mIsSlotKnown) {
        mSlot = slot;
        mIsSlotKnown = true;
        mPosition = mPath.position(slot);
    }
    if (mPosition != nullptr) {
        column.item = &entry;
        place = mPosition;
        return;
    }
    mLeftOut += mOptions.range().contains(time) ? 1 : 0;
    place = nullptr;
    column.item = nullptr;
    for (std::size_t i = 0; i < columnsBefore; ++i) {
        mColumns[i].item = nullptr;
    }
}

std::vector<KmlMark> errorMarks(const std::vector<RecordEvent>& events, const FlightPath& path,
                                const TimeRange& range, std::size_t& leftOut)
{
    std::map<int, KmlMark> marks;
    for (const RecordEvent& event : events) {
        const int slot = path.slotOf(event.time);
        const PathPosition* position = path.position(slot);
        if (position == nullptr) {
            leftOut += range.contains(event.time) ? 1 : 0;
            continue;
        }
        KmlMark& mark = marks[slot];
        mark.position = *position;
        mark.time = clockText(slot * path.slotWidth());
        mark.items.push_back({event.name, event.value});
    }
    std::vector<KmlMark> list;
    for (auto& [slot, mark] : marks) {
        list.push_back(std::move(mark));
    }
    return list;
}

} // namespace TARN
