#pragma once

#include "record/RecordHeader.h"
#include "record/RecordInfo.h"

#include <QtCore/QFile>
#include <QtCore/QString>

#include <optional>
#include <span>
#include <vector>

namespace TARN {

/// One recording file, read in order in pieces of a quarter of a megabyte. The file is never
/// mapped: a card that is pulled out would then end the process instead of the reading.
class RecordFile
{
public:
    /// False when \p path is not a regular file that can be read. The header is read here.
    bool open(const QString& path);

    /// Samples by the file's size; below 1 when it is not longer than a header.
    qint64 samples() const { return mSamples; }

    /// Header bytes, fewer than 128 in a shorter file. Valid while the object lives.
    std::span<const unsigned char> header() const { return {mHeader.data(), mHeaderSize}; }
    /// The same padded with zeros.
    const RecordHeaderBytes& headerBytes() const { return mHeader; }

    /// Which samples are read from now on: \p begin (from 0) up to \p end, all after opening.
    bool select(std::size_t begin, std::size_t end);

    /// The next whole samples (a multiple of 28 bytes), empty after the last one or where reading
    /// fails. Valid until the next call.
    std::span<const unsigned char> nextSamples();

    /// Whether nextSamples ended because the system could not read on, and not where the file ends.
    bool hasReadError() const { return mHasReadError; }

    /// Seconds of sample \p index (from 0); nothing when it can't be read. Select anew before more
    /// samples are read.
    std::optional<double> timeOf(qint64 index, bool swapped);

    /// Puts what the header, the size and the time stamps of the first and last sample say into \p
    /// info; what the file does not give keeps its value. Ends the reading of samples.
    void describe(RecordInfo& info);

private:
    std::size_t readFully(unsigned char* to, std::size_t bytes);

    QFile mFile;
    RecordHeaderBytes mHeader{};
    std::size_t mHeaderSize = 0;
    std::vector<unsigned char> mBuffer;
    qint64 mSamples = 0;
    qint64 mIgnoredBytes = 0;
    qint64 mNext = 0;
    qint64 mEnd = 0;
    bool mHasReadError = false;
};

} // namespace TARN
