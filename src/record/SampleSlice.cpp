#include "record/SampleSlice.h"

namespace TARN {

void SampleSlice::count(std::span<const unsigned char> samples, bool swapped)
{
    for (std::size_t at = 0; at + sizeof(RecordEntry) <= samples.size() && mCounted < room();
         at += sizeof(RecordEntry)) {
        const std::uint32_t group = groupOf(keyAt(samples.data() + at, swapped));
        ++mGroups[group].size;
        mOrder[mCounted++] = group;
    }
}

std::size_t SampleSlice::storedOfOtherChannels() const
{
    std::size_t samples = 0;
    for (const Group& group : mGroups) {
        samples += (group.key >> 32) > 1 ? group.size : 0;
    }
    return samples;
}

std::uint32_t SampleSlice::groupOf(Key key)
{
    // The multiplier spreads neighbouring identifiers over the table.
    Recent& recent = mRecent[(key * 0x9E3779B97F4A7C15ULL) >> 52];
    if (recent.key != key) {
        recent = {key, findOrAddGroup(key)};
    }
    return recent.group;
}

std::uint32_t SampleSlice::findOrAddGroup(Key key)
{
    const auto [found, isNew] = mIndex.try_emplace(key, static_cast<std::uint32_t>(mGroups.size()));
    if (isNew) {
        mGroups.push_back({key, 0, 0, false});
    }
    return found->second;
}

} // namespace TARN
