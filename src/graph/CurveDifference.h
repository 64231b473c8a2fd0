#pragma once

#include "base/Progress.h"
#include "flight/ValueReader.h"
#include "graph/CurveSamples.h"

#include <memory>

namespace TARN {

/// A curve minus another one at its sample times, interrupted where one of them has no value. \p
/// shift in seconds brings the other one's times to the clock of the first. Null when it was asked
/// to stop.
std::shared_ptr<const CurveSamples> differenceOf(const CurveSamples& flight,
                                                 const CurveSamples& reference, Between between,
                                                 double shift, Progress& progress);

} // namespace TARN
