#include "record/RecordLoader.h"

#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "record/OffsetFile.h"
#include "record/SampleGrouper.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <new>
#include <thread>

namespace TARN {

namespace {

QString folderOf(const QString& path)
{
    return path.contains('/') ? path.section('/', 0, -2) : QString(".");
}

} // namespace

RecordLoader::RecordLoader(Record& record, const std::list<QString>& paths, Progress& progress)
    : mRecord(record), mProgress(progress)
{
    for (const QString& path : paths) {
        mParts.push_back({path, 0, 0});
    }
}

RecordLoader::~RecordLoader() = default;

bool RecordLoader::load(unsigned threads)
{
    try {
        plan();
        return tryToLoad(threads > 0 ? threads : threadsWorthwhile());
    } catch (const std::bad_alloc&) {
        mRecord.mRecordData = RecordData();
        mRecord.mIntegrity = RecordIntegrity();
        return fail(tr("not enough memory to read the recording; load fewer at once"));
    }
}

/// Samples promised by the sizes of all files.
void RecordLoader::plan()
{
    for (RecordPart& part : mParts) {
        RecordFile file;
        part.first = mPlanned;
        if (!file.open(part.path)) {
            break; // reported when it can't be opened to be stored
        }
        part.promised = static_cast<std::size_t>(std::max<qint64>(0, file.samples()));
        mPlanned += part.promised;
    }
}

std::size_t RecordLoader::threadsWorthwhile() const
{
    constexpr std::size_t SamplesWorthAThread = 1 << 17;
    constexpr std::size_t MostThreads = 4; // more would wait for the same memory
    const std::size_t threads =
        std::min<std::size_t>(std::thread::hardware_concurrency(), mPlanned / SamplesWorthAThread);
    return std::clamp<std::size_t>(threads, 1, MostThreads);
}

bool RecordLoader::tryToLoad(std::size_t slices)
{
    if (!makeSlices(slices)) {
        return failForMemory();
    }
    if (!run(&SliceReader::count)) {
        return false;
    }
    if (slices > 1 && !isWhole(&SampleSlice::counted)) {
        return tryToLoad(1);
    }
    if (!mGrouper->allocate()) {
        return failForMemory();
    }
    if (!run(&SliceReader::store)) {
        return false;
    }
    if (slices > 1 && !isWhole(&SampleSlice::stored)) {
        return tryToLoad(1);
    }
    const bool complete = takeOver();
    mGrouper->finish(mRecord.mRecordData);
    setUtc();
    mProgress.report(100);
    return complete;
}

bool RecordLoader::makeSlices(std::size_t slices)
{
    mRead = 0;
    mReaders.clear();
    mGrouper = std::make_unique<SampleGrouper>();
    if (!mGrouper->reserve(mPlanned, slices)) {
        return false;
    }
    std::size_t begin = 0;
    for (std::size_t i = 0; i < slices; ++i) {
        SampleSlice& slice = mGrouper->slice(i);
        const auto listener = [this, reports = i == 0](std::size_t samples) {
            const std::size_t read = mRead += samples;
            if (reports) { // on the thread to which the progress belongs
                mProgress.report(read, 2 * mPlanned);
            }
            return !mProgress.stopRequested();
        };
        mReaders.push_back(std::make_unique<SliceReader>(mParts, slice, begin, begin + slice.room(),
                                                         i + 1 == slices, listener));
        begin += slice.room();
    }
    return true;
}

/// One pass over all slices, the first on this thread. False when nothing more is to be done.
bool RecordLoader::run(bool (SliceReader::*pass)())
{
    // Where there is no room for a thread, its slice is read on this one after the first.
    constexpr auto Policy = std::launch::async | std::launch::deferred;
    std::vector<std::future<bool>> others;
    for (std::size_t i = 1; i < mReaders.size(); ++i) {
        others.push_back(std::async(Policy, pass, mReaders[i].get()));
    }
    bool goesOn = (mReaders.front().get()->*pass)();
    for (std::future<bool>& other : others) {
        goesOn = other.get() && goesOn;
    }
    for (const auto& reader : mReaders) {
        if (!reader->lostFile().isEmpty()) {
            return fail(tr("could not read the recording \"%1\" to its end; check that the card is "
                           "still in place")
                            .arg(reader->lostFile()));
        }
    }
    return goesOn && !mProgress.stopRequested();
}

/// Whether all slices hold as many samples as the files had promised when they were cut.
bool RecordLoader::isWhole(std::size_t (SampleSlice::*samples)() const) const
{
    for (std::size_t i = 0; i < mGrouper->slices(); ++i) {
        const SampleSlice& slice = mGrouper->slice(i);
        if ((slice.*samples)() != slice.room()) {
            return false;
        }
    }
    return true;
}

/// Goes through the files in their order with what the slices know of them. False at the first that
/// could not be opened.
bool RecordLoader::takeOver()
{
    for (std::size_t i = 0; i < mParts.size(); ++i) {
        Pieces pieces;
        for (const auto& reader : mReaders) {
            for (const RecordPiece& piece : reader->pieces()) {
                if (piece.part == i && piece.opened) {
                    pieces.push_back(&piece);
                }
            }
        }
        if (!enterPart(mParts[i], pieces)) {
            return false;
        }
        takePart(mParts[i], pieces);
    }
    return true;
}

bool RecordLoader::enterPart(const RecordPart& part, const Pieces& pieces)
{
    mRecord.mFolder = folderOf(part.path);
    const OffsetFile offset(mRecord.mFolder);
    mRecord.mOffset = offset.load(mRecord.mOffset);
    if (offset.isDamaged()) {
        mRecord.mIntegrity.damagedOffset = offset.path();
    }
    if (pieces.empty()) {
        diagnose("Could not open %s\n", qUtf8Printable(part.path));
        return fail(tr("could not open the recording \"%1\"; check that the card is still in place")
                        .arg(part.path));
    }
    return true;
}

void RecordLoader::takePart(const RecordPart& part, const Pieces& pieces)
{
    const RecordPiece& beginning = *pieces.front();
    RecordInfo& info = mRecord.mRecordInfo;
    info.fileName = part.path;
    info.samples = beginning.samplesNow;
    parseRecordHeader({beginning.headerBytes.data(), beginning.headerSize}, info);
    if (mTaken == 0) {
        mRecord.mRawData = beginning.headerBytes;
        mRecord.mRawDataIsBigEndian = beginning.swapped;
    }
    diagnose("Record::readData size %lld records %lld\n",
             static_cast<long long>(beginning.samplesNow * RecordSampleSize),
             static_cast<long long>(beginning.samplesNow));
    noteUtc(pieces);
    FileIntegrity integrity;
    for (const RecordPiece* piece : pieces) {
        integrity.samples += piece->stored;
        integrity.otherChannels += piece->ofOtherChannels;
    }
    if (integrity.samples > 0) {
        const TimeCheck check = timesOf(pieces);
        integrity.earliest = check.earliest();
        integrity.latest = check.latest();
        integrity.found = check.findings();
        widenTimes(check);
    }
    noteIntegrity(part, beginning, integrity);
    mTaken += integrity.samples;
    diagnose("Start Time %f Stop Time %f\n", info.startTime, info.stopTime);
    diagnose("<%s> mRecordInfo.startTime %.0f mRecordInfo.stopTime %.0f\n",
             qUtf8Printable(part.path), info.startTime, info.stopTime);
}

/// Each piece was judged as if the sample before it had a possible time. Where it had not, the
/// samples of the piece are judged again.
TimeCheck RecordLoader::timesOf(const Pieces& pieces) const
{
    TimeCheck check = pieces.front()->check;
    std::size_t at = mTaken + pieces.front()->stored;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const RecordPiece& piece = *pieces[i];
        if (!check.append(piece.begin + 1, piece.check)) {
            for (std::size_t k = 0; k < piece.stored; ++k) {
                check.see(piece.begin + k + 1, mGrouper->inFileOrder(at + k).time());
            }
        }
        at += piece.stored;
    }
    return check;
}

/// The first of several files that tells a date tells when the recording began. A date at the end
/// of one piece and a time of day in the next belong together.
void RecordLoader::noteUtc(const Pieces& pieces)
{
    UtcDetector utc = pieces.front()->utc;
    double time = pieces.front()->utcTime;
    std::size_t at = mTaken + pieces.front()->stored;
    for (std::size_t i = 1; i < pieces.size() && !utc.isDone(); ++i) {
        const RecordPiece& piece = *pieces[i];
        if (!utc.hasSeenAny()) {
            utc = piece.utc;
            time = piece.utcTime;
        } else if (piece.utc.hasSeenAny()) {
            for (std::size_t k = at; k < at + piece.stored && !utc.isDone(); ++k) {
                utc.see(mGrouper->inFileOrder(k));
                time = mGrouper->inFileOrder(k).time();
            }
        }
        at += piece.stored;
    }
    if (!utc.isDone()) {
        return;
    }
    const QDateTime start = utc.dateTime();
    if (start.isValid() && !mUtc) {
        mUtc = {start.toSecsSinceEpoch(), time, mTaken == 0};
    }
    diagnose("### Time <%s> year %d month %d day %d\n",
             qUtf8Printable(start.toString("dd.MM.yyyy hh:mm:ss")), utc.year(), utc.month(),
             utc.day());
}

/// Keeps what could be read of a file. It may have been cut or gone on growing meanwhile.
void RecordLoader::noteIntegrity(const RecordPart& part, const RecordPiece& beginning,
                                 FileIntegrity integrity)
{
    const auto promisedNow = static_cast<std::size_t>(std::max<qint64>(0, beginning.samplesNow));
    const std::size_t promised = std::max(part.promised, promisedNow);
    integrity.unread = promised - std::min(promised, integrity.samples);
    if (integrity.unread > 0) {
        diagnose("Could not read all of the file: %zu of %zu samples read\n", integrity.samples,
                 promised);
    }
    integrity.info = beginning.info;
    mRecord.mIntegrity.files.push_back(integrity);
}

/// What the first file tells counts for the recording's start. A later file tells what time it was
/// then; what lies between is subtracted.
void RecordLoader::setUtc()
{
    if (mUtc) {
        RecordInfo& info = mRecord.mRecordInfo;
        const double since = mUtc->isAtStart ? 0.0 : std::round(mUtc->time - info.startTime);
        info.utcTime = mUtc->utc - truncatedTo<qint64>(since);
        info.utcAt = mUtc->time - since;
    }
}

void RecordLoader::widenTimes(const TimeCheck& file)
{
    RecordInfo& info = mRecord.mRecordInfo;
    const bool isFirst = mTaken == 0;
    info.startTime = isFirst ? file.earliest() : std::min(info.startTime, file.earliest());
    info.stopTime = isFirst ? file.latest() : std::max(info.stopTime, file.latest());
}

bool RecordLoader::fail(const QString& reason)
{
    mRecord.mErrorText = reason;
    return false;
}

bool RecordLoader::failForMemory()
{
    return fail(
        tr("not enough memory for %1 samples; load fewer recordings at once").arg(mPlanned));
}

} // namespace TARN
