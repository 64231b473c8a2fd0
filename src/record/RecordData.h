#pragma once

#include "base/LargeArray.h"
#include "record/RecordEntry.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace TARN {

/// All samples of one CAN identifier on one channel, in file order (their times may fall).
struct RecordIdList
{
    unsigned channel = 0;
    unsigned id = 0;
    std::span<const RecordEntry> entries;
    bool highFile = false; ///< the folder's time offset applies to these samples

    /// Seconds to add to every entry's time, given the recording's offset.
    double shift(double offset) const { return highFile ? offset : 0.0; }
};

/// The samples of a recording. Each is stored once, in one block grouped by channel and
/// identifier, so that decoding a parameter walks memory in order. The order of the file and the
/// order of time are 32-bit indexes over the block; where the file was in order, which is the
/// rule, they are one index.
///
///     block      | 0/500: s s s s s s | 0/501: s s s | 1/300: s s s s ...
///     fileOrder  | position of sample 0, 1, 2 ... of the file in the block
///     timeOrder  | the same by time; kept only when it differs
///
/// Spans and lists stay valid as long as the object. Any number of threads may read it.
class RecordData
{
public:
    RecordData();
    RecordData(RecordData&& other) noexcept;
    RecordData& operator=(RecordData&& other) noexcept;
    ~RecordData();

    /// Identifiers under which every sample of channel 0 and of channel 1 can be asked for in
    /// file order, each with its channel, identifier and two spare words in big-endian order.
    static constexpr unsigned AllOfChannel0 = 0x7FFFFFFF;
    static constexpr unsigned AllOfChannel1 = 0x7FFFFFFE;

    bool empty() const { return mCount == 0; }
    std::size_t count() const { return mCount; }

    /// Samples of an identifier; null when there are none. Never adds a list. The two
    /// all-of-channel lists are made when they are first asked for.
    const RecordIdList* find(unsigned channel, unsigned id) const;

    /// Lists by channel, then identifier; without the all-of-channel lists.
    std::span<const RecordIdList> lists() const { return mLists; }

    /// Sample \p k (below count()) in the order of the files.
    const RecordEntry& inFileOrder(std::size_t k) const { return mSamples[mFileOrder[k]]; }

    /// Sample \p k (below count()) by time; equal times stay in file order.
    const RecordEntry& inTimeOrder(std::size_t k) const
    {
        return mSamples[mTimeOrder.empty() ? mFileOrder[k] : mTimeOrder[k]];
    }

private:
    friend class SampleGrouper;

    struct ChannelList;
    static constexpr std::size_t ChannelLists = 2;

    const RecordIdList* findStored(unsigned channel, unsigned id) const;
    const RecordIdList* allOfChannel(unsigned channel, unsigned id) const;
    void fill(ChannelList& all, unsigned channel, unsigned id) const;

    std::size_t mCount = 0;
    LargeArray<RecordEntry> mSamples;
    LargeArray<std::uint32_t> mFileOrder;
    std::vector<std::uint32_t> mTimeOrder; ///< empty when it equals the file order
    std::vector<RecordIdList> mLists;      ///< by channel, then identifier
    std::unique_ptr<ChannelList[]> mChannelLists;
};

} // namespace TARN
