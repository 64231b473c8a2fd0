#pragma once

#include "record/RecordInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace TARN {

/// The 128 bytes before the first sample of a recording file.
using RecordHeaderBytes = std::array<unsigned char, 128>;

constexpr qint64 RecordHeaderSize = 128;
constexpr qint64 RecordSampleSize = 28;

/// What a header says apart from the fields of RecordInfo that are the same for every reader.
struct HeaderFacts
{
    bool swapped = false;   ///< the file is big-endian: its magic 0xABBA reads otherwise here
    double startTime = 0.0; ///< start time stamp, seconds on the recording's clock
};

/// Parses the header into the date and the texts of \p info. Reads no byte beyond \p header; a
/// field that is not there whole is 0, a text empty.
HeaderFacts parseRecordHeader(std::span<const unsigned char> header, RecordInfo& info);

/// Samples in a file of \p size bytes. A trailing part of a sample does not count; below 1 when
/// the file is not longer than its header.
constexpr qint64 sampleCountOf(qint64 size)
{
    return (size - RecordHeaderSize) / RecordSampleSize;
}

/// Bytes behind the last whole sample of such a file.
constexpr qint64 ignoredBytesOf(qint64 size)
{
    return size > RecordHeaderSize ? (size - RecordHeaderSize) % RecordSampleSize : 0;
}

} // namespace TARN
