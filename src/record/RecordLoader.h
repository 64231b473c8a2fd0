#pragma once

#include "record/Record.h"
#include "record/SliceReader.h"

#include <QtCore/QCoreApplication>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace TARN {

class SampleGrouper;

/// Reads the files of a recording into a Record: one call of its readRecordData. The samples are
/// cut into slices of the same size, one for each thread; the files may have to be read anew in one
/// slice where they change meanwhile.
class RecordLoader
{
    Q_DECLARE_TR_FUNCTIONS(Record)

public:
    /// The record is empty; both outlive the loader.
    RecordLoader(Record& record, const std::list<QString>& paths, Progress& progress);
    ~RecordLoader();

    /// See Record::readRecordData. Catches the lack of memory.
    bool load(unsigned threads);

private:
    /// Where and when the recording tells its date, if it does.
    struct UtcStart
    {
        qint64 utc;     ///< seconds since 1970 as the messages tell
        double time;    ///< of the message with which it became known, seconds
        bool isAtStart; ///< told by the first file with samples
    };

    using Pieces = std::vector<const RecordPiece*>; ///< of one file, in order

    void plan();
    std::size_t threadsWorthwhile() const;
    bool tryToLoad(std::size_t slices);
    bool makeSlices(std::size_t slices);
    bool run(bool (SliceReader::*pass)());
    bool isWhole(std::size_t (SampleSlice::*samples)() const) const;
    bool takeOver();
    bool enterPart(const RecordPart& part, const Pieces& pieces);
    void takePart(const RecordPart& part, const Pieces& pieces);
    TimeCheck timesOf(const Pieces& pieces) const;
    void noteUtc(const Pieces& pieces);
    void noteIntegrity(const RecordPart& part, const RecordPiece& beginning,
                       FileIntegrity integrity);
    void widenTimes(const TimeCheck& file);
    void setUtc();
    bool fail(const QString& reason);
    bool failForMemory();

    Record& mRecord;
    Progress& mProgress;
    std::vector<RecordPart> mParts;
    std::size_t mPlanned = 0;
    std::unique_ptr<SampleGrouper> mGrouper;
    std::vector<std::unique_ptr<SliceReader>> mReaders; ///< one for each slice
    std::atomic<std::size_t> mRead = 0;                 ///< samples, in both passes together
    std::size_t mTaken = 0;                             ///< samples of the files taken over
    std::optional<UtcStart> mUtc;
};

} // namespace TARN
