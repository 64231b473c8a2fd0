#pragma once

#include "graph/CurveSet.h"

#include <QtCore/QString>

namespace TARN {

/// The value of a curve at a time as it is shown beside it; empty where it has none. At a sample
/// the number is the one recorded, in the shortest text that reads back as it; between two samples
/// it has as many decimals as these two have. With \p format, "%.2f" or the like, it is printed
/// in that form instead.
QString curveText(const ParStruct& curve, double time, const char* format = nullptr);

} // namespace TARN
