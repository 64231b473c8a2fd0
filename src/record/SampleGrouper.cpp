#include "record/SampleGrouper.h"

#include <limits>

namespace TARN {

bool SampleGrouper::reserve(std::size_t samples, std::size_t slices)
{
    if (samples > std::numeric_limits<std::uint32_t>::max()) {
        return false; // positions are 32 bits; this many samples would be over 120
                      // GB of file
    }
    mOrder = makeLargeArray<std::uint32_t>(samples);
    if (mOrder == nullptr) {
        return false;
    }
    for (std::size_t i = 0; i < slices; ++i) {
        const std::size_t begin = samples * i / slices;
        const std::size_t end = samples * (i + 1) / slices;
        mSlices.push_back(std::make_unique<SampleSlice>(std::span(&mOrder[begin], end - begin)));
    }
    return true;
}

bool SampleGrouper::allocate()
{
    addTotals();
    std::size_t samples = 0;
    for (Total& total : mTotals) {
        total.begin = samples;
        samples += total.size;
        total.size = 0;
    }
    mSamples = makeLargeArray<RecordEntry>(samples);
    if (mSamples == nullptr) {
        return false;
    }
    // In each group the samples of a slice stand behind those of the slices before it.
    for (const auto& slice : mSlices) {
        for (SampleSlice::Group& group : slice->mGroups) {
            Total& total = mTotals[mIndex.at(group.key)];
            group.begin = total.begin + total.size;
            total.size += group.size;
            group.size = 0;
        }
        slice->mIndex = {};
        slice->mBlock = {mSamples.get(), samples};
    }
    return true;
}

void SampleGrouper::addTotals()
{
    for (const auto& slice : mSlices) {
        for (const SampleSlice::Group& group : slice->mGroups) {
            const auto [found, isNew] = mIndex.try_emplace(group.key, mTotals.size());
            if (isNew) {
                mTotals.push_back({group.key, 0, 0, false});
            }
            mTotals[found->second].size += group.size;
        }
    }
}

/// What has been stored of each group, and by which file last.
void SampleGrouper::sumUp()
{
    for (Total& total : mTotals) {
        total.size = 0;
    }
    for (const auto& slice : mSlices) {
        for (const SampleSlice::Group& group : slice->mGroups) {
            Total& total = mTotals[mIndex.at(group.key)];
            total.size += group.size;
            total.highFile = group.size > 0 ? group.highFile : total.highFile;
        }
    }
}

void SampleGrouper::finish(RecordData& data)
{
    // All that may run out of memory comes before anything is handed over.
    TimeRuns runs;
    std::size_t stored = 0;
    for (const auto& slice : mSlices) {
        runs.append(stored, slice->mRuns);
        stored += slice->stored();
    }
    std::vector<std::uint32_t> timeOrder = runs.order(mSamples.get(), {mOrder.get(), stored});
    sumUp();
    std::ranges::sort(mTotals, {}, &Total::key);
    std::vector<RecordIdList> lists;
    lists.reserve(mTotals.size());
    for (const Total& total : mTotals) {
        if (total.size > 0) {
            lists.push_back({static_cast<unsigned>(total.key >> 32),
                             static_cast<unsigned>(total.key),
                             {&mSamples[total.begin], total.size},
                             total.highFile});
        }
    }
    data.mCount = stored;
    data.mLists = std::move(lists);
    data.mTimeOrder = std::move(timeOrder);
    data.mSamples = std::move(mSamples);
    data.mFileOrder = std::move(mOrder);
}

} // namespace TARN
