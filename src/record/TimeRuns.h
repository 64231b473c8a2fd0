#pragma once

#include "record/RecordEntry.h"

#include <cstddef>
#include <span>
#include <vector>

namespace TARN {

/// Finds the time order of samples that are met in file order. Recordings are in order, or in
/// order but for pieces that stand in the wrong place; both are noticed on the way, and only a
/// recording whose pieces overlap in time is sorted sample by sample.
class TimeRuns
{
public:
    /// Sample number \p index (0, 1, 2 ...) has the time \p time, seconds.
    void add(std::size_t index, double time)
    {
        if (mRuns.empty() || time < mRuns.back().last) {
            mRuns.push_back({index, time, time});
        } else {
            mRuns.back().last = time;
        }
    }

    /// Positions in \p samples by ascending time, equal times in file order, given the positions
    /// in file order. Empty when the two orders are the same.
    std::vector<std::uint32_t> order(const RecordEntry* samples,
                                     std::span<const std::uint32_t> fileOrder) const;

private:
    /// Neighbouring samples whose times don't fall.
    struct Run
    {
        std::size_t begin;
        double first;
        double last;
    };

    std::vector<Run> mRuns;
};

} // namespace TARN
