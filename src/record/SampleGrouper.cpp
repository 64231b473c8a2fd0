#include "record/SampleGrouper.h"

#include <algorithm>
#include <limits>

namespace TARN {

bool SampleGrouper::reserve(std::size_t samples)
{
    if (samples > std::numeric_limits<std::uint32_t>::max()) {
        return false; // positions are 32 bits; this many samples would be over 120 GB of file
    }
    mReserved = samples;
    mRecent.fill({~Key(0), 0}); // no identifier has bit 31 set, so no key matches
    mOrder = makeLargeArray<std::uint32_t>(samples);
    return mOrder != nullptr;
}

void SampleGrouper::count(std::span<const unsigned char> samples, bool swapped)
{
    for (std::size_t at = 0; at + sizeof(RecordEntry) <= samples.size() && mCounted < mReserved;
         at += sizeof(RecordEntry)) {
        const std::uint32_t group = groupOf(keyAt(samples.data() + at, swapped));
        ++mGroups[group].size;
        mOrder[mCounted++] = group;
    }
}

bool SampleGrouper::allocate()
{
    mIndex = {};
    mSamples = makeLargeArray<RecordEntry>(mCounted);
    if (mSamples == nullptr) {
        return false;
    }
    std::size_t begin = 0;
    for (Group& group : mGroups) {
        group.begin = begin;
        begin += group.size;
        group.size = 0;
    }
    return true;
}

std::size_t SampleGrouper::storedOfOtherChannels() const
{
    std::size_t samples = 0;
    for (const Group& group : mGroups) {
        samples += (group.key >> 32) > 1 ? group.size : 0;
    }
    return samples;
}

void SampleGrouper::finish(RecordData& data)
{
    // All that may run out of memory comes before anything is handed over.
    std::vector<std::uint32_t> timeOrder = mRuns.order(mSamples.get(), {mOrder.get(), mStored});
    std::vector<RecordIdList> lists;
    lists.reserve(mGroups.size());
    std::ranges::sort(mGroups, {}, &Group::key);
    for (const Group& group : mGroups) {
        if (group.size > 0) {
            lists.push_back({static_cast<unsigned>(group.key >> 32),
                             static_cast<unsigned>(group.key),
                             {&mSamples[group.begin], group.size},
                             group.highFile});
        }
    }
    data.mCount = mStored;
    data.mLists = std::move(lists);
    data.mTimeOrder = std::move(timeOrder);
    data.mSamples = std::move(mSamples);
    data.mFileOrder = std::move(mOrder);
    data.mChannelLists.clear();
    data.limits.clear();
    data.warnings.clear();
}

std::uint32_t SampleGrouper::groupOf(Key key)
{
    // The multiplier spreads neighbouring identifiers over the table.
    Recent& recent = mRecent[(key * 0x9E3779B97F4A7C15ULL) >> 52];
    if (recent.key != key) {
        recent = {key, findOrAddGroup(key)};
    }
    return recent.group;
}

std::uint32_t SampleGrouper::findOrAddGroup(Key key)
{
    const auto [found, isNew] = mIndex.try_emplace(key, static_cast<std::uint32_t>(mGroups.size()));
    if (isNew) {
        mGroups.push_back({key, 0, 0, false});
    }
    return found->second;
}

} // namespace TARN
