#pragma once

#include "record/RecordData.h"
#include "record/RecordHeader.h"
#include "record/RecordInfo.h"
#include "record/RecordIntegrity.h"

#include <QtCore/QString>

#include <functional>
#include <list>

namespace TARN {

/// One recording: its header and its samples, read from one file or from several that follow
/// each other.
class Record
{
public:
    /// Hears how much of a load is done, in percent, each value once.
    using ProgressListener = std::function<void(int percent)>;

    RecordInfo& recordInfo() { return mRecordInfo; }
    const RecordInfo& recordInfo() const { return mRecordInfo; }
    RecordData& recordData() { return mRecordData; }
    const RecordData& recordData() const { return mRecordData; }

    /// The 128 header bytes that an excerpt of this recording takes over: those of the last file
    /// that was opened while no sample had been read yet. Zeros before the first load.
    RecordHeaderBytes& rawData() { return mRawData; }
    /// Whether rawData() is in big-endian order.
    bool rawDataIsBigEndian() const { return mRawDataIsBigEndian; }

    void setProgressListener(ProgressListener listener) { mProgress = std::move(listener); }

    /// Header and time stamps of the first and last sample only, for listing a card. Information
    /// that the file does not give keeps its value; false when it could not be opened.
    bool readRecordInfo(const QString& path);

    /// Reads the files as one recording, replacing what was loaded. Stops at the first file that
    /// can't be opened and returns false; the samples of the files before it are there. False
    /// with nothing loaded when there is not enough memory. Invalidates all lists and spans.
    bool readRecordData(const std::list<QString>& paths);

    /// Gives the samples back; nothing is loaded then. Invalidates all lists and spans.
    void clear();

    /// What could be read of the files that are loaded, and what is odd about it.
    const RecordIntegrity& integrity() const { return mIntegrity; }

    /// What kept the last readRecordData from reading everything, naming the file, and what to do.
    const QString& errorText() const { return mErrorText; }

    /// The time offset belongs to the card folder and is kept there in Offset.xml, seconds.
    /// Setting writes the file; false when that failed (the offset then holds for this run). A
    /// file that can't be read is kept aside, never replaced.
    bool setOffset(double seconds);
    bool saveOffset() const;
    /// Keeps the present offset when the folder has no readable Offset.xml.
    void loadOffset();

private:
    class Loader;

    RecordInfo mRecordInfo;
    RecordData mRecordData;
    RecordIntegrity mIntegrity;
    RecordHeaderBytes mRawData{};
    bool mRawDataIsBigEndian = false;
    QString mFolder; ///< of the file last read
    QString mErrorText;
    ProgressListener mProgress;
};

} // namespace TARN
