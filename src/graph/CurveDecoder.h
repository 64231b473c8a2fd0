#pragma once

#include "graph/CurveFacts.h"
#include "graph/CurveSamples.h"

#include <memory>

namespace TARN {

/// A parameter of a flight as a curve.
struct DecodedCurve
{
    std::shared_ptr<const CurveSamples> samples; ///< null when it was asked to stop
    std::size_t leftOut = 0;                     ///< samples left out, because their time falls
    std::shared_ptr<const CurveFacts> facts;     ///< null with the samples
};

/// Decodes all samples of a parameter, at a time offset, and finds where it has no value.
DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, Progress& progress);
/// The same, of which no more need be shown than a range: where time does not fall, only its
/// samples and those next to it are decoded.
DecodedCurve decodeCurve(const std::shared_ptr<const Flight>& flight,
                         const ProfileParameter& parameter, double offset, const TimeRange& range,
                         Progress& progress);

} // namespace TARN
