#include "record/TimeRuns.h"

#include <algorithm>
#include <ranges>

namespace TARN {

namespace {

/// What is left of a run: samples \p next to \p end of the file, the first of them at \p time.
struct Rest
{
    double time;
    std::size_t next;
    std::size_t end;
};

/// Whether \p a goes on after \p b; the file's order decides between equal times.
bool isLater(const Rest& a, const Rest& b)
{
    return a.time > b.time || (a.time == b.time && a.next > b.next);
}

/// First sample from \p begin to \p end, whose times don't fall, for which \p isBefore no longer
/// holds. Steps of doubling width find it as fast near as far.
template <typename Predicate>
std::size_t firstNot(std::size_t begin, std::size_t end, Predicate isBefore)
{
    std::size_t width = 1;
    while (width < end - begin && isBefore(begin + width)) {
        begin += width;
        width *= 2;
    }
    const auto searched = std::views::iota(begin, std::min(end, begin + width));
    return begin + static_cast<std::size_t>(std::ranges::partition_point(searched, isBefore) -
                                            searched.begin());
}

std::vector<std::uint32_t> sortedBySample(const RecordEntry* samples,
                                          std::span<const std::uint32_t> fileOrder)
{
    struct Timed
    {
        double time;
        std::uint32_t position;
    };
    std::vector<Timed> timed;
    timed.reserve(fileOrder.size());
    for (const std::uint32_t position : fileOrder) {
        timed.push_back({samples[position].time(), position});
    }
    std::ranges::stable_sort(timed, {}, &Timed::time);
    std::vector<std::uint32_t> order;
    order.reserve(timed.size());
    for (const Timed& sample : timed) {
        order.push_back(sample.position);
    }
    return order;
}

} // namespace

void TimeRuns::append(std::size_t index, const TimeRuns& next)
{
    if (next.mRuns.empty()) {
        return;
    }
    const bool goesOn = !mRuns.empty() && !(next.mRuns.front().first < mLast);
    for (std::size_t i = goesOn ? 1 : 0; i < next.mRuns.size(); ++i) {
        mRuns.push_back({index + next.mRuns[i].begin, next.mRuns[i].first});
    }
    mLast = next.mLast;
}

std::vector<std::uint32_t> TimeRuns::order(const RecordEntry* samples,
                                           std::span<const std::uint32_t> fileOrder) const
{
    if (mRuns.size() <= 1) {
        return {};
    }
    constexpr std::size_t WorthMerging = 8; // samples in a run
    if (mRuns.size() > fileOrder.size() / WorthMerging) {
        return sortedBySample(samples, fileOrder);
    }
    return merged(samples, fileOrder);
}

std::vector<std::uint32_t> TimeRuns::merged(const RecordEntry* samples,
                                            std::span<const std::uint32_t> fileOrder) const
{
    std::vector<Rest> rests; // a heap with the earliest on top
    for (std::size_t i = 0; i < mRuns.size(); ++i) {
        const auto end = i + 1 < mRuns.size() ? mRuns[i + 1].begin : fileOrder.size();
        rests.push_back({mRuns[i].first, mRuns[i].begin, end});
    }
    std::ranges::make_heap(rests, isLater);
    std::vector<std::uint32_t> order;
    order.reserve(fileOrder.size());
    const auto timeOf = [&](std::size_t k) { return samples[fileOrder[k]].time(); };
    while (!rests.empty()) {
        std::ranges::pop_heap(rests, isLater);
        Rest rest = rests.back();
        rests.pop_back();
        const auto isBeforeOthers = [&](std::size_t k) {
            return rests.empty() || isLater(rests.front(), {timeOf(k), k, k});
        };
        const std::size_t stop = firstNot(rest.next, rest.end, isBeforeOthers);
        order.insert(order.end(), fileOrder.begin() + static_cast<std::ptrdiff_t>(rest.next),
                     fileOrder.begin() + static_cast<std::ptrdiff_t>(stop));
        if (stop < rest.end) {
            rests.push_back({timeOf(stop), stop, rest.end});
            std::ranges::push_heap(rests, isLater);
        }
    }
    return order;
}

} // namespace TARN
