#include "app/FlightReading.h"

#include "base/FreeMemory.h"
#include "record/RecordHeader.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

ReadFlight readFlight(const std::list<QString>& files, double offset,
                      std::shared_ptr<const Profile> profile, const QString& task,
                      Progress& progress)
{
    auto record = std::make_shared<Record>();
    if (!record->readRecordData(files, offset, progress)) {
        return {nullptr, nullptr, record->errorText()};
    }
    progress.begin(task);
    return {record, Flight::make(record, std::move(profile), progress), {}};
}

ReadFlight understoodBy(std::shared_ptr<const Profile> profile, const ReadFlight& read,
                        Progress& progress)
{
    return {read.record, Flight::make(read.record, std::move(profile), progress), {}};
}

std::list<QString> filesOf(const Flight* flight)
{
    std::list<QString> paths;
    if (flight != nullptr) {
        for (const FileIntegrity& file : flight->record()->integrity().files) {
            paths.push_back(file.info.fileName);
        }
    }
    return paths;
}

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
