#pragma once

#include "graph/CurveFacts.h"
#include "graph/CurveSamples.h"

#include <map>
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
/// Decodes parameters of a flight as far as they are seen in one time window or another: what
/// takes a walk over all samples of a parameter is found once.
class CurveWindows
{
public:
    CurveWindows(std::shared_ptr<const Flight> flight, double offset)
        : mFlight(std::move(flight)), mOffset(offset)
    {}

    /// The samples inside a range and one more on each side, so that lines run out of it; all of a
    /// parameter whose time falls.
    DecodedCurve decode(const ProfileParameter& parameter, const TimeRange& range,
                        Progress& progress);

private:
    struct Known
    {
        GapRule gaps;
        bool isInOrder;
    };

    const Known& knownOf(const Series& series);

    std::shared_ptr<const Flight> mFlight;
    double mOffset;
    std::map<const ProfileParameter*, Known> mKnown;
};

} // namespace TARN
