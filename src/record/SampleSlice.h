#pragma once

#include "base/ByteOrder.h"
#include "record/RecordData.h"
#include "record/RecordHeader.h"
#include "record/TimeRuns.h"

#include <QtCore/QHashFunctions>

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <unordered_map>
#include <vector>

namespace TARN {

/// A stretch of the recording's samples in file order on their way into the block that is grouped
/// by channel and identifier, in two passes over the same bytes: count() says how long each group
/// becomes, store() then puts every sample straight into its place. Each slice belongs to one
/// thread; between the passes a SampleGrouper gives all slices their places. Use: count...,
/// store... for each file that lies in it.
///
/// The second pass may see other bytes than the first (a card pulled out, a file still being
/// written): samples that no longer fit their place are left out, what is there stays right.
class SampleSlice
{
public:
    /// \p order has an element for each sample of the slice. In the first pass it takes the group
    /// of each, in the second its position in the block.
    explicit SampleSlice(std::span<std::uint32_t> order) : mOrder(order)
    {
        mRecent.fill({~Key(0), 0}); // no identifier has bit 31 set, so no key matches
    }

    /// First pass. \p samples is a multiple of 28 bytes; \p swapped says that they are big-endian.
    void count(std::span<const unsigned char> samples, bool swapped);

    /// Second pass, over the bytes of the first in the same order: stores each sample and hands it
    /// to \p visit. \p highFile is the flag that the touched groups take.
    template <typename Visitor>
    void store(std::span<const unsigned char> samples, bool swapped, bool highFile, Visitor visit);

    /// Before a file's second pass: \p counted is what the first pass had counted with its last
    /// sample. Samples that a file has gained since are left out.
    void beginFile(std::size_t counted) { mFileEnd = counted; }

    /// After it: places of samples that the file has lost since stay empty.
    void endFile() { mRead = mFileEnd; }

    std::size_t room() const { return mOrder.size(); }
    std::size_t counted() const { return mCounted; }
    std::size_t stored() const { return mStored; }

    /// Samples stored of channels other than 0 and 1.
    std::size_t storedOfOtherChannels() const;

private:
    friend class SampleGrouper;
    using Key = std::uint64_t;

    /// Salted anew in each run: no file can be made whose keys all fall on one place.
    struct SaltedHash
    {
        std::size_t operator()(Key key) const { return qHash(key, QHashSeed::globalSeed()); }
    };

    struct Group
    {
        Key key;
        std::size_t begin; ///< place of the slice's first sample in the block
        std::size_t size;  ///< samples counted, in the second pass stored
        bool highFile;
    };

    static Key keyAt(const unsigned char* sample, bool swapped);
    std::uint32_t groupOf(Key key);
    std::uint32_t findOrAddGroup(Key key);

    /// Few identifiers make up the traffic; this finds most of them without the hash map.
    struct Recent
    {
        Key key;
        std::uint32_t group;
    };
    std::array<Recent, 4096> mRecent;
    std::unordered_map<Key, std::uint32_t, SaltedHash> mIndex;
    std::vector<Group> mGroups; ///< in the order in which they are met
    std::size_t mCounted = 0;
    std::size_t mRead = 0;
    std::size_t mFileEnd = 0;
    std::size_t mStored = 0;
    std::span<RecordEntry> mBlock; ///< of all slices
    std::span<std::uint32_t> mOrder;
    TimeRuns mRuns;
};

/// A field of a sample in host order.
template <typename Field>
Field fieldAt(const unsigned char* from, bool swapped)
{
    const auto field = loadLittle<Field>(from);
    return swapped ? byteSwapped(field) : field;
}

/// Brings the sample at \p from into host order, bit 31 of the identifier cleared. It is made field
/// by field where it is to stay: a processor that has just written a part of a sample waits long
/// before it can copy the whole.
inline void loadEntry(const unsigned char* from, bool swapped, RecordEntry& entry)
{
    std::memcpy(entry.data, from, sizeof entry.data);
    entry.b8 = from[8];
    entry.b9 = from[9];
    entry.channel = fieldAt<std::uint16_t>(from + 10, swapped);
    entry.id = fieldAt<std::uint32_t>(from + 12, swapped) & 0x7FFFFFFFU;
    entry.w16 = fieldAt<std::uint16_t>(from + 16, swapped);
    entry.w18 = fieldAt<std::uint16_t>(from + 18, swapped);
    entry.timeHigh = fieldAt<std::uint32_t>(from + 20, swapped);
    entry.timeLow = fieldAt<std::uint32_t>(from + 24, swapped);
}

/// The group that a sample belongs to: channel and identifier.
inline SampleSlice::Key SampleSlice::keyAt(const unsigned char* sample, bool swapped)
{
    const auto channel = fieldAt<std::uint16_t>(sample + 10, swapped);
    const auto id = fieldAt<std::uint32_t>(sample + 12, swapped);
    return Key(channel) << 32 | (id & 0x7FFFFFFFU);
}

template <typename Visitor>
void SampleSlice::store(std::span<const unsigned char> samples, bool swapped, bool highFile,
                        Visitor visit)
{
    for (std::size_t at = 0; at + sizeof(RecordEntry) <= samples.size() && mRead < mFileEnd;
         at += sizeof(RecordEntry)) {
        const unsigned char* from = samples.data() + at;
        Group& group = mGroups[mOrder[mRead++]];
        if (group.key != keyAt(from, swapped)) {
            continue;
        }
        const std::size_t position = group.begin + group.size++;
        group.highFile = highFile;
        RecordEntry& entry = mBlock[position];
        // A hundred places are written in turn, too many for the processor to see what is next.
        __builtin_prefetch(&mBlock[std::min(position + 4, mBlock.size() - 1)], 1);
        loadEntry(from, swapped, entry);
        mOrder[mStored] = static_cast<std::uint32_t>(position);
        mRuns.add(mStored, entry.time());
        ++mStored;
        visit(entry);
    }
}

} // namespace TARN
