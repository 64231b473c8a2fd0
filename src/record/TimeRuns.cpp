#include "record/TimeRuns.h"

#include <algorithm>

namespace TARN {

namespace {

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

std::vector<std::uint32_t> TimeRuns::order(const RecordEntry* samples,
                                           std::span<const std::uint32_t> fileOrder) const
{
    if (mRuns.size() <= 1) {
        return {};
    }
    struct Piece : Run
    {
        std::size_t end;
    };
    std::vector<Piece> pieces;
    pieces.reserve(mRuns.size());
    for (std::size_t i = 0; i < mRuns.size(); ++i) {
        const auto end = i + 1 < mRuns.size() ? mRuns[i + 1].begin : fileOrder.size();
        pieces.push_back({mRuns[i], end});
    }
    std::ranges::stable_sort(pieces, {}, &Piece::first);
    // Where one piece ends as the next begins, file order decides between the equal times.
    const auto overlap = [](const Piece& a, const Piece& b) {
        return a.last > b.first || (a.last == b.first && a.begin > b.begin);
    };
    if (std::ranges::adjacent_find(pieces, overlap) != pieces.end()) {
        return sortedBySample(samples, fileOrder);
    }
    std::vector<std::uint32_t> order;
    order.reserve(fileOrder.size());
    for (const Piece& piece : pieces) {
        order.insert(order.end(), fileOrder.begin() + static_cast<std::ptrdiff_t>(piece.begin),
                     fileOrder.begin() + static_cast<std::ptrdiff_t>(piece.end));
    }
    return order;
}

} // namespace TARN
