#pragma once

#include "cli/Json.h"
#include "flight/Statistics.h"

namespace TARN {

/// What `stats` tells of a parameter: who it is, then its numbers.
Json statisticsLine(const ProfileDevice& device, const ProfileParameter& parameter,
                    const Statistics& found);

/// What `compare` tells of the difference.
Json differenceOf(const Statistics& found);

} // namespace TARN
