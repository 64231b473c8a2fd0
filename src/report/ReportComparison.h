#pragma once

#include "report/ReportCharts.h"

namespace TARN {

/// What changed most against the reference: where both flights are steady, otherwise over the time
/// that they have in common. Nothing without a reference, and where the two have no time in common
/// inside the range.
void writeComparison(const ReportMatter& matter, ReportCharts& charts, ReportPages& pages,
                     Progress& progress);

} // namespace TARN
