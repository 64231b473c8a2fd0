#pragma once

#include "graph/CurveDecoder.h"
#include "graph/CurveSet.h"
#include "profile/CurveLooks.h"

namespace TARN {

/// A curve for each parameter, as many as there are curves; the others are not active.
void nameCurves(CurveSet& curves, const std::vector<const ProfileParameter*>& parameters);

/// Shows what was decoded for the parameter in that place.
void fillCurve(CurveSet& curves, unsigned place, const DecodedCurve& decoded);

/// Makes curves look as the user wants them; \p colors of those that he gave none.
void applyLooks(CurveSet& curves, const CurveLooks& looks, const std::vector<GraphColor>& colors);

/// How the curves look. What \p before said of parameters that are no curves stays.
CurveLooks looksOf(const CurveSet& curves, const CurveLooks& before,
                   const std::vector<GraphColor>& colors);

} // namespace TARN
