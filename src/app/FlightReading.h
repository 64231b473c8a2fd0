#pragma once

#include "flight/Flight.h"

#include <list>

namespace TARN {

/// Recordings as they were read and understood.
struct ReadFlight
{
    std::shared_ptr<const Record> record; ///< null: they can't be read
    std::shared_ptr<const Flight> flight; ///< null with the recording, and when it was stopped
    QString error;                        ///< why not; empty when it was stopped
};

/// Reads files as one recording. \p offset holds where their folder names none; \p task is the
/// name of the work that follows reading.
ReadFlight readFlight(const std::list<QString>& files, double offset,
                      std::shared_ptr<const Profile> profile, const QString& task,
                      Progress& progress);

/// The same recordings as another profile understands them, which came meanwhile.
ReadFlight understoodBy(std::shared_ptr<const Profile> profile, const ReadFlight& read,
                        Progress& progress);

/// The files that a flight was read from; none of no flight.
std::list<QString> filesOf(const Flight* flight);

} // namespace TARN
