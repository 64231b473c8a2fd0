#pragma once

#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"

#include <QtCore/QString>

namespace TARN {

/// The value of a curve at a time as it is shown beside it; empty where it has none. At a sample
/// the number is the one recorded, in the shortest text that reads back as it; between two samples
/// it has as many decimals as these two have. With \p format, "%.2f" or the like, it is printed
/// in that form instead.
QString curveText(const ParStruct& curve, double time, const char* format = nullptr);

/// The same as a style wants it, a state in words; \p digits is the format where all of them are
/// wanted.
QString shownText(const ParStruct& curve, double time, const GraphStyle& style, const char* digits);

/// What a curve's reference has at a time on its own clock, as shownText; empty where nothing.
QString referenceTextOf(const ParStruct& curve, double time, const GraphStyle& style);

/// What its difference is at a time, with its sign and as many decimals as the curve has there;
/// empty where there is none.
QString differenceTextOf(const ParStruct& curve, double time);

/// Cursor and values in words, for those who can't see the graph: the curve pointed at first.
QString spokenText(const GraphModel& model, const GraphStyle& style);

} // namespace TARN
