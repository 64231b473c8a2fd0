#pragma once

#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// The recording in a line: its date and its engine.
QString reportTitle(const Flight& flight);

/// The language of the report's texts, as pages name it.
QString reportLanguage();

/// What was recorded and when, by which units, understood by which profile.
void writeHead(const ReportMatter& matter, ReportPages& pages);

/// What happened, in a line.
void writeAnswer(const ReportMatter& matter, ReportPages& pages);

/// What could not be read and what does not fit together.
void writeRemarks(const ReportMatter& matter, ReportPages& pages);

} // namespace TARN
