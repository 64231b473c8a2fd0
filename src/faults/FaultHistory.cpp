#include "faults/FaultHistory.h"

#include "base/ByteOrder.h"
#include "base/Numbers.h"

#include <algorithm>
#include <ranges>

namespace TARN {

namespace {

std::uint32_t wordOf(const RecordEntry& entry)
{
    return loadBig<std::uint32_t>(entry.data + 4);
}

/// Bits of a matrix whose errors are of this type.
std::uint32_t bitsOfType(const FaultMatrix& matrix, int type)
{
    std::uint32_t mask = 0;
    for (const auto& [bit, parameter] : matrix.parameters) {
        if (parameter.errorType == type) {
            mask |= 1U << bit;
        }
    }
    return mask;
}

std::vector<FaultPoint> changesOf(std::span<const RecordEntry> entries, std::uint32_t mask)
{
    std::vector<FaultPoint> points;
    for (const RecordEntry& entry : entries) {
        const bool state = (wordOf(entry) & mask) != 0;
        if (points.empty() || points.back().state != state) {
            points.push_back({static_cast<float>(entry.time()), state});
        }
    }
    if (!points.empty()) {
        points.push_back({static_cast<float>(entries.back().time()), points.back().state});
    }
    return points;
}

} // namespace

FaultHistory::FaultHistory(const RecordData& record, const FaultMatrix& matrix)
{
    const RecordIdList* list = record.find(0, static_cast<unsigned>(matrix.id));
    if (list == nullptr) {
        return;
    }
    mEntries = list->entries;
    if (!std::ranges::is_sorted(mEntries, {}, &RecordEntry::time)) {
        double latest = 0.0;
        for (const RecordEntry& entry : mEntries) {
            latest = std::max(latest, entry.time());
            mLatest.push_back(latest);
        }
    }
    mTyped = bitsOfType(matrix, ErrorInfo) | bitsOfType(matrix, ErrorWarning) |
             bitsOfType(matrix, ErrorFault);
    mInfo = changesOf(mEntries, bitsOfType(matrix, ErrorInfo));
    mWarning = changesOf(mEntries, bitsOfType(matrix, ErrorWarning));
    mFault = changesOf(mEntries, bitsOfType(matrix, ErrorFault));
}

void FaultHistory::appendChangeTimes(std::vector<double>& times) const
{
    for (std::size_t i = 1; i < mEntries.size(); ++i) {
        if (((wordOf(mEntries[i]) ^ wordOf(mEntries[i - 1])) & mTyped) != 0) {
            times.push_back(mEntries[i].time());
        }
    }
}

int FaultHistory::timelineX(float time, double start, double stop, int width)
{
    if (start == stop) {
        return 0;
    }
    const auto pixelsPerSecond = static_cast<float>(width / (stop - start));
    return truncatedTo<int>(pixelsPerSecond * static_cast<float>(time - start));
}

std::uint32_t FaultHistory::bitsAt(double time) const
{
    constexpr double Tolerance = 0.01;
    const auto numbers = std::views::iota(std::size_t(0), mEntries.size());
    // The first message after the time is the first at which the latest time so far is after it.
    const auto later =
        std::ranges::upper_bound(numbers, time + Tolerance, {}, [this](std::size_t i) {
            return mLatest.empty() ? mEntries[i].time() : mLatest[i];
        });
    if (later == numbers.end()) {
        return 0;
    }
    return wordOf(mEntries[*later == 0 ? 0 : *later - 1]);
}

} // namespace TARN
