#pragma once

#include "graph/GraphTypes.h"

namespace TARN {

/// Colour of curve \p k of 30 on a dark plot. Any two can be told apart, also by eyes that do not
/// see red or green; all stand out from black.
GraphColor curveColor(unsigned k);

/// How far two colours stand out from each other, from 1 (not at all) to 21 (black and white):
/// (L1 + 0.05) / (L2 + 0.05) of their relative luminances in sRGB, the greater above.
double contrastOf(const GraphColor& a, const GraphColor& b);

/// Text of less contrast is hard to read.
constexpr double LegibleContrast = 4.5;

/// A colour darkened, or lightened, as much as it takes to be read on a background.
GraphColor legibleOn(const GraphColor& background, const GraphColor& color);

} // namespace TARN
