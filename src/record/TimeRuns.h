#pragma once

#include "record/RecordEntry.h"

#include <cstddef>
#include <span>
#include <vector>

namespace TARN {

/// Finds the time order of samples that are met in file order. Recordings are in order, or in order
/// but for pieces that stand in the wrong place: the runs of rising times are noted on the way and
/// merged in whole stretches, so misplaced pieces cost next to nothing. Only where hardly two
/// neighbours are in order is each sample sorted.
class TimeRuns
{
public:
    /// Sample number \p index (0, 1, 2 ...) has the time \p time, seconds.
    void add(std::size_t index, double time)
    {
        if (mRuns.empty() || time < mLast) {
            mRuns.push_back({index, time});
        }
        mLast = time;
    }

    /// Samples that follow: number \p index is the first that \p next has seen.
    void append(std::size_t index, const TimeRuns& next);

    /// Positions in \p samples by ascending time, equal times in file order, given the positions in
    /// file order. Empty when the two orders are the same.
    std::vector<std::uint32_t> order(const RecordEntry* samples,
                                     std::span<const std::uint32_t> fileOrder) const;

private:
    std::vector<std::uint32_t> merged(const RecordEntry* samples,
                                      std::span<const std::uint32_t> fileOrder) const;

    /// Neighbouring samples whose times don't fall.
    struct Run
    {
        std::size_t begin;
        double first;
    };

    std::vector<Run> mRuns;
    double mLast = 0.0;
};

} // namespace TARN
