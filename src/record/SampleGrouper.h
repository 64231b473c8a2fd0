#pragma once

#include "record/SampleSlice.h"

#include <memory>
#include <vector>

namespace TARN {

/// Brings the samples of one or more files into one block grouped by channel and identifier. The
/// work is done in slices, which follow each other in file order and can be read at the same time;
/// what comes of it does not depend on how many there are. Use: reserve, the first pass of every
/// slice, allocate, the second pass of every slice, finish.
class SampleGrouper
{
public:
    /// Room for at most \p samples, in slices of the same size; false when there is not enough
    /// memory.
    bool reserve(std::size_t samples, std::size_t slices);

    std::size_t slices() const { return mSlices.size(); }
    SampleSlice& slice(std::size_t i) { return *mSlices[i]; }
    const SampleSlice& slice(std::size_t i) const { return *mSlices[i]; }

    /// Between the passes, once no slice but the last has counted less than it has room for; false
    /// when there is not enough memory.
    bool allocate();

    /// Sample \p k in the order of the files, after the second pass.
    const RecordEntry& inFileOrder(std::size_t k) const { return mSamples[mOrder[k]]; }

    /// Hands samples, lists and time order over to \p data, replacing what it held. Where there are
    /// several slices each has stored all that it has counted.
    void finish(RecordData& data);

private:
    using Key = SampleSlice::Key;

    /// The samples of a channel and identifier in all slices.
    struct Total
    {
        Key key;
        std::size_t begin;
        std::size_t size;
        bool highFile;
    };

    void addTotals();
    void sumUp();

    std::vector<std::unique_ptr<SampleSlice>> mSlices; ///< too large for the stack
    std::unordered_map<Key, std::size_t, SampleSlice::SaltedHash> mIndex;
    std::vector<Total> mTotals; ///< in the order in which they are met
    LargeArray<RecordEntry> mSamples;
    LargeArray<std::uint32_t> mOrder;
};

} // namespace TARN
