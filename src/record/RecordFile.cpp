#include "record/RecordFile.h"

#include "base/ByteOrder.h"
#include "record/RecordEntry.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

namespace {
/// A quarter of a megabyte stays in the processor's cache until it is taken apart.
constexpr qint64 SamplesPerRead = (1 << 18) / RecordSampleSize;
} // namespace

bool RecordFile::open(const QString& path)
{
    mFile.close();
    mFile.setFileName(path);
    mNext = 0;
    mHeader.fill(0);
    // Opening a pipe would wait for a writer for ever.
    if (!QFileInfo(path).isFile() || !mFile.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const qint64 size = mFile.size();
    mSamples = sampleCountOf(size);
    mIgnoredBytes = ignoredBytesOf(size);
    mHeaderSize = readFully(mHeader.data(), mHeader.size());
    mEnd = mSamples;
    mHasReadError = false;
    return true;
}

bool RecordFile::select(std::size_t begin, std::size_t end)
{
    mNext = static_cast<qint64>(begin);
    mEnd = std::min(mSamples, static_cast<qint64>(end));
    return mFile.seek(RecordHeaderSize + mNext * RecordSampleSize);
}

std::span<const unsigned char> RecordFile::nextSamples()
{
    const qint64 wanted = std::min(mEnd - mNext, SamplesPerRead);
    if (wanted < 1) {
        return {};
    }
    mBuffer.resize(static_cast<std::size_t>(SamplesPerRead * RecordSampleSize));
    const auto got = readFully(mBuffer.data(), static_cast<std::size_t>(wanted * RecordSampleSize));
    const qint64 whole = static_cast<qint64>(got) / RecordSampleSize;
    // After a short read there is nothing more to come, whatever the size had promised.
    mNext = whole == wanted ? mNext + whole : mEnd;
    return {mBuffer.data(), static_cast<std::size_t>(whole * RecordSampleSize)};
}

void RecordFile::describe(RecordInfo& info)
{
    const HeaderFacts facts = parseRecordHeader(header(), info);
    info.samples = mSamples;
    info.missingHeaderBytes = RecordHeaderSize - static_cast<qint64>(mHeaderSize);
    info.ignoredBytes = mIgnoredBytes;
    info.startTime = facts.startTime;
    if (mSamples > 0) {
        info.startTime = timeOf(0, facts.swapped).value_or(facts.startTime);
        info.stopTime = timeOf(mSamples - 1, facts.swapped).value_or(info.startTime);
    }
    mNext = mEnd;
}

std::optional<double> RecordFile::timeOf(qint64 index, bool swapped)
{
    unsigned char words[8];
    constexpr qint64 TimeInSample = 20;
    if (!mFile.seek(RecordHeaderSize + index * RecordSampleSize + TimeInSample) ||
        readFully(words, sizeof words) != sizeof words) {
        return std::nullopt;
    }
    const auto load = swapped ? loadBig<std::uint32_t> : loadLittle<std::uint32_t>;
    return RecordEntry::secondsOf(load(words), load(words + 4));
}

std::size_t RecordFile::readFully(unsigned char* to, std::size_t bytes)
{
    std::size_t done = 0;
    while (done < bytes) {
        const qint64 got =
            mFile.read(reinterpret_cast<char*>(to + done), static_cast<qint64>(bytes - done));
        if (got <= 0) {
            mHasReadError = got < 0;
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

} // namespace TARN
