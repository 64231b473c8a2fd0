#pragma once

#include "flight/Flight.h"

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

    double duration = 0.0; ///< from the first to the last sample, seconds
    Count limits;          ///< times out of range that reached a limit
    Count warnings;        ///< those that did not
    Count lamps;           ///< came on
    Count faults;          ///< warnings and faults of the error matrices that came
    Watched watched;       ///< parameters with a threshold that can be exceeded, and their samples
    std::size_t remarks = 0; ///< on what could be read
};

/// \p episodes of the flight at that offset.
FlightSummary summaryOf(const Flight& flight, double offset, const std::vector<Episode>& episodes);

} // namespace TARN
