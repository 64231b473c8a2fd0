#include "record/MemoryNeed.h"

#include "base/FreeMemory.h"
#include "record/RecordHeader.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

double promisedSamples(const std::list<QString>& files)
{
    double samples = 0.0;
    for (const QString& file : files) {
        samples += static_cast<double>(std::max<qint64>(0, sampleCountOf(QFileInfo(file).size())));
    }
    return samples;
}

bool fitMemory(double samples)
{
    constexpr double BytesPerSample = 40.0; // while it is read, indexes included
    const auto available = availableMemory();
    return !available || samples * BytesPerSample <= static_cast<double>(*available);
}

} // namespace TARN
