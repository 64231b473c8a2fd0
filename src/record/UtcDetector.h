#pragma once

#include "record/RecordEntry.h"

#include <QtCore/QDateTime>

namespace TARN {

/// Watches a file's samples for its first date and time-of-day messages.
class UtcDetector
{
public:
    static constexpr unsigned TimeId = 1200; ///< bytes 4..6: hour, minute, second
    static constexpr unsigned DateId = 1206; ///< bytes 4..7: day, month, year

    /// True for the one sample with which date and time became known; dateTime() then tells them.
    bool see(const RecordEntry& entry)
    {
        if (mDone || (entry.id != TimeId && entry.id != DateId)) {
            return false;
        }
        return take(entry);
    }

    bool isDone() const { return mDone; }                    ///< date and time are known
    bool hasSeenAny() const { return mHasDate || mHasTime; } ///< of its messages

    int year() const { return mYear; }
    int month() const { return mMonth; }
    int day() const { return mDay; }

    /// Invalid when the messages name a date that does not exist.
    QDateTime dateTime() const;

private:
    bool take(const RecordEntry& entry);

    bool mDone = false;
    bool mHasDate = false;
    bool mHasTime = false;
    int mYear = 0;
    int mMonth = 0;
    int mDay = 0;
    QDate mDate;
    QTime mTime;
};

} // namespace TARN
