#include "app/FlightReading.h"

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

} // namespace TARN
