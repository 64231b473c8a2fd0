#pragma once

#include "base/Progress.h"
#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// Where it happened: the path with its marks. Nothing where there is no position.
void writeTrack(const ReportMatter& matter, ReportPages& pages, Progress& progress);

} // namespace TARN
