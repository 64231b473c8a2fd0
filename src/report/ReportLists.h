#pragma once

#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// Everything that went wrong, with when, how long and how far.
void writeLists(const ReportMatter& matter, ReportPages& pages);

} // namespace TARN
