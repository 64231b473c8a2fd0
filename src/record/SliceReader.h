#pragma once

#include "record/RecordFile.h"
#include "record/SampleSlice.h"
#include "record/TimeCheck.h"
#include "record/UtcDetector.h"

#include <functional>
#include <vector>

namespace TARN {

/// A file of the recording that is to be read.
struct RecordPart
{
    QString path;
    std::size_t first;    ///< number of its first sample in the recording, from 0
    std::size_t promised; ///< samples by the size of the file when the reading was planned

    std::size_t end() const { return first + promised; }
};

/// The piece of a file that lies in a slice, and what reading it has shown.
struct RecordPiece
{
    std::size_t part;        ///< which file
    std::size_t begin;       ///< its first sample in the file, from 0
    std::size_t end;         ///< behind its last one
    bool isBeginning;        ///< the file begins with it
    std::size_t counted = 0; ///< samples counted in the slice up to its end

    bool opened = false;
    RecordHeaderBytes headerBytes{};
    std::size_t headerSize = 0;
    bool swapped = false;
    qint64 samplesNow = 0; ///< by the size of the file when it was read
    RecordInfo info = {};  ///< as a card lists the file; only where it begins
    std::size_t stored = 0;
    std::size_t ofOtherChannels = 0;
    TimeCheck check = {};
    UtcDetector utc = {};
    double utcTime = 0.0; ///< of the message that completed it, seconds
};

/// Reads one slice of a recording, on any thread, in the two passes that SampleSlice asks for.
class SliceReader
{
public:
    /// Told how many more samples were read; false asks to stop.
    using Listener = std::function<bool(std::size_t samples)>;

    /// The slice holds the samples \p begin up to \p end of the recording, and with \p isLast the
    /// files without a sample at its end.
    SliceReader(const std::vector<RecordPart>& parts, SampleSlice& slice, std::size_t begin,
                std::size_t end, bool isLast, Listener listener);

    /// First and second pass. False when it was asked to stop or a file went away.
    bool count();
    bool store();

    /// The file at which reading failed and which then was there no more; empty as a rule.
    const QString& lostFile() const { return mLostFile; }

    const std::vector<RecordPiece>& pieces() const { return mPieces; }

private:
    bool open(RecordPiece& piece, RecordFile& file);
    bool storePiece(RecordPiece& piece, RecordFile& file);
    bool isThere(const RecordPiece& piece, const RecordFile& file);

    const std::vector<RecordPart>& mParts;
    SampleSlice& mSlice;
    Listener mListener;
    std::vector<RecordPiece> mPieces;
    QString mLostFile;
};

} // namespace TARN
