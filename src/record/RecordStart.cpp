#include "record/RecordStart.h"

#include "record/Record.h"

namespace TARN {

RecordStart recordStart(const Record& record)
{
    const RecordInfo& info = record.recordInfo();
    if (info.utcTime != 0) {
        return {RecordStart::Data, info.utcTime};
    }
    const auto& files = record.integrity().files;
    const QDateTime header = files.empty() ? info.dateTime : files.front().info.dateTime;
    if (header.isValid()) {
        return {RecordStart::Header, header.toSecsSinceEpoch()};
    }
    return {};
}

} // namespace TARN
