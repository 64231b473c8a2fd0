#include "PlainReader.h"

#include "Traffic.h"
#include "record/RecordData.h"

#include <algorithm>
#include <cstring>

namespace TARN::Bench {

namespace {

std::uint32_t number(const unsigned char* from, int width)
{
    std::uint32_t value = 0;
    for (int i = 0; i < width; ++i) {
        value = value << 8 | from[i];
    }
    return value;
}

RecordEntry parseSample(const unsigned char* from)
{
    RecordEntry entry;
    std::memcpy(entry.data, from, sizeof entry.data);
    entry.b8 = from[8];
    entry.b9 = from[9];
    entry.channel = static_cast<std::uint16_t>(number(from + 10, 2));
    entry.id = number(from + 12, 4) & 0x7FFFFFFFU;
    entry.w16 = static_cast<std::uint16_t>(number(from + 16, 2));
    entry.w18 = static_cast<std::uint16_t>(number(from + 18, 2));
    entry.timeHigh = number(from + 20, 4);
    entry.timeLow = number(from + 24, 4);
    return entry;
}

template <typename Visitor>
void forEachSample(const std::string& path, Visitor visit)
{
    const std::vector<unsigned char> bytes = readFile(path);
    for (std::size_t at = HeaderSize; at + SampleSize <= bytes.size(); at += SampleSize) {
        visit(parseSample(&bytes[at]));
    }
}

} // namespace

void Digest::add(const RecordEntry& entry)
{
    std::uint32_t words[sizeof(RecordEntry) / sizeof(std::uint32_t)];
    std::memcpy(words, &entry, sizeof entry);
    for (const std::uint32_t word : words) {
        sum = (sum ^ word) * 0x100000001B3ULL;
    }
    ++count;
}

Digest Digest::of(std::span<const RecordEntry> entries)
{
    Digest digest;
    for (const RecordEntry& entry : entries) {
        digest.add(entry);
    }
    return digest;
}

PlainRecord::PlainRecord(const std::string& path)
{
    forEachSample(path, [&](const RecordEntry& entry) {
        mSamples.push_back(entry);
        mLists[{entry.channel, entry.id}].add(entry);
    });
}

Digest PlainRecord::inTimeOrder() const
{
    std::vector<RecordEntry> sorted = mSamples;
    std::ranges::stable_sort(sorted, {}, &RecordEntry::time);
    return Digest::of(sorted);
}

} // namespace TARN::Bench
