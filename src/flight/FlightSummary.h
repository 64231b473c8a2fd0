#pragma once

#include "flight/Flight.h"

#include <QtCore/QString>

namespace TARN {

/// What went wrong in a flight, counted: the answer to "what happened?" in one line.
struct FlightSummary
{
    /// How often, and the time of the first to look at; seconds with the time offset.
    struct Count
    {
        std::size_t times = 0;
        double first = 0.0;

        /// The first one that is added is that to look at.
        void add(double time);
    };

    double duration = 0.0; ///< seconds
    Count limits;          ///< times out of range that reached a limit
    Count warnings;        ///< those that did not
    Count lamps;           ///< times during which one was on
    Count faults;          ///< warnings and faults of the error matrices that came
    Watched watched;       ///< parameters with a threshold that can be exceeded, and their samples
    std::size_t remarks = 0; ///< on what could be read
    bool hasProfile = false; ///< nothing was looked for without one

    /// A part of the answer, and where it leads.
    struct Part
    {
        enum Kind : int
        {
            Words, ///< leads nowhere
            Exceedances,
            Lamps,
            Faults,
            Remarks
        };

        Kind kind;
        QString text;
        double time = 0.0; ///< of the first of its kind
        QColor color = {}; ///< of its ground; invalid for words
    };

    /// The worst first.
    std::vector<Part> parts() const;
};

/// \p troubles of the flight at that offset, as far as they touch the range.
FlightSummary summaryOf(const Flight& flight, double offset, const Troubles& troubles,
                        const TimeRange& range);
/// The same of all of the flight.
FlightSummary summaryOf(const Flight& flight, double offset, const Troubles& troubles);

} // namespace TARN
