#include "record/RecordData.h"

#include "base/ByteOrder.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace TARN {

const RecordIdList* RecordData::find(unsigned channel, unsigned id) const
{
    if ((channel == 0 && id == AllOfChannel0) || (channel == 1 && id == AllOfChannel1)) {
        return allOfChannel(channel, id);
    }
    return findStored(channel, id);
}

const RecordIdList* RecordData::findStored(unsigned channel, unsigned id) const
{
    const auto key = std::pair(channel, id);
    const auto keyOf = [](const RecordIdList& list) { return std::pair(list.channel, list.id); };
    const auto found = std::ranges::lower_bound(mLists, key, {}, keyOf);
    return found != mLists.end() && keyOf(*found) == key ? &*found : nullptr;
}

/// All samples of a channel, in the byte order in which they are exported.
struct RecordData::ChannelList
{
    std::once_flag made;
    std::vector<RecordEntry> entries;
    RecordIdList list;
};

RecordData::RecordData() : mChannelLists(std::make_unique<ChannelList[]>(ChannelLists)) {}
RecordData::RecordData(RecordData&& other) noexcept = default;
RecordData& RecordData::operator=(RecordData&& other) noexcept = default;
RecordData::~RecordData() = default;

const RecordIdList* RecordData::allOfChannel(unsigned channel, unsigned id) const
{
    ChannelList& all = mChannelLists[channel];
    std::call_once(all.made, [&] { fill(all, channel, id); });
    return all.entries.empty() ? nullptr : &all.list;
}

void RecordData::fill(ChannelList& all, unsigned channel, unsigned id) const
{
    all.entries.clear(); // of an attempt that ran out of memory
    for (std::size_t k = 0; k < mCount; ++k) {
        RecordEntry entry = inFileOrder(k);
        if (entry.channel != channel) {
            continue;
        }
        if (entry.id == id) {
            all.entries.push_back(entry); // really sent under this identifier
        }
        entry.channel = byteSwapped(entry.channel);
        entry.id = byteSwapped(entry.id);
        entry.w16 = byteSwapped(entry.w16);
        entry.w18 = byteSwapped(entry.w18);
        all.entries.push_back(entry);
    }
    const RecordIdList* stored = findStored(channel, id);
    all.list = {channel, id, all.entries, stored != nullptr && stored->highFile};
}

} // namespace TARN
