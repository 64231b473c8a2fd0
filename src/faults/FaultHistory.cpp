#include "faults/FaultHistory.h"

#include "base/ByteOrder.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cstdlib>
#include <ranges>

namespace TARN {

namespace {

std::uint32_t wordOf(const RecordEntry& entry)
{
    return loadBig<std::uint32_t>(entry.data + 4);
}

std::vector<FaultPoint> pointsOf(std::span<const RecordEntry> entries, std::uint32_t mask)
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

std::vector<FaultRun> runsOf(std::span<const RecordEntry> entries, std::uint32_t mask)
{
    std::vector<FaultRun> runs;
    for (const RecordEntry& entry : entries) {
        const std::uint32_t bits = wordOf(entry) & mask;
        const double time = runs.empty() ? entry.time() : std::max(runs.back().stop, entry.time());
        if (!runs.empty()) {
            runs.back().stop = time;
        }
        if (runs.empty() || runs.back().bits != bits) {
            runs.push_back({time, time, bits});
        }
    }
    return runs;
}

} // namespace

QColor errorColor(int type)
{
    switch (type) {
    case ErrorNone:
        return Qt::white;
    case ErrorInfo:
        return {150, 150, 255};
    case ErrorWarning:
        return {255, 200, 150};
    case ErrorFault:
        return {255, 150, 150};
    default:
        return {};
    }
}

FaultHistory::FaultHistory(const RecordData& record, const FaultMatrix& matrix) : mMatrix(&matrix)
{
    const RecordIdList* list = record.find(0, static_cast<unsigned>(matrix.id));
    if (list == nullptr) {
        return;
    }
    mEntries = list->entries;
    mIsShifted = list->highFile;
    std::uint32_t known = 0;
    for (const auto& [bit, parameter] : matrix.parameters) {
        known |= 1U << bit;
    }
    mRuns = runsOf(mEntries, known);
    if (!std::ranges::is_sorted(mEntries, {}, &RecordEntry::time)) {
        double latest = 0.0;
        for (const RecordEntry& entry : mEntries) {
            latest = std::max(latest, entry.time());
            mLatest.push_back(latest);
        }
    }
    for (const int type : {ErrorInfo, ErrorWarning, ErrorFault}) {
        mPoints[static_cast<std::size_t>(type - ErrorInfo)] = pointsOf(mEntries, bitsOfType(type));
    }
}

std::uint32_t FaultHistory::bitsOfType(int type) const
{
    std::uint32_t mask = 0;
    for (const auto& [bit, parameter] : mMatrix->parameters) {
        if (parameter.errorType == type) {
            mask |= 1U << bit;
        }
    }
    return mask;
}

int FaultHistory::worstOf(std::uint32_t bits) const
{
    for (const int type : {ErrorFault, ErrorWarning, ErrorInfo}) {
        if ((bits & bitsOfType(type)) != 0) {
            return type;
        }
    }
    return ErrorNone;
}

QString FaultHistory::namesOf(std::uint32_t bits) const
{
    QStringList names;
    for (const int type : {ErrorFault, ErrorWarning, ErrorInfo, ErrorNone}) {
        for (const auto& [bit, parameter] : mMatrix->parameters) {
            if (parameter.errorType == type && (bits >> bit & 1U) != 0) {
                names += parameter.name;
            }
        }
    }
    return names.join(", ");
}

std::vector<FaultChange> FaultHistory::changes(std::uint32_t bits) const
{
    std::vector<FaultChange> found;
    for (std::size_t i = 1; i < mEntries.size(); ++i) {
        const std::uint32_t before = wordOf(mEntries[i - 1]) & bits;
        const std::uint32_t now = wordOf(mEntries[i]) & bits;
        if (before != now) {
            found.push_back({mEntries[i].time(), now & ~before, before & ~now});
        }
    }
    return found;
}

std::optional<double> FaultHistory::changeNear(int x, double start, double stop, int width) const
{
    constexpr int Reach = 3; // pixels
    std::optional<double> nearest;
    int distance = Reach + 1;
    const auto bits = bitsOfType(ErrorInfo) | bitsOfType(ErrorWarning) | bitsOfType(ErrorFault);
    for (const FaultChange& change : changes(bits)) {
        const int away =
            std::abs(timelineX(static_cast<float>(change.time), start, stop, width) - x);
        if (away < distance) {
            distance = away;
            nearest = change.time;
        }
    }
    return nearest;
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
