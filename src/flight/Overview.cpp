#include "flight/Overview.h"

#include "base/FreeMemory.h"
#include "flight/FlightSummary.h"

#include <QtCore/QFileInfo>

namespace TARN {

namespace {

constexpr double MostOfMemory = 0.25;

bool isTooLarge(const std::list<QString>& files)
{
    constexpr double MemoryOfByte = 2.0; // samples, their order, what is found in them
    double bytes = 0.0;
    for (const QString& file : files) {
        bytes += static_cast<double>(QFileInfo(file).size());
    }
    const auto available = availableMemory();
    return available && bytes * MemoryOfByte > MostOfMemory * static_cast<double>(*available);
}

} // namespace

std::optional<Overview> overviewOf(const std::list<QString>& files,
                                   const std::shared_ptr<const Profile>& profile,
                                   Progress& progress)
{
    auto record = std::make_shared<Record>();
    if (isTooLarge(files) || !record->readRecordData(files, 0.0, progress, 1)) {
        return std::nullopt;
    }
    const auto samples = static_cast<qint64>(record->recordData().count());
    const double offset = record->offset();
    const auto flight = Flight::make(std::move(record), profile, progress);
    if (flight == nullptr) {
        return std::nullopt;
    }
    const FlightSummary found = summaryOf(*flight, offset, flight->troubles(offset, progress));
    if (progress.stopRequested()) {
        return std::nullopt;
    }
    const auto number = [](std::size_t count) { return static_cast<qint64>(count); };
    return Overview{found.duration,
                    samples,
                    number(found.watched.parameters),
                    number(found.limits.times),
                    number(found.warnings.times),
                    number(found.lamps.times),
                    number(found.faults.times),
                    number(found.remarks)};
}

} // namespace TARN
