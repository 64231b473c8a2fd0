#include "record/RecordInfo.h"

namespace TARN {

QString RecordInfo::dateTimeText() const
{
    return dateTime.toString("d.M.yyyy h:mm:ss");
}

} // namespace TARN
