#include "record/UtcDetector.h"

namespace TARN {

QDateTime UtcDetector::dateTime() const
{
    return mDate.isValid() ? QDateTime(mDate, mTime, Qt::UTC) : QDateTime();
}

bool UtcDetector::take(const RecordEntry& entry)
{
    const std::uint8_t* data = entry.data + 4;
    if (entry.id == DateId) {
        mDay = data[0];
        mMonth = data[1];
        mYear = data[2] << 8 | data[3];
        mDate = QDate(mYear, mMonth, mDay);
        mHasDate = true;
    } else {
        mTime = QTime(data[0], data[1], data[2]);
        mHasTime = true;
    }
    mDone = mHasDate && mHasTime;
    return mDone;
}

} // namespace TARN
