#include "record/SliceReader.h"

#include "record/CardInfo.h"

#include <QtCore/QFileInfo>

#include <chrono>
#include <thread>
#include <utility>

namespace TARN {

namespace {

/// Whether a file goes away within a second. A card that is pulled out fails to be read a little
/// before its files are gone.
bool goesAway(const QString& path)
{
    constexpr int Looks = 10;
    constexpr std::chrono::milliseconds Pause(100);
    for (int look = 0; look < Looks && QFileInfo(path).isFile(); ++look) {
        std::this_thread::sleep_for(Pause);
    }
    return !QFileInfo(path).isFile();
}

} // namespace

SliceReader::SliceReader(const std::vector<RecordPart>& parts, SampleSlice& slice,
                         std::size_t begin, std::size_t end, bool isLast, Listener listener)
    : mParts(parts), mSlice(slice), mListener(std::move(listener))
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const RecordPart& part = parts[i];
        const std::size_t from = std::max(part.first, begin);
        const std::size_t to = std::min(part.end(), end);
        const bool isBeginning = part.first >= begin && (part.first < end || isLast);
        if (isBeginning || from < to) {
            mPieces.push_back({i, from - part.first, std::max(from, to) - part.first, isBeginning});
        }
    }
}

bool SliceReader::open(RecordPiece& piece, RecordFile& file)
{
    piece.opened = file.open(mParts[piece.part].path) && file.select(piece.begin, piece.end);
    RecordInfo unused;
    piece.swapped = piece.opened && parseRecordHeader(file.header(), unused).swapped;
    return piece.opened;
}

/// A file that can't be opened or read on is reported when it is to be stored.
bool SliceReader::count()
{
    for (RecordPiece& piece : mPieces) {
        RecordFile file;
        if (!open(piece, file)) {
            break;
        }
        for (auto samples = file.nextSamples(); !samples.empty(); samples = file.nextSamples()) {
            mSlice.count(samples, piece.swapped);
            if (!mListener(samples.size() / sizeof(RecordEntry))) {
                return false;
            }
        }
        piece.counted = mSlice.counted();
        if (!isThere(piece, file)) {
            return false;
        }
    }
    return true;
}

bool SliceReader::store()
{
    for (RecordPiece& piece : mPieces) {
        RecordFile file;
        if (!open(piece, file)) {
            break;
        }
        piece.headerBytes = file.headerBytes();
        piece.headerSize = file.header().size();
        piece.samplesNow = file.samples();
        if (!storePiece(piece, file)) {
            return false;
        }
        if (piece.isBeginning) {
            piece.info.fileName = mParts[piece.part].path;
            file.describe(piece.info);
        }
    }
    return true;
}

bool SliceReader::storePiece(RecordPiece& piece, RecordFile& file)
{
    const std::size_t before = mSlice.stored();
    const std::size_t others = mSlice.storedOfOtherChannels();
    const bool highFile = isHighFile(mParts[piece.part].path);
    if (piece.begin > 0) {
        const auto time = file.timeOf(static_cast<qint64>(piece.begin) - 1, piece.swapped);
        piece.check = time ? TimeCheck(*time) : TimeCheck();
        file.select(piece.begin, piece.end);
    }
    const auto visit = [&](const RecordEntry& entry) {
        piece.check.see(piece.begin + mSlice.stored() - before, entry.time());
        if (piece.utc.see(entry)) {
            piece.utcTime = entry.time();
        }
    };
    mSlice.beginFile(piece.counted);
    for (auto samples = file.nextSamples(); !samples.empty(); samples = file.nextSamples()) {
        mSlice.store(samples, piece.swapped, highFile, visit);
        if (!mListener(samples.size() / sizeof(RecordEntry))) {
            return false;
        }
    }
    mSlice.endFile();
    piece.stored = mSlice.stored() - before;
    piece.ofOtherChannels = mSlice.storedOfOtherChannels() - others;
    return isThere(piece, file);
}

bool SliceReader::isThere(const RecordPiece& piece, const RecordFile& file)
{
    const QString& path = mParts[piece.part].path;
    if (file.hasReadError() && goesAway(path)) {
        mLostFile = path;
    }
    return mLostFile.isEmpty();
}

} // namespace TARN
