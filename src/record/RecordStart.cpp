#include "record/RecordStart.h"

#include "record/Record.h"

namespace TARN {

RecordStart recordStart(const Record& record)
{
    const RecordInfo& info = record.recordInfo();
    if (info.utcTime != 0) {
        return {RecordStart::Data, info.utcTime, info.utcAt};
    }
    const auto& files = record.integrity().files;
    const RecordInfo& first = files.empty() ? info : files.front().info;
    if (first.dateTime.isValid()) {
        return {RecordStart::Header, first.dateTime.toSecsSinceEpoch(), first.startTime};
    }
    return {};
}

} // namespace TARN
