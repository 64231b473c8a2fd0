#pragma once

#include "record/RecordEntry.h"

#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace TARN::Bench {

using ListKey = std::pair<unsigned, unsigned>; ///< channel, identifier

/// Number of samples and a checksum over their bytes and their order.
struct Digest
{
    std::size_t count = 0;
    std::uint64_t sum = 0;

    void add(const RecordEntry& entry);
    static Digest of(std::span<const RecordEntry> entries);
    bool operator==(const Digest&) const = default;
};

/// A big-endian recording read in the plainest way, byte by byte, to check loaded ones against.
class PlainRecord
{
public:
    explicit PlainRecord(const std::string& path);

    std::span<const RecordEntry> samples() const { return mSamples; } ///< in file order
    const std::map<ListKey, Digest>& lists() const { return mLists; }
    Digest inTimeOrder() const;

private:
    std::vector<RecordEntry> mSamples;
    std::map<ListKey, Digest> mLists;
};

} // namespace TARN::Bench
