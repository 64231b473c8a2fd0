#pragma once

#include "base/Progress.h"
#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// The worst times out of range, each as two minutes of the parameter and of the others of its
/// device.
void writeWorst(const ReportMatter& matter, ReportPages& pages, Progress& progress);

/// All of the range, a strip for each selected parameter.
void writeWhole(const ReportMatter& matter, ReportPages& pages, Progress& progress);

} // namespace TARN
