#include "record/Record.h"

#include "base/Diagnostics.h"
#include "record/RecordFile.h"
#include "record/RecordLoader.h"

namespace TARN {

bool Record::readRecordInfo(const QString& path)
{
    mRecordInfo.fileName = path;
    RecordFile file;
    mRecordInfo.unreadable = !file.open(path);
    if (mRecordInfo.unreadable) {
        diagnose("Could not open %s\n", qUtf8Printable(path));
        return false;
    }
    file.describe(mRecordInfo);
    return true;
}

bool Record::readRecordData(const std::list<QString>& paths, double offset)
{
    Progress none;
    return readRecordData(paths, offset, none);
}

bool Record::readRecordData(const std::list<QString>& paths, double offset, Progress& progress,
                            unsigned threads)
{
    mOffset = offset;
    return RecordLoader(*this, paths, progress).load(threads);
}

} // namespace TARN
