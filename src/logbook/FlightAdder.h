#pragma once

#include "base/Progress.h"
#include "profile/Profile.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>

namespace TARN {

/// What became of the recordings of one flight.
struct AddOutcome
{
    enum Kind
    {
        Added,
        Known,
        Damaged ///< not added
    };

    Kind kind;
    QString aircraft;
    QString flight; ///< empty where the recordings could not be read
    QStringList files;
    QString reason; ///< of one that is damaged
};

/// Of all flights that were found.
struct AddTotals
{
    std::size_t all = 0;
    std::size_t done = 0;
    std::size_t added = 0;
    std::size_t known = 0;
    std::size_t damaged = 0;
};

/// Who asks; called from any thread, never by two at once.
struct AddListener
{
    std::function<void(const AddOutcome& outcome, const AddTotals& soFar)> done;
    std::function<void(const QString& reason)> connectionLost; ///< which is tried anew
};

/// Adds to the logbook at \p url what folders and the folders in them hold: recordings that make
/// one flight (see flightGroups) as one, each in a transaction of its own, what is known already
/// left as it is. \p jobs flights are read at once, 0: as many as there are processors. Links to
/// folders are not followed. Damaged ones don't end it; what the database can't do does: throws
/// LogbookError when all threads have ended. Ends early when it is asked to stop.
AddTotals addFlights(const QStringList& folders, const QString& url,
                     const std::shared_ptr<const Profile>& profile, unsigned jobs,
                     const AddListener& listener, Progress& progress);

/// The same, one after the other, for the flights that recordings are of: with what else their
/// folders hold of these flights.
AddTotals addFlightsOf(const QStringList& recordings, const QString& url,
                       const std::shared_ptr<const Profile>& profile, const AddListener& listener,
                       Progress& progress);

} // namespace TARN
