#include "base/Diagnostics.h"
#include "record/Record.h"
#include "record/RecordFile.h"
#include "record/SampleGrouper.h"
#include "record/TimeCheck.h"
#include "record/UtcDetector.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <memory>
#include <new>

namespace TARN {

namespace {

/// Names of the form xxxxHHHH... carry a hexadecimal number; its upper half marks a unit whose
/// clock the folder's time offset corrects.
bool isHighFile(const QString& path)
{
    const QString name = path.section('/', -1);
    return name.mid(4, 4).toInt(nullptr, 16) > 32767;
}

QString folderOf(const QString& path)
{
    return path.contains('/') ? path.section('/', 0, -2) : QString(".");
}

} // namespace

/// One call of readRecordData.
class Record::Loader
{
    Q_DECLARE_TR_FUNCTIONS(Record)

public:
    Loader(Record& record, const std::list<QString>& paths) : mRecord(record)
    {
        for (const QString& path : paths) {
            mParts.push_back({path, 0, 0});
        }
    }

    bool load()
    {
        // First, so that the two recordings are never in memory together.
        mRecord.clear();
        mRecord.mRecordInfo.utcTime = 0;
        mGrouper = std::make_unique<SampleGrouper>();
        const bool hasRoom = mGrouper->reserve(plannedSamples());
        if (hasRoom) {
            countAll();
        }
        if (!hasRoom || !mGrouper->allocate()) {
            return fail(tr("not enough memory for %1 samples; load fewer recordings at once")
                            .arg(mPlanned));
        }
        const bool complete = storeAll();
        mGrouper->finish(mRecord.mRecordData);
        report(1, 1);
        return complete;
    }

private:
    struct Part
    {
        QString path;
        std::size_t promised;  ///< samples by the size of the file
        std::size_t countedTo; ///< samples counted up to the end of this file
    };

    /// Samples promised by the sizes of all files, and what there is to do for the progress.
    std::size_t plannedSamples()
    {
        for (Part& part : mParts) {
            RecordFile file;
            if (!file.open(part.path)) {
                break;
            }
            part.promised = static_cast<std::size_t>(std::max<qint64>(0, file.samples()));
            mPlanned += part.promised;
        }
        return mPlanned;
    }

    void countAll()
    {
        for (Part& part : mParts) {
            RecordFile file;
            if (!file.open(part.path)) {
                break; // reported when it can't be opened to be stored
            }
            RecordInfo unused;
            const bool swapped = parseRecordHeader(file.header(), unused).swapped;
            for (auto samples = file.nextSamples(); !samples.empty();
                 samples = file.nextSamples()) {
                mGrouper->count(samples, swapped);
                report(mGrouper->counted(), 2 * mPlanned);
            }
            part.countedTo = mGrouper->counted();
        }
    }

    bool storeAll()
    {
        for (const Part& part : mParts) {
            mRecord.mFolder = folderOf(part.path);
            mRecord.loadOffset();
            RecordFile file;
            if (!file.open(part.path)) {
                diagnose("Could not open %s\n", qUtf8Printable(part.path));
                return fail(tr("could not open the recording \"%1\"; check that the card is "
                               "still in place")
                                .arg(part.path));
            }
            mRecord.mRecordInfo.fileName = part.path;
            mRecord.mRecordInfo.samples = file.samples();
            const bool swapped = readHeader(file);
            mGrouper->beginFile(part.countedTo);
            storeFile(file, part, swapped);
            mGrouper->endFile();
            diagnose("<%s> mRecordInfo.startTime %.0f mRecordInfo.stopTime %.0f\n",
                     qUtf8Printable(part.path), mRecord.mRecordInfo.startTime,
                     mRecord.mRecordInfo.stopTime);
        }
        return true;
    }

    bool readHeader(const RecordFile& file)
    {
        const bool swapped = parseRecordHeader(file.header(), mRecord.mRecordInfo).swapped;
        if (mGrouper->stored() == 0) {
            mRecord.mRawData = file.headerBytes();
            mRecord.mRawDataIsBigEndian = swapped;
        }
        return swapped;
    }

    void storeFile(RecordFile& file, const Part& part, bool swapped)
    {
        diagnose("Record::readData size %lld records %lld\n",
                 static_cast<long long>(file.samples() * RecordSampleSize),
                 static_cast<long long>(file.samples()));
        const std::size_t before = mGrouper->stored();
        const std::size_t others = mGrouper->storedOfOtherChannels();
        const bool highFile = isHighFile(part.path);
        UtcDetector utc;
        TimeCheck check;
        const auto visit = [&](const RecordEntry& entry) {
            check.see(mGrouper->stored() - before, entry.time());
            if (utc.see(entry)) {
                setUtc(utc);
            }
        };
        for (auto samples = file.nextSamples(); !samples.empty(); samples = file.nextSamples()) {
            mGrouper->store(samples, swapped, highFile, visit);
            report(mPlanned + mGrouper->stored(), 2 * mPlanned);
        }
        const std::size_t got = mGrouper->stored() - before;
        if (got > 0) {
            widenTimes(check, before == 0);
        }
        note(file, part,
             {{}, got, 0, mGrouper->storedOfOtherChannels() - others, check.findings()});
        diagnose("Start Time %f Stop Time %f\n", mRecord.mRecordInfo.startTime,
                 mRecord.mRecordInfo.stopTime);
    }

    /// Keeps what could be read of a file. It may have been cut or gone on growing meanwhile.
    void note(RecordFile& file, const Part& part, FileIntegrity integrity)
    {
        const auto promisedNow = static_cast<std::size_t>(std::max<qint64>(0, file.samples()));
        const std::size_t promised = std::max(part.promised, promisedNow);
        integrity.unread = promised - std::min(promised, integrity.samples);
        if (integrity.unread > 0) {
            diagnose("Could not read all of the file: %zu of %zu samples read\n", integrity.samples,
                     promised);
        }
        integrity.info.fileName = part.path;
        file.describe(integrity.info);
        mRecord.mIntegrity.files.push_back(integrity);
    }

    bool fail(const QString& reason)
    {
        mRecord.mErrorText = reason;
        return false;
    }

    void widenTimes(const TimeCheck& file, bool isFirst)
    {
        RecordInfo& info = mRecord.mRecordInfo;
        info.startTime = isFirst ? file.earliest() : std::min(info.startTime, file.earliest());
        info.stopTime = isFirst ? file.latest() : std::max(info.stopTime, file.latest());
    }

    void setUtc(const UtcDetector& utc)
    {
        const QDateTime start = utc.dateTime();
        // The first of several files tells when the recording began.
        if (start.isValid() && mRecord.mRecordInfo.utcTime == 0) {
            mRecord.mRecordInfo.utcTime = start.toSecsSinceEpoch();
        }
        diagnose("### Time <%s> year %d month %d day %d\n",
                 qUtf8Printable(start.toString("dd.MM.yyyy hh:mm:ss")), utc.year(), utc.month(),
                 utc.day());
    }

    void report(std::size_t done, std::size_t all)
    {
        const int percent = static_cast<int>(100.0 * static_cast<double>(done) /
                                             static_cast<double>(std::max<std::size_t>(1, all)));
        if (percent != mLastPercent && mRecord.mProgress) {
            mRecord.mProgress(percent);
        }
        mLastPercent = percent;
    }

    Record& mRecord;
    std::vector<Part> mParts;
    std::unique_ptr<SampleGrouper> mGrouper; // too large for the stack
    std::size_t mPlanned = 0;
    int mLastPercent = -1;
};

bool Record::readRecordData(const std::list<QString>& paths)
{
    mErrorText.clear();
    try {
        return Loader(*this, paths).load();
    } catch (const std::bad_alloc&) {
        clear();
        mErrorText = Loader::tr("not enough memory to read the recording; load fewer at once");
        return false;
    }
}

} // namespace TARN
