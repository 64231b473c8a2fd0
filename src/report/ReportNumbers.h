#pragma once

#include "base/Progress.h"
#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// Statistics of the selected parameters over the range.
void writeNumbers(const ReportMatter& matter, ReportPages& pages, Progress& progress);

} // namespace TARN
