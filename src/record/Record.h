#pragma once

#include "base/Progress.h"
#include "record/RecordData.h"
#include "record/RecordHeader.h"
#include "record/RecordInfo.h"
#include "record/RecordIntegrity.h"

#include <QtCore/QString>

#include <list>

namespace TARN {

/// One recording: its header and its samples, read from one file or from several that follow each
/// other. It is read once and never changes afterwards; whoever shows it shares it.
class Record
{
public:
    const RecordInfo& recordInfo() const { return mRecordInfo; }
    const RecordData& recordData() const { return mRecordData; }

    /// The 128 header bytes that an excerpt of this recording takes over: those of the last file
    /// that was opened while no sample had been read yet. Zeros before the first load.
    const RecordHeaderBytes& rawData() const { return mRawData; }
    /// Whether rawData() is in big-endian order.
    bool rawDataIsBigEndian() const { return mRawDataIsBigEndian; }

    /// What could be read of the files, and what is odd about it.
    const RecordIntegrity& integrity() const { return mIntegrity; }

    /// Folder of the file last read; its time offset holds for the recording.
    const QString& folder() const { return mFolder; }
    /// That offset as it was when the recording was read, seconds.
    double offset() const { return mOffset; }

    /// Header and time stamps of the first and last sample only, for listing a card. Information
    /// that the file does not give keeps its value; false when it could not be opened.
    bool readRecordInfo(const QString& path);

    /// Reads the files as one recording. \p offset holds where a folder has none of its own. Stops
    /// at the first file that can't be opened and returns false; the samples of the files before it
    /// are there. False with nothing read when there is not enough memory or when it was asked to
    /// stop. Only for a record into which nothing was read before. What is read does not depend on
    /// the number of threads that read it, 0 for as many as pay.
    bool readRecordData(const std::list<QString>& paths, double offset = 0.0);
    bool readRecordData(const std::list<QString>& paths, double offset, Progress& progress,
                        unsigned threads = 0);

    /// What kept readRecordData from reading everything, naming the file, and what to do. Empty
    /// where it was asked to stop.
    const QString& errorText() const { return mErrorText; }

private:
    friend class RecordLoader;

    RecordInfo mRecordInfo;
    RecordData mRecordData;
    RecordIntegrity mIntegrity;
    RecordHeaderBytes mRawData{};
    bool mRawDataIsBigEndian = false;
    QString mFolder;
    double mOffset = 0.0;
    QString mErrorText;
};

} // namespace TARN
