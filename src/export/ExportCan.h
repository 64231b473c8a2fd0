#pragma once

#include "export/CsvExportOptions.h"
#include "export/ExportResult.h"
#include "record/Record.h"

namespace TARN {

/// Writes the samples of a time range as a recording file, which can be opened again: the
/// header with its start time cleared, then the samples by time, times counted from the range's
/// start in ticks of 31.25 ns. Always big-endian.
class ExportCan
{
public:
    void setProgress(ExportProgress progress) { mProgress = std::move(progress); }

    /// Clears the start time in the loaded recording's header too.
    ExportResult exportData(Record& record, const CsvExportOptions& options);

private:
    ExportProgress mProgress;
};

} // namespace TARN
